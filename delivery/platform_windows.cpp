// SPDX-License-Identifier: MIT
#include "delivery/interrupts.h"
#include "delivery/platform.h"
#include "delivery/program.h"
#include "job/platform.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QProcess>
#include <QThread>

#include <atomic>
#include <fcntl.h>
#include <io.h>
#include <qt_windows.h>
#include <string>

namespace delivery
{

void prepareProgram()
{
    preparePlatform();
}

void prepareApplication() {}

constexpr DWORD sharedByAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

static HANDLE toHandle(qintptr handle)
{
    return reinterpret_cast<HANDLE>(handle); // NOLINT(performance-no-int-to-ptr)
}

/// A path as the system takes it, also where it is long.
static std::wstring native(const QString &path)
{
    constexpr int longest = 240;
    QString name = QDir::toNativeSeparators(path);
    const QString whole = QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
    if (whole.size() > longest && !whole.startsWith(QLatin1String(R"(\\)")))
        name = QLatin1String(R"(\\?\)") + whole;
    return name.toStdWString();
}

namespace
{

class Handle
{
public:
    explicit Handle(HANDLE handle) : handle(handle) {}
    ~Handle()
    {
        if (isOpen()) {
            const DWORD failure = GetLastError();
            CloseHandle(handle);
            SetLastError(failure);
        }
    }
    Q_DISABLE_COPY(Handle)

