// SPDX-License-Identifier: MIT
#include "window/background.h"

#include <utility>

namespace window
{

Background::Background()
{
    // What a source may be nested takes as much as the first thread of a process has.
    constexpr uint stack = 8U << 20U;
    thread.setStackSize(stack);
    place.moveToThread(&thread);
    thread.start();
}

Background::~Background()
{
    thread.requestInterruption();
    thread.quit();
    thread.wait();
}

void Background::run(std::function<void()> work, std::function<void()> done)
{
    QMetaObject::invokeMethod(
        &place,
        [this, work = std::move(work), done = std::move(done)] {
            if (thread.isInterruptionRequested())
                return;
            work();
            if (done)
                QMetaObject::invokeMethod(this, done, Qt::QueuedConnection);
        },
        Qt::QueuedConnection);
}

} // namespace window
