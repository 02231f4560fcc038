// SPDX-License-Identifier: MIT
#include "window/mainwindow.h"

#include "window/findingspage.h"
#include "window/goodspage.h"
#include "window/infobar.h"
#include "window/menus.h"
#include "window/orderspage.h"
#include "window/overviewpage.h"
#include "window/settings.h"
#include "window/texts.h"
#include "words/findings.h"
#include "words/language.h"

#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

#include <utility>

using words::Words;

namespace window
{

MainWindow::MainWindow(QSettings &settings)
    : settings(readSettings(settings)),
      goods(new GoodsPage(desk)),
      orders(new OrdersPage),
      findings(new FindingsPage),
      overview(new OverviewPage),
      pages(new QTabWidget),
      infoBar(new InfoBar),
      copying(desk, *infoBar),
      saving(desk, settings, *infoBar, *this),
      progress(new QProgressBar),
      stopButton(new QPushButton(Words::tr("Stop"))),
      state(new QLabel),
      recent(new RecentMenu(settings, this)),
      columns(new ColumnsMenu(*goods, this))
{
    pages->addTab(goods, Words::tr("Goods"));
    pages->addTab(orders, Words::tr("Orders"));
    pages->addTab(findings, Words::tr("Findings"));
    pages->addTab(overview, Words::tr("Overview"));
    auto *const center = new QWidget;
    auto *const layout = new QVBoxLayout(center);
    layout->addWidget(infoBar);
    layout->addWidget(pages);
    setCentralWidget(center);
    progress->setAccessibleName(Words::tr("Progress"));
    state->setTextFormat(Qt::PlainText); // it tells names of files
    statusBar()->addWidget(state, 1);
    statusBar()->addPermanentWidget(progress);
    statusBar()->addPermanentWidget(stopButton);
    addMenus();
    setAcceptDrops(true);
    setWindowTitle(QStringLiteral("xml2ryk"));

    desk.ranOut = [this](bool isReaderLost) {
        if (isReaderLost)
            offerToRead(
                Words::tr("Memory ran out. Nothing more can be copied of the source until it "
                          "is read again."));
        else
            infoBar->tell(Words::tr("memory ran out"));
        showState();
    };
    loader.opened = [this](Opened opened) { showOpened(std::move(opened)); };
    goods->changed = [this] { showState(); };
    orders->changed = [this] { showState(); };
    copying.changed = [this] { showState(); };
    saving.changed = [this] {
        showProgress();
        showState();
    };
    findings->activated = [this](const survey::Finding &finding) { showFinding(finding); };
    connect(stopButton, &QPushButton::clicked, stopAction, &QAction::trigger);
    recent->chosen = [this](const QString &path) { open(path); };
    columns->changing = [this] { pages->setCurrentWidget(goods); };
    watch.waits = [this] { return loader.isLoading(); };
    watch.changed = [this](const QString &path, bool isThere) {
        const QString text = isThere ? Words::tr("%1 has changed on the disk.")
                                     : Words::tr("%1 is no longer on the disk.");
        offerToRead(text.arg(QDir::toNativeSeparators(path)));
    };
    constexpr int pause = 100;
    progressTimer.setInterval(pause);
    connect(&progressTimer, &QTimer::timeout, this, [this] { showProgress(); });
    restoreSettings();
    showProgress();
    showState();
}

MainWindow::~MainWindow()
{
    // The pages tell of changes as they go, and stand on what goes ahead of them.
    goods->changed = {};
    orders->changed = {};
    delete takeCentralWidget();
}

void MainWindow::addMenus()
{
    addFileMenu();
    addCopyMenu();
    addViewMenu();
    QMenu *const help = menuBar()->addMenu(Words::tr("&Help"));
    addEntry(*help, QStringLiteral("about"), Words::tr("&About xml2ryk"), Qt::Key_F1,
             [this] { showAbout(); });
}

void MainWindow::addFileMenu()
{
    QMenu *const menu = menuBar()->addMenu(Words::tr("&File"));
    addEntry(*menu, QStringLiteral("open"), Words::tr("&Open..."), QKeySequence::Open,
             [this] { askForSource(); });
    menu->addMenu(recent);
    readAgainAction = addEntry(*menu, QStringLiteral("readAgain"), Words::tr("Read &again"),
                               Qt::Key_F5, [this] { readAgain(); });
    stopAction = addEntry(*menu, QStringLiteral("stop"), Words::tr("&Stop"), Qt::Key_Escape,
                          [this] { stop(); });
    menu->addSeparator();
    purchaseAction =
        addEntry(*menu, QStringLiteral("purchase"), Words::tr("Documents are &purchases"),
                 QStringLiteral("Ctrl+P"), [this] { readAgain(); });
    purchaseAction->setCheckable(true);
    convertAction = addEntry(*menu, QStringLiteral("convert"), Words::tr("&Convert..."),
                             QStringLiteral("Ctrl+E"), [this] { saving.askForDestination(); });
    saveFindingsAction =
        addEntry(*menu, QStringLiteral("saveFindings"), Words::tr("Save &findings as a table..."),
                 QKeySequence::Save, [this] { saving.askForTable(); });
    menu->addSeparator();
    addEntry(*menu, QStringLiteral("quit"), Words::tr("&Quit"), QStringLiteral("Ctrl+Q"),
             [this] { close(); });
}

void MainWindow::addCopyMenu()
{
    QMenu *const menu = menuBar()->addMenu(Words::tr("&Copy"));
    copyChosenAction =
        addEntry(*menu, QStringLiteral("copyChosen"), Words::tr("&Chosen goods"),
                 QStringLiteral("Ctrl+Shift+C"), [this] { copying.copyGoods(goods->chosen()); });
    copyAllAction = addEntry(*menu, QStringLiteral("copyAll"), Words::tr("&All goods"),
                             QStringLiteral("Ctrl+Shift+A"), [this] { copying.copyAllGoods(); });
    addEntry(*menu, QStringLiteral("howToCopy"), Words::tr("&How to copy goods..."),
             QStringLiteral("Ctrl+Shift+H"), [this] { copying.askHow(this); });
    menu->addSeparator();
    copyOrderAction =
        addEntry(*menu, QStringLiteral("copyOrder"), Words::tr("&Lines of the document"),
                 QStringLiteral("Ctrl+Shift+L"),
                 [this] { copying.copyOrder(orders->current(), withGoodsAction->isChecked()); });
    withGoodsAction = addEntry(*menu, QStringLiteral("withGoods"), Words::tr("Lines with &goods"),
                               QStringLiteral("Ctrl+Shift+G"), [] {});
    withGoodsAction->setCheckable(true);
    withGoodsAction->setChecked(true);
}

void MainWindow::addViewMenu()
{
    QMenu *const menu = menuBar()->addMenu(Words::tr("&View"));
    for (int page = 0; page < pages->count(); ++page)
        addEntry(*menu, QStringLiteral("page%1").arg(page + 1), pages->tabText(page),
                 QStringLiteral("Ctrl+%1").arg(page + 1),
                 [this, page] { pages->setCurrentIndex(page); });
    menu->addSeparator();
    addEntry(*menu, QStringLiteral("filter"), Words::tr("&Filter"), QKeySequence::Find, [this] {
        pages->setCurrentWidget(goods);
        goods->filter();
    });
    addEntry(*menu, QStringLiteral("sort"), Words::tr("&Sort by the current column"), Qt::Key_F6,
             [this] {
                 pages->setCurrentWidget(goods);
                 goods->sortByCurrentColumn();
             });
    addEntry(*menu, QStringLiteral("unsort"), Words::tr("In the &order of the source"),
             QStringLiteral("Shift+F6"), [this] {
                 pages->setCurrentWidget(goods);
                 goods->sortAsInSource();
             });
    menu->addMenu(columns);
    menu->addSeparator();
    addEntry(*menu, QStringLiteral("closeMessage"), Words::tr("Close &message"),
             QStringLiteral("Ctrl+M"), [this] { infoBar->hide(); });
}

void MainWindow::askForSource()
{
    const QString shown = desk.source()->path;
    const QString last = shown.isEmpty() ? recent->latest() : shown;
    const QString path = QFileDialog::getOpenFileName(
        this, Words::tr("Open a source"), QFileInfo(last).path(),
        Words::tr("Sources (*.xml *.yml)") + QLatin1String(";;") + Words::tr("All files (*)"));
    if (!path.isEmpty())
        open(path);
}

void MainWindow::open(const QString &path)
{
    const QString why = whyNotReadable(path);
    if (!why.isEmpty()) {
        infoBar->tell(why);
        return;
    }
    infoBar->hide();
    loader.open(QFileInfo(path).absoluteFilePath(), purchaseAction->isChecked());
    showProgress();
    showState();
}

void MainWindow::readAgain()
{
    const QString path = loader.isLoading() ? loader.path() : desk.source()->path;
    if (!path.isEmpty())
        open(path);
}

void MainWindow::stop()
{
    if (loader.isLoading())
        infoBar->tell(Words::tr("The reading was stopped."));
    loader.stop();
    saving.stop();
    showProgress();
    showState();
}

void MainWindow::offerToRead(const QString &text)
{
    infoBar->remind(text, Words::tr("&Read again"), [this] { readAgain(); });
}

void MainWindow::showOpened(Opened opened)
{
    showProgress();
    if (opened.reader)
        infoBar->forgetReminder();
    tellErrors(*opened.source);
    if (!opened.reader) {
        showState();
        return;
    }
    const QString path = opened.source->path;
    Opened old = desk.replace(std::move(opened));
    goods->showSource();
    orders->show(desk.source());
    findings->show(desk.source());
    overview->show(*desk.source());
    desk.putAway(std::move(old));
    if (desk.source()->goods.isEmpty() && !desk.source()->orders.isEmpty())
        pages->setCurrentWidget(orders);
    else if (!desk.source()->goods.isEmpty() && desk.source()->orders.isEmpty())
        pages->setCurrentWidget(goods);
    setWindowTitle(QFileInfo(path).fileName() + QLatin1String(" - xml2ryk"));
    recent->add(path);
    watch.watch(path, desk.source()->state);
    showState();
}

/// Why a source could not be opened, or gives nothing.
void MainWindow::tellErrors(const Source &source)
{
    const QStringList lines = errorsInWords(source.survey);
    if (!lines.isEmpty())
        infoBar->tell(QDir::toNativeSeparators(source.path) + u'\n' + lines.join(u'\n'));
}

void MainWindow::showFinding(const survey::Finding &finding)
{
    const Shown shown = shownAt(*desk.source(), finding.position);
    if (shown.good >= 0) {
        pages->setCurrentWidget(goods);
        goods->goTo(shown.good);
    } else if (shown.order >= 0) {
        pages->setCurrentWidget(orders);
        orders->goTo(shown.order, shown.line);
    } else {
        infoBar->tell(Words::tr("No table shows what this is about.") + u'\n' + inWords(finding));
    }
}

void MainWindow::showAbout()
{
    QMessageBox::about(this, Words::tr("About xml2ryk"),
                       Words::tr("xml2ryk %1 shows, checks and converts trade data.\n\n"
                                 "Its licence is MIT. It is made with Qt %2, whose licence is "
                                 "the LGPL, version 3.")
                           .arg(QLatin1String(XML2RYK_VERSION), QLatin1String(qVersion())));
}

void MainWindow::showProgress()
{
    const bool isBusy = loader.isLoading() || saving.isConverting();
    if (isBusy != progressTimer.isActive())
        isBusy ? progressTimer.start() : progressTimer.stop();
    progress->setVisible(isBusy);
    stopButton->setVisible(isBusy);
    stopAction->setEnabled(isBusy);
    const double share = loader.isLoading() ? loader.share() : saving.share();
    constexpr int whole = 100;
    progress->setRange(0, share < 0 || share >= 1 ? 0 : whole); // without an end, it only moves
    if (progress->maximum() > 0)
        progress->setValue(int(share * whole));
}

void MainWindow::showState()
{
    const Source &source = *desk.source();
    const bool isOpen = !source.path.isEmpty();
    readAgainAction->setEnabled(isOpen || loader.isLoading());
    if (isOpen && !loader.isLoading())
        purchaseAction->setChecked(source.purchase); // where it was to be another one, and is not
    // Nobody knows whether its documents are purchases while that may become another one.
    convertAction->setEnabled(isOpen && !saving.isConverting() && loader.path() != source.path);
    saveFindingsAction->setEnabled(isOpen);
    copyAllAction->setEnabled(desk.hasReader() && !source.goods.isEmpty());
    copyChosenAction->setEnabled(desk.hasReader() &&
                                 goods->table().selectionModel()->hasSelection());
    copyOrderAction->setEnabled(desk.hasReader() && orders->current() >= 0);

    QStringList parts;
    if (loader.isLoading())
        parts.append(Words::tr("reading %1").arg(QFileInfo(loader.path()).fileName()));
    if (saving.isConverting())
        parts.append(Words::tr("converting"));
    if (isOpen) {
        parts.append(words::countsInWords(source.survey.counts));
        const QString levels = words::levelsInWords(source.survey);
        if (!levels.isEmpty())
            parts.append(levels);
        if (goods->shownCount() < source.goods.size())
            parts.append(Words::tr("%n shown", nullptr, goods->shownCount()));
    } else if (!loader.isLoading()) {
        parts.append(Words::tr("Open a source, or drop one here"));
    }
    state->setText(parts.join(QLatin1String("; ")));
}

void MainWindow::saveSettings()
{
    window::save(settings, QStringLiteral("geometry"), *this);
    goods->save(settings);
    orders->save(settings);
    findings->save(settings);
    copying.save(settings);
}

void MainWindow::restoreSettings()
{
    constexpr QSize atFirst(1100, 700);
    window::restore(settings, QStringLiteral("geometry"), *this, atFirst);
    goods->restore(settings);
    orders->restore(settings);
    findings->restore(settings);
    columns->showColumns();
    copying.restore(settings);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    saveSettings();
    QMainWindow::closeEvent(event);
}

/// The one file of a drop; empty if it is something else.
static QString fileOf(const QMimeData *data)
{
    const QList<QUrl> urls = data->urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

/// Whatever the keys propose: who drags a file would remove one that was moved.
static void acceptCopy(QDropEvent &event)
{
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!fileOf(event->mimeData()).isEmpty())
        acceptCopy(*event);
}

void MainWindow::dropEvent(QDropEvent *event)
{
    const QString path = fileOf(event->mimeData());
    if (path.isEmpty())
        return;
    acceptCopy(*event);
    open(path);
}

} // namespace window
