// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QThread>

#include <functional>

namespace window
{

/// Has pieces of work done one after the other, in a thread of its own.
class Background : public QObject
{
public:
    Background();

    /// Waits for the piece that is being done; the others are not done any more.
    ~Background() override;

    Q_DISABLE_COPY(Background)

    /// `done` is called in the thread of this object, as long as that is there.
    void run(std::function<void()> work, std::function<void()> done = {});

private:
    QThread thread;
    QObject place; ///< in the thread
};

} // namespace window
