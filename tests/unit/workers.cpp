// SPDX-License-Identifier: MIT
#include "delivery/workers.h"
#include "delivery/worker.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>
#ifdef Q_OS_UNIX
#include <csignal>
#endif

using namespace delivery;
using namespace survey;
using std::chrono::milliseconds;

/// The workers are those of worker.cpp.
class WorkersTest : public QObject
{
    Q_OBJECT

    struct Run {
        QVector<Ending> endings; ///< by the order's id
        QVector<qint64> progress;
        int mostAtOnce = 0;
        QStringList pids;
    };

    /// What comes of checking sources whose names tell the workers what to do.
    static Run check(const QStringList &sources, int count = 1, milliseconds limit = {},
                     const QString &program = WORKER)
    {
        Run run;
        run.endings.resize(sources.size());
        int given = 0;
        int told = 0;
        QEventLoop loop;
        Workers workers({program, {workerArgument}, count, limit});
        workers.next = [&]() -> std::optional<Order> {
            if (given == sources.size())
                return {};
            Order order;
            order.id = given;
            order.request.source = sources.at(given++);
            run.mostAtOnce = qMax(run.mostAtOnce, given - told);
            return order;
        };
        workers.progressed = [&](int, const Progress &progress) { run.progress += progress.done; };
        workers.ended = [&](int id, const Ending &ending) {
            run.endings[id] = ending;
            run.pids.append(ending.answer.survey.version);
            if (++told == sources.size())
                loop.quit();
        };
        workers.work();
        loop.exec();
        return run;
    }

    static QVector<Ending::Kind> kinds(const Run &run)
    {
        QVector<Ending::Kind> kinds;
        for (const Ending &ending : run.endings)
            kinds.append(ending.kind);
        return kinds;
    }

private slots:
    void lines()
    {
        const QString text = QStringLiteral("a\n\"б\" \\ %1\t").arg(QChar(0));
        Conversion conversion;
        Survey &survey = conversion.survey;
        survey.dialect = YmlDialect;
        survey.version = text;
        survey.counts = {1, 2, 3, 4, 5, 6, 7};
        survey.found = {{Kind::NoCode, 12}, {Kind::SoldOut, 1}};
        survey.findings = {{Kind::NoCode, Level::Doubt, {3, 4}, true, text, {text, QString("b")}},
                           {Kind::Limit, Level::Error, {}, false, {}, {}}};
        survey.stopped = true;
        conversion.isWritten = true;
        conversion.size = 5'000'000'000;
        conversion.digest = QByteArray("\x00\xff\x0a", 3);

        const QByteArray line = toLine(conversion);
        QCOMPARE(line.indexOf('\n'), line.size() - 1);
        const Reply reply = replyFrom(line);
        QVERIFY(reply.answer && !reply.progress);
        const Survey &same = reply.answer->survey;
        QCOMPARE(same.dialect, YmlDialect);
        QCOMPARE(same.version, text);
        QVERIFY(same.date.isNull());
        QCOMPARE(same.counts.sections, 1);
        QCOMPARE(same.counts.partners, 5);
        QCOMPARE(same.counts.lines, 7);
        QVERIFY(same.found == survey.found);
        QCOMPARE(same.findings.size(), 2);
        const Finding &finding = same.findings.at(0);
        QVERIFY(finding.kind == Kind::NoCode && finding.level == Level::Doubt && finding.isExact);
        QCOMPARE(finding.position.line, 3);
        QCOMPARE(finding.position.column, 4);
        QCOMPARE(finding.code, text);
        QCOMPARE(finding.details, QStringList({text, "b"}));
        QVERIFY(!same.findings.at(1).isExact);
        QVERIFY(same.stopped && !same.outOfMemory && reply.answer->isWritten);
        QCOMPARE(reply.answer->size, conversion.size);
        QCOMPARE(reply.answer->digest, conversion.digest);

        Order order;
        order.id = 7;
        order.request.source = text;
        order.request.purchase = true;
        order.request.keepsTree = true;
        order.request.accepted = {Kind::NoLines, Kind::NoCode};
        const std::optional<Order> sameOrder = orderFrom(toLine(order));
        QVERIFY(sameOrder);
        QCOMPARE(sameOrder->id, 7);
        QCOMPARE(sameOrder->request.source, text);
        QVERIFY(sameOrder->request.purchase && !sameOrder->request.all);
        QVERIFY(sameOrder->request.keepsTree && !sameOrder->request.allowEmpty);
        QVERIFY(sameOrder->request.accepted == order.request.accepted);
        QVERIFY(sameOrder->newFile.isNull());

        QVERIFY(!orderFrom("garbage\n"));
        const Reply none = replyFrom(R"({"survey":{"found":{"no-such-kind":1}}})");
        QVERIFY(!none.answer && !none.progress);
    }

