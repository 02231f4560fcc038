// SPDX-License-Identifier: MIT
#include "batch/options.h"
#include "batch/output.h"
#include "batch/platform.h"
#include "batch/sources.h"
#include "batch/verify.h"
#include "delivery/interrupts.h"
#include "delivery/platform.h"
#include "delivery/run.h"
#include "delivery/worker.h"
#include "job/idledispatcher.h"
#include "words/language.h"

#include <QCoreApplication>
#include <QSet>

#include <cstring>

namespace
{

using namespace batch;
using namespace delivery;
using words::Words;

int beWorker(int argc, char **argv)
{
    QCoreApplication::setEventDispatcher(new IdleDispatcher); // which the application owns
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
    const QCoreApplication application(argc, argv);
    prepareApplication();
    return work({survey::check, survey::convert});
}

int refuse(const QString &text)
{
    printRefusal(text);
    return BadUsage;
}

/// Each source, and where its exchange file goes. Where two would go to the same, `refusal` says
/// so.
std::vector<Job> planJobs(const Options &options, QString &refusal)
{
    const bool isConversion = options.command == Command::Convert;
    std::vector<Job> jobs;
    QSet<QString> destinations;
    const QVector<Source> sources = findSources(options.files);
    if (!options.destination.isNull() &&
        (sources.size() > 1 || sources.constFirst().path != options.files.constFirst())) {
        refusal = Words::tr("a folder of sources needs --into and a folder");
        return jobs;
    }
    for (const Source &source : sources) {
        QString destination;
        if (isConversion)
            destination = options.into.isNull() ? options.destination
                                                : destinationIn(options.into, source.path);
        // On many systems names that differ in case alone are the same.
        const QString folded = destination.toCaseFolded();
        if (isConversion && destinations.contains(folded)) {
            refusal = Words::tr("two sources have the destination %1").arg(destination);
            return jobs;
        }
        destinations.insert(folded);
        jobs.push_back({source.path, destination, source.message});
    }
    return jobs;
}

/// Whether the log is a file that the run reads or replaces.
bool isLogAmong(const QString &log, const std::vector<Job> &jobs)
{
    const FileState state = stateOf(log);
    return std::any_of(jobs.cbegin(), jobs.cend(), [&](const Job &job) {
        return state.isSameAs(stateOf(job.source)) || state.isSameAs(stateOf(job.destination)) ||
               log == job.destination;
    });
}

int carryOut(const Options &options)
{
    QString refusal;
    std::vector<Job> jobs;
    if (options.command == Command::Verify) {
        for (const QString &file : options.files)
            jobs.push_back({file, {}, {}});
        if (!options.source.isNull())
            jobs.push_back({options.source, {}, {}});
    } else {
        jobs = planJobs(options, refusal);
    }
    if (!refusal.isNull())
        return refuse(refusal);
    if (!options.log.isNull() && isLogAmong(options.log, jobs))
        return refuse(Words::tr("the log %1 is one of the other files").arg(options.log));
    Output output(options);
    if (!options.log.isNull() && !output.openLog(options.log))
        return refuse(Words::tr("the log %1 can't be written").arg(options.log));

    if (options.command == Command::Verify)
        return verify(options, output);
    Run run(options.run, std::move(jobs));
    run.tell = [&](const Outcome &outcome) { output.tell(outcome); };
    run.progressed = [&](double share, const QString &source) {
        output.showProgress(share, source);
    };
    return run.exec() ? output.exitCode : Interrupts::exitCode();
}

} // namespace

int main(int argc, char *argv[])
{
    preparePlatform();
    // It says itself what there is to say.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    if (argc > 1 && std::strcmp(argv[1], workerArgument) == 0)
        return beWorker(argc, argv);

    const QCoreApplication application(argc, argv);
    prepareApplication();
    const words::Speaking speaking(words::languageOfUser());
    QString notText;
    const QStringList given = arguments(argc, argv, notText);
    if (!notText.isNull())
        return refuse(Words::tr("the argument \"%1\" is no UTF-8").arg(notText));
    QString refusal;
    const std::optional<Options> options = parseArguments(given, refusal);
    if (!options)
        return refuse(refusal);
    if (options->isForHelp)
        return write(stdout, help(options->command)) ? Complete : BadUsage;
    if (options->isForVersion)
        return write(stdout, QStringLiteral("xml2ryk-batch " XML2RYK_VERSION "\n")) ? Complete
                                                                                    : BadUsage;
    return carryOut(*options);
}
