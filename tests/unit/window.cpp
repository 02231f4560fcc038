// SPDX-License-Identifier: MIT
//
// The window, used as people use it. Pictures of its pages are saved to the folder PICTURES.
#include "delivery/program.h"
#include "pasted.h"
#include "reader/tree.h"
#include "window/infobar.h"
#include "window/mainwindow.h"
#include "window/textview.h"
#include "words/language.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QTabWidget>
#include <QTableView>
#include <QTreeView>
#include <QtTest>

#include <atomic>
#include <ctime>
#include <new>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace window;

// Where a walk over a tree reads it, this hears of it: the linker puts it in between.
QString realTextOf(const QDomNode &element) asm("__real__Z6textOfRK8QDomNode");
QString wrappedTextOf(const QDomNode &element) asm("__wrap__Z6textOfRK8QDomNode");

// With sanitizers, and on a busy machine, things take their time.
constexpr int patience = 60'000;

static std::atomic<Qt::HANDLE> windowThread;
static std::atomic_int walksInWindow;
static std::atomic_int walksElsewhere;
static std::atomic_bool memoryRunsOut;
static std::atomic_bool walksWait; ///< so nothing gets read
static QString toChange;           ///< a file, at the next walk

QString wrappedTextOf(const QDomNode &element)
{
    ++(QThread::currentThreadId() == windowThread ? walksInWindow : walksElsewhere);
    while (walksWait)
        QThread::msleep(1);
    if (memoryRunsOut)
        throw std::bad_alloc();
    if (!toChange.isEmpty()) {
        QFile file(toChange);
        if (!file.open(QIODevice::Append) || file.write(" ") != 1)
            qFatal("no source can be changed");
        toChange.clear();
    }
    return realTextOf(element);
}

// A disk that takes its time when a new file is in place.
void realFlushFolder(const QString &folder) asm("__real__ZN8delivery11flushFolderERK7QString");
void wrappedFlushFolder(const QString &folder) asm("__wrap__ZN8delivery11flushFolderERK7QString");

static std::atomic_bool diskIsSlow;
static std::atomic_bool isFlushing;

void wrappedFlushFolder(const QString &folder)
{
    isFlushing = true;
    if (QThread::currentThreadId() == windowThread)
        qFatal("the window waits for the disk");
    while (diskIsSlow)
        QThread::msleep(1);
    isFlushing = false;
    realFlushFolder(folder);
}

/// A window with settings of its own.
class Fixture
{
public:
    explicit Fixture(const QByteArray &settingsText = {})
    {
        QFile file(folder.filePath("settings.ini"));
        if (!file.open(QIODevice::WriteOnly) || file.write(settingsText) < 0)
            qFatal("no settings can be written");
        file.close();
        settings = std::make_unique<QSettings>(file.fileName(), QSettings::IniFormat);
        window = std::make_unique<MainWindow>(*settings);
        window->QWidget::show();
    }

    void trigger(const char *name) const { action(name)->trigger(); }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        QTest::keyClick(window.get(), key, modifiers);
    }

    QAction *action(const char *name) const { return window->findChild<QAction *>(name); }

    /// The widget of this type that a screen reader calls so.
    template <typename Widget>
    Widget *named(const QString &name) const
    {
        for (Widget *const widget : window->findChildren<Widget *>()) {
            if (widget->accessibleName() == name)
                return widget;
        }
        qFatal("nothing is named %s", qPrintable(name));
    }

    QTableView *table(const QString &name) const { return named<QTableView>(name); }
    int rowCount(const QString &name) const { return table(name)->model()->rowCount(); }

    QString message() const
    {
        for (QFrame *const frame : window->findChildren<QFrame *>()) {
            if (const auto *const bar = dynamic_cast<InfoBar *>(frame))
                return bar->text();
        }
        return "no bar";
    }

    bool opens(const QString &path) const
    {
        window->open(path);
        return QTest::qWaitFor(
            [&] { return window->windowTitle().startsWith(QFileInfo(path).fileName() + " "); },
            patience);
    }

    /// A file of the folder.
    QString write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("no source can be written");
        return file.fileName();
    }

    QTemporaryDir folder;
    std::unique_ptr<QSettings> settings;
    std::unique_ptr<MainWindow> window;
};

static QString example(const char *name)
{
    return QStringLiteral(EXAMPLES "/") + name;
}

static QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
}

/// A catalogue that takes a while to load.
static QByteArray largeSource(int count, const QByteArray &end = "</Товары></Каталог></r>")
{
    QByteArray xml = "<r><Каталог><Товары>";
    for (int i = 0; i < count; ++i) {
        xml += "<Товар><Ид>" + QByteArray::number(i) + "</Ид><Наименование>товар " +
               QByteArray::number(i % 1000) + "</Наименование></Товар>";
    }
    return xml + end;
}

/// A document with a partner for sales, and another one for purchases.
static const QByteArray bothRoles =
    "<r><Документ><Номер>1</Номер><Контрагенты>"
    "<Контрагент><Ид>a</Ид><Роль>Покупатель</Роль></Контрагент>"
    "<Контрагент><Ид>b</Ид><Роль>Продавец</Роль></Контрагент></Контрагенты>"
    "<Товары><Товар><Ид>t</Ид></Товар></Товары></Документ></r>";

/// Whether it is short, and blanks part it.
static bool isLaidOutSoon(const QString &shown)
{
    return shown.size() < 40'000 && !QRegularExpression("\\S{600}").match(shown).hasMatch();
}

class WindowTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { windowThread = QThread::currentThreadId(); }

    void init()
    {
        walksInWindow = 0;
        walksElsewhere = 0;
    }

    void cleanup() { QCOMPARE(int(walksInWindow), 0); }

    void pages_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("state");
        QTest::newRow("catalogue") << example("catalogue.xml") << "goods";
        QTest::newRow("feed") << example("shop-windows-1251.xml") << "offers";
        QTest::newRow("orders") << example("orders-windows-1251.xml") << "documents";
    }

    void pages()
    {
        QFETCH(QString, source);
        const Fixture fixture;
        QVERIFY(fixture.opens(source));
        QVERIFY(walksElsewhere > 0);
        auto *const tabs = fixture.window->findChild<QTabWidget *>();
        QTest::qWait(50);
        for (int page = 0; page < tabs->count(); ++page) {
            tabs->setCurrentIndex(page);
            if (page == 0 && fixture.rowCount("Goods") > 0)
                fixture.table("Goods")->selectRow(0);
            QTest::qWait(10);
            const QPixmap picture = fixture.window->grab();
            const QString name = QString("%1-%2.png").arg(QTest::currentDataTag()).arg(page + 1);
            QVERIFY(picture.save(QDir(PICTURES).filePath(name)));
        }
        QCOMPARE(fixture.settings->value("recent").toStringList(),
                 QStringList(QFileInfo(source).absoluteFilePath()));
    }

    void filterAndCopy()
    {
        const Fixture fixture;
        QVERIFY(fixture.opens(fixture.write("s.xml", largeSource(3000))));
        QTRY_COMPARE_WITH_TIMEOUT(fixture.rowCount("Goods"), 3000, patience);
        fixture.named<QLineEdit>("Filter")->setText("ТОВАР");
        QTest::keyClicks(fixture.named<QLineEdit>("Filter"), " 77");
        QTRY_COMPARE_WITH_TIMEOUT(fixture.rowCount("Goods"), 3 * 19, patience);
        QVERIFY(!fixture.action("copyChosen")->isEnabled());
        fixture.table("Goods")->selectRow(1);
        fixture.trigger("copyChosen");
        QTRY_VERIFY_WITH_TIMEOUT(fixture.message().startsWith("1 line"), patience);
        QCOMPARE(pasted(), QString("177\tDP8\tтовар 177\n"));

        fixture.trigger("copyAll");
        QTRY_VERIFY_WITH_TIMEOUT(fixture.message().startsWith("3000 lines"), patience);
        QCOMPARE(pasted().count('\n'), 3000);
        QVERIFY(pasted().endsWith("\n2999\tDP8\tтовар 999\n"));
    }

    /// What is chosen stays so, as long as it is shown.
    void chosen()
    {
        const Fixture fixture;
        QVERIFY(fixture.opens(fixture.write("s.xml", largeSource(3000))));
        QTRY_COMPARE_WITH_TIMEOUT(fixture.rowCount("Goods"), 3000, patience);
        QTableView *const table = fixture.table("Goods");
        table->setSelectionMode(QAbstractItemView::MultiSelection);
        for (const int row : {1, 2, 777, 2999})
            table->selectRow(row);
        const auto chosenCodes = [&] {
            QStringList codes;
            for (const QModelIndex &index : table->selectionModel()->selectedRows())
                codes << index.data().toString();
            codes.sort();
            return codes.join(" ");
        };
        QCOMPARE(chosenCodes(), QString("1 2 2999 777"));
        table->horizontalHeader()->setSortIndicator(2, Qt::DescendingOrder);
        const auto firstCodes = [&] {
            QStringList codes;
            for (int row = 0; row < 4; ++row)
                codes << table->model()->index(row, 0).data().toString();
            return codes.join(" ");
        };
        QTRY_COMPARE_WITH_TIMEOUT(firstCodes(), QString("999 1999 2999 998"), patience);
        QCOMPARE(chosenCodes(), QString("1 2 2999 777"));
        QCOMPARE(table->currentIndex().data().toString(), QString("2999"));
        fixture.trigger("unsort");
        QTRY_COMPARE_WITH_TIMEOUT(table->model()->index(2, 0).data().toString(), QString("2"),
                                  patience);
        QCOMPARE(chosenCodes(), QString("1 2 2999 777"));
        fixture.named<QLineEdit>("Filter")->setText("товар 77");
        QTRY_COMPARE_WITH_TIMEOUT(fixture.rowCount("Goods"), 3 * 19, patience);
        QCOMPARE(chosenCodes(), QString("777"));
        fixture.trigger("copyChosen");
        QTRY_VERIFY_WITH_TIMEOUT(fixture.message().startsWith("1 line"), patience);
        QVERIFY(pasted().startsWith("777\t"));
    }

    void copyOptions_data()
    {
        QTest::addColumn<QString>("mnemonic");
        QTest::addColumn<QString>("factor");
        QTest::addColumn<QString>("rows");
        const QString usual = "a\tDP8\tn\tDC1\t10.5\tDP10\tшт\tDISHTML\t1\n-----\nx\ny\n-----\n";
        const auto add = [](const char *mnemonic, const char *factor, const QString &rows) {
            QTest::newRow(qPrintable(QString("%1 %2").arg(mnemonic, factor)))
                << QString(mnemonic) << QString(factor) << rows;
        };
        const auto with = [&](const QString &before, const QString &after) {
            return QString(usual).replace(before, after);
        };
        add("", "", usual);
        add("#", "", "##\t" + usual);
        add("d", "", usual.section("\tDISHTML", 0, 0) + "\n");
        add("H", "", with("DISHTML\t1", "DISHTML\t0"));
        add("E", "", with("\tDP10\tшт", ""));
        add("M", "2.5", with("10.5", "26.25"));
        add("M", "2,5", with("10.5", "26.25"));
    }

    void copyOptions()
    {
        QFETCH(QString, mnemonic);
        QFETCH(QString, factor);
        const Fixture fixture;
        QVERIFY(fixture.opens(fixture.write(
            "s.xml", "<yml_catalog><offers><offer id='a'><name>n</name><price>10.5</price>"
                     "<description>x\ny</description></offer></offers></yml_catalog>")));
        const auto answer = [&](const std::function<void(QDialog *)> &give) {
            QTimer whenOpen;
            whenOpen.setSingleShot(true);
            connect(&whenOpen, &QTimer::timeout, fixture.window.get(), [&] {
                auto *const dialog = fixture.window->findChild<QDialog *>();
                give(dialog);
                dialog->accept();
            });
            whenOpen.start(0);
            fixture.trigger("howToCopy");
        };
        answer([&](const QDialog *dialog) {
            for (QCheckBox *const box : dialog->findChildren<QCheckBox *>()) {
                if (!mnemonic.isEmpty() && box->text().contains("&" + mnemonic))
                    box->toggle();
            }
            const QString none = "0";
            auto *const field = dialog->findChild<QLineEdit *>();
            const QPushButton *const ok =
                dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
            field->setText(none);
            QCOMPARE(ok->isEnabled(), factor.isEmpty());
            field->setText(factor);
            QVERIFY(ok->isEnabled());
        });
        fixture.trigger("copyAll");
        QTRY_VERIFY_WITH_TIMEOUT(fixture.message().contains("clipboard"), patience);
        QTEST(pasted(), "rows");
        QCOMPARE(fixture.message().section(" ", 0, 0).toInt(), pasted().count('\n'));

        // Switches stay, a factor does not.
        fixture.window->close();
        const Fixture next((fixture.settings->sync(), bytesOf(fixture.settings->fileName())));
        QVERIFY(next.opens(fixture.folder.filePath("s.xml")));
        next.trigger("copyAll");
        QTRY_VERIFY_WITH_TIMEOUT(next.message().contains("clipboard"), patience);
        if (factor.isEmpty())
            QTEST(pasted(), "rows");
        else
            QVERIFY(pasted().contains("10.5"));
    }

    void orders()
    {
        const Fixture fixture;
        QVERIFY(fixture.opens(example("orders-windows-1251.xml")));
        QCOMPARE(fixture.rowCount("Documents"), 2);
        fixture.table("Documents")->selectRow(1);
        fixture.trigger("copyOrder");
        QTRY_VERIFY_WITH_TIMEOUT(fixture.message().contains("clipboard"), patience);
        const QString withGoods = pasted();
        fixture.trigger("withGoods");
        fixture.trigger("copyOrder");
        QTRY_VERIFY_WITH_TIMEOUT(pasted() != withGoods, patience);
        const QString code =
            fixture.table("Lines of the document")->model()->index(0, 1).data().toString();
        QVERIFY(withGoods.startsWith("##\t" + code + "\t"));
        QCOMPARE(pasted().count('\n'), fixture.rowCount("Lines of the document"));
    }

    void outOfMemory()
    {
        const Fixture fixture;
        QVERIFY(fixture.opens(example("orders-windows-1251.xml")));
        memoryRunsOut = true;
        fixture.trigger("copyOrder");
        QTRY_VERIFY_WITH_TIMEOUT(fixture.message().startsWith("Memory ran out"), patience);
        memoryRunsOut = false;
        QVERIFY(!fixture.action("copyOrder")->isEnabled());
        fixture.trigger("readAgain");
        QTRY_VERIFY_WITH_TIMEOUT(fixture.action("copyOrder")->isEnabled(), patience);
    }

    void findings_data()
    {
        QTest::addColumn<QString>("finding");
        QTest::addColumn<QString>("table");
        QTest::addColumn<int>("row");
        QTest::newRow("one of three with a code") << "another one in the same section has this code"
                                                  << "Goods" << 1;
        QTest::newRow("hidden by a group") << "it is in no group"
                                           << "Goods" << 2;
        QTest::newRow("line") << "the order line \"Товар\" has no identifier, and is left out"
                              << "Lines of the document" << 1;
        QTest::newRow("document") << "the document has no partner with a code, and is left out"
                                  << "Documents" << 1;
        QTest::newRow("left out") << "\"Товар\" has no identifier, and is left out"
                                  << "" << 0;
    }

    /// A finding leads to the very element, whatever hides that.
    void findings()
    {
        QFETCH(QString, finding);
        QFETCH(QString, table);
        QFETCH(int, row);
        const Fixture fixture;
        QVERIFY(fixture.opens(fixture.write(
            "s.xml",
            "<r><Классификатор><Группы><Группа><Ид>g</Ид><Наименование>G</Наименование></Группа>"
            "</Группы></Классификатор><Каталог><Товары>"
            "<Товар><Ид>1</Ид><Наименование>a</Наименование><Группы><Ид>g</Ид></Группы></Товар>"
            "<Товар><Ид>1</Ид><Наименование>b</Наименование><Группы><Ид>g</Ид></Группы></Товар>"
            "<Товар><Ид>2</Ид><Наименование>b</Наименование></Товар>"
            "<Товар><Наименование>c</Наименование></Товар></Товары></Каталог>"
            "<Документ><Номер>1</Номер><Контрагенты><Контрагент><Ид>к</Ид></Контрагент>"
            "</Контрагенты><Товары><Товар><Ид>1</Ид></Товар>"
            "<Товар><Наименование>e</Наименование></Товар></Товары></Документ>"
            "<Документ><Номер>1</Номер></Документ></r>")));
        auto *const groups = fixture.named<QTreeView>("Groups");
        groups->setCurrentIndex(groups->model()->index(1, 0));
        QTRY_COMPARE_WITH_TIMEOUT(fixture.rowCount("Goods"), 2, patience);
        QTest::keyClicks(fixture.named<QLineEdit>("Filter"), "a");
        QTRY_COMPARE_WITH_TIMEOUT(fixture.rowCount("Goods"), 1, patience);

        fixture.trigger("page3");
        QTableView *const findings = fixture.table("Findings");
        for (int i = 0; i < findings->model()->rowCount(); ++i) {
            if (findings->model()->index(i, 3).data() == finding)
                findings->selectRow(i);
        }
        QTest::keyClick(findings, Qt::Key_Return);
        if (table.isEmpty()) {
            QVERIFY(fixture.message().startsWith("No table shows"));
            QVERIFY(fixture.message().endsWith(finding));
            return;
        }
        if (table == "Goods") {
            QTRY_COMPARE_WITH_TIMEOUT(fixture.rowCount(table), 3, patience);
            QCOMPARE(fixture.table(table)->selectionModel()->selectedRows().size(), 1);
        }
        QCOMPARE(fixture.table(table)->currentIndex().row(), row);
        QVERIFY(fixture.table(table)->isVisible());
        QCOMPARE(fixture.message(), QString());
    }

    /// The table holds all findings, whichever kind is shown.
    void savedFindings()
    {
        const Fixture fixture;
        QVERIFY(fixture.opens(fixture.write(
            "s.xml",
            "<r><Каталог><Товары><Товар/><Товар><Ид>1</Ид></Товар></Товары></Каталог></r>")));
        const int count = fixture.rowCount("Findings");
        fixture.table("Kinds of findings")->selectRow(1);
        QCOMPARE(fixture.rowCount("Findings"), 1);
        QVERIFY(count > 1);
        const auto saves = [&](const QString &path, const QString &message) {
            fixture.window->saveFindings(path);
            return QTest::qWaitFor([&] { return fixture.message().contains(message); }, patience);
        };
        const QString path = fixture.folder.filePath("findings.csv");
        QVERIFY(saves(path, QDir::toNativeSeparators(path)));
        QCOMPARE(bytesOf(path).count("\r\n"), 1 + count);
        QVERIFY(
            saves(fixture.folder.filePath("no/findings.csv"), "could not be saved: there is no"));
        QVERIFY(saves(fixture.folder.path(), "could not be saved: it is a folder"));
        QVERIFY(saves(fixture.folder.filePath("./s.xml"), "the destination is the source itself"));
        QVERIFY(bytesOf(fixture.folder.filePath("s.xml")).startsWith("<r>"));
    }

    void unreadable_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QString>("message");
        QTest::newRow("not there") << QByteArray() << "there is no such file or folder";
        QTest::newRow("cut") << largeSource(2, "") << "line 1, column ";
        QTest::newRow("too deep") << "<r>" + QByteArray("<a>").repeated(1000) << "nested too deep";
        QTest::newRow("a page") << QByteArray("<html/>") << "the source is an HTML page";
        QTest::newRow("no bytes") << QByteArray("") << "it is empty";
    }

    void unreadable()
    {
        QFETCH(QByteArray, xml);
        QFETCH(QString, message);
        const Fixture fixture;
        QVERIFY(fixture.opens(example("catalogue.xml")));
        const QString path =
            xml.isNull() ? fixture.folder.filePath("no.xml") : fixture.write("s.xml", xml);
        fixture.window->open(path);
        QTRY_VERIFY_WITH_TIMEOUT(fixture.message().contains(message), patience);
        QVERIFY(fixture.message().contains(QFileInfo(path).fileName()));
        const bool isShown = xml.startsWith("<html");
        QCOMPARE(fixture.window->windowTitle().startsWith("catalogue.xml"), !isShown);
    }

    void stop()
    {
        const Fixture fixture;
        const QString large = fixture.write("large.xml", largeSource(200'000));
        QVERIFY(fixture.opens(example("catalogue.xml")));
        const int goods = fixture.rowCount("Goods");
        QVERIFY(!fixture.action("stop")->isEnabled());
        fixture.window->open(large);
        QVERIFY(fixture.action("stop")->isEnabled());
        QTest::qWait(20);
        fixture.trigger("stop");
        QVERIFY(!fixture.action("stop")->isEnabled());
        // A second one stops the first, too.
        fixture.window->open(large);
        QTest::qWait(20);
        QVERIFY(fixture.opens(example("shop-windows-1251.xml")));
        QVERIFY(fixture.opens(example("catalogue.xml")));
        QTRY_COMPARE_WITH_TIMEOUT(fixture.rowCount("Goods"), goods, patience);
        fixture.window->open(large); // and so does the end
    }

    void change()
    {
        const Fixture fixture;
        const QString source = fixture.write("s.xml", largeSource(1));
        QVERIFY(fixture.opens(source));
        QTRY_COMPARE_WITH_TIMEOUT(fixture.rowCount("Goods"), 1, patience);
        QVERIFY(QFile::remove(source)); // as programs do that replace a file
        const QString gone = QDir::toNativeSeparators(source) + " is no longer on the disk.";
        QTRY_COMPARE_WITH_TIMEOUT(fixture.message(), gone, patience);
        fixture.write("s.xml", largeSource(2));
        const QString change = QDir::toNativeSeparators(source) + " has changed on the disk.";
        QTRY_COMPARE_WITH_TIMEOUT(fixture.message(), change, patience);
        // It is not lost behind what comes later.
        fixture.trigger("copyAll");
        QTRY_COMPARE_WITH_TIMEOUT(fixture.message(), "1 line is on the clipboard.\n" + change,
                                  patience);
        fixture.trigger("closeMessage");
        QCOMPARE(fixture.message(), QString());
        fixture.trigger("readAgain");
        QTRY_COMPARE_WITH_TIMEOUT(fixture.rowCount("Goods"), 2, patience);
        QCOMPARE(fixture.message(), QString());

        // As another program is at work in the folder.
        QTimer noise;
        connect(&noise, &QTimer::timeout, this, [&] {
            fixture.write("noise", "");
            QFile::remove(fixture.folder.filePath("noise"));
        });
        noise.start(100);
        fixture.write("s.xml", largeSource(3));
        QTRY_COMPARE_WITH_TIMEOUT(fixture.message(), change, patience);
        noise.stop();
        fixture.trigger("readAgain");
        QTRY_COMPARE_WITH_TIMEOUT(fixture.rowCount("Goods"), 3, patience);

        // As another source is read.
        walksWait = true;
        fixture.window->open(fixture.write("other.xml", largeSource(1)));
        fixture.write("s.xml", largeSource(4));
        QTest::qWait(700);
        QCOMPARE(fixture.message(), QString());
        fixture.trigger("stop");
        walksWait = false;
        QTRY_COMPARE_WITH_TIMEOUT(fixture.message(), "The reading was stopped.\n" + change,
                                  patience);

        // As it is read itself.
        toChange = source;
        fixture.trigger("readAgain");
        QTRY_VERIFY_WITH_TIMEOUT(fixture.message().endsWith("while it was read\n" + change),
                                 patience);
        QCOMPARE(fixture.rowCount("Goods"), 4);
    }

    /// Where file dialogs begin.
    void folders()
    {
        const Fixture first;
        const auto dialogFolder = [](const Fixture &fixture, const char *action) {
            QString folder;
            QTimer whenOpen;
            whenOpen.setSingleShot(true);
            connect(&whenOpen, &QTimer::timeout, fixture.window.get(), [&] {
                auto *const dialog = fixture.window->findChild<QFileDialog *>();
                folder = dialog->directory().canonicalPath();
                dialog->reject();
            });
            whenOpen.start(0);
            fixture.trigger(action);
            return folder;
        };
        QVERIFY(first.opens(example("catalogue.xml")));
        const QString examples = QFileInfo(example("catalogue.xml")).canonicalPath();
        QCOMPARE(dialogFolder(first, "convert"), examples);
        first.window->convert(first.folder.filePath("made.txt"));
        QTRY_VERIFY_WITH_TIMEOUT(first.action("convert")->isEnabled(), patience);
        QCOMPARE(dialogFolder(first, "convert"), QDir(first.folder.path()).canonicalPath());
        first.settings->sync();
        const Fixture next(bytesOf(first.settings->fileName()));
        QCOMPARE(dialogFolder(next, "open"), examples);
    }

    /// What is asked for is of the source that was there when the question was put.
    void askedBefore()
    {
        const Fixture fixture;
        QVERIFY(fixture.opens(fixture.write("a.xml", bothRoles)));
        for (const char *const action : {"convert", "saveFindings"}) {
            walksWait = true;
            fixture.window->open(fixture.write("b.xml", largeSource(2)));
            QString proposed;
            QTimer whenOpen;
            connect(&whenOpen, &QTimer::timeout, fixture.window.get(), [&] {
                walksWait = false;
                auto *const dialog = fixture.window->findChild<QFileDialog *>();
                if (dialog == nullptr || !fixture.window->windowTitle().startsWith("b.xml "))
                    return;
                proposed = dialog->selectedFiles().value(0);
                static_cast<QDialog *>(dialog)->accept();
                whenOpen.stop();
            });
            whenOpen.start(10);
            fixture.trigger(action);
            QVERIFY(QFileInfo(proposed).fileName().startsWith("a"));
            QTRY_VERIFY_WITH_TIMEOUT(bytesOf(proposed).size() > 5, patience);
            QTRY_VERIFY_WITH_TIMEOUT(fixture.action("convert")->isEnabled(), patience);
            QVERIFY(fixture.opens(fixture.folder.filePath("a.xml")));
        }
        QVERIFY(bytesOf(fixture.folder.filePath("a.txt")).contains("code:a\n"));
        const QString findings = fixture.folder.filePath("again.csv");
        fixture.window->saveFindings(findings);
        QTRY_VERIFY_WITH_TIMEOUT(fixture.message().contains("again.csv"), patience);
        QCOMPARE(bytesOf(fixture.folder.filePath("a-findings.csv")), bytesOf(findings));
    }

    void settings_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("isUsual");
        QTest::newRow("no settings") << QByteArray("\0\xff[[[=\n%%%", 10) << true;
        QTest::newRow("odd ones")
            << QByteArray(
                   "[General]\nrecent=7\ngeometry=@ByteArray(\\x1\\xd9\\xd0\\xcb\\xff)\n"
                   "[goods]\ntable=@ByteArray(\\0\\0\\0\\xff\\x7f\\xff\\xff\\xff)\nrows=nothing\n"
                   "[copy]\nprefix=@Invalid()\n")
            << true;
        QTest::newRow("bytes of the toolkit")
            << QByteArray(
                   "[orders]\nrows=@ByteArray(\\0\\0\\0\\xff\\0\\0\\0\\x1\\x10\\0\\0\\x2\\0\\0"
                   "\\0\\xc0\\0\\0\\0\\xc0\\x1\\xff\\xff\\xff\\xff\\x1\\0\\0\\0\\x2\\0)\n")
            << true;
        const QByteArray before("; \"\nzero=\0\n", 11);
        const auto newValue = [&](const char *value, bool isUsual) { // quoted by ', for short
            QTest::newRow(value) << before + "[General]\nrecent=" +
                                        QByteArray(value).replace('\'', '"') +
                                        "\n[goods]\ntableSorting=1, 0\n"
                                 << isUsual;
        };
        // The first one asks for more memory than there is.
        for (const char *const value :
             {R"(@DateTime(\0\0\0\xb\0\x7f\xff\xff\xff))", R"(@Variant(\0\0\0\x2\0\0\0\0\x1))",
              "/a, '@Variant('", "''@Variant(", R"(\x40Variant()", R"('\x40Variant(')",
              "\\\n@Variant(", "@'Variant('"})
            newValue(value, true);
        for (const char *const path : {"/a/@Variant(", "'/a, @Variant('", R"('/a, \x43f')",
                                       "@@Variant(", "@Invalid()", R"('@ByteArray(\x1,)')"})
            newValue(path, false);

        const auto newSizes = [](const char *name, const char *sizes) {
            QTest::newRow(name) << "[goods]\nrows=" + QByteArray(sizes) + "\n" << true;
        };
        newSizes("no size at all", "0, 0");
        newSizes("three parts of two", "100, 100, 100");
        newSizes("less than nothing", "-100, 500");
        newSizes("part of a size", "100, nan");
        newSizes("a size of all screens", "100, 2147483647");

        // Those of the goods table, beginning with these columns and widths.
        const auto newTable = [](const char *name, bool isUsual, QVector<int> order,
                                 QVector<int> widths, int count = goodFieldCount,
                                 int otherWidths = 90) {
            while (order.size() < count)
                order << int(order.size());
            while (widths.size() < count)
                widths << otherWidths;
            const auto list = [](const QVector<int> &numbers) {
                QByteArrayList texts;
                for (const int number : numbers)
                    texts << QByteArray::number(number);
                return texts.join(", ");
            };
            QTest::newRow(name) << "[goods]\ntable=" + list(order) +
                                       "\ntableWidths=" + list(widths) + "\n"
                                << isUsual;
        };
        newTable("fits", false, {1, 0}, {0, 200});
        newTable("very narrow", false, {}, {}, goodFieldCount, 1);
        newTable("no such column", true, {1'000'000}, {});
        newTable("a negative column", true, {-1}, {});
        newTable("a column twice", true, {1, 1}, {});
        newTable("of older goods", true, {1, 0}, {}, goodFieldCount - 1);
        newTable("of newer goods", true, {1, 0}, {}, goodFieldCount + 1);
        newTable("all hidden", true, {1, 0}, {}, goodFieldCount, 0);
        newTable("a negative width", true, {1, 0}, {-1});
        newTable("as wide as a town", true, {1, 0}, {1'000'000});
        for (const char *const sorting : {"-2, 0", "1000000, 0", "1", "1, 0, 1"})
            QTest::newRow(qPrintable(QString("sorted by ") + sorting))
                << "[goods]\ntableSorting=" + QByteArray(sorting) + "\n"
                << true;
    }

    /// The sizes of all parts of a window, and the order, the widths and the sorting of columns.
    static QStringList arrangementOf(const MainWindow &window)
    {
        QStringList lines;
        for (const QSplitter *const splitter : window.findChildren<QSplitter *>())
            QDebug(&(lines << QString()).last()) << splitter->sizes();
        for (const QTableView *const table : window.findChildren<QTableView *>()) {
            QDebug line(&(lines << QString()).last());
            const QHeaderView *const header = table->horizontalHeader();
            line << table->accessibleName() << header->sortIndicatorSection()
                 << header->sortIndicatorOrder();
            for (int place = 0; place < header->count(); ++place)
                line << header->logicalIndex(place)
                     << header->sectionSize(header->logicalIndex(place));
        }
        return lines;
    }

    /// What does not fit leaves all as it is without settings.
    void settings()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, isUsual);
        const Fixture fixture(text);
        const Fixture usual;
        if (isUsual)
            QCOMPARE(arrangementOf(*fixture.window), arrangementOf(*usual.window));
        else
            QVERIFY(arrangementOf(*fixture.window) != arrangementOf(*usual.window));
        QVERIFY(fixture.opens(example("catalogue.xml")));
        QTRY_VERIFY_WITH_TIMEOUT(fixture.rowCount("Goods") > 0, patience);
        fixture.trigger("showColumns");
        QTableView *const table = fixture.table("Goods");
        for (int column = 0; column < goodFieldCount; ++column) {
            QVERIFY(!table->isColumnHidden(column));
            QVERIFY(table->columnWidth(column) >= table->horizontalHeader()->minimumSectionSize());
            QVERIFY(table->columnWidth(column) < 2000);
        }
        fixture.window->close();
        QVERIFY(!fixture.settings->value("geometry").toStringList().isEmpty());
    }

    void places_data()
    {
        QTest::addColumn<QByteArray>("geometry");
        for (const char *const geometry :
             {"", "300, 200, 300, 350", "-5000, 9000, 300, 350", "0, 0, 16384, 16384",
              "700, 500, 1, -1", "-16384, -16384, 16384, 16384",
              "2147483647, 2147483647, 2147483647, 2147483647", "300, 200, 300", "left, top, 1, 1",
              "@Rect(-5000 -5000 300 350)"})
            QTest::newRow(geometry) << QByteArray(geometry);
    }

    /// All of the window is on a screen.
    void places()
    {
        QFETCH(QByteArray, geometry);
        const Fixture fixture("[General]\ngeometry=" + geometry + "\n");
        QVERIFY(QTest::qWaitForWindowExposed(fixture.window.get()));
        const QRect screen = fixture.window->screen()->availableGeometry();
        const QRect place = fixture.window->geometry();
        QCOMPARE(place & screen, place);
        if (geometry.startsWith("300, 200, 300, "))
            QCOMPARE(place, QRect(300, 200, 300, 350));
    }

    static void showPages(const MainWindow &window)
    {
        auto *const tabs = window.findChild<QTabWidget *>();
        for (int page = tabs->count() - 1; page >= 0; --page) {
            tabs->setCurrentIndex(page);
            QTest::qWait(10);
        }
    }

    void arrangementComesBack()
    {
        const auto savedBy = [](const Fixture &fixture) {
            fixture.window->close();
            fixture.settings->sync();
            return bytesOf(fixture.settings->fileName());
        };
        const Fixture first;
        const QRect place(10, 40, 780, 500);
        first.window->setGeometry(place);
        const QString source = first.write("s.xml", largeSource(2));
        QVERIFY(first.opens(source));
        QTRY_COMPARE_WITH_TIMEOUT(first.rowCount("Goods"), 2, patience);
        showPages(*first.window);
        for (QSplitter *const splitter : first.window->findChildren<QSplitter *>()) {
            QList<int> sizes = QVector<int>(splitter->count(), 80).toList();
            sizes.first() = 1000;
            splitter->setSizes(sizes);
        }
        for (QTableView *const table : first.window->findChildren<QTableView *>()) {
            table->horizontalHeader()->moveSection(0, 1);
            for (int column = 0; column < table->model()->columnCount(); ++column)
                table->setColumnWidth(column, 60 + column);
        }
        QTableView *const goods = first.table("Goods");
        goods->setCurrentIndex(goods->model()->index(1, 2));
        first.trigger("sort");
        first.trigger("sort"); // falling
        first.trigger("column4");
        showPages(*first.window);
        const QStringList arrangement = arrangementOf(*first.window);

        const Fixture next(savedBy(first)); // shows only one of its pages
        const Fixture last(savedBy(next));
        QVERIFY(last.opens(source));
        showPages(*last.window);
        QCOMPARE(arrangementOf(*last.window), arrangement);
        QVERIFY(!last.action("column4")->isChecked());
        QCOMPARE(last.window->geometry(), place);

        // The last column, which takes what is left, has kept a width of its own.
        QHeaderView *const header = last.table("Findings")->horizontalHeader();
        QVERIFY(header->sectionSize(3) > 63);
        header->moveSection(3, 0);
        QCOMPARE(header->sectionSize(3), 63);

        last.window->showMaximized();
        const Fixture large(savedBy(last));
        QVERIFY(large.window->isMaximized());
        QCOMPARE(large.window->normalGeometry(), place);
    }

    void drop_data()
    {
        QTest::addColumn<int>("action");
        QTest::newRow("plain") << int(Qt::CopyAction);
        QTest::newRow("with Shift") << int(Qt::MoveAction);
    }

    void drop()
    {
        QFETCH(int, action);
        const Fixture fixture;
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(example("catalogue.xml"))});
        const Qt::DropActions possible = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enters(QPoint(5, 5), possible, &data, Qt::LeftButton, Qt::NoModifier);
        enters.setDropAction(Qt::DropAction(action));
        QCoreApplication::sendEvent(fixture.window.get(), &enters);
        QVERIFY(enters.isAccepted());
        QDropEvent event(QPoint(5, 5), possible, &data, Qt::LeftButton, Qt::NoModifier);
        event.setDropAction(Qt::DropAction(action));
        QCoreApplication::sendEvent(fixture.window.get(), &event);
        // One that was moved would be removed by who dragged it.
        QCOMPARE(int(event.dropAction()), int(Qt::CopyAction));
        QTRY_VERIFY_WITH_TIMEOUT(fixture.window->windowTitle().startsWith("catalogue.xml"),
                                 patience);
    }

    /// The picture of a description would be as large as it is, if it were opened. Even where it
    /// is not, the toolkit looks for files of similar names.
    void picturesOfDescriptions()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("large.png");
        QImage large(10, 500, QImage::Format_RGB32);
        large.fill(Qt::black);
        QVERIFY(large.save(path));
        const QString current = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder.path()));
        TextView view;
        view.show();
        for (const QString &name : {QUrl::fromLocalFile(path).toString(), path,
                                    QStringLiteral("large.png"), QStringLiteral("large")}) {
            view.showText("<p>text<img src='" + name + "'><a href='" + name +
                          "'>link</a></p><table background='" + name + "'><tr><td>cell</table>");
            QCOMPARE(view.toPlainText().left(8), QString("textlink"));
            QVERIFY2(view.document()->size().height() < 200, qPrintable(name));
            for (const QTextFormat &format : view.document()->allFormats()) {
                QVERIFY(!format.isImageFormat());
                QVERIFY(!format.hasProperty(QTextFormat::AnchorHref));
                QVERIFY(!format.hasProperty(QTextFormat::BackgroundImageUrl));
            }
        }
        QVERIFY(QDir::setCurrent(current));
    }

    void hostileDescriptions_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("start");
        const auto row = [](const char *name, const QString &text, const QString &start) {
            QTest::newRow(name) << text << start;
        };
        const auto times = [](int count, const char *text) {
            return QString(text).repeated(count);
        };
        row("a style", "<style>i *{}</style>" + times(1'400, "<b>x</b>"), "xxx");
        row("wide cells", "<table>" + times(900, "<td colspan=20000>x"), "\nx\nx");
        row("high cells", "<table>" + times(900, "<td rowspan=20000>x"), "\nx\nx");
        row("large pictures", times(500, "<img width=30000 height=30000>") + "x", "x");
        row("tables that float",
            times(3, "<table style='float:left' width='10%'><tr><td>") + times(100, "word "), "\n");
        QString sizes;
        for (int size = 1; size <= 1'400; ++size)
            sizes += "<b style='font-size:" + QString::number(size) + "px'>x</b>";
        row("sizes", sizes, "xxx");
        row("tables in tables", times(10, "<table><tr><td>") + times(3'000, "word "), "<table>");
        row("deep blocks", times(3'000, "<div>"), "<div>");
        row("deep lists", times(3'000, "<ul><li>"), "<ul><li>");
        row("deep letters", times(3'000, "<b>"), "<b>");
        row("lines", "<p>" + times(50'000, "<br>"), "<p><br>");
        row("quotes", "<p>" + times(90'000, "<x =\">\" "), "<p><x");
        row("a word of HTML", "<p>" + times(29'000, "x"), "xxx");
        row("a word", times(200'000, "x"), "xxx");
        row("marks of a letter", "e" + times(190'000, "\u0301"), u8"e\u0301");
        row("isolates", times(66'000, "\u2067a\u2069"), "aaa");
    }

    /// They come as they are meant, or else as they are written, with no more behind them.
    void hostileDescriptions()
    {
        QFETCH(QString, text);
        QFETCH(QString, start);
        TextView view;
        view.resize(900, 300);
        view.show();
        const std::clock_t begin = std::clock();
        view.showText(text);
        QVERIFY(view.document()->size().height() > 0);
        QCoreApplication::processEvents();
        QVERIFY((std::clock() - begin) / CLOCKS_PER_SEC < 5);
        const QString shown = view.toPlainText();
        QCOMPARE(shown.left(start.size()), start);
        QVERIFY(isLaidOutSoon(shown));
        for (const QTextFormat &format : view.document()->allFormats()) {
            QVERIFY(!format.hasProperty(QTextFormat::FontPixelSize));
            QCOMPARE(format.toCharFormat().tableCellColumnSpan(), 1);
            QCOMPARE(format.toCharFormat().tableCellRowSpan(), 1);
            QVERIFY(!format.isFrameFormat() ||
                    format.toFrameFormat().position() == QTextFrameFormat::InFlow);
        }
    }

    void hostileRequisites_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("a word") << QString(200'000, 'x');
        QTest::newRow("marks of a letter") << "e" + QString(190'000, QChar(0x301));
    }

    void hostileRequisites()
    {
        QFETCH(QString, value);
        const Fixture fixture;
        const QString xml = QString(bothRoles).replace(
            "</Товары></Документ>", "</Товары><ЗначенияРеквизитов><ЗначениеРеквизита>"
                                    "<Наименование>n</Наименование><Значение>" +
                                        value +
                                        "</Значение></ЗначениеРеквизита>"
                                        "</ЗначенияРеквизитов></Документ>");
        QVERIFY(fixture.opens(fixture.write("s.xml", xml.toUtf8())));
        const QString shown = fixture.named<QPlainTextEdit>("Requisites")->toPlainText();
        QCOMPARE(shown.left(5), "n: " + value.left(2));
        QVERIFY(isLaidOutSoon(shown));
        QVERIFY(shown.endsWith("\n…"));
    }

    /// Each letter of a filter shows the current good once more.
    void sameDescription()
    {
        TextView view;
        view.showText("<b>text</b>");
        view.selectAll();
        view.showText("<b>text</b>");
        QVERIFY(view.textCursor().hasSelection());
        view.showText("other");
        QCOMPARE(view.toPlainText(), QString("other"));
    }

    /// A view of a tree calls itself for each level that is expanded.
    void deepCategories()
    {
        QByteArray xml = "<yml_catalog><shop><categories>";
        constexpr int depth = 60'000;
        for (int id = 1; id <= depth; ++id)
            xml += QString("<category id='%1' parentId='%2'>c</category>")
                       .arg(id)
                       .arg(id - 1)
                       .toUtf8();
        xml += "</categories><offers><offer id='o'><categoryId>" + QByteArray::number(depth) +
               "</categoryId><name>n</name></offer></offers></shop></yml_catalog>";
        const Fixture fixture;
        QVERIFY(fixture.opens(fixture.write("s.xml", xml)));
        auto *const groups = fixture.named<QTreeView>("Groups");
        groups->setCurrentIndex(groups->model()->index(1, 0));
        QTest::keyClick(groups, Qt::Key_Asterisk);
        QVERIFY(groups->isExpanded(groups->currentIndex()));
    }

#ifdef Q_OS_UNIX
    void pipe()
    {
        const Fixture fixture;
        const QString path = fixture.folder.filePath("pipe");
        QCOMPARE(mkfifo(qPrintable(path), 0600), 0);
        fixture.window->open(path);
        QVERIFY(fixture.message().contains("no ordinary file"));
        QVERIFY(fixture.opens(example("catalogue.xml")));
    }
#endif

    void conversions_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<bool>("purchase");
        QTest::newRow("catalogue") << example("catalogue.xml") << false;
        QTest::newRow("sales") << example("orders-windows-1251.xml") << false;
        QTest::newRow("purchases") << QString() << true;
    }

    void conversions()
    {
        QFETCH(QString, source);
        QFETCH(bool, purchase);
        const Fixture fixture;
        if (source.isEmpty())
            source = fixture.write("s.xml", bothRoles);
        QVERIFY(fixture.opens(source));
        if (purchase) {
            fixture.trigger("purchase");
            QVERIFY(!fixture.action("convert")->isEnabled());
            QTRY_VERIFY_WITH_TIMEOUT(fixture.action("convert")->isEnabled(), patience);
        }
        const QString wanted = fixture.folder.filePath("wanted.txt");
        QProcess program;
        QStringList arguments = {source, wanted};
        if (purchase)
            arguments << "--purchase";
        program.start(PROGRAM, arguments);
        QVERIFY(program.waitForFinished());

        const QString made = fixture.folder.filePath("made.txt");
        for (const char *const outcome : {"was created", "has it all already"}) {
            fixture.window->convert(made);
            QTRY_VERIFY2_WITH_TIMEOUT(fixture.message().contains(outcome),
                                      qPrintable(fixture.message()), patience);
            QTRY_VERIFY_WITH_TIMEOUT(fixture.action("convert")->isEnabled(), patience);
            QCOMPARE(bytesOf(made), bytesOf(wanted));
        }
        QCOMPARE(bytesOf(made).contains("code:b\n"), purchase);
        fixture.window->convert(source);
        QTRY_VERIFY_WITH_TIMEOUT(fixture.message().contains("the destination is the source itself"),
                                 patience);
    }

    void purchases_data()
    {
        QTest::addColumn<QString>("then");
        QTest::addColumn<bool>("purchase");
        QTest::newRow("another source is read so") << "" << true;
        QTest::newRow("stopped") << "stop" << false;
        QTest::newRow("emptied") << "empty" << false;
    }

    /// The menu tells how what is shown was read, and that is converted.
    void purchases()
    {
        QFETCH(QString, then);
        QFETCH(bool, purchase);
        const Fixture fixture;
        QVERIFY(fixture.opens(fixture.write("a.xml", bothRoles)));
        const QString next = fixture.write("b.xml", bothRoles);
        walksWait = true;
        fixture.window->open(next);
        if (then == "empty")
            fixture.write("b.xml", "");
        fixture.trigger("purchase");
        if (then == "stop")
            fixture.trigger("stop");
        walksWait = false;
        QTRY_VERIFY_WITH_TIMEOUT(!fixture.action("stop")->isEnabled(), patience);
        QCOMPARE(fixture.window->windowTitle().startsWith("b.xml "), purchase);
        QCOMPARE(fixture.action("purchase")->isChecked(), purchase);
        QCOMPARE(fixture.table("Partner")->model()->index(0, 1).data().toString(),
                 QString(purchase ? "b" : "a"));
        const QString made = fixture.folder.filePath("made.txt");
        fixture.window->convert(made);
        QTRY_VERIFY_WITH_TIMEOUT(fixture.message().contains("was created"), patience);
        QCOMPARE(bytesOf(made).contains("code:b\n"), purchase);
    }

    void stoppedConversion()
    {
        const Fixture fixture;
        QVERIFY(fixture.opens(fixture.write("s.xml", largeSource(20'000))));
        const QString destination = fixture.write("made.txt", "old");
        fixture.window->convert(destination);
        walksWait = true;
        fixture.trigger("readAgain");
        QTest::qWait(20);
        fixture.trigger("stop");
        walksWait = false;
        QTRY_VERIFY_WITH_TIMEOUT(fixture.message().contains("as it was"), patience);
        QVERIFY(fixture.message().contains("The reading was stopped."));
        QVERIFY(fixture.action("convert")->isEnabled());
        QCOMPARE(QFileInfo(destination).size(), qint64(3));
        const QDir folder(fixture.folder.path());
        const QStringList files = folder.entryList(QDir::Files | QDir::Hidden, QDir::Name);
        QCOMPARE(files, QStringList({"made.txt", "s.xml", "settings.ini"}));
    }

    void stoppedTooLate()
    {
        const Fixture fixture;
        QVERIFY(fixture.opens(example("catalogue.xml")));
        diskIsSlow = true;
        fixture.window->convert(fixture.folder.filePath("made.txt"));
        QTRY_VERIFY_WITH_TIMEOUT(isFlushing, patience);
        fixture.trigger("stop");
        QVERIFY(!fixture.action("convert")->isEnabled());
        diskIsSlow = false;
        QTRY_VERIFY_WITH_TIMEOUT(fixture.message().contains("was created"), patience);
        QVERIFY(fixture.action("convert")->isEnabled());
    }

    void recent()
    {
        const Fixture fixture;
        QVERIFY(!fixture.action("recent1")->isVisible());
        const QString odd = fixture.write("a & %1 b.xml", largeSource(1));
        QVERIFY(fixture.opens(odd));
        QVERIFY(fixture.opens(example("catalogue.xml")));
        QVERIFY(!fixture.action("recent3")->isVisible());
        fixture.press(Qt::Key_2, Qt::AltModifier); // though its menu was never open
        QTRY_VERIFY_WITH_TIMEOUT(fixture.window->windowTitle().startsWith("a & %1 b.xml "),
                                 patience);
        QVERIFY(fixture.action("recent1")->text().endsWith("a && %1 b.xml"));
        const Fixture later("[General]\nrecent=" + QByteArray(20, ',') + "\n");
        QVERIFY(later.action("recent9")->isVisible());
    }

    void columns()
    {
        const Fixture fixture;
        QVERIFY(fixture.opens(fixture.write("s.xml", largeSource(2))));
        QTRY_COMPARE_WITH_TIMEOUT(fixture.rowCount("Goods"), 2, patience);
        QTableView *const table = fixture.table("Goods");
        const auto shown = [&] {
            QStringList headings;
            for (int i = 0; i < table->model()->columnCount(); ++i) {
                const int column = table->horizontalHeader()->logicalIndex(i);
                const bool isShown = !table->isColumnHidden(column);
                if (isShown)
                    headings << table->model()->headerData(column, Qt::Horizontal).toString();
                if (fixture.action(qPrintable(QString("column%1").arg(column + 1)))->isChecked() !=
                    isShown)
                    headings << "wrong in the menu";
            }
            return headings.mid(0, 3).join(" ");
        };
        fixture.press(Qt::Key_F7); // no column is current yet
        QCOMPARE(shown(), QString("Code Article Name"));
        table->setCurrentIndex(table->model()->index(1, 1));
        fixture.press(Qt::Key_F7);
        QCOMPARE(shown(), QString("Code Name Group"));
        QCOMPARE(table->currentIndex(), table->model()->index(1, 2));
        fixture.press(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(shown(), QString("Name Code Group"));
        fixture.press(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(shown(), QString("Name Code Group"));
        fixture.press(Qt::Key_F1, Qt::ControlModifier);
        QCOMPARE(shown(), QString("Name Group Unit"));
        for (int i = 0; i < 20; ++i)
            fixture.trigger("hideColumn");
        QCOMPARE(shown(), QString("Note")); // the last one stays
        fixture.trigger(qPrintable(QString("column%1").arg(table->model()->columnCount())));
        QCOMPARE(shown(), QString("Note"));
        fixture.press(Qt::Key_F7, Qt::ShiftModifier);
        QCOMPARE(shown(), QString("Name Code Article"));
    }

    static QVector<QAction *> actionsOf(const QList<QAction *> &entries)
    {
        QVector<QAction *> actions;
        for (QAction *const entry : entries) {
            if (entry->menu() != nullptr)
                actions << actionsOf(entry->menu()->actions());
            else if (!entry->isSeparator())
                actions << entry;
        }
        return actions;
    }

    void keys_data()
    {
        QTest::addColumn<int>("language");
        QTest::newRow("English") << int(words::Language::English);
        QTest::newRow("Russian") << int(words::Language::Russian);
    }

    /// The keyboard alone is enough.
    void keys()
    {
        QFETCH(int, language);
        const words::Speaking speaking{words::Language(language)};
        const Fixture fixture;
        QVector<QKeySequence> taken;
        for (const QAction *const action : actionsOf(fixture.window->menuBar()->actions())) {
            QVERIFY2(!action->shortcut().isEmpty(), qPrintable(action->text()));
            QVERIFY2(!taken.contains(action->shortcut()), qPrintable(action->text()));
            taken << action->shortcut();
        }
        QVERIFY(taken.size() > 40);

        for (const QMenu *const menu : fixture.window->findChildren<QMenu *>()) {
            QVector<QKeySequence> mnemonics;
            for (const QAction *const action : menu->actions()) {
                const QKeySequence mnemonic = QKeySequence::mnemonic(action->text());
                QVERIFY2(mnemonic.isEmpty() || !mnemonics.contains(mnemonic),
                         qPrintable(action->text()));
                mnemonics << mnemonic;
            }
        }
    }

    /// Some mean something in a field for text, too.
    void keysInFilter()
    {
        const Fixture fixture;
        fixture.trigger("filter");
        auto *const filter = fixture.window->findChild<QLineEdit *>();
        fixture.window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(fixture.window.get()));
        for (QAction *const action : actionsOf(fixture.window->menuBar()->actions())) {
            if (!action->isVisible())
                continue;
            action->disconnect();
            action->setEnabled(true);
            bool isTriggered = false;
            connect(action, &QAction::triggered, this, [&] { isTriggered = true; });
            QTest::keySequence(filter, action->shortcut());
            QVERIFY2(isTriggered, qPrintable(action->text()));
        }
        QTest::keyClicks(filter, "a");
        QTest::keyClick(filter, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(filter->selectedText(), QString("a"));
        QTest::qWait(500); // or else the toolkit leaves an animation of the field behind
    }
};

int main(int argc, char *argv[])
{
    delivery::prepareProgram();
    if (delivery::isWorker(argc, argv))
        return delivery::beWorker(argc, argv);
    // A test closes them, and those of the system can't be found by their class.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(argc, argv);
    delivery::prepareApplication();
    WindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "window.moc"