    void takeOneOrderAfterTheOther()
    {
        const Run run = check({"a", "b", "c", "d"});
        QCOMPARE(kinds(run), QVector<Ending::Kind>(4, Ending::Kind::Answered));
        QCOMPARE(QSet<QString>(run.pids.begin(), run.pids.end()).size(), 1);
        QCOMPARE(run.mostAtOnce, 1);
    }

    void workSideBySide()
    {
        const Run run = check({"progress", "progress", "progress", "progress", "progress"}, 3);
        QCOMPARE(run.mostAtOnce, 3);
        QCOMPARE(QSet<QString>(run.pids.begin(), run.pids.end()).size(), 3);
    }

    void tellHowFarTheyAre()
    {
        const Run run = check({"progress", "a"});
        // What comes too soon is not told, unless it is the end.
        QCOMPARE(run.progress, QVector<qint64>({20, 100}));
        QVERIFY(!run.endings.at(0).answer.survey.stopped);
        QVERIFY(!run.endings.at(0).wasLoading);
        QVERIFY(run.endings.at(1).wasLoading);
    }

    void haveNoConsole() { QCOMPARE(check({"console"}).endings[0].answer.survey.date, "no key"); }

    void areReplaced_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<int>("kind");
        QTest::newRow("crash") << "crash" << int(Ending::Kind::Died);
        QTest::newRow("end") << "leave" << int(Ending::Kind::Died);
        QTest::newRow("time") << "hang" << int(Ending::Kind::TimedOut);
        QTest::newRow("memory") << "memory" << int(Ending::Kind::Answered);
        QTest::newRow("50 MB") << "large" << int(Ending::Kind::Answered);
    }

    void areReplaced()
    {
        QFETCH(QString, source);
        QTemporaryDir folder;
        if (source == "large") {
            source = folder.filePath("large");
            QFile large(source);
            QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(50'000'000));
        }
        // On a busy machine the others take their time.
        const milliseconds limit(source == "hang" ? 3000 : 30'000);
        const Run run = check({"a", source, "b", "c"}, 1, limit);
        QTEST(int(run.endings.at(1).kind), "kind");
        QCOMPARE(run.endings.at(1).answer.survey.outOfMemory, source == "memory");
        for (const int other : {0, 2, 3})
            QVERIFY(run.endings.at(other).kind == Ending::Kind::Answered);
        QVERIFY(run.pids.at(0) != run.pids.at(2));
        QCOMPARE(run.pids.at(2), run.pids.at(3));
    }

    void canBeMissing()
    {
        const Run run = check({"a", "b", "c"}, 2, {}, "/no/such/program");
        QCOMPARE(kinds(run), QVector<Ending::Kind>(3, Ending::Kind::NotStarted));
    }

    void stop()
    {
        QEventLoop loop;
        QTimer timer;
        connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
        Workers workers({WORKER, {workerArgument}, 2, {}});
        QStringList sources = {"a", "hang"};
        qint64 pid = 0;
        workers.next = [&]() -> std::optional<Order> {
            if (sources.isEmpty())
                return {};
            Order order;
            order.request.source = sources.takeFirst();
            return order;
        };
        workers.ended = [&](int, const Ending &ending) {
            pid = ending.answer.survey.version.toLongLong();
            // In the middle of a call of theirs.
            workers.stop();
            sources.append("b");
            workers.work();
            timer.start(100);
        };
        workers.work();
        loop.exec();
        QCOMPARE(sources, QStringList("b"));
#ifdef Q_OS_UNIX
        QVERIFY(kill(pid_t(pid), 0) != 0 && errno == ESRCH);
#endif
    }

#ifdef Q_OS_WIN
    /// What batch.sh tries elsewhere: a batch is killed.
    void endWithTheirBatch()
    {
        QTemporaryDir folder;
        QFile source(folder.filePath("source"));
        QVERIFY(source.open(QIODevice::WriteOnly));
        source.close();
        QProcess batch;
        batch.start(WORKER, {source.fileName()});
        QVERIFY(batch.waitForStarted());
        batch.setReadChannel(QProcess::StandardError);
        QTRY_VERIFY(batch.canReadLine());
        // A worker has its source open.
        QVERIFY(!source.remove());
        batch.kill();
        QVERIFY(batch.waitForFinished());
        QTRY_VERIFY(source.remove() || !source.exists());
    }
#endif
};

QTEST_GUILESS_MAIN(WorkersTest)
#include "workers.moc"
