// SPDX-License-Identifier: MIT
//
// What differs between the platforms; each has a file that implements this.
#pragma once

#include <QString>

#include <cstdio>
#include <optional>

class QProcess;

namespace delivery
{

/// What stands at a path, links followed.
struct FileState {
    enum class Kind { Nothing, Regular, Folder, Other };

    Kind kind = Kind::Nothing;
    quint64 volume = 0; ///< this and the next one tell files apart
    quint64 index = 0;
    quint64 names = 0; ///< how many hard links there are

    bool isSameAs(const FileState &other) const
    {
        return kind != Kind::Nothing && kind == other.kind && volume == other.volume &&
               index == other.index;
    }
};

FileState stateOf(const QString &path);

/// The path of what `path` means, which need not be there; null if there is no way to tell.
QString withoutLinks(const QString &path);

/// Whether the user may write a file that is there.
bool mayWrite(const QString &path);

/// The latest failure of this process, in the words of the system.
QString systemMessage();

/// A file that this process has created, readable to nobody else where files have modes, and holds
/// locked: by the lock a file that is being written is told from what a killed run left.
class NewFile
{
public:
    NewFile() = default;
    ~NewFile() { remove(); }
    Q_DISABLE_COPY(NewFile)

    enum class Creation {
        Created,
        Held, ///< by another run, or by another object of this one
        Failed
    };

    /// Creates the file at `newPath`, in place of one that a killed run left.
    Creation create(const QString &newPath);

    /// Its path; null if there is none.
    const QString &path() const { return ownPath; }

    /// Whether the path still leads to it.
    bool isInPlace() const;

    /// Whether it can be given owner and group of `old`.
    bool canKeepOwner(const QString &old) const;

    /// Gives it owner, group and rights of `old`.
    bool keepRights(const QString &old) const;

    /// Gives it the rights of a file that any program creates.
    bool takeUsualRights() const;

    /// Brings its bytes to the disk.
    bool flush() const;

    /// Gives it the name `destination`, in place of what has it, and forgets it.
    bool renameTo(const QString &destination);

    void remove();

private:
    std::optional<Creation> tryToCreate(const QString &newPath);
    void close();

    QString ownPath;
    qintptr handle = -1;
};

/// Gives a file another name, over what has it.
bool renameFile(const QString &from, const QString &to);

/// Gives a file a second name, which nothing has yet.
bool linkFile(const QString &file, const QString &name);

/// Brings the names of a folder to the disk, where the system knows of such a thing.
void flushFolder(const QString &folder);

/// The pipes of a worker.
struct WorkerPipes {
    std::FILE *orders = nullptr;
    std::FILE *answers = nullptr;
};

/// Makes this process a worker: it ends with its batch, leaves the keys and signals that end a
/// batch to that, and has an empty standard input and a standard output that leads nowhere, since
/// what it calls may print, and wait for a key.
WorkerPipes becomeWorker();

/// Has a worker that was just started end with this process, where the worker can't see to that.
void tieToThisProcess(const QProcess &worker);

} // namespace delivery
