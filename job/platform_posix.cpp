// SPDX-License-Identifier: MIT
#include "job/platform.h"

#include <QString>
#include <QTextCodec>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <fcntl.h>
#include <iterator>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace
{

// The signals that end or stop a process while it waits for a key.
constexpr int interruptions[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGTSTP};

volatile std::sig_atomic_t caughtSignal = 0;

extern "C" void rememberSignal(int signal)
{
    caughtSignal = signal;
}

/// Takes the terminal out of line mode and echo, and holds the interruptions back, for as long as
/// it lives.
class KeyMode
{
public:
    KeyMode()
    {
        tcgetattr(STDIN_FILENO, &savedTerminal);
        sigset_t blocked;
        sigemptyset(&blocked);
        struct sigaction action = {};
        action.sa_handler = rememberSignal;
        for (std::size_t i = 0; i < std::size(interruptions); ++i) {
            sigaction(interruptions[i], nullptr, &savedActions[i]);
            if (savedActions[i].sa_handler != SIG_IGN) {
                sigaction(interruptions[i], &action, nullptr);
                sigaddset(&blocked, interruptions[i]);
            }
        }
        sigprocmask(SIG_BLOCK, &blocked, &savedMask);

        termios terminal = savedTerminal;
        terminal.c_lflag &= ~tcflag_t(ICANON | ECHO);
        terminal.c_cc[VMIN] = 1;
        terminal.c_cc[VTIME] = 0;
        tcsetattr(STDIN_FILENO, TCSANOW, &terminal);
    }

    ~KeyMode()
    {
        tcsetattr(STDIN_FILENO, TCSANOW, &savedTerminal);
        for (std::size_t i = 0; i < std::size(interruptions); ++i)
            sigaction(interruptions[i], &savedActions[i], nullptr);
        sigprocmask(SIG_SETMASK, &savedMask, nullptr);
    }

    Q_DISABLE_COPY(KeyMode)

    /// Waits until there is something to read; interruptions arrive only here. False if one did.
    bool waitForInput() const
    {
        pollfd input = {STDIN_FILENO, POLLIN, 0};
        caughtSignal = 0;
        while (ppoll(&input, 1, nullptr, &savedMask) < 0 && errno == EINTR) {
            if (caughtSignal != 0)
                return false;
        }
        return true;
    }

private:
    termios savedTerminal = {};
    struct sigaction savedActions[std::size(interruptions)] = {};
    sigset_t savedMask = {};
};

void readByte()
{
    char byte = 0;
    while (read(STDIN_FILENO, &byte, 1) < 0 && errno == EINTR) {
    }
}

} // namespace

void preparePlatform()
{
    // A standard stream that came closed would hand its number, and what is printed on it, to the
    // next file that is opened.
    for (const int standardStream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(standardStream, F_GETFD) < 0)
            open("/dev/null", O_RDWR);
    }
    // Nobody reading the console any more is no reason to leave the exchange file unfinished.
    std::signal(SIGPIPE, SIG_IGN);
}

QList<QByteArray> jobArguments(int argc, char **argv)
{
    // Shells here mostly speak UTF-8. A word that is UTF-8 and fits into cp1251 is taken as such;
    // any other is cp1251 already.
    const QTextCodec *codec = QTextCodec::codecForName("cp1251");
    QList<QByteArray> arguments;
    for (int i = 1; i < argc; ++i) {
        const QByteArray raw(argv[i]);
        const QString text = QString::fromUtf8(raw);
        const bool convertible = text.toUtf8() == raw && codec->canEncode(text);
        arguments.append(convertible ? codec->fromUnicode(text) : raw);
    }
    return arguments;
}

void readKey()
{
    if (isatty(STDIN_FILENO) == 0) {
        readByte();
        return;
    }
    for (;;) {
        {
            const KeyMode keyMode;
            if (keyMode.waitForInput()) {
                readByte();
                return;
            }
        }
        // With the terminal as it was. A process that was only stopped goes on waiting.
        std::raise(caughtSignal);
    }
}
