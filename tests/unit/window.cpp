// SPDX-License-Identifier: MIT
//
// The window, used as people use it. Pictures of its pages are saved to the folder PICTURES.
#include "delivery/program.h"
#include "pasted.h"
#include "reader/tree.h"
#include "window/infobar.h"
#include "window/mainwindow.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QSettings>
#include <QTabWidget>
#include <QTableView>
#include <QTreeView>
#include <QtTest>

#include <atomic>

using namespace window;

// Where a walk over a tree reads it, this hears of it: the linker puts it in between.
QString realTextOf(const QDomNode &element) asm("__real__Z6textOfRK8QDomNode");
QString wrappedTextOf(const QDomNode &element) asm("__wrap__Z6textOfRK8QDomNode");

// With sanitizers, and on a busy machine, things take their time.
constexpr int patience = 60'000;

static std::atomic<Qt::HANDLE> windowThread;
static std::atomic_int walksInWindow;
static std::atomic_int walksElsewhere;

QString wrappedTextOf(const QDomNode &element)
{
    ++(QThread::currentThreadId() == windowThread ? walksInWindow : walksElsewhere);
    return realTextOf(element);
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
        QCOMPARE(fixture.settings->value("recent").toStringList(), QStringList(source));
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
            fixture.table("Lines of the document")->model()->index(0, 0).data().toString();
        QVERIFY(withGoods.startsWith("##\t" + code + "\t"));
        QCOMPARE(pasted().count('\n'), fixture.rowCount("Lines of the document"));
    }

    void findings()
    {
        const Fixture fixture;
        const QString source = fixture.write(
            "s.xml", "<r><Каталог><Товары><Товар><Ид>1</Ид><Наименование>a</Наименование></Товар>"
                     "<Товар><Ид>2</Ид></Товар></Товары></Каталог></r>");
        QVERIFY(fixture.opens(source));
        fixture.trigger("page3");
        QTest::keyClicks(fixture.named<QLineEdit>("Filter"), "a");
        QTRY_COMPARE_WITH_TIMEOUT(fixture.rowCount("Goods"), 1, patience);
        QTableView *const kinds = fixture.table("Kinds of findings");
        QTableView *const findings = fixture.table("Findings");
        QVERIFY(kinds->model()->rowCount() > 2);
        for (int row = 0; row < kinds->model()->rowCount(); ++row) {
            if (kinds->model()->index(row, 2).data() == "it has no name")
                kinds->selectRow(row);
        }
        QCOMPARE(findings->model()->rowCount(), 1);
        findings->setFocus();
        findings->selectRow(0);
        QTest::keyClick(findings, Qt::Key_Return);
        QTRY_COMPARE_WITH_TIMEOUT(fixture.rowCount("Goods"), 2, patience);
        QCOMPARE(fixture.table("Goods")->currentIndex().row(), 1);
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
        QTest::qWait(700);
        fixture.write("s.xml", largeSource(2));
        QTRY_COMPARE_WITH_TIMEOUT(fixture.message(), QString("The source has changed on the disk."),
                                  patience);
        fixture.trigger("readAgain");
        QTRY_COMPARE_WITH_TIMEOUT(fixture.rowCount("Goods"), 2, patience);
        QCOMPARE(fixture.message(), QString());
    }

    void settings_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("no settings") << QByteArray("\0\xff[[[=\n%%%", 10);
        QTest::newRow("odd ones") << QByteArray(
            "[General]\nrecent=7\ngeometry=@ByteArray(\\x1\\xd9\\xd0\\xcb\\xff)\n"
            "[goods]\ntable=@ByteArray(\\0\\0\\0\\xff\\x7f\\xff\\xff\\xff)\nrows=nothing\n"
            "[copy]\nprefix=@Invalid()\n");
    }

    void settings()
    {
        QFETCH(QByteArray, text);
        const Fixture fixture(text);
        QVERIFY(fixture.opens(example("catalogue.xml")));
        QTRY_VERIFY_WITH_TIMEOUT(fixture.rowCount("Goods") > 0, patience);
        fixture.window->close();
        QVERIFY(!fixture.settings->value("geometry").toByteArray().isEmpty());
    }

    void drop()
    {
        const Fixture fixture;
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(example("catalogue.xml"))});
        QDragEnterEvent enters(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(fixture.window.get(), &enters);
        QVERIFY(enters.isAccepted());
        QDropEvent event(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(fixture.window.get(), &event);
        QTRY_VERIFY_WITH_TIMEOUT(fixture.window->windowTitle().startsWith("catalogue.xml"),
                                 patience);
    }

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
        if (purchase)
            fixture.trigger("purchase");
        const QString wanted = fixture.folder.filePath("wanted.txt");
        QProcess program;
        QStringList arguments = {source, wanted};
        if (purchase)
            arguments << "--purchase";
        program.start(PROGRAM, arguments);
        QVERIFY(program.waitForFinished());

        const auto bytes = [](const QString &path) {
            QFile file(path);
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
        };
        const QString made = fixture.folder.filePath("made.txt");
        for (const char *const outcome : {"was created", "has it all already"}) {
            fixture.window->convert(made);
            QTRY_VERIFY2_WITH_TIMEOUT(fixture.message().contains(outcome),
                                      qPrintable(fixture.message()), patience);
            QTRY_VERIFY_WITH_TIMEOUT(fixture.action("convert")->isEnabled(), patience);
            QCOMPARE(bytes(made), bytes(wanted));
        }
        QCOMPARE(bytes(made).contains("code:b\n"), purchase);
        fixture.window->convert(source);
        QTRY_VERIFY_WITH_TIMEOUT(fixture.message().contains("the destination is the source itself"),
                                 patience);
    }

    void stoppedConversion()
    {
        const Fixture fixture;
        QVERIFY(fixture.opens(fixture.write("s.xml", largeSource(20'000))));
        const QString destination = fixture.write("made.txt", "old");
        fixture.window->convert(destination);
        QTest::qWait(20);
        fixture.trigger("stop");
        QVERIFY(fixture.message().contains("as it was"));
        QVERIFY(fixture.action("convert")->isEnabled());
        QCOMPARE(QFileInfo(destination).size(), qint64(3));
        const QDir folder(fixture.folder.path());
        const QStringList files = folder.entryList(QDir::Files | QDir::Hidden, QDir::Name);
        QCOMPARE(files, QStringList({"made.txt", "s.xml", "settings.ini"}));
    }

    /// The keyboard alone is enough.
    void keys()
    {
        const Fixture fixture;
        QVector<QKeySequence> taken;
        for (const QAction *const menu : fixture.window->menuBar()->actions()) {
            for (const QAction *const action : menu->menu()->actions()) {
                if (action->isSeparator() || action->menu() != nullptr)
                    continue;
                QVERIFY2(!action->shortcut().isEmpty(), qPrintable(action->text()));
                QVERIFY2(!taken.contains(action->shortcut()), qPrintable(action->text()));
                taken << action->shortcut();
            }
        }
        QVERIFY(taken.size() > 10);
    }
};

int main(int argc, char *argv[])
{
    delivery::prepareProgram();
    if (delivery::isWorker(argc, argv))
        return delivery::beWorker(argc, argv);
    const QApplication application(argc, argv);
    delivery::prepareApplication();
    WindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "window.moc"
