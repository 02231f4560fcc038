// SPDX-License-Identifier: MIT
//
// The worker processes of a batch.
#pragma once

#include "delivery/protocol.h"

#include <QStringList>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace delivery
{

/// How an order ended.
struct Ending {
    enum class Kind {
        Answered,
        TimedOut,
        Died,      ///< the worker did, or it made no sense
        NotStarted ///< there is no worker to be had
    };

    Kind kind = Kind::Answered;
    survey::Conversion answer; ///< of the worker, if it gave one
    bool wasLoading = false;   ///< otherwise: all of the source had not been read yet
};

/// Has processes carry out orders, several at a time. They are started as they are needed, and each
/// takes one order after the other; one that has died, has run out of time or memory, or has read
/// 50 MB is replaced. It all happens in the event loop of one thread, which outlives the workers:
/// they end with it.
class Workers
{
public:
    struct Setup {
        QString program;
        QStringList arguments;             ///< that make it a worker
        int count = 1;                     ///< at the same time
        std::chrono::milliseconds limit{}; ///< for each order; 0: there is none
    };

    explicit Workers(Setup setup);
    ~Workers();
    Q_DISABLE_COPY(Workers)

    /// Asked for the next order whenever a worker is free; where it has none, the workers rest
    /// until work() is called again.
    std::function<std::optional<Order>()> next;

    /// Told of what is being loaded.
    std::function<void(int id, const Progress &progress)> progressed;

    /// Told of each order when it has ended: the process no longer writes then.
    std::function<void(int id, const Ending &ending)> ended;

    /// Has free workers ask for orders, as soon as the event loop gets to it.
    void work();

    /// Ends all workers at once. Nothing is told of their orders any more.
    void stop();

private:
    class Worker;

    void giveOrders();
    void give(const Order &order);
    Worker &add();
    void failToStart(Worker &worker);
    void hear(Worker &worker);
    void end(Worker &worker, Ending::Kind kind, const survey::Conversion &answer = {});

    Setup setup;
    std::vector<std::unique_ptr<Worker>> workers;
    std::optional<Order> returned; ///< by a worker that could not be started
    QTimer giving;                 ///< has the event loop call giveOrders()
    bool isStopped = false;
};

} // namespace delivery
