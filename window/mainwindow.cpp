// SPDX-License-Identifier: MIT
#include "window/mainwindow.h"

#include "window/copydialog.h"
#include "window/findingspage.h"
#include "window/goodspage.h"
#include "window/infobar.h"
#include "window/orderspage.h"
#include "window/overviewpage.h"
#include "words/findings.h"
#include "words/language.h"
#include "words/outcomes.h"

#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QSaveFile>
#include <QSettings>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <new>
#include <utility>

using words::Words;

namespace window
{

static const QString recentKey = QStringLiteral("recent");

/// The errors of a source, each with its place.
static QStringList errorsOf(const survey::Survey &survey)
{
    QStringList lines;
    for (const survey::Finding &finding : survey.findings) {
        if (finding.level != survey::Level::Error)
            continue;
        const QString place = placeInWords(finding.position);
        const QString sentence = words::sentence(finding);
        lines.append(place.isEmpty() ? sentence : place + QLatin1String(": ") + sentence);
    }
    if (lines.isEmpty() && survey.outOfMemory)
        lines.append(Words::tr("memory ran out"));
    return lines;
}

MainWindow::FileState MainWindow::FileState::of(const QString &path)
{
    const QFileInfo info(path);
    return info.isFile() ? FileState{info.size(), info.lastModified()} : FileState();
}

MainWindow::MainWindow(QSettings &settings)
    : settings(settings),
      goods(new GoodsPage(desk)),
      orders(new OrdersPage),
      findings(new FindingsPage),
      overview(new OverviewPage),
      pages(new QTabWidget),
      infoBar(new InfoBar),
      progress(new QProgressBar),
      stopButton(new QPushButton(Words::tr("Stop"))),
      state(new QLabel)
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
    statusBar()->addWidget(state, 1);
    statusBar()->addPermanentWidget(progress);
    statusBar()->addPermanentWidget(stopButton);
    addMenus();
    setAcceptDrops(true);
    setWindowTitle(QStringLiteral("xml2ryk"));

