// SPDX-License-Identifier: MIT
#include "window/background.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace window
{

namespace
{

/// That a piece of work is done.
class DoneEvent : public QEvent
{
public:
    explicit DoneEvent(std::function<void()> done) : QEvent(QEvent::User), done(std::move(done)) {}

    const std::function<void()> done;
};

} // namespace

Background::~Background()
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        isEnding = true;
    }
    condition.notify_one();
    if (thread.joinable())
        thread.join();
}

void Background::run(std::function<void()> work, std::function<void()> done)
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        pieces.push_back({std::move(work), std::move(done)});
    }
    if (!thread.joinable())
        thread = std::thread([this] { workOff(); });
    condition.notify_one();
}

void Background::workOff()
{
    while (true) {
        Piece piece;
        {
            std::unique_lock<std::mutex> lock(mutex);
            condition.wait(lock, [this] { return isEnding || !pieces.empty(); });
            if (isEnding)
                return;
            piece = std::move(pieces.front());
            pieces.pop_front();
        }
        piece.work();
        piece.work = {}; // what it holds is not for the other thread
        if (piece.done)
            QCoreApplication::postEvent(this, new DoneEvent(std::move(piece.done)));
    }
}

void Background::customEvent(QEvent *event)
{
    if (const auto *const done = dynamic_cast<DoneEvent *>(event))
        done->done();
}

} // namespace window
