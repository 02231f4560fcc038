// SPDX-License-Identifier: MIT
#pragma once

#include "survey/filestate.h"
#include "window/conversion.h"
#include "window/desk.h"
#include "window/loader.h"

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

    /// Tries to put a table of the findings there.
    void saveFindings(const QString &path);

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QAction *add(QMenu *menu, const QString &name, const QString &text, const QKeySequence &key,
                 const std::function<void()> &triggered);
    void addMenus();
    void addFileMenu();
    void addCopyMenu();
    void addRecentMenu(QMenu *menu);
    void addViewMenu();
    void addColumnsMenu(QMenu *menu);

    void askForSource();
    void readAgain(); ///< what is being read, or else what is shown
    void stop();
    void showOpened(Opened opened);
    void tellErrors(const Source &source);
    void tell(const QString &text);
    QString withText(const QString &text) const; ///< behind what the bar tells already
    void offerToRead(const QString &text);

    void addRecent(const QString &path);
    void showRecent();
    void showColumns();
    void watch(const QString &path);
    void lookForChange();

    void showFinding(const survey::Finding &finding);
    void askWhereToSave();
    void askForDestination();
    void endConversion();
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
    std::unique_ptr<Conversion> conversion; ///< null where none is going on
    QFileSystemWatcher watcher;
    QTimer changeTimer;
    QTimer progressTimer;
    survey::FileState shownState; ///< or of the change that was told of since

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
    QVector<QAction *> recentActions;
    QVector<QAction *> columnActions;

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
