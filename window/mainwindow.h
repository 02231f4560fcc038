// SPDX-License-Identifier: MIT
#pragma once

#include "delivery/run.h"
#include "window/desk.h"
#include "window/loader.h"

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QKeySequence>
#include <QMainWindow>
#include <QTimer>

class QAction;
class QLabel;
class QMenu;
class QProgressBar;
class QPushButton;
class QSettings;
class QTabWidget;

namespace window
{

class FindingsPage;
class GoodsPage;
class InfoBar;
class OrdersPage;
class OverviewPage;

class MainWindow : public QMainWindow
{
public:
    explicit MainWindow(QSettings &settings);
    ~MainWindow() override;
    Q_DISABLE_COPY(MainWindow)

    void open(const QString &path);

    /// Tries to put the exchange file of the source there.
    void convert(const QString &destination);

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    /// What tells a file that has changed from what it was.
    struct FileState {
        qint64 size = -1;
        QDateTime time;

        static FileState of(const QString &path);
        bool operator!=(const FileState &other) const
        {
            return size != other.size || time != other.time;
        }
    };

    QAction *add(QMenu *menu, const QString &name, const QString &text, const QKeySequence &key,
                 const std::function<void()> &triggered);
    void addMenus();
    void addFileMenu();
    void addCopyMenu();
    void addViewMenu();

    void askForSource();
    void readAgain();
    void stop();
    void showOpened(Opened opened);
    void tellErrors(const Source &source);
    void tell(const QString &text);

    void addRecent(const QString &path);
    void fillRecent();
    void fillColumns();
    void watch(const QString &path);
    void lookForChange();

    void showFinding(const survey::Finding &finding);
    void saveFindings();
    void askForDestination();
    void tellOutcome(const delivery::Outcome &outcome);
    void askHowToCopy();
    void copyGoods(bool onlyChosen);
    void copyOrder();
    void putOnClipboard(SourceReader &reader);

    void showProgress();
    void showState();
    void saveSettings();
    void restoreSettings();

    QSettings &settings;
    Loader loader;
    Desk desk;
    CopyOptions copying;
    std::unique_ptr<delivery::Run> conversion; ///< null where none is going on
    double converted = 0;                      ///< how much of its source is read
    QFileSystemWatcher watcher;
    QTimer changeTimer;
    QTimer progressTimer;
    QTimer endTimer; ///< of a conversion
    FileState shownState;

    GoodsPage *goods;
    OrdersPage *orders;
    FindingsPage *findings;
    OverviewPage *overview;
    QTabWidget *pages;
    InfoBar *infoBar;
    QProgressBar *progress;
    QPushButton *stopButton;
    QLabel *state;
    QMenu *recentMenu = nullptr;
    QMenu *columnsMenu = nullptr;

    QAction *readAgainAction = nullptr;
    QAction *stopAction = nullptr;
    QAction *convertAction = nullptr;
    QAction *saveFindingsAction = nullptr;
    QAction *purchaseAction = nullptr;
    QAction *copyAllAction = nullptr;
    QAction *copyChosenAction = nullptr;
    QAction *copyOrderAction = nullptr;
    QAction *withGoodsAction = nullptr;
};

} // namespace window
