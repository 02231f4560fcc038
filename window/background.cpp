// SPDX-License-Identifier: MIT
#include "window/background.h"

#include <utility>

namespace window
{

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
            QMetaObject::invokeMethod(this, std::move(piece.done), Qt::QueuedConnection);
    }
}

} // namespace window
