// SPDX-License-Identifier: MIT
//
// Checks and conversions of many sources at the same time.
#pragma once

#include "delivery/outcome.h"
#include "delivery/replacement.h"
#include "delivery/workers.h"

#include <QDeadlineTimer>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace delivery
{

struct Job {
    QString source;
    QString destination; ///< null: it is only checked
    QString message;     ///< why it can't be read, where that is known already; null otherwise
};

/// What holds for all sources of a run.
struct RunOptions {
    survey::Request request;    ///< without a source
    int jobs = 0;               ///< at the same time; 0: as many as there are cores
    int timeoutSeconds = 0;     ///< for each source; 0: there is none
    int waitSeconds = 0;        ///< for a destination that another run holds
    bool strict = false;        ///< a loss keeps the old file
    std::optional<int> maxDrop; ///< keeps it where goods or documents fell by more percent
    int keep = 0;               ///< how many old files stay
};

class Run
{
public:
    Run(RunOptions given, std::vector<Job> planned);
    ~Run();
    Q_DISABLE_COPY(Run)

    /// Told of each outcome, in the order of the jobs.
    std::function<void(const Outcome &outcome)> tell;

    /// Told how much is done of all, from 0 to 1, and what is being read.
    std::function<void(double share, const QString &source)> progressed;

    /// Told when all is done.
    std::function<void()> done;

    /// Begins; all of it happens in the event loop of this thread.
    void begin();

    /// Ends it at once: whatever was not told by then did not happen.
    void stop();

    /// Begins, and comes back when all is done, or with false when an interrupt has come: whatever
    /// was not told by then did not happen. It has the event loop of the application.
    bool exec();

private:
    struct Running;

    std::optional<Order> nextOrder();
    std::optional<Order> start(int id);
    std::optional<Order> tryWaiting();
    void end(int id, const Ending &ending);
    void commit(Running &running, const survey::Conversion &conversion);
    bool isDropTooLarge(Running &running, const survey::Counts &counts) const;
    void finish(int id);
    void showProgress();

    const RunOptions options;
    std::vector<Running> jobs;
    std::size_t started = 0;  ///< so many have been looked at
    std::size_t told = 0;     ///< so many are over, and so are all before them
    std::vector<int> waiting; ///< for destinations that other runs hold
    QTimer retry;
    Workers workers;
};

} // namespace delivery
