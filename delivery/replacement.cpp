// SPDX-License-Identifier: MIT
#include "delivery/replacement.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace delivery
{

bool Replacement::fail(Hindrance hindrance, const QString &text)
{
    why = hindrance;
    systemSays = text;
    discard();
    return false;
}

/// The name of the new file: there is one for each destination, so that runs on it meet there, and
/// whatever the destination is called, the name is neither too long nor that of a file of a user.
static QString nameForNew(const QString &file)
{
    QString name = QFileInfo(file).fileName();
#ifdef Q_OS_WIN
    name = name.toCaseFolded();
#endif
    constexpr int digits = 32;
    const QByteArray digest = QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha256);
    return QLatin1String(".xml2ryk-new-") + QString::fromLatin1(digest.toHex().left(digits));
}

static QString inFolderOf(const QString &file, const QString &name)
{
    return file.left(file.size() - QFileInfo(file).fileName().size()) + name;
}

bool Replacement::prepare(const QString &sourcePath)
{
    source = sourcePath;
    why = Hindrance::None;
    systemSays.clear();
    meant = withoutLinks(destination);
    if (meant.isNull())
        return fail(Hindrance::NotRegular);
    if (!isSuitable())
        return false;
    switch (created.create(inFolderOf(meant, nameForNew(meant)))) {
    case NewFile::Creation::Held:
        return fail(Hindrance::Held);
    case NewFile::Creation::Failed:
        return fail(Hindrance::NotCreated, systemMessage());
    case NewFile::Creation::Created:
        break;
    }
    // The run that held the destination until now may have put another file there.
    if (!isSuitable())
        return false;
    if (old.kind == FileState::Kind::Regular && !created.canKeepOwner(meant))
        return fail(Hindrance::OwnerNotKept, systemMessage());
    return true;
}

/// Whether the destination is one that can be replaced.
bool Replacement::isSuitable()
{
    const QString folder = inFolderOf(meant, QStringLiteral("."));
    old = stateOf(meant);
    if (old.kind == FileState::Kind::Nothing) {
        if (stateOf(folder).kind == FileState::Kind::Folder &&
            !QFileInfo(meant).fileName().isEmpty())
            return true;
        return fail(Hindrance::NoFolder);
    }
    if (old.kind != FileState::Kind::Regular)
        return fail(Hindrance::NotRegular);
    if (old.isSameAs(stateOf(source)))
        return fail(Hindrance::IsSource);
    if (!mayWrite(meant))
        return fail(Hindrance::NotWritable, systemMessage());
    // A run that was killed while it kept the old file has left that with two names.
    const quint64 ourNames = old.isSameAs(stateOf(numbered(1))) ? 2 : 1;
    if (old.names > ourNames)
        return fail(Hindrance::HasMoreNames);
    return true;
}

bool Replacement::commit(qint64 size, const QByteArray &sha256, int keep, Outcome &outcome)
{
    if (!created.flush())
        return fail(Hindrance::NotFlushed, systemMessage());
    if (!isWhole(size, sha256))
        return fail(Hindrance::NotWhole);
    // It may have become another one meanwhile.
    if (withoutLinks(destination) != meant)
        return fail(Hindrance::NotRegular);
    if (!isSuitable())
        return false;
    const bool isThere = old.kind == FileState::Kind::Regular;
    if (isThere && hasEqualBytes()) {
        discard();
        outcome = Outcome::Kept;
        return true;
    }
    if (isThere ? !created.keepRights(meant) : !created.takeUsualRights())
        return fail(Hindrance::OwnerNotKept, systemMessage());
    const bool isKept = isThere && keep > 0;
    if (isKept && !keepOld(keep))
        return fail(Hindrance::OldNotKept, systemMessage());
    if (!created.renameTo(meant)) {
        const QString text = systemMessage();
        if (isKept)
            QFile::remove(numbered(1));
        return fail(Hindrance::NotRenamed, text);
    }
    flushFolder(inFolderOf(meant, QStringLiteral(".")));
    outcome = isThere ? Outcome::Replaced : Outcome::Created;
    return true;
}

constexpr qint64 pieceSize = 1 << 16;

bool Replacement::isWhole(qint64 size, const QByteArray &sha256) const
{
    QFile file(newFile());
    QCryptographicHash digest(QCryptographicHash::Sha256);
    return created.isInPlace() && file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) &&
           file.size() == size && digest.addData(&file) && digest.result() == sha256;
}

bool Replacement::hasEqualBytes() const
{
    QFile one(meant);
    QFile other(newFile());
    if (!one.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ||
        !other.open(QIODevice::ReadOnly | QIODevice::Unbuffered) || one.size() != other.size())
        return false;
    for (;;) {
        const QByteArray piece = one.read(pieceSize);
        if (piece != other.read(pieceSize))
            return false;
        if (piece.isEmpty())
            return one.error() == QFileDevice::NoError && other.error() == QFileDevice::NoError;
    }
}

QString Replacement::numbered(int number) const
{
    return meant + QLatin1Char('.') + QString::number(number);
}

/// Gives the old file the number 1 as a second name, and those before it the next ones. There is
/// always a file at the destination.
bool Replacement::keepOld(int keep)
{
    if (old.isSameAs(stateOf(numbered(1))))
        return true;
    int free = 1;
    while (free < keep && QFileInfo::exists(numbered(free)))
        ++free;
    for (int number = free; number > 1; --number) {
        if (!renameFile(numbered(number - 1), numbered(number)))
            return false;
    }
    if (free == 1 && QFileInfo::exists(numbered(1)) && !QFile::remove(numbered(1)))
        return false;
    // Not every file system knows of hard links.
    return linkFile(meant, numbered(1)) || QFile::copy(meant, numbered(1));
}

} // namespace delivery
