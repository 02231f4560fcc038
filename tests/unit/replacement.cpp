// SPDX-License-Identifier: MIT
#include "delivery/replacement.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <functional>
#include <optional>
#include <thread>
#include <vector>
#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#else
#include <qt_windows.h>
#endif

using namespace delivery;
using Hindrance = Replacement::Hindrance;
using Outcome = Replacement::Outcome;

/// What happens to a new file.
using Change = std::function<void(const QString &newFile)>;

Q_DECLARE_METATYPE(delivery::Replacement::Hindrance)
Q_DECLARE_METATYPE(Change)

/// What needs other users, or kills processes, is in batch.sh.
class ReplacementTest : public QObject
{
    Q_OBJECT

    std::optional<QTemporaryDir> folder;

    QString at(const QString &name) const { return folder->filePath(name); }

    QString write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(at(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("can't write");
        return at(name);
    }

    QByteArray read(const QString &name) const
    {
        QFile file(at(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : "missing";
    }

    /// The names in the folder.
    QStringList names() const
    {
        return QDir(folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDir::Name);
    }

    static bool fill(const Replacement &replacement, const QByteArray &bytes)
    {
        QFile file(replacement.newFile());
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }

    static bool commit(Replacement &replacement, const QByteArray &sent, int keep, Outcome &outcome)
    {
        return replacement.commit(
            sent.size(), QCryptographicHash::hash(sent, QCryptographicHash::Sha256), keep, outcome);
    }

    /// What becomes of a whole replacement.
    struct Result {
        Hindrance hindrance = Hindrance::None;
        Outcome outcome = Outcome::Created;
    };

    Result replace(const QString &destination, const QByteArray &bytes, int keep = 0) const
    {
        Replacement replacement(destination);
        Result result;
        if (replacement.prepare(at("source")) && fill(replacement, bytes))
            commit(replacement, bytes, keep, result.outcome);
        result.hindrance = replacement.hindrance();
        return result;
    }

private slots:
    void init()
    {
        folder.emplace();
        write("source", "source");
    }

    void outcomes_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("plain") << "goods.txt";
        QTest::newRow("blanks, Cyrillic") << "мои товары é қ.txt";
        // With the folder of a test under wine, still a path that Windows takes.
        QTest::newRow("long") << QString(200, 'x');
    }

    void outcomes()
    {
        QFETCH(QString, name);
        QStringList expected = {name, "source"};
        expected.sort();
        for (const QByteArray bytes : {"", "one", "two"}) {
            QFile::remove(at(name));
            Result result = replace(at(name), bytes);
            QCOMPARE(result.hindrance, Hindrance::None);
            QCOMPARE(result.outcome, Outcome::Created);
            QCOMPARE(read(name), bytes);
            result = replace(at(name), bytes);
            QCOMPARE(result.hindrance, Hindrance::None);
            QCOMPARE(result.outcome, Outcome::Kept);
            result = replace(at(name), "six");
            QCOMPARE(result.hindrance, Hindrance::None);
            QCOMPARE(result.outcome, Outcome::Replaced);
            QCOMPARE(read(name), QByteArray("six"));
            QCOMPARE(names(), expected);
        }
    }

    void equalBytesAreNotReplaced()
    {
        const QByteArray bytes(200'000, 'x');
        write("old", bytes);
        const FileState before = stateOf(at("old"));
        QCOMPARE(replace(at("old"), bytes).outcome, Outcome::Kept);
        QVERIFY(stateOf(at("old")).isSameAs(before));
        QByteArray other = bytes;
        other.back() = 'y';
        QCOMPARE(replace(at("old"), other).outcome, Outcome::Replaced);
        QVERIFY(!stateOf(at("old")).isSameAs(before));
        QCOMPARE(read("old"), other);
    }

    void notWhole_data()
    {
        QTest::addColumn<Change>("change");
        const auto edit = [](const std::function<void(QFile &)> &how) {
            return Change([how](const QString &newFile) {
                QFile file(newFile);
                if (!file.open(QIODevice::ReadWrite))
                    qFatal("can't open");
                how(file);
            });
        };
        QTest::newRow("cut") << edit([](QFile &file) { file.resize(2); });
        QTest::newRow("longer") << edit([](QFile &file) { file.resize(4); });
        QTest::newRow("other bytes") << edit([](QFile &file) { file.write("x"); });
#ifdef Q_OS_UNIX
        // On wine a file that was removed while it was open can be opened again.
        QTest::newRow("gone") << Change([](const QString &newFile) { QFile::remove(newFile); });
#endif
        QTest::newRow("another file") << Change([](const QString &newFile) {
            QFile::rename(newFile, newFile + "x");
            QFile::copy(newFile + "x", newFile);
            QFile::remove(newFile + "x");
        });
    }

    void notWhole()
    {
        QFETCH(Change, change);
        write("old", "old");
        Replacement replacement(at("old"));
        QVERIFY(replacement.prepare(at("source")));
        QVERIFY(fill(replacement, "new"));
        change(replacement.newFile());
        Outcome outcome = {};
        QVERIFY(!commit(replacement, "new", 1, outcome));
        QCOMPARE(replacement.hindrance(), Hindrance::NotWhole);
        QCOMPARE(read("old"), QByteArray("old"));
        QVERIFY(!names().contains("old.1"));
    }

    void hindrances_data()
    {
        QTest::addColumn<QString>("destination");
        QTest::addColumn<Hindrance>("hindrance");
        QTest::newRow("no folder") << "missing/new" << Hindrance::NoFolder;
        QTest::newRow("a file for a folder") << "old/new" << Hindrance::NoFolder;
        QTest::newRow("no name") << "missing/" << Hindrance::NoFolder;
        QTest::newRow("folder") << "folder" << Hindrance::NotRegular;
        QTest::newRow("folder with a slash") << "folder/" << Hindrance::NotRegular;
        QTest::newRow("up") << "folder/.." << Hindrance::NotRegular;
        QTest::newRow("source") << "source" << Hindrance::IsSource;
        QTest::newRow("source, another path") << "folder/../source" << Hindrance::IsSource;
        QTest::newRow("read-only") << "read-only" << Hindrance::NotWritable;
        QTest::newRow("two names") << "linked" << Hindrance::HasMoreNames;
        QTest::newRow("two names, one of the source") << "source-linked" << Hindrance::IsSource;
#ifdef Q_OS_UNIX
        QTest::newRow("FIFO") << "fifo" << Hindrance::NotRegular;
        QTest::newRow("device") << "/dev/null" << Hindrance::NotRegular;
        QTest::newRow("link to a device") << "to-device" << Hindrance::NotRegular;
        QTest::newRow("link to itself") << "loop" << Hindrance::NotRegular;
        QTest::newRow("link to the source") << "to-source" << Hindrance::IsSource;
        QTest::newRow("link into no folder") << "to-missing" << Hindrance::NoFolder;
#else
        QTest::newRow("device") << "NUL" << Hindrance::NotRegular;
#endif
    }

    void hindrances()
    {
        QFETCH(QString, destination);
        QFETCH(Hindrance, hindrance);
        write("old", "old");
        QVERIFY(QDir(folder->path()).mkdir("folder"));
        QVERIFY(linkFile(write("first", "old"), at("linked")));
        if (destination == "source-linked")
            QVERIFY(linkFile(at("source"), at("source-linked")));
#ifdef Q_OS_UNIX
        QVERIFY(mkfifo(QFile::encodeName(at("fifo")).constData(), 0600) == 0);
        QVERIFY(QFile::link("/dev/null", at("to-device")) && QFile::link("loop", at("loop")) &&
                QFile::link("source", at("to-source")) && QFile::link("no/new", at("to-missing")));
#endif
        QVERIFY(QFile(write("read-only", "")).setPermissions(QFile::ReadOwner));
        if (destination == "read-only" && QFile(at(destination)).open(QIODevice::Append))
            QSKIP("who runs this may write everything");
        const QStringList before = names();

        const QString path = QDir::isAbsolutePath(destination) || destination == "NUL"
                                 ? destination
                                 : folder->path() + "/" + destination;
        Replacement replacement(path);
        QVERIFY(!replacement.prepare(at("source")));
        QCOMPARE(replacement.hindrance(), hindrance);
        QVERIFY(replacement.newFile().isNull());
        QCOMPARE(names(), before);
    }

    /// The destination has changed by the time the new file is whole.
    void lateHindrances()
    {
        Outcome outcome = {};
        Replacement replacement(at("new"));
        QVERIFY(replacement.prepare(at("source")));
        QVERIFY(fill(replacement, "new"));
        QVERIFY(QDir(folder->path()).mkdir("new"));
        QVERIFY(!commit(replacement, "new", 0, outcome));
        QCOMPARE(replacement.hindrance(), Hindrance::NotRegular);
        QCOMPARE(names(), QStringList({"new", "source"}));
    }

    void runsOnOneDestination()
    {
        write("old", "old");
        Replacement first(at("old"));
        Replacement second(
            QDir(folder->path()).filePath("../" + QDir(folder->path()).dirName() + "/old"));
        QVERIFY(first.prepare(at("source")));
        QVERIFY(!second.prepare(at("source")));
        QCOMPARE(second.hindrance(), Hindrance::Held);
        QVERIFY(QFile::exists(first.newFile()));

        Outcome outcome = {};
        QVERIFY(fill(first, "new") && commit(first, "new", 0, outcome));
        QVERIFY(second.prepare(at("source")));
        QCOMPARE(second.hindrance(), Hindrance::None);
        QVERIFY(fill(second, "two") && commit(second, "two", 0, outcome));
        QCOMPARE(read("old"), QByteArray("two"));
    }

    void leftoversAreRemoved()
    {
        QString name;
        {
            Replacement replacement(at("new"));
            QVERIFY(replacement.prepare(at("source")));
            name = replacement.newFile();
        }
        QVERIFY(!QFile::exists(name));
        QVERIFY(QFile::copy(at("source"), name));
        QCOMPARE(replace(at("another"), "new").hindrance, Hindrance::None);
        QVERIFY(QFile::exists(name));
        Replacement replacement(at("new"));
        QVERIFY(replacement.prepare(at("source")));
        QCOMPARE(replacement.newFile(), name);
        QCOMPARE(QFileInfo(name).size(), qint64(0));
        replacement.discard();
        QCOMPARE(names(), QStringList({"another", "source"}));
#ifdef Q_OS_UNIX
        // Nobody has us write elsewhere.
        QVERIFY(QFile::link("victim", name));
        QVERIFY(!replacement.prepare(at("source")));
        QCOMPARE(replacement.hindrance(), Hindrance::NotCreated);
        QVERIFY(!QFile::exists(at("victim")));
#endif
    }

    /// Many create, hold, and remove a file of one name, and some leave it unlocked.
    void locksAreExclusive()
    {
        std::atomic<int> holders = 0;
        std::atomic<int> faults = 0;
        std::atomic<int> times = 0;
        const QDeadlineTimer deadline(20'000);
        std::vector<std::thread> threads;
        threads.reserve(4);
        for (int thread = 0; thread < 4; ++thread) {
            threads.emplace_back([&, thread] {
                // Attempts of whom the others lock out are over at once.
                for (int i = 0; times < 200 && !deadline.hasExpired(); ++i) {
                    if ((i + thread) % 4 == 0) {
                        QFile leftover(at("new"));
                        leftover.open(QIODevice::ReadWrite);
                        continue;
                    }
                    NewFile file;
                    if (file.create(at("new")) != NewFile::Creation::Created)
                        continue;
                    ++times;
                    if (++holders != 1)
                        ++faults;
                    std::this_thread::yield();
                    if (!file.isInPlace())
                        ++faults;
                    --holders;
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(faults.load(), 0);
        QVERIFY(times >= 200);
    }

    void keepOldFiles()
    {
        for (const QByteArray bytes : {"1", "2", "2", "3", "4"})
            QCOMPARE(replace(at("old"), bytes, 2).hindrance, Hindrance::None);
        QCOMPARE(names(), QStringList({"old", "old.1", "old.2", "source"}));
        QCOMPARE(read("old") + read("old.1") + read("old.2"), QByteArray("432"));
        // A gap is filled; what has higher numbers is not ours.
        QVERIFY(QFile::remove(at("old.1")));
        QCOMPARE(replace(at("old"), "5", 2).hindrance, Hindrance::None);
        QCOMPARE(read("old") + read("old.1") + read("old.2"), QByteArray("542"));
        QCOMPARE(replace(at("old"), "6", 1).hindrance, Hindrance::None);
        QCOMPARE(read("old") + read("old.1") + read("old.2"), QByteArray("652"));
        QCOMPARE(replace(at("old"), "7").hindrance, Hindrance::None);
        QCOMPARE(read("old") + read("old.1") + read("old.2"), QByteArray("752"));
    }

    void oldFilesThatCannotBeKept()
    {
        write("old", "old");
        QVERIFY(QDir(folder->path()).mkpath("old.1/full"));
        QCOMPARE(replace(at("old"), "new", 1).hindrance, Hindrance::OldNotKept);
        QCOMPARE(read("old"), QByteArray("old"));
        QCOMPARE(names(), QStringList({"old", "old.1", "source"}));
    }

    /// A run was killed between its last two steps.
    void oldFileThatIsKeptAlready()
    {
        write("old", "2");
        write("old.2", "1");
        QVERIFY(linkFile(at("old"), at("old.1")));
        QCOMPARE(replace(at("old"), "3", 3).hindrance, Hindrance::None);
        QCOMPARE(names(), QStringList({"old", "old.1", "old.2", "source"}));
        QCOMPARE(read("old") + read("old.1") + read("old.2"), QByteArray("321"));
    }

#ifdef Q_OS_UNIX
    static unsigned modeOf(const QString &path)
    {
        struct stat status = {};
        return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
    }

    void modes()
    {
        const mode_t mask = umask(0027);
        for (const unsigned mode : {0U, 0600U, 0664U, 0755U}) {
            if (mode != 0)
                QVERIFY(chmod(QFile::encodeName(at("new")).constData(), mode) == 0);
            Replacement replacement(at("new"));
            QVERIFY(replacement.prepare(at("source")));
            const QByteArray bytes = QByteArray::number(mode);
            QVERIFY(fill(replacement, bytes));
            QCOMPARE(modeOf(replacement.newFile()), 0600U);
            Outcome outcome = {};
            QVERIFY(commit(replacement, bytes, 0, outcome));
            QCOMPARE(modeOf(at("new")), mode == 0 ? 0640U : mode);
        }
        umask(mask);
    }

    void listsOfRights()
    {
        // Its owner may read and write, the user 1236 may read, and nobody else anything.
        const QByteArray rights = QByteArray::fromHex("02000000"
                                                      "01000600ffffffff"
                                                      "02000400d4040000"
                                                      "04000000ffffffff"
                                                      "10000400ffffffff"
                                                      "20000000ffffffff");
        const char *const list = "system.posix_acl_access";
        const QByteArray path = QFile::encodeName(write("old", "old"));
        const auto listOf = [&] {
            QByteArray found(100, '\0');
            const ssize_t size =
                getxattr(path.constData(), list, found.data(), std::size_t(found.size()));
            return found.left(int(qMax<ssize_t>(size, 0)));
        };
        if (setxattr(path.constData(), list, rights.constData(), std::size_t(rights.size()), 0) !=
            0)
            QSKIP("this file system has no lists of rights");
        QCOMPARE(replace(at("old"), "new").outcome, Outcome::Replaced);
        QCOMPARE(listOf(), rights);

        // The list that the folder gives to new files is not that of an old one without.
        QCOMPARE(removexattr(path.constData(), list), 0);
        QCOMPARE(setxattr(QFile::encodeName(folder->path()).constData(), "system.posix_acl_default",
                          rights.constData(), std::size_t(rights.size()), 0),
                 0);
        QCOMPARE(replace(at("old"), "two").outcome, Outcome::Replaced);
        QCOMPARE(listOf(), QByteArray());
    }

    void links()
    {
        QVERIFY(QDir(folder->path()).mkdir("other"));
        QVERIFY(QFile::link("other/second", at("first")));
        QVERIFY(QFile::link(at("other/third"), at("other/second")));
        for (const QByteArray bytes : {"one", "two"}) {
            QCOMPARE(replace(at("first"), bytes, 1).hindrance, Hindrance::None);
            QCOMPARE(read("other/third"), bytes);
        }
        QCOMPARE(read("other/third.1"), QByteArray("one"));
        QCOMPARE(names(), QStringList({"first", "other", "source"}));
        QVERIFY(QFileInfo(at("first")).isSymLink() && QFileInfo(at("other/second")).isSymLink());

        // Runs by different paths meet.
        Replacement direct(at("other/third"));
        Replacement linked(at("first"));
        QVERIFY(direct.prepare(at("source")));
        QVERIFY(!linked.prepare(at("source")));
        QCOMPARE(linked.hindrance(), Hindrance::Held);
    }
#else
    /// Another program has a file open, and shares no more than reading; it closes it after `time`.
    static std::thread openElsewhere(const QString &path, unsigned long time)
    {
        HANDLE other = CreateFileW(path.toStdWString().c_str(), GENERIC_READ, FILE_SHARE_READ,
                                   nullptr, OPEN_EXISTING, 0, nullptr);
        if (other == INVALID_HANDLE_VALUE)
            qFatal("can't open");
        return std::thread([other, time] {
            Sleep(time);
            CloseHandle(other);
        });
    }

    void lockedLeftovers()
    {
        Replacement replacement(at("new"));
        QVERIFY(replacement.prepare(at("source")));
        const QString name = replacement.newFile();
        replacement.discard();
        for (const bool isPassing : {false, true}) {
            QVERIFY(QFile::copy(at("source"), name));
            std::thread closing = openElsewhere(name, isPassing ? 200 : 2000);
            const bool isPrepared = replacement.prepare(at("source"));
            closing.join();
            QCOMPARE(isPrepared, isPassing);
            QCOMPARE(replacement.hindrance(), isPassing ? Hindrance::None : Hindrance::Held);
            QVERIFY(isPassing || QFile::remove(name));
        }
    }

    /// Another program has the old file open.
    void lockedFiles()
    {
        for (const bool isPassing : {true, false}) {
            write("old", "old");
            Replacement replacement(at("old"));
            QVERIFY(replacement.prepare(at("source")) && fill(replacement, "new"));
            std::thread closing = openElsewhere(at("old"), isPassing ? 500 : 3000);
            Outcome outcome = {};
            const bool isCommitted = commit(replacement, "new", 1, outcome);
            closing.join();
            QCOMPARE(isCommitted, isPassing);
            QCOMPARE(replacement.hindrance(), isPassing ? Hindrance::None : Hindrance::NotRenamed);
            QCOMPARE(read("old"), QByteArray(isPassing ? "new" : "old"));
        }
        // The second name of a locked file can't be removed; the next run is none the worse for it.
        QCOMPARE(replace(at("old"), "new", 1).hindrance, Hindrance::None);
        QCOMPARE(names(), QStringList({"old", "old.1", "source"}));
        QCOMPARE(read("old") + read("old.1"), QByteArray("newold"));
    }
#endif
};

QTEST_GUILESS_MAIN(ReplacementTest)
#include "replacement.moc"
