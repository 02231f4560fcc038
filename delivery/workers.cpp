// SPDX-License-Identifier: MIT
#include "delivery/workers.h"

#include "delivery/platform.h"

#include <QFileInfo>
#include <QProcess>

#include <algorithm>
#include <utility>

namespace delivery
{

// What a worker has read it may not have given back to the system.
constexpr qint64 mostBytes = 50'000'000;

namespace
{

/// A process that is ended only where there is one. Where the system makes none, the toolkit may
/// not notice, and its number stands for all processes then.
class Process : public QProcess
{
public:
    ~Process() override { forgetIfMissing(); }
    Q_DISABLE_COPY(Process)
    Process() = default;

    void forgetIfMissing()
    {
        if (processId() <= 0)
            setProcessState(NotRunning);
    }

    void end()
    {
        if (processId() > 0)
            kill();
    }
};

} // namespace

class Workers::Worker
{
public:
    enum class State {
        Serving,
        Leaving, ///< it gets no more orders
        Gone
    };

    State state = State::Serving;
    std::optional<Order> order; ///< that it is carrying out
    Progress latest;            ///< about that
    bool isLate = false;        ///< with that
    qint64 bytes = 0;           ///< of all of its sources
    QByteArray unread;
    QTimer timer;
    Process process;

    bool isFree() const { return state == State::Serving && !order; }

    /// Has it end once nothing is left to do for it.
    void leave()
    {
        state = State::Leaving;
        process.closeWriteChannel();
    }

    /// The lines that have come whole since the last call.
    QList<QByteArray> takeLines()
    {
        const QByteArray piece = process.readAllStandardOutput();
        const auto end = piece.lastIndexOf('\n');
        if (end < 0) {
            unread += piece;
            return {};
        }
        const QByteArray whole = unread + piece.left(end);
        unread = piece.mid(end + 1);
        return whole.split('\n');
    }
};

Workers::Workers(Setup setup) : setup(std::move(setup))
{
    giving.setSingleShot(true);
    QObject::connect(&giving, &QTimer::timeout, &giving, [this] { giveOrders(); });
}

Workers::~Workers()
{
    stop();
}

void Workers::work()
{
    giving.start(0);
}

void Workers::stop()
{
    isStopped = true;
    for (const auto &worker : workers) {
        worker->process.blockSignals(true);
        worker->timer.stop();
        worker->order.reset();
        worker->process.end();
    }
    for (const auto &worker : workers)
        worker->process.waitForFinished();
}

void Workers::giveOrders()
{
    // Here none of them is in the middle of telling something.
    workers.erase(
        std::remove_if(workers.begin(), workers.end(),
                       [](const auto &worker) { return worker->state == Worker::State::Gone; }),
        workers.end());
    const auto isBusy = [](const auto &worker) { return worker->order.has_value(); };
    while (!isStopped && std::count_if(workers.cbegin(), workers.cend(), isBusy) < setup.count) {
        std::optional<Order> order = std::exchange(returned, std::nullopt);
        if (!order)
            order = next();
        if (!order || isStopped)
            return;
        give(*order);
    }
}

void Workers::give(const Order &order)
{
    const auto free = std::find_if(workers.cbegin(), workers.cend(),
                                   [](const auto &worker) { return worker->isFree(); });
    Worker &worker = free != workers.cend() ? **free : add();
    worker.order = order;
    worker.latest = {};
    worker.bytes += QFileInfo(order.request.source).size();
    if (setup.limit.count() > 0)
        worker.timer.start(setup.limit);
    if (worker.process.state() == QProcess::NotRunning) {
        worker.process.start(setup.program, setup.arguments);
        if (worker.state == Worker::State::Gone)
            return;
        if (worker.process.processId() <= 0) {
            worker.process.forgetIfMissing();
            failToStart(worker);
            return;
        }
        tieToThisProcess(worker.process);
    }
    worker.process.write(toLine(order));
}

/// A worker that is not started yet.
Workers::Worker &Workers::add()
{
    workers.push_back(std::make_unique<Worker>());
    Worker &worker = *workers.back();
    QProcess &process = worker.process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QObject::connect(&process, &QProcess::readyReadStandardOutput, &process,
                     [this, &worker] { hear(worker); });
    QObject::connect(&process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished),
                     &process, [this, &worker] {
                         hear(worker);
                         worker.state = Worker::State::Gone;
                         end(worker, worker.isLate ? Ending::Kind::TimedOut : Ending::Kind::Died);
                     });
    QObject::connect(&process, &QProcess::errorOccurred, &process,
                     [this, &worker](QProcess::ProcessError error) {
                         if (error == QProcess::FailedToStart)
                             failToStart(worker);
                     });
    worker.timer.setSingleShot(true);
    QObject::connect(&worker.timer, &QTimer::timeout, &process, [&worker] {
        worker.isLate = true;
        worker.process.end();
    });
    return worker;
}

/// With fewer workers the order may be carried out all the same.
void Workers::failToStart(Worker &worker)
{
    worker.state = Worker::State::Gone;
    const auto others = std::count_if(workers.cbegin(), workers.cend(), [&](const auto &other) {
        return other.get() != &worker && other->order.has_value();
    });
    if (others == 0) {
        end(worker, Ending::Kind::NotStarted);
        return;
    }
    worker.timer.stop();
    returned = std::exchange(worker.order, std::nullopt);
    setup.count = int(others);
}

void Workers::hear(Worker &worker)
{
    for (const QByteArray &line : worker.takeLines()) {
        // It may have been killed as it answered.
        if (!worker.order || worker.isLate)
            return;
        const Reply reply = replyFrom(line);
        if (reply.progress) {
            worker.latest = *reply.progress;
            if (progressed)
                progressed(worker.order->id, worker.latest);
        } else if (reply.answer) {
            if (worker.bytes >= mostBytes || reply.answer->survey.outOfMemory)
                worker.leave();
            end(worker, Ending::Kind::Answered, *reply.answer);
        } else {
            worker.process.end();
        }
    }
}

void Workers::end(Worker &worker, Ending::Kind kind, const survey::Conversion &answer)
{
    worker.timer.stop();
    if (!worker.order)
        return;
    const int id = worker.order->id;
    worker.order.reset();
    const bool isLoaded = worker.latest.total > 0 && worker.latest.done >= worker.latest.total;
    ended(id, {kind, answer, !isLoaded});
    work();
}

} // namespace delivery
