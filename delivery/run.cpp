// SPDX-License-Identifier: MIT
#include "delivery/run.h"

#include "delivery/exchangefile.h"
#include "delivery/interrupts.h"
#include "delivery/worker.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QThread>

#include <algorithm>
#include <utility>

namespace delivery
{

using survey::Level;

struct Run::Running {
    Job job;
    Outcome outcome;
    std::unique_ptr<Replacement> replacement = {};
    QDeadlineTimer deadline = {}; ///< until which its destination is waited for
    double share = 0;             ///< that has been read
    bool isOver = false;

    void fail(int exitCode, const Reason &reason)
    {
        outcome.exitCode = exitCode;
        outcome.reason = reason;
    }

    void failByHindrance()
    {
        fail(NotWritten,
             {Reason::Kind::Hindered, replacement->hindrance(), replacement->message()});
    }
};

static Workers::Setup setupFor(const RunOptions &options)
{
    return {QCoreApplication::applicationFilePath(),
            {QLatin1String(workerArgument)},
            options.jobs > 0 ? options.jobs : QThread::idealThreadCount(),
            std::chrono::seconds(options.timeoutSeconds)};
}

Run::Run(RunOptions given, std::vector<Job> planned)
    : options(std::move(given)), workers(setupFor(options))
{
    for (Job &job : planned) {
        Outcome outcome;
        outcome.source = job.source;
        outcome.destination = job.destination;
        jobs.push_back({std::move(job), std::move(outcome)});
    }
}

Run::~Run() = default;

bool Run::exec()
{
    const Interrupts interrupts([] { QCoreApplication::quit(); });
    done = [] { QCoreApplication::quit(); };
    begin();
    QCoreApplication::exec();
    stop();
    return Interrupts::exitCode() == 0;
}

void Run::begin()
{
    workers.next = [this] { return nextOrder(); };
    workers.progressed = [this](int id, const Progress &progress) {
        if (progress.total > 0)
            jobs[std::size_t(id)].share = double(progress.done) / double(progress.total);
        showProgress();
    };
    workers.ended = [this](int id, const Ending &ending) { end(id, ending); };
    constexpr int pause = 100;
    retry.setInterval(pause);
    QObject::connect(&retry, &QTimer::timeout, &retry, [this] { workers.work(); });
    workers.work();
}

void Run::stop()
{
    workers.stop();
    jobs.clear(); // and with them the new files
}

/// The next source that a worker can take.
std::optional<Order> Run::nextOrder()
{
    std::optional<Order> order = tryWaiting();
    while (!order && started < jobs.size()) {
        order = start(int(started));
        ++started;
    }
    if (order) // Its tree is kept if the worker ends behind it.
        order->request.keepsTree = started == jobs.size() && waiting.empty();
    if (waiting.empty())
        retry.stop();
    else if (!retry.isActive())
        retry.start();
    return order;
}

std::optional<Order> Run::tryWaiting()
{
    const std::vector<int> candidates = std::exchange(waiting, {});
    std::optional<Order> order;
    for (const int id : candidates) {
        if (order)
            waiting.push_back(id);
        else
            order = start(id);
    }
    return order;
}

/// Has a job begin. Nothing: it has to wait, or is over already.
std::optional<Order> Run::start(int id)
{
    Running &running = jobs[std::size_t(id)];
    const QString &source = running.job.source;
    if (!running.job.message.isNull()) {
        using survey::Kind;
        running.outcome.survey.found.insert(Kind::NotReadable, 1);
        running.outcome.survey.findings = {
            {Kind::NotReadable, Level::Error, {}, true, {}, {running.job.message}}};
        running.outcome.exitCode = NotRead;
        finish(id);
        return std::nullopt;
    }
    if (!running.job.destination.isNull()) {
        if (!running.replacement) {
            running.replacement = std::make_unique<Replacement>(running.job.destination);
            running.deadline = QDeadlineTimer(std::chrono::seconds(options.waitSeconds));
        }
        if (!running.replacement->prepare(source)) {
            const bool isHeld = running.replacement->hindrance() == Replacement::Hindrance::Held;
            if (isHeld && !running.deadline.hasExpired()) {
                waiting.push_back(id);
                return std::nullopt;
            }
            running.failByHindrance();
            finish(id);
            return std::nullopt;
        }
    }
    Order order;
    order.id = id;
    order.request = options.request;
    order.request.source = source;
    if (running.replacement)
        order.newFile = running.replacement->newFile();
    return order;
}

static int exitCodeOf(const survey::Survey &survey)
{
    const auto holds = [&](Level level) {
        return std::any_of(
            survey.findings.cbegin(), survey.findings.cend(),
            [level](const survey::Finding &finding) { return finding.level == level; });
    };
    return holds(Level::Error) ? NotRead : holds(Level::Loss) ? Incomplete : Complete;
}

void Run::end(int id, const Ending &ending)
{
    Running &running = jobs[std::size_t(id)];
    Outcome &outcome = running.outcome;
    const bool isConversion = running.replacement != nullptr;
    const survey::Survey &survey = ending.answer.survey;
    const int unlessWritten = isConversion ? NotWritten : NotRead;
    if (ending.kind == Ending::Kind::TimedOut) {
        running.fail(ending.wasLoading ? NotRead : NotWritten, {Reason::Kind::TimedOut});
    } else if (ending.kind == Ending::Kind::Died) {
        running.fail(unlessWritten, {Reason::Kind::Died});
    } else if (ending.kind == Ending::Kind::NotStarted) {
        running.fail(unlessWritten, {Reason::Kind::NotStarted});
    } else if (survey.outOfMemory && !survey.found.contains(survey::Kind::Limit)) {
        running.fail(NotWritten, {Reason::Kind::OutOfMemory});
    } else {
        outcome.survey = survey;
        outcome.exitCode = exitCodeOf(survey);
        if (isConversion && outcome.exitCode != NotRead)
            commit(running, ending.answer);
    }
    finish(id);
}

void Run::commit(Running &running, const survey::Conversion &conversion)
{
    Outcome &outcome = running.outcome;
    if (!conversion.isWritten) {
        running.fail(NotWritten, {Reason::Kind::NotWritten});
    } else if (outcome.exitCode == Incomplete && options.strict) {
        running.fail(NotWritten, {Reason::Kind::Loss});
    } else if (!isDropTooLarge(running, outcome.survey.counts)) {
        Replacement::Outcome replaced = {};
        if (running.replacement->commit(conversion.size, conversion.digest, options.keep, replaced))
            outcome.file = replaced;
        else
            running.failByHindrance();
    }
}

/// Whether there is so much less in the new file than in the old one that this stays.
bool Run::isDropTooLarge(Running &running, const survey::Counts &counts) const
{
    if (!options.maxDrop || !QFileInfo::exists(running.replacement->file()))
        return false;
    const ExchangeFile old = readExchangeFile(running.replacement->file());
    const auto falls = [&](Reason::Kind kind, int before, int now) {
        constexpr qint64 whole = 100;
        if (qint64(before - now) * whole <= qint64(before) * *options.maxDrop)
            return false;
        running.fail(NotWritten, {kind, {}, {}, before, now});
        return true;
    };
    return falls(Reason::Kind::FewerGoods, old.counts.goods, counts.goods + counts.offers) ||
           falls(Reason::Kind::FewerDocuments, old.counts.documents, counts.documents);
}

/// The job is over: its outcome is told as soon as those before it are.
void Run::finish(int id)
{
    Running &over = jobs[std::size_t(id)];
    const bool isOldFileThere =
        !over.job.destination.isNull() && QFileInfo::exists(over.job.destination);
    if (!over.outcome.file && isOldFileThere)
        over.outcome.file = Replacement::Outcome::Kept;
    over.replacement.reset();
    over.isOver = true;
    for (; told < jobs.size() && jobs[told].isOver; ++told) {
        tell(jobs[told].outcome);
        jobs[told] = {};
        jobs[told].isOver = true;
    }
    showProgress();
    if (told == jobs.size() && done)
        done();
}

void Run::showProgress()
{
    if (!progressed || told == jobs.size())
        return;
    auto over = double(told);
    for (std::size_t i = told; i < started; ++i)
        over += jobs[i].isOver ? 1 : jobs[i].share;
    progressed(over / double(jobs.size()), jobs[told].job.source);
}

} // namespace delivery
