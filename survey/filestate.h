// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QFileInfo>

namespace survey
{

/// What tells a file that somebody else has written to, from what it was.
struct FileState {
    explicit FileState(const QFileInfo &file = QFileInfo())
        : isFile(file.isFile()), size(isFile ? file.size() : 0), time(file.lastModified())
    {
    }

    /// It is a file, and not what it was. A pipe has no state, and changes while it is read.
    bool differs(const FileState &before) const
    {
        return isFile && (size != before.size || time != before.time);
    }

    bool isFile;
    qint64 size;
    QDateTime time;
};

} // namespace survey