    desk.ranOut = [this] {
        tell(Words::tr("memory ran out"));
        showState();
    };
    loader.opened = [this](Opened opened) { showOpened(std::move(opened)); };
    goods->changed = [this] { showState(); };
    orders->changed = [this] { showState(); };
    findings->activated = [this](const survey::Finding &finding) { showFinding(finding); };
    connect(stopButton, &QPushButton::clicked, stopAction, &QAction::trigger);
    const auto soon = [this] { changeTimer.start(); };
    constexpr int settled = 500; // until whoever writes the file is likely to be done
    changeTimer.setInterval(settled);
    changeTimer.setSingleShot(true);
    connect(&watcher, &QFileSystemWatcher::fileChanged, this, soon);
    connect(&watcher, &QFileSystemWatcher::directoryChanged, this, soon);
    connect(&changeTimer, &QTimer::timeout, this, [this] { lookForChange(); });
    constexpr int pause = 100;
    progressTimer.setInterval(pause);
    connect(&progressTimer, &QTimer::timeout, this, [this] { showProgress(); });
    endTimer.setSingleShot(true);
    connect(&endTimer, &QTimer::timeout, this, [this] {
        conversion.reset();
        showProgress();
        showState();
    });
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

QAction *MainWindow::add(QMenu *menu, const QString &name, const QString &text,
                         const QKeySequence &key, const std::function<void()> &triggered)
{
    QAction *const action = menu->addAction(text);
    action->setObjectName(name);
    action->setShortcut(key);
    connect(action, &QAction::triggered, this, [triggered] { triggered(); });
    return action;
}

void MainWindow::addMenus()
{
    addFileMenu();
    addCopyMenu();
    addViewMenu();
}

void MainWindow::addFileMenu()
{
    QMenu *const menu = menuBar()->addMenu(Words::tr("&File"));
    add(menu, QStringLiteral("open"), Words::tr("&Open..."), QKeySequence::Open,
        [this] { askForSource(); });
    recentMenu = menu->addMenu(Words::tr("Open &recent"));
    connect(recentMenu, &QMenu::aboutToShow, this, [this] { fillRecent(); });
    readAgainAction = add(menu, QStringLiteral("readAgain"), Words::tr("Read &again"), Qt::Key_F5,
                          [this] { readAgain(); });
    stopAction =
        add(menu, QStringLiteral("stop"), Words::tr("&Stop"), Qt::Key_Escape, [this] { stop(); });
    menu->addSeparator();
    purchaseAction = add(menu, QStringLiteral("purchase"), Words::tr("Documents are &purchases"),
                         QStringLiteral("Ctrl+P"), [this] { readAgain(); });
    purchaseAction->setCheckable(true);
    convertAction = add(menu, QStringLiteral("convert"), Words::tr("&Convert..."),
                        QStringLiteral("Ctrl+E"), [this] { askForDestination(); });
    saveFindingsAction =
        add(menu, QStringLiteral("saveFindings"), Words::tr("Save &findings as a table..."),
            QKeySequence::Save, [this] { saveFindings(); });
    menu->addSeparator();
    add(menu, QStringLiteral("quit"), Words::tr("&Quit"), QStringLiteral("Ctrl+Q"),
        [this] { close(); });
}

void MainWindow::addCopyMenu()
{
    QMenu *const menu = menuBar()->addMenu(Words::tr("&Copy"));
    copyChosenAction =
        add(menu, QStringLiteral("copyChosen"), Words::tr("&Chosen goods"),
            QStringLiteral("Ctrl+Shift+C"), [this] { copyGoods(/*onlyChosen=*/true); });
    copyAllAction =
        add(menu, QStringLiteral("copyAll"), Words::tr("&All goods"),
            QStringLiteral("Ctrl+Shift+A"), [this] { copyGoods(/*onlyChosen=*/false); });
    add(menu, QStringLiteral("howToCopy"), Words::tr("&How to copy goods..."),
        QStringLiteral("Ctrl+Shift+H"), [this] { askHowToCopy(); });
    menu->addSeparator();
    copyOrderAction = add(menu, QStringLiteral("copyOrder"), Words::tr("&Lines of the document"),
                          QStringLiteral("Ctrl+Shift+L"), [this] { copyOrder(); });
    withGoodsAction = add(menu, QStringLiteral("withGoods"), Words::tr("Lines with &goods"),
                          QStringLiteral("Ctrl+Shift+G"), [] {});
    withGoodsAction->setCheckable(true);
    withGoodsAction->setChecked(true);
}

void MainWindow::addViewMenu()
{
    QMenu *const menu = menuBar()->addMenu(Words::tr("&View"));
    for (int page = 0; page < pages->count(); ++page)
        add(menu, QStringLiteral("page%1").arg(page + 1), pages->tabText(page),
            QStringLiteral("Ctrl+%1").arg(page + 1),
            [this, page] { pages->setCurrentIndex(page); });
    menu->addSeparator();
    add(menu, QStringLiteral("filter"), Words::tr("&Filter"), QKeySequence::Find, [this] {
        pages->setCurrentWidget(goods);
        goods->filter();
    });
    add(menu, QStringLiteral("sort"), Words::tr("&Sort by the current column"), Qt::Key_F6, [this] {
        pages->setCurrentWidget(goods);
        goods->sortByCurrentColumn();
    });
    columnsMenu = menu->addMenu(Words::tr("&Columns of goods"));
    connect(columnsMenu, &QMenu::aboutToShow, this, [this] { fillColumns(); });
    QHeaderView *const header = goods->table().horizontalHeader();
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this,
            [this, header](const QPoint &at) { columnsMenu->popup(header->mapToGlobal(at)); });
}

void MainWindow::fillColumns()
{
    columnsMenu->clear();
    QTableView &table = goods->table();
    for (int column = 0; column < table.model()->columnCount(); ++column) {
        const QString heading = table.model()->headerData(column, Qt::Horizontal).toString();
        QAction *const action = columnsMenu->addAction(heading);
        action->setCheckable(true);
        action->setChecked(!table.isColumnHidden(column));
        connect(action, &QAction::toggled, this, [&table, column](bool isShown) {
            table.setColumnHidden(column, !isShown);
            if (isShown && table.columnWidth(column) == 0)
                table.resizeColumnToContents(column);
        });
    }
}

void MainWindow::fillRecent()
{
    recentMenu->clear();
    int number = 0;
    for (const QString &path : settings.value(recentKey).toStringList()) {
        QString shown = QDir::toNativeSeparators(path);
        shown.replace(u'&', QLatin1String("&&"));
        const QAction *const action =
            recentMenu->addAction(QStringLiteral("&%1 %2").arg(++number).arg(shown));
        connect(action, &QAction::triggered, this, [this, path] { open(path); });
    }
    if (recentMenu->isEmpty())
        recentMenu->addAction(Words::tr("Nothing yet"))->setEnabled(false);
}

void MainWindow::addRecent(const QString &path)
{
    constexpr int most = 9;
    QStringList paths = settings.value(recentKey).toStringList();
    paths.removeAll(path);
    paths.prepend(path);
    settings.setValue(recentKey, QStringList(paths.mid(0, most)));
}

void MainWindow::askForSource()
{
    const QString path = QFileDialog::getOpenFileName(
        this, Words::tr("Open a source"), QFileInfo(desk.source()->path).path(),
        Words::tr("Sources (*.xml *.yml)") + QLatin1String(";;") + Words::tr("All files (*)"));
    if (!path.isEmpty())
        open(path);
}