    bool isOpen() const { return handle != INVALID_HANDLE_VALUE && handle != nullptr; }
    HANDLE get() const { return handle; }

private:
    HANDLE handle;
};

} // namespace

static HANDLE openExisting(const QString &path, DWORD access, DWORD flags = 0)
{
    return CreateFileW(native(path).c_str(), access, sharedByAll, nullptr, OPEN_EXISTING, flags,
                       nullptr);
}

static FileState stateOf(HANDLE handle)
{
    FileState state;
    BY_HANDLE_FILE_INFORMATION file = {};
    if (GetFileType(handle) != FILE_TYPE_DISK || GetFileInformationByHandle(handle, &file) == 0) {
        state.kind = FileState::Kind::Other;
        return state;
    }
    constexpr int half = 32;
    state.kind = (file.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? FileState::Kind::Folder
                                                                         : FileState::Kind::Regular;
    state.volume = file.dwVolumeSerialNumber;
    state.index = quint64(file.nFileIndexHigh) << half | file.nFileIndexLow;
    state.names = file.nNumberOfLinks;
    return state;
}

FileState stateOf(const QString &path)
{
    const Handle handle(openExisting(path, 0, FILE_FLAG_BACKUP_SEMANTICS));
    return handle.isOpen() ? stateOf(handle.get()) : FileState();
}

QString withoutLinks(const QString &path)
{
    const DWORD attributes = GetFileAttributesW(native(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
        return path;
    const Handle handle(openExisting(path, 0, FILE_FLAG_BACKUP_SEMANTICS));
    if (!handle.isOpen())
        return {};
    constexpr DWORD longest = 32'768;
    std::wstring name(longest, L'\0');
    name.resize(GetFinalPathNameByHandleW(handle.get(), name.data(), longest, 0));
    QString meant = QString::fromStdWString(name);
    if (meant.startsWith(QLatin1String(R"(\\?\UNC\)")))
        return QDir::fromNativeSeparators(QLatin1Char('\\') + meant.mid(7));
    if (meant.startsWith(QLatin1String(R"(\\?\)")))
        meant.remove(0, 4);
    return QDir::fromNativeSeparators(meant);
}

bool mayWrite(const QString &path)
{
    const Handle handle(openExisting(path, GENERIC_WRITE));
    // One that another program has open may be closed again until it matters.
    return handle.isOpen() || GetLastError() == ERROR_SHARING_VIOLATION;
}

QString systemMessage()
{
    // The system says it in its own language; these are known in English.
    static const struct {
        DWORD failure;
        const char *message;
    } messages[] = {
        {ERROR_ACCESS_DENIED, "Permission denied"},
        {ERROR_DISK_FULL, "No space left on device"},
        {ERROR_HANDLE_DISK_FULL, "No space left on device"},
        {ERROR_FILE_NOT_FOUND, "No such file or directory"},
        {ERROR_PATH_NOT_FOUND, "No such file or directory"},
        {ERROR_SHARING_VIOLATION, "Sharing violation"},
        {ERROR_LOCK_VIOLATION, "Sharing violation"},
        {ERROR_WRITE_PROTECT, "Read-only file system"},
    };
    const DWORD failure = GetLastError();
    for (const auto &known : messages) {
        if (known.failure == failure)
            return QLatin1String(known.message);
    }
    return qt_error_string(int(failure));
}

/// Locks a byte that no file reaches: locks here keep others from reading and writing.
static bool lock(HANDLE handle)
{
    OVERLAPPED place = {};
    place.OffsetHigh = 0x7fff'ffff;
    return LockFileEx(handle, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0,
                      &place) != 0;
}

/// Whether a folder still has a name, be it of a file that was removed and is open.
static bool isListed(const QString &path)
{
    WIN32_FIND_DATAW entry = {};
    HANDLE search = FindFirstFileW(native(path).c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE)
        return false;
    FindClose(search);
    return true;
}

/// Whether a failure to open, rename or remove a file may pass: scanners and indexers open files as
/// they come, and lock them for a moment.
static bool mayPass(DWORD failure)
{
    return failure == ERROR_SHARING_VIOLATION || failure == ERROR_LOCK_VIOLATION ||
           failure == ERROR_ACCESS_DENIED || failure == ERROR_DELETE_PENDING;
}

NewFile::Creation NewFile::create(const QString &newPath)
{
    remove();
    // Others may create and remove it at the same time, but not without end; and a file that was
    // removed keeps its name, and is not to be opened, for as long as somebody has it open.
    constexpr qint64 patience = 500;
    constexpr unsigned long pause = 5;
    const QDeadlineTimer deadline(patience);
    for (;;) {
        if (const std::optional<Creation> creation = tryToCreate(newPath))
            return *creation;
        if (deadline.hasExpired())
            return GetLastError() == ERROR_ACCESS_DENIED ? Creation::Failed : Creation::Held;
        QThread::msleep(pause);
    }
}

/// Nothing, where it is worth another attempt.
std::optional<NewFile::Creation> NewFile::tryToCreate(const QString &newPath)
{
    constexpr DWORD access = GENERIC_READ | GENERIC_WRITE;
    HANDLE file = CreateFileW(native(newPath).c_str(), access, sharedByAll, nullptr, CREATE_NEW,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    const bool isOurs = file != INVALID_HANDLE_VALUE;
    if (!isOurs && GetLastError() == ERROR_FILE_EXISTS)
        file = openExisting(newPath, access);
    if (file == INVALID_HANDLE_VALUE) {
        const DWORD failure = GetLastError();
        const bool isWorthIt =
            failure == ERROR_FILE_NOT_FOUND || (mayPass(failure) && isListed(newPath));
        SetLastError(failure);
        return isWorthIt ? std::nullopt : std::optional(Creation::Failed);
    }
    handle = reinterpret_cast<qintptr>(file);
    ownPath = newPath;
    if (!lock(file)) {
        close();
        // Another run took ours for a leftover ahead of our lock, and removes it.
        return isOurs ? std::nullopt : std::optional(Creation::Held);
    }
    // Whoever had the lock before may have renamed or removed the file.
    if (!isInPlace()) {
        close();
        return std::nullopt;
    }
    if (isOurs)
        return Creation::Created;
    // A killed run left it: with the lock in our hands nobody else holds it, or removes it.
    const bool isRemoved = DeleteFileW(native(newPath).c_str()) != 0;
    close();
    return isRemoved || mayPass(GetLastError()) ? std::nullopt : std::optional(Creation::Failed);
}

bool NewFile::isInPlace() const
{
    return delivery::stateOf(toHandle(handle)).isSameAs(stateOf(ownPath));
}

// Files have the owner and the rights that their folder gives them.
// NOLINTBEGIN(readability-convert-member-functions-to-static)
bool NewFile::canKeepOwner(const QString & /*old*/) const
{
    return true;
}

bool NewFile::keepRights(const QString & /*old*/) const
{
    return true;
}

bool NewFile::takeUsualRights() const
{
    return true;
}

// NOLINTEND(readability-convert-member-functions-to-static)

bool NewFile::flush() const
{
    return FlushFileBuffers(toHandle(handle)) != 0;
}

bool NewFile::renameTo(const QString &destination)
{
    constexpr qint64 patience = 2'000;
    constexpr unsigned long pause = 50;
    const QDeadlineTimer deadline(patience);
    while (!renameFile(ownPath, destination)) {
        if (!mayPass(GetLastError()) || deadline.hasExpired())
            return false;
        QThread::msleep(pause);
    }
    close();
    return true;
}

void NewFile::remove()
{
    // Ahead of the lock's end: nobody else can have put another file there.
    if (handle != -1 && isInPlace())
        DeleteFileW(native(ownPath).c_str());
    close();
}

void NewFile::close()
{
    const Handle closed(toHandle(handle));
    handle = -1;
    ownPath.clear();
}

bool renameFile(const QString &from, const QString &to)
{
    return MoveFileExW(native(from).c_str(), native(to).c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

bool linkFile(const QString &file, const QString &name)
{
    return CreateHardLinkW(native(name).c_str(), native(file).c_str(), nullptr) != 0;
}

void flushFolder(const QString & /*folder*/)
{
    // MOVEFILE_WRITE_THROUGH has done it.
}

WorkerPipes becomeWorker()
{
    SetConsoleCtrlHandler([](DWORD) -> BOOL { return TRUE; }, TRUE);
    const int orders = _dup(0);
    const int answers = _dup(1);
    const int null = _open("NUL", _O_RDWR | _O_NOINHERIT);
    if (orders < 0 || answers < 0 || null < 0 || _dup2(null, 0) != 0 || _dup2(null, 1) != 0)
        return {};
    _close(null);
    // Not everything asks the C library.
    SetStdHandle(STD_INPUT_HANDLE, toHandle(_get_osfhandle(0)));
    SetStdHandle(STD_OUTPUT_HANDLE, toHandle(_get_osfhandle(1)));
    return {_fdopen(orders, "rb"), _fdopen(answers, "wb")};
}

/// A job whose processes end when the last handle of it goes, with this process.
static HANDLE makeJob()
{
    HANDLE job = CreateJobObjectW(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
    return job;
}

void tieToThisProcess(const QProcess &worker)
{
    // One that is left behind before this has no order yet, and ends with its pipe.
    static HANDLE job = makeJob();
    const Handle process(
        OpenProcess(PROCESS_SET_QUOTA | PROCESS_TERMINATE, FALSE, DWORD(worker.processId())));
    AssignProcessToJobObject(job, process.get());
}

namespace
{

std::atomic<int> interruptCode = 0;
std::atomic<QObject *> currentListener = nullptr;

class Listener : public QObject
{
public:
    explicit Listener(std::function<void()> heard) : heard(std::move(heard)) {}

protected:
    bool event(QEvent *event) override
    {
        if (event->type() != QEvent::User)
            return QObject::event(event);
        heard();
        return true;
    }

private:
    std::function<void()> heard;
};

/// Runs in a thread that the system makes for it.
BOOL WINAPI noteControl(DWORD control)
{
    constexpr int ofCtrlC = 130;
    constexpr int ofEnd = 143;
    const bool isKey = control == CTRL_C_EVENT || control == CTRL_BREAK_EVENT;
    interruptCode = isKey ? ofCtrlC : ofEnd;
    if (QObject *listener = currentListener)
        QCoreApplication::postEvent(listener, new QEvent(QEvent::User));
    // The process would be ended as soon as this returns.
    if (!isKey)
        Sleep(INFINITE);
    return TRUE;
}

} // namespace

Interrupts::Interrupts(std::function<void()> heard)
    : listener(std::make_unique<Listener>(std::move(heard)))
{
    interruptCode = 0;
    currentListener = listener.get();
    SetConsoleCtrlHandler(noteControl, TRUE);
}

Interrupts::~Interrupts()
{
    SetConsoleCtrlHandler(noteControl, FALSE);
    currentListener = nullptr;
}

int Interrupts::exitCode()
{
    return interruptCode;
}

} // namespace delivery
