// SPDX-License-Identifier: MIT
#pragma once

#include "window/copying.h"
#include "window/desk.h"
#include "window/loader.h"
#include "window/saving.h"
#include "window/sourcewatch.h"

#include <QMainWindow>
#include <QTimer>

class QAction;
class QLabel;
class QProgressBar;
class QPushButton;
class QSettings;
class QTabWidget;

namespace window
{

class ColumnsMenu;
class FindingsPage;
class GoodsPage;
class InfoBar;
class OrdersPage;
class OverviewPage;
class RecentMenu;

class MainWindow : public QMainWindow
{
public:
    explicit MainWindow(QSettings &settings);
    ~MainWindow() override;
    Q_DISABLE_COPY(MainWindow)

    void open(const QString &path);

    void convert(const QString &destination) { saving.convert(*desk.source(), destination); }
    void saveFindings(const QString &path) { saving.saveFindings(desk.source(), path); }

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void addMenus();
    void addFileMenu();
    void addCopyMenu();
    void addViewMenu();

    void askForSource();
    void readAgain(); ///< what is being read, or else what is shown
    void stop();
    void showOpened(Opened opened);
    void tellErrors(const Source &source);
    void offerToRead(const QString &text);

    void showFinding(const survey::Finding &finding);
    void showAbout();
    void showProgress();
    void showState();
    void saveSettings();
    void restoreSettings();

    QSettings &settings;
    Loader loader;
    Desk desk;
    SourceWatch watch;
    QTimer progressTimer;

    GoodsPage *goods;
    OrdersPage *orders;
    FindingsPage *findings;
    OverviewPage *overview;
    QTabWidget *pages;
    InfoBar *infoBar;
    Copying copying;
    Saving saving;
    QProgressBar *progress;
    QPushButton *stopButton;
    QLabel *state;
    RecentMenu *recent;
    ColumnsMenu *columns;

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
