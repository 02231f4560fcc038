// SPDX-License-Identifier: MIT
#include "batch/options.h"
#include "batch/output.h"
#include "batch/plan.h"
#include "batch/platform.h"
#include "batch/verify.h"
#include "delivery/interrupts.h"
#include "delivery/program.h"
#include "delivery/run.h"
#include "words/language.h"

#include <QCoreApplication>

namespace
{

using namespace batch;
using namespace delivery;
using words::Words;

int refuse(const QString &text)
{
    printRefusal(text);
    return BadUsage;
}

int carryOut(const Options &options)
{
    QString refusal;
    std::vector<Job> jobs = planJobs(options, refusal);
    if (!refusal.isNull())
        return refuse(refusal);
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
    prepareProgram();
    prepareStreams();
    // It says itself what there is to say.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    if (isWorker(argc, argv))
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
