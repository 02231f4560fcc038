// SPDX-License-Identifier: MIT
#pragma once

#include "survey/filestate.h"

#include <QFileSystemWatcher>
#include <QTimer>

#include <functional>

namespace window
{

/// Looks whether the file of a source changes on the disk, or goes.
class SourceWatch : public QObject
{
public:
    SourceWatch();

    /// Told once of each change.
    std::function<void(const QString &path, bool isThere)> changed;

    /// While it says so, there is no look at the file.
    std::function<bool()> waits;

    /// Watches this file in place of an earlier one; `readState` is what was read of it.
    void watch(const QString &path, const survey::FileState &readState);

private:
    void watchFile();
    void look();

    QString path;
    survey::FileState known; ///< as it was read, or as the last change left it
    QFileSystemWatcher watcher;
    QTimer timer;
};

} // namespace window
