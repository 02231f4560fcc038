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

// A key on a terminal can be several bytes, that of a Cyrillic letter or an arrow for one. They
// come together.
constexpr std::size_t longestKey = 16;

volatile std::sig_atomic_t caughtSignal = 0;

extern "C" void rememberSignal(int signal)
{
    caughtSignal = signal;
}

/// Waits for standard input and drops up to `size` bytes of it, with `mask` as the signal mask of
/// the wait. False if an interruption came instead.
bool readInput(std::size_t size, const sigset_t *mask)
{
    char bytes[longestKey];
    pollfd input = {STDIN_FILENO, POLLIN, 0};
    // Input that does not block can turn out to be empty after all.
    do {
        while (ppoll(&input, 1, nullptr, mask) < 0 && errno == EINTR) {
            if (caughtSignal != 0)
                return false;
        }
    } while (read(STDIN_FILENO, bytes, size) < 0 && (errno == EAGAIN || errno == EINTR));
    return true;
}

/// Takes the terminal out of line mode and echo, and holds the interruptions back, for as long as
/// it lives.
class KeyMode
{
public:
    KeyMode()
    {
        sigset_t blocked;
        sigemptyset(&blocked);
        for (const int signal : interruptions)
            sigaddset(&blocked, signal);
        sigprocmask(SIG_BLOCK, &blocked, &savedMask);

        caughtSignal = 0;
        struct sigaction action = {};
        action.sa_handler = rememberSignal;
        for (std::size_t i = 0; i < std::size(interruptions); ++i) {
            sigaction(interruptions[i], nullptr, &savedActions[i]);
            if (savedActions[i].sa_handler != SIG_IGN)
                sigaction(interruptions[i], &action, nullptr);
        }

        tcgetattr(STDIN_FILENO, &savedTerminal);
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

    /// Waits for a key; interruptions arrive only here. False if one did.
    bool waitForKey() const { return readInput(longestKey, &savedMask); }

private:
    termios savedTerminal = {};
    struct sigaction savedActions[std::size(interruptions)] = {};
    sigset_t savedMask = {};
};

} // namespace

void preparePlatform()
{
    // A standard stream that came closed would give its number to the next file that is opened, and
    // a pause would wait for that.
    for (const int standardStream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(standardStream, F_GETFD) < 0)
            open("/dev/null", O_RDWR);
    }
    // A write that fails is no reason to end: neither nobody reading the console any more, nor an
    // exchange file that has reached the limit of the size of files.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
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
        readInput(1, nullptr);
        return;
    }
    for (;;) {
        {
            const KeyMode keyMode;
            if (keyMode.waitForKey())
                return;
        }
        // With the terminal as it was. A process that was only stopped goes on waiting.
        std::raise(caughtSignal);
    }
}
