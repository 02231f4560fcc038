// SPDX-License-Identifier: MIT
#include "window/sourcewatch.h"

#include <QFileInfo>

namespace window
{

SourceWatch::SourceWatch()
{
    const auto soon = [this] {
        if (!timer.isActive()) // or else it would never end where something writes often
            timer.start();
    };
    constexpr int settled = 500; // until whoever writes the file is likely to be done
    timer.setInterval(settled);
    timer.setSingleShot(true);
    connect(&watcher, &QFileSystemWatcher::fileChanged, this, soon);
    connect(&watcher, &QFileSystemWatcher::directoryChanged, this, soon);
    connect(&timer, &QTimer::timeout, this, [this] { look(); });
}

void SourceWatch::watch(const QString &newPath, const survey::FileState &readState)
{
    path = newPath;
    known = readState;
    watchFile();
    timer.start(); // it may have changed while it was read
}

void SourceWatch::watchFile()
{
    const QStringList watched = watcher.files() + watcher.directories();
    if (!watched.isEmpty())
        watcher.removePaths(watched);
    // A file that is replaced by another one is no longer watched: its folder is.
    watcher.addPaths({path, QFileInfo(path).path()});
}

void SourceWatch::look()
{
    if (waits && waits()) {
        timer.start();
        return;
    }
    const survey::FileState state{QFileInfo(path)};
    if (state.isFile == known.isFile && !state.differs(known))
        return;
    known = state;
    watchFile();
    if (changed)
        changed(path, state.isFile);
}

} // namespace window
