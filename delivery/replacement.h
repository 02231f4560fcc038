// SPDX-License-Identifier: MIT
//
// Puts a new file in the place of an old one, or leaves that as it is.
#pragma once

#include "delivery/platform.h"

#include <QByteArray>
#include <QString>

#include <utility>

namespace delivery
{

/// A destination on its way to a new content: somebody else writes that into newFile(), and
/// commit() gives it the name, once it is known to be whole. Whatever ends the process, there is a
/// whole file at the destination, the old one or the new one. Links are followed to what they mean.
class Replacement
{
public:
    /// The destructor removes a new file that was not committed.
    explicit Replacement(QString destination) : destination(std::move(destination)) {}

    enum class Hindrance {
        None,
        NoFolder,     ///< there is no such folder
        NotRegular,   ///< the destination is a folder, a device, or a link that leads nowhere
        IsSource,     ///< the destination is the source, by whatever path or link
        NotWritable,  ///< the user may not write the old file
        HasMoreNames, ///< the old file has other hard links, which would keep the old content
        OwnerNotKept, ///< the new file can't be given owner, group and rights of the old one
        Held,         ///< another run writes to this destination
        NotCreated,   ///< no new file can be created in the folder
        NotWhole,     ///< the new file is not what its writer sent
        NotFlushed,   ///< the new file may not have reached the disk
        OldNotKept,   ///< the old files can't be given their numbers
        NotRenamed,   ///< the new file can't be given the name of the destination
    };

    /// Creates the new file, unless something of the old one, or of the source, is in the way; one
    /// that a killed run left is removed. Can be called again where it failed, as when another run
    /// has held the destination.
    bool prepare(const QString &source);

    /// The file to write; null unless it is prepared. Its name is one that no user gives.
    const QString &newFile() const { return created.path(); }

    /// What the destination means.
    const QString &file() const { return meant; }

    enum class Outcome {
        Created,  ///< there was no old file
        Replaced, ///< the old one
        Kept      ///< as it was: for commit(), it has these very bytes
    };

    /// Puts the new file, which has `size` bytes of this digest and is no longer written, in place.
    /// `keep` old files stay, with numbers behind their names, 1 for the newest. False if it is not
    /// put in place: the new file is gone, and the old one is as it was.
    bool commit(qint64 size, const QByteArray &sha256, int keep, Outcome &outcome);

    /// Removes the new file.
    void discard() { created.remove(); }

    Hindrance hindrance() const { return why; }

    /// What the system says of the hindrance; null if nothing.
    const QString &message() const { return systemSays; }

private:
    bool isSuitable();
    bool isWhole(qint64 size, const QByteArray &sha256) const;
    bool hasEqualBytes() const;
    bool keepOld(int keep);
    QString numbered(int number) const;
    bool fail(Hindrance hindrance, const QString &text = QString());

    QString destination;
    QString source;
    QString meant;
    FileState old;
    NewFile created;
    Hindrance why = Hindrance::None;
    QString systemSays;
};

} // namespace delivery
