// SPDX-License-Identifier: MIT
#include "window/background.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QMutex>
#include <QWaitCondition>

#include <deque>
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
    QMutex mutex;
    QWaitCondition changed;
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
    const QMutexLocker lock(&shared->mutex);
    shared->object = nullptr;
    shared->pieces.clear();
    shared->changed.wakeAll();
    const QDeadlineTimer deadline(patience);
    while (shared->hasThread && shared->changed.wait(&shared->mutex, deadline))
        continue;
}

void Background::run(std::function<void()> work, std::function<void()> done)
{
    const QMutexLocker lock(&shared->mutex);
    shared->pieces.push_back({std::move(work), std::move(done)});
    shared->changed.wakeAll();
    if (shared->hasThread)
        return;
    std::thread([shared = shared] { workOff(*shared); }).detach();
    shared->hasThread = true;
}

bool Background::isBusy() const
{
    const QMutexLocker lock(&shared->mutex);
    return shared->isWorking || !shared->pieces.empty();
}

void Background::workOff(Shared &shared)
{
    QMutexLocker lock(&shared.mutex);
    while (shared.object != nullptr) {
        if (shared.pieces.empty()) {
            shared.changed.wait(&shared.mutex);
            continue;
        }
        Piece piece = std::move(shared.pieces.front());
        shared.pieces.pop_front();
        shared.isWorking = true;
        lock.unlock();
        piece.work();
        piece.work = {}; // what it holds is not for the other thread
        lock.relock();
        shared.isWorking = false;
        if (piece.done && shared.object != nullptr)
            QCoreApplication::postEvent(shared.object, new DoneEvent(std::move(piece.done)));
    }
    shared.hasThread = false;
    shared.changed.wakeAll();
}

void Background::customEvent(QEvent *event)
{
    if (const auto *const done = dynamic_cast<DoneEvent *>(event))
        done->done();
}

} // namespace window
