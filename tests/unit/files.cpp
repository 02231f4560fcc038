// SPDX-License-Identifier: MIT
#include "probe.h"
#include "reader/loading.h"

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

/// The states that the operations on files leave a reader in, on every path.
class FilesTest : public QObject
{
    Q_OBJECT

    QTemporaryDir folder;

    QString write(const QString &name, const QByteArray &content) const
    {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("can't write");
        return file.fileName();
    }

private slots:
    void loadSource()
    {
        Probe probe;
        Loading loading;
        probe.setLoading(&loading);
        const QString good = write("good.xml", "<r><Каталог/></r>");
        const QString broken = write("broken.xml", "<r><Каталог></r>");
        const QString missing = folder.filePath("missing.xml");
        for (const QString &bad : {broken, missing}) {
            QVERIFY(probe.loadSource(good));
            QVERIFY(!probe.sourceFile.isOpen());
            QVERIFY(probe.readStructure());
            QVERIFY(probe.readStructure());
            QCOMPARE(probe.katalogs.size(), 1);
            probe.collectSections(probe.rootElement);
            QCOMPARE(probe.katalogs.size(), 2);

            QVERIFY(!probe.loadSource(bad));
            QCOMPARE(int(loading.failure),
                     int(bad == broken ? LoadFailure::NotWellFormed : LoadFailure::NotOpened));
            QVERIFY(!loading.message.isEmpty());
            QVERIFY(!probe.sourceFile.isOpen());
            QVERIFY(probe.document.isNull() && probe.rootElement.isNull());
            QVERIFY(!probe.readStructure());
            QVERIFY(probe.katalogs.isEmpty());
        }
        // What is told of a load is nothing of the one before it.
        QVERIFY(!probe.loadSource(broken));
        QCOMPARE(loading.failedAt.line, 1);
        QVERIFY(!probe.loadSource(missing));
        QCOMPARE(loading.failedAt.line, 0);
        QCOMPARE(probe.log.mid(0, 3),
                 QStringList({QStringLiteral("Reading file: %1 ... ").arg(good),
                              QStringLiteral("Reading file: %1 ... ").arg(broken),
                              QStringLiteral("Error parce XML file: %1 ").arg(broken)}));
        QCOMPARE(probe.log.last(), QStringLiteral("Error open in file: %1 ").arg(missing));
    }

    void openAndCloseOutput()
    {
        Probe probe;
        const QString path = folder.filePath("out.txt");
        const auto open = [&](const QString &name, bool enabled) {
            probe.outputFileName = name;
            probe.outputEnabled = enabled;
            probe.goodsRows = QStringList{"row"};
            return probe.openOutput();
        };
        const auto isClosed = [&] {
            return !probe.outputEnabled && !probe.outputFile.isOpen() && probe.goodsRows.isEmpty();
        };

        QVERIFY(open(path, false));
        QVERIFY(isClosed() && !QFile::exists(path));

        QVERIFY(!open(QString(), true));
        QVERIFY(isClosed());
        QVERIFY(probe.outputStream.device() == nullptr);

        for (int run = 0; run < 2; ++run) {
            QVERIFY(open(path, true));
            QVERIFY(probe.outputEnabled && probe.outputFile.isOpen() && probe.goodsRows.isEmpty());
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), QByteArray("Ryk data for exchange\n"));

            if (run == 0) {
                probe.closeOutput();
                QVERIFY(probe.outputFileName.isNull());
            } else {
                QVERIFY(!open(QString(), true)); // without closing first
            }
            QVERIFY(isClosed());
        }
        probe.closeOutput();
        QVERIFY(isClosed());
    }

    void nothingIsWrittenBehindALostLine()
    {
#ifdef Q_OS_UNIX
        Probe probe("<r><Каталог><Товары><Товар><Ид>1</Ид></Товар></Товары></Каталог></r>");
        QCryptographicHash digest(QCryptographicHash::Sha256);
        const auto linesOf = [&](const QString &name, rlim_t largest) {
            probe.outputFileName = name;
            probe.outputEnabled = true;
            probe.writer.digest = &digest;
            const rlimit limit = {largest, RLIM_INFINITY};
            setrlimit(RLIMIT_FSIZE, &limit);
            probe.openOutput();
            probe.exportKatalogs(false, true, true);
            const rlimit noLimit = {RLIM_INFINITY, RLIM_INFINITY};
            setrlimit(RLIMIT_FSIZE, &noLimit);
            probe.exportKatalogs(false, true, true);
            probe.closeOutput();
            QFile file(name);
            return file.open(QIODevice::ReadOnly) ? file.readAll() : "no file";
        };
        std::signal(SIGXFSZ, SIG_IGN);
        const QByteArray lines = "Ryk data for exchange\n##goods\ncode:1\n##endgoods\n";
        QCOMPARE(linesOf(folder.filePath("torn.txt"), 32), lines.left(32));
        QVERIFY(probe.writer.hasFailed());
        QCOMPARE(probe.writer.size(), 30); // of the lines that are whole
        QCOMPARE(linesOf(folder.filePath("empty.txt"), 0), QByteArray());

        const QByteArray whole = lines + lines.mid(22);
        digest.reset();
        QCOMPARE(linesOf(folder.filePath("whole.txt"), RLIM_INFINITY), whole);
        QVERIFY(!probe.writer.hasFailed());
        QCOMPARE(probe.writer.size(), whole.size());
        QCOMPARE(digest.result(), QCryptographicHash::hash(whole, QCryptographicHash::Sha256));
#else
        QSKIP("nothing here limits the size of a file");
#endif
    }
};

QTEST_GUILESS_MAIN(FilesTest)
#include "files.moc"
