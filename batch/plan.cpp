// SPDX-License-Identifier: MIT
#include "batch/plan.h"

#include "batch/sources.h"
#include "delivery/platform.h"
#include "words/language.h"

#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <utility>

namespace batch
{

using delivery::FileState;
using delivery::Job;
using delivery::stateOf;
using words::Words;

namespace
{

/// What tells a file from others, whatever path leads to it; null if it is not there.
QString fileKey(const QString &path)
{
    const FileState state = stateOf(path);
    return state.kind == FileState::Kind::Nothing
               ? QString()
               : QStringLiteral("%1:%2").arg(state.volume).arg(state.index);
}

/// The same for a file that need not be there. On many systems names that differ in case alone are
/// the same.
QString placeKey(const QString &path)
{
    const QString meant = delivery::withoutLinks(path);
    const QFileInfo file(meant.isNull() ? path : meant);
    return fileKey(file.path()) + QLatin1Char('/') + file.fileName().toCaseFolded();
}

/// The files of a run, as far as they were planned.
class Plan
{
public:
    explicit Plan(const Options &options) : options(options) {}

    void add(const Source &source)
    {
        Job job = {source.path, {}, source.message};
        if (options.command == Command::Convert)
            job.destination = options.into.isNull() ? options.destination
                                                    : destinationIn(options.into, source.path);
        if (source.message.isNull())
            sources.insert(fileKey(source.path), int(jobs.size()));
        jobs.push_back(job);
    }

    /// Why it can't be done so; null if nothing is in the way.
    QString findClash()
    {
        for (std::size_t i = 0; i < jobs.size(); ++i) {
            const QString &destination = jobs[i].destination;
            // What is not read is not written either.
            if (destination.isNull() || !jobs[i].message.isNull())
                continue;
            const QString file = fileKey(destination);
            if (!file.isNull() && sources.value(file, int(i)) != int(i))
                return Words::tr("the destination %1 is another source").arg(destination);
            const QString place = placeKey(destination);
            if (places.contains(place) || (!file.isNull() && files.contains(file)))
                return Words::tr("two sources have the destination %1").arg(destination);
            places.insert(place);
            files.insert(file);
        }
        const QString log = fileKey(options.log);
        const bool isLogTaken = !options.log.isNull() &&
                                (places.contains(placeKey(options.log)) ||
                                 (!log.isNull() && (sources.contains(log) || files.contains(log))));
        return isLogTaken ? Words::tr("the log %1 is one of the other files").arg(options.log)
                          : QString();
    }

    std::vector<Job> jobs;

private:
    const Options &options;
    QHash<QString, int> sources; ///< by what they are: the jobs
    QSet<QString> places;        ///< of destinations
    QSet<QString> files;         ///< the same, of those that are there
};

} // namespace

std::vector<Job> planJobs(const Options &options, QString &refusal)
{
    QVector<Source> sources;
    if (options.command == Command::Verify) {
        for (const QString &file : options.files)
            sources.append({file, {}});
        if (!options.source.isNull())
            sources.append({options.source, {}});
    } else {
        sources = findSources(options.files);
    }
    if (!options.destination.isNull() &&
        (sources.size() > 1 || sources.constFirst().path != options.files.constFirst())) {
        refusal = Words::tr("a folder of sources needs --into and a folder");
        return {};
    }
    Plan plan(options);
    for (const Source &source : std::as_const(sources))
        plan.add(source);
    refusal = plan.findClash();
    return plan.jobs;
}

} // namespace batch
