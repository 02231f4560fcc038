// SPDX-License-Identifier: MIT
#include <QtTest>

#include <csignal>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

/// The pause on a real terminal, where a key counts without Enter and is not echoed.
class TerminalTest : public QObject
{
    Q_OBJECT

    int terminal = -1;
    pid_t program = -1;

    bool isRaw() const
    {
        termios mode = {};
        tcgetattr(terminal, &mode);
        return (mode.c_lflag & tcflag_t(ICANON | ECHO)) == 0;
    }

    void press(const QByteArray &key) const
    {
        QCOMPARE(write(terminal, key.data(), size_t(key.size())), ssize_t(key.size()));
    }

    /// Reads what the program prints up to its next prompt.
    void waitForPrompt() const
    {
        QByteArray screen;
        while (!screen.contains("Press any key to continue...")) {
            char buffer[256];
            const ssize_t size = read(terminal, buffer, sizeof buffer);
            QVERIFY(size > 0);
            screen.append(buffer, int(size));
        }
        QTRY_VERIFY(isRaw());
    }

    /// Waits for the program's end; its status as waitpid() gives it.
    int waitForEnd()
    {
        int status = 0;
        if (waitpid(program, &status, 0) != program)
            qFatal("waitpid failed");
        program = -1;
        return status;
    }

private slots:
    void init()
    {
        program = forkpty(&terminal, nullptr, nullptr, nullptr);
        QVERIFY(program >= 0);
        if (program == 0) {
            // Two pauses: for the destination, and at the end.
            execl(PROGRAM, PROGRAM, SOURCE, "missing/out.txt", "--pause", nullptr);
            _exit(127);
        }
        waitForPrompt();
    }

    void cleanup()
    {
        if (program > 0) {
            kill(program, SIGKILL);
            waitForEnd();
        }
        close(terminal);
    }

    void oneKeyEndsOnePause()
    {
        press("ф");
        waitForPrompt();
        press("\x1b[A"); // an arrow
        const int status = waitForEnd();
        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), 3);
        QVERIFY(!isRaw());
    }

    void anInterruptRestoresTheTerminal_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("Ctrl-C") << SIGINT;
        QTest::newRow("kill") << SIGTERM;
        QTest::newRow("quit") << SIGQUIT;
        QTest::newRow("hang-up") << SIGHUP;
    }

    void anInterruptRestoresTheTerminal()
    {
        QFETCH(int, signal);
        if (signal == SIGINT)
            press("\x03");
        else
            kill(program, signal);
        const int status = waitForEnd();
        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(WTERMSIG(status), signal);
        QVERIFY(!isRaw());
    }
};

QTEST_GUILESS_MAIN(TerminalTest)
#include "terminal.moc"
