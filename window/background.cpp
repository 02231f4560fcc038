// SPDX-License-Identifier: MIT
#include "window/background.h"

#include <QCoreApplication>
#include <QEvent>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>

namespace window
{

namespace
{

struct Piece {
    std::function<void()> work;
    std::function<void()> done;
};

/// That a piece of work is done.
class DoneEvent : public QEvent
{
public:
    explicit DoneEvent(std::function<void()> done) : QEvent(QEvent::User), done(std::move(done)) {}

    const std::function<void()> done;
};

} // namespace

/// What the thread works with; it may outlive the object.
struct Background::Shared {
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Piece> pieces;
    Background *object = nullptr; ///< null when it ends
    bool isWorking = false;
    bool hasThread = false;
};

Background::Background(std::chrono::seconds patience)
    : shared(std::make_shared<Shared>()), patience(patience)
{
    shared->object = this;
}

Background::~Background()
{
    std::unique_lock<std::mutex> lock(shared->mutex);
    shared->object = nullptr;
    shared->pieces.clear();
    shared->changed.notify_all();
    shared->changed.wait_for(lock, patience, [this] { return !shared->hasThread; });
}

void Background::run(std::function<void()> work, std::function<void()> done)
{
    const std::lock_guard<std::mutex> lock(shared->mutex);
    shared->pieces.push_back({std::move(work), std::move(done)});
    shared->changed.notify_all();
    if (shared->hasThread)
        return;
    std::thread([shared = shared] { workOff(*shared); }).detach();
    shared->hasThread = true;
}

bool Background::isBusy() const
{
    const std::lock_guard<std::mutex> lock(shared->mutex);
    return shared->isWorking || !shared->pieces.empty();
}

void Background::workOff(Shared &shared)
{
    std::unique_lock<std::mutex> lock(shared.mutex);
    while (true) {
        shared.changed.wait(lock,
                            [&] { return shared.object == nullptr || !shared.pieces.empty(); });
        if (shared.object == nullptr)
            break;
        Piece piece = std::move(shared.pieces.front());
        shared.pieces.pop_front();
        shared.isWorking = true;
        lock.unlock();
        piece.work();
        piece.work = {}; // what it holds is not for the other thread
        lock.lock();
        shared.isWorking = false;
        if (piece.done && shared.object != nullptr)
            QCoreApplication::postEvent(shared.object, new DoneEvent(std::move(piece.done)));
    }
    shared.hasThread = false;
    shared.changed.notify_all();
}

void Background::customEvent(QEvent *event)
{
    if (const auto *const done = dynamic_cast<DoneEvent *>(event))
        done->done();
}

} // namespace window