void MainWindow::open(const QString &path)
{
    infoBar->hide();
    loader.open(QFileInfo(path).absoluteFilePath(), purchaseAction->isChecked());
    showProgress();
    showState();
}

void MainWindow::readAgain()
{
    if (!desk.source()->path.isEmpty())
        open(desk.source()->path);
}

void MainWindow::stop()
{
    if (loader.isLoading())
        tell(Words::tr("The reading was stopped."));
    loader.stop();
    if (conversion && !endTimer.isActive())
        tell(Words::tr("The conversion was stopped; the destination is as it was."));
    endTimer.stop();
    conversion.reset();
    showProgress();
    showState();
}

void MainWindow::tell(const QString &text)
{
    infoBar->tell(text);
}

void MainWindow::showOpened(Opened opened)
{
    showProgress();
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
    addRecent(path);
    watch(path);
    showState();
}

/// Why a source could not be opened, or gives nothing.
void MainWindow::tellErrors(const Source &source)
{
    const QStringList lines = errorsOf(source.survey);
    if (!lines.isEmpty())
        tell(QDir::toNativeSeparators(source.path) + u'\n' + lines.join(u'\n'));
}

void MainWindow::watch(const QString &path)
{
    const QStringList watched = watcher.files() + watcher.directories();
    if (!watched.isEmpty())
        watcher.removePaths(watched);
    // A file that is replaced by another one is no longer watched: its folder is.
    watcher.addPaths({path, QFileInfo(path).path()});
    shownState = FileState::of(path);
}

void MainWindow::lookForChange()
{
    const QString path = desk.source()->path;
    const FileState now = FileState::of(path);
    if (now.size < 0 || loader.isLoading() || !(now != shownState))
        return;
    watch(path);
    infoBar->offer(Words::tr("The source has changed on the disk."), Words::tr("&Read again"),
                   [this] { readAgain(); });
}

void MainWindow::showFinding(const survey::Finding &finding)
{
    if (finding.code.isEmpty())
        return;
    using survey::Kind;
    const bool isAboutDocument = finding.kind == Kind::NoPartner ||
                                 finding.kind == Kind::NoNumber || finding.kind == Kind::NoLines ||
                                 finding.kind == Kind::OtherRole;
    if (!isAboutDocument && goods->chooseCode(finding.code))
        pages->setCurrentWidget(goods);
    else if (orders->chooseNumber(finding.code) || orders->chooseLine(finding.code))
        pages->setCurrentWidget(orders);
}

void MainWindow::saveFindings()
{
    const QString proposed = QFileInfo(desk.source()->path).path() + QLatin1String("/") +
                             QFileInfo(desk.source()->path).completeBaseName() +
                             QLatin1String("-findings.csv");
    const QString path = QFileDialog::getSaveFileName(this, Words::tr("Save findings as a table"),
                                                      proposed, Words::tr("Tables (*.csv)"));
    if (path.isEmpty())
        return;
    QSaveFile file(path);
    const QByteArray csv = findings->toCsv();
    if (file.open(QIODevice::WriteOnly) && file.write(csv) == csv.size() && file.commit())
        tell(Words::tr("The findings are in %1.").arg(QDir::toNativeSeparators(path)));
    else
        tell(Words::tr("The findings could not be saved: %1")
                 .arg(words::systemWords(file.errorString())));
}

void MainWindow::askForDestination()
{
    const QFileInfo source(desk.source()->path);
    const QString proposed =
        source.path() + QLatin1String("/") + source.completeBaseName() + QLatin1String(".txt");
    const QString path = QFileDialog::getSaveFileName(this, Words::tr("Convert to"), proposed,
                                                      Words::tr("Exchange files (*.txt)"));
    if (!path.isEmpty())
        convert(path);
}

void MainWindow::convert(const QString &destination)
{
    infoBar->hide();
    delivery::RunOptions options;
    options.request.purchase = purchaseAction->isChecked();
    options.jobs = 1;
    std::vector<delivery::Job> jobs = {{desk.source()->path, destination, {}}};
    conversion = std::make_unique<delivery::Run>(options, std::move(jobs));
    converted = 0;
    conversion->tell = [this](const delivery::Outcome &outcome) { tellOutcome(outcome); };
    conversion->progressed = [this](double share, const QString &) { converted = share; };
    conversion->done = [this] {
        endTimer.start(0); // it is in the middle of telling so
    };
    conversion->begin();
    showProgress();
    showState();
}

