// SPDX-License-Identifier: MIT
#include "delivery/interrupts.h"
#include "delivery/platform.h"
#include "delivery/program.h"
#include "job/platform.h"

#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>
#include <QTextCodec>

#include <cerrno>
#include <climits>
#include <clocale>
#include <csignal>
#include <fcntl.h>
#include <iterator>
#include <poll.h>
#include <sys/file.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>

namespace delivery
{

void prepareProgram()
{
    preparePlatform();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

void prepareApplication()
{
    std::setlocale(LC_MESSAGES, "C");
}

static bool isSame(const struct stat &one, const struct stat &other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

FileState stateOf(const QString &path)
{
    struct stat status = {};
    FileState state;
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return state;
    state.kind = S_ISREG(status.st_mode)   ? FileState::Kind::Regular
                 : S_ISDIR(status.st_mode) ? FileState::Kind::Folder
                                           : FileState::Kind::Other;
    state.volume = status.st_dev;
    state.index = status.st_ino;
    state.names = status.st_nlink;
    return state;
}

QString withoutLinks(const QString &path)
{
    // As many as the system itself would follow.
    constexpr int mostLinks = 40;
    QByteArray name = QFile::encodeName(path);
    for (int links = 0; links <= mostLinks; ++links) {
        struct stat status = {};
        if (lstat(name.constData(), &status) != 0 || !S_ISLNK(status.st_mode)) {
            // Some links of /proc are not what they read as.
            struct stat meant = {};
            const bool isThere = stat(QFile::encodeName(path).constData(), &meant) == 0;
            return isThere && !isSame(status, meant) ? QString() : QFile::decodeName(name);
        }
        char target[PATH_MAX];
        const ssize_t size = readlink(name.constData(), target, sizeof target);
        if (size <= 0)
            return {};
        const QByteArray text(target, int(size));
        name = text.startsWith('/') ? text : name.left(name.lastIndexOf('/') + 1) + text;
    }
    errno = ELOOP;
    return {};
}

bool mayWrite(const QString &path)
{
    return faccessat(AT_FDCWD, QFile::encodeName(path).constData(), W_OK, AT_EACCESS) == 0;
}

QString systemMessage()
{
    return qt_error_string(errno);
}

NewFile::Creation NewFile::create(const QString &newPath)
{
    remove();
    // Others may create and remove it at the same time, but not without end.
    constexpr int mostAttempts = 100;
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        if (const std::optional<Creation> creation = tryToCreate(newPath))
            return *creation;
    }
    return errno == EWOULDBLOCK ? Creation::Held : Creation::Failed;
}

/// Nothing, where it is worth another attempt.
std::optional<NewFile::Creation> NewFile::tryToCreate(const QString &newPath)
{
    const QByteArray name = QFile::encodeName(newPath);
    int file = open(name.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    const bool isOurs = file >= 0;
    if (!isOurs && errno == EEXIST)
        file = open(name.constData(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) {
        if (errno == ENOENT && stateOf(QFileInfo(newPath).path()).kind != FileState::Kind::Nothing)
            return std::nullopt;
        return Creation::Failed;
    }
    handle = file;
    ownPath = newPath;
    if (flock(file, LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK) {
            close();
            // Another run took ours for a leftover ahead of our lock, and removes it.
            return isOurs ? std::nullopt : std::optional(Creation::Held);
        }
        if (isOurs)
            remove();
        close();
        return Creation::Failed;
    }
    // Whoever had the lock before may have renamed or removed the file.
    if (!isInPlace()) {
        close();
        errno = EEXIST;
        return std::nullopt;
    }
    if (isOurs)
        return Creation::Created;
    // A killed run left it: with the lock in our hands nobody else holds it, or removes it.
    const bool isRemoved = unlink(name.constData()) == 0;
    close();
    return isRemoved ? std::nullopt : std::optional(Creation::Failed);
}

bool NewFile::isInPlace() const
{
    struct stat own = {};
    struct stat there = {};
    return fstat(int(handle), &own) == 0 && S_ISREG(own.st_mode) &&
           lstat(QFile::encodeName(ownPath).constData(), &there) == 0 && isSame(own, there);
}

bool NewFile::canKeepOwner(const QString &old) const
{
    struct stat own = {};
    struct stat status = {};
    const int file = int(handle);
    if (fstat(file, &own) != 0 || stat(QFile::encodeName(old).constData(), &status) != 0)
        return false;
    // Until it is whole the file stays ours; its group has no rights.
    return fchown(file, status.st_uid, status.st_gid) == 0 &&
           fchown(file, own.st_uid, gid_t(-1)) == 0;
}

bool NewFile::keepRights(const QString &old) const
{
    const QByteArray name = QFile::encodeName(old);
    const int file = int(handle);
    struct stat status = {};
    if (stat(name.constData(), &status) != 0 || fchown(file, status.st_uid, status.st_gid) != 0 ||
        fchmod(file, status.st_mode & ~mode_t(S_IFMT)) != 0)
        return false;
    // Where a file has a list of rights, its mode alone would give its group those of the others.
    const char *const list = "system.posix_acl_access";
    const ssize_t size = getxattr(name.constData(), list, nullptr, 0);
    if (size > 0) {
        QByteArray rights(int(size), '\0');
        return getxattr(name.constData(), list, rights.data(), std::size_t(size)) == size &&
               fsetxattr(file, list, rights.constData(), std::size_t(size), 0) == 0;
    }
    return fremovexattr(file, list) == 0 || errno == ENODATA || errno == ENOTSUP;
}

bool NewFile::takeUsualRights() const
{
    const mode_t mask = umask(077); // a file that another thread makes meanwhile is not for all
    umask(mask);
    return fchmod(int(handle), mode_t(0666) & ~mask) == 0;
}

bool NewFile::flush() const
{
    if (fsync(int(handle)) != 0)
        return false;
    // What is read of it from now on comes from the disk.
    posix_fadvise(int(handle), 0, 0, POSIX_FADV_DONTNEED);
    return true;
}

bool NewFile::renameTo(const QString &destination)
{
    if (!renameFile(ownPath, destination))
        return false;
    close();
    return true;
}

void NewFile::remove()
{
    // Ahead of the lock's end: nobody else can have put another file there.
    if (handle >= 0 && isInPlace())
        unlink(QFile::encodeName(ownPath).constData());
    close();
}

void NewFile::close()
{
    if (handle >= 0)
        ::close(int(handle));
    handle = -1;
    ownPath.clear();
}

bool renameFile(const QString &from, const QString &to)
{
    return rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

bool linkFile(const QString &file, const QString &name)
{
    return link(QFile::encodeName(file).constData(), QFile::encodeName(name).constData()) == 0;
}

void flushFolder(const QString &folder)
{
    const int handle =
        open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return;
    fsync(handle);
    close(handle);
}

WorkerPipes becomeWorker()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    // The batch ends its workers itself, where one of these comes to all processes of a group.
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        std::signal(signal, SIG_IGN);
    // A write that fails is no reason to end.
    for (const int signal : {SIGPIPE, SIGXFSZ})
        std::signal(signal, SIG_IGN);

    const int orders = fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    const int answers = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    const int null = open("/dev/null", O_RDWR | O_CLOEXEC);
    if (orders < 0 || answers < 0 || null < 0 || dup2(null, STDIN_FILENO) < 0 ||
        dup2(null, STDOUT_FILENO) < 0)
        return {};
    close(null);
    // A batch that ended ahead of the first line has left its order behind.
    pollfd pipe = {orders, POLLIN, 0};
    if (poll(&pipe, 1, 0) < 0 || (pipe.revents & POLLHUP) != 0)
        return {};
    return {fdopen(orders, "r"), fdopen(answers, "w")};
}

void tieToThisProcess(const QProcess &) {}

namespace
{

constexpr int interruptions[] = {SIGINT, SIGTERM, SIGHUP};

struct sigaction savedActions[std::size(interruptions)] = {};
volatile std::sig_atomic_t caughtSignal = 0;
int wakingPipe[2] = {-1, -1};

extern "C" void wakeEventLoop(int signal)
{
    const int failure = errno;
    caughtSignal = signal;
    const char byte = 0;
    // Where the pipe is full the event loop wakes up anyway.
    [[maybe_unused]] const ssize_t size = write(wakingPipe[1], &byte, 1);
    errno = failure;
}

class Listener : public QSocketNotifier
{
public:
    explicit Listener(std::function<void()> heard)
        : QSocketNotifier(wakingPipe[0], Read), heard(std::move(heard))
    {
    }

protected:
    bool event(QEvent *event) override
    {
        if (event->type() != QEvent::SockAct)
            return QSocketNotifier::event(event);
        char bytes[16];
        while (read(wakingPipe[0], bytes, sizeof bytes) > 0) {
        }
        heard();
        return true;
    }

private:
    std::function<void()> heard;
};

} // namespace

Interrupts::Interrupts(std::function<void()> heard)
{
    if (pipe2(wakingPipe, O_CLOEXEC | O_NONBLOCK) != 0)
        qFatal("no pipe for interrupts: %s", qPrintable(systemMessage()));
    listener = std::make_unique<Listener>(std::move(heard));
    caughtSignal = 0;
    struct sigaction action = {};
    action.sa_handler = wakeEventLoop;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < std::size(interruptions); ++i) {
        sigaction(interruptions[i], nullptr, &savedActions[i]);
        if (savedActions[i].sa_handler != SIG_IGN)
            sigaction(interruptions[i], &action, nullptr);
    }
}

Interrupts::~Interrupts()
{
    for (std::size_t i = 0; i < std::size(interruptions); ++i)
        sigaction(interruptions[i], &savedActions[i], nullptr);
    listener.reset();
    for (int &end : wakingPipe)
        close(std::exchange(end, -1));
}

int Interrupts::exitCode()
{
    constexpr int ofSignals = 128;
    return caughtSignal == 0 ? 0 : ofSignals + caughtSignal;
}

} // namespace delivery
