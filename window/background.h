// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace window
{

/// Has pieces of work done one after the other, in a thread of its own. That has no events: a
/// reader looks for them as it loads, which would begin the next piece in the middle of one.
class Background : public QObject
{
public:
    Background() = default;

    /// Waits for the piece that is being done; the others are not done any more.
    ~Background() override;

    Q_DISABLE_COPY(Background)

    /// `done` is called in the event loop of this object's thread, as long as this is there.
    void run(std::function<void()> work, std::function<void()> done = {});

protected:
    void customEvent(QEvent *event) override;

private:
    struct Piece {
        std::function<void()> work;
        std::function<void()> done;
    };

    void workOff();

    std::mutex mutex;
    std::condition_variable condition;
    std::deque<Piece> pieces;
    bool isEnding = false;
    std::thread thread;
};

} // namespace window
