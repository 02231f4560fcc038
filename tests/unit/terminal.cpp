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
    QByteArray screen;

    bool isRaw() const
    {
        termios mode = {};
        tcgetattr(terminal, &mode);
        return (mode.c_lflag & tcflag_t(ICANON | ECHO)) == 0;
    }

    void press(char key) const { QCOMPARE(write(terminal, &key, 1), ssize_t(1)); }

    /// Waits for the program's end; its status as waitpid() gives it.
    int waitForEnd()
    {
        int status = 0;
        if (waitpid(program, &status, 0) != program)
            qFatal("waitpid failed");
        return status;
    }

private slots:
    void init()
    {
        screen.clear();
        program = forkpty(&terminal, nullptr, nullptr, nullptr);
        QVERIFY(program >= 0);
        if (program == 0) {
            execl(PROGRAM, PROGRAM, nullptr);
            _exit(127);
        }
        while (!screen.contains("Press any key to continue...")) {
            char buffer[256];
            const ssize_t size = read(terminal, buffer, sizeof buffer);
            QVERIFY(size > 0);
            screen.append(buffer, int(size));
        }
        QTRY_VERIFY(isRaw());
    }

    void cleanup()
    {
        kill(program, SIGKILL);
        close(terminal);
    }

    void oneKeyEndsThePause()
    {
        press('q');
        const int status = waitForEnd();
        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), 1);
        QVERIFY(!isRaw());
    }

    void anInterruptRestoresTheTerminal_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("Ctrl-C") << SIGINT;
        QTest::newRow("kill") << SIGTERM;
    }

    void anInterruptRestoresTheTerminal()
    {
        QFETCH(int, signal);
        if (signal == SIGINT)
            press('\x03');
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