void MainWindow::tellOutcome(const delivery::Outcome &outcome)
{
    using File = delivery::Replacement::Outcome;
    const QString file = QDir::toNativeSeparators(outcome.destination);
    QStringList lines;
    const QString reason = words::sentence(outcome.reason);
    if (!reason.isEmpty() || outcome.exitCode == delivery::NotRead) {
        lines.append(Words::tr("%1 was not written.").arg(file));
        if (!reason.isEmpty())
            lines.append(reason);
        lines += errorsOf(outcome.survey);
    } else {
        lines.append((outcome.file == File::Created    ? Words::tr("%1 was created: %2.")
                      : outcome.file == File::Replaced ? Words::tr("%1 was replaced: %2.")
                                                       : Words::tr("%1 has it all already: %2."))
                         .arg(file, words::countsInWords(outcome.survey.counts)));
        const QString levels = words::levelsInWords(outcome.survey);
        if (!levels.isEmpty())
            lines.append(levels);
    }
    tell(lines.join(u'\n'));
}

void MainWindow::askHowToCopy()
{
    CopyDialog dialog(copying, this);
    if (dialog.exec() == QDialog::Accepted)
        copying = dialog.options();
}

void MainWindow::copyGoods(bool onlyChosen)
{
    const CopyOptions options = copying;
    const QVector<int> chosen = onlyChosen ? goods->chosen() : QVector<int>();
    desk.collect(
        [options, chosen, onlyChosen](SourceReader &reader) {
            reader.collectRows(options, onlyChosen ? &chosen : nullptr);
        },
        [this](SourceReader &reader) { putOnClipboard(reader); });
    showState();
}

void MainWindow::copyOrder()
{
    const int order = orders->current();
    if (order < 0)
        return;
    const bool withGoods = withGoodsAction->isChecked();
    desk.collect(
        [order, withGoods](SourceReader &reader) { reader.collectOrderRows(order, withGoods); },
        [this](SourceReader &reader) { putOnClipboard(reader); });
    showState();
}

void MainWindow::putOnClipboard(SourceReader &reader)
{
    const int count = reader.rowCount();
    try {
        if (count > 0)
            reader.copyRowsToClipboard();
    } catch (const std::bad_alloc &) {
        reader.forgetRows();
        desk.ranOut();
        return;
    }
    tell(count > 0 ? Words::tr("%n line(s) are on the clipboard.", nullptr, count)
                   : Words::tr("There is nothing to copy."));
    reader.forgetRows();
    showState();
}

void MainWindow::showProgress()
{
    const bool isBusy = loader.isLoading() || conversion;
    if (isBusy != progressTimer.isActive())
        isBusy ? progressTimer.start() : progressTimer.stop();
    progress->setVisible(isBusy);
    stopButton->setVisible(isBusy);
    stopAction->setEnabled(isBusy);
    const double share = loader.isLoading() ? loader.share() : converted;
    constexpr int whole = 100;
    progress->setRange(0, share < 0 || share >= 1 ? 0 : whole); // without an end, it only moves
    if (progress->maximum() > 0)
        progress->setValue(int(share * whole));
}

void MainWindow::showState()
{
    const Source &source = *desk.source();
    const bool isOpen = !source.path.isEmpty();
    readAgainAction->setEnabled(isOpen);
    convertAction->setEnabled(isOpen && !conversion);
    saveFindingsAction->setEnabled(isOpen);
    copyAllAction->setEnabled(desk.hasReader() && !source.goods.isEmpty());
    copyChosenAction->setEnabled(desk.hasReader() &&
                                 goods->table().selectionModel()->hasSelection());
    copyOrderAction->setEnabled(desk.hasReader() && orders->current() >= 0);

    QStringList parts;
    if (loader.isLoading())
        parts.append(Words::tr("reading %1").arg(QFileInfo(loader.path()).fileName()));
    if (conversion)
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
    settings.setValue(QStringLiteral("geometry"), saveGeometry());
    goods->save(settings);
    orders->save(settings);
    findings->save(settings);
    settings.setValue(QStringLiteral("copy/prefix"), copying.prefixRows);
    settings.setValue(QStringLiteral("copy/description"), copying.withDescription);
    settings.setValue(QStringLiteral("copy/html"), copying.markHtml);
    settings.setValue(QStringLiteral("copy/extended"), copying.extendedOffers);
}

void MainWindow::restoreSettings()
{
    constexpr QSize atFirst(1100, 700);
    resize(atFirst);
    restoreGeometry(settings.value(QStringLiteral("geometry")).toByteArray());
    goods->restore(settings);
    orders->restore(settings);
    findings->restore(settings);
    const auto isSet = [this](const char *key, bool usual) {
        return settings.value(QLatin1String(key), usual).toBool();
    };
    copying.prefixRows = isSet("copy/prefix", copying.prefixRows);
    copying.withDescription = isSet("copy/description", copying.withDescription);
    copying.markHtml = isSet("copy/html", copying.markHtml);
    copying.extendedOffers = isSet("copy/extended", copying.extendedOffers);
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

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!fileOf(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    const QString path = fileOf(event->mimeData());
    if (path.isEmpty())
        return;
    event->acceptProposedAction();
    open(path);
}

} // namespace window
