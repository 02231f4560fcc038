// SPDX-License-Identifier: MIT
#include "batch/verify.h"

#include "delivery/interrupts.h"
#include "delivery/run.h"
#include "words/findings.h"
#include "words/outcomes.h"

namespace batch
{

using namespace delivery;

/// Whether the file has what the source should have brought there.
static bool hasAll(const ExchangeFile &file, const survey::Counts &counts)
{
    return file.goods == counts.goods + counts.offers && file.partners == counts.partners &&
           file.documents == counts.documents && file.lines == counts.lines;
}

/// What the source would bring there. False if an interrupt came instead.
static bool survey(const Options &options, Verification &verification)
{
    RunOptions checking = options.run;
    checking.request.allowEmpty = true; // the file may be empty, too
    Run run(checking, {{options.source, {}, {}}});
    run.tell = [&](const Outcome &outcome) {
        verification.wanted = outcome.survey.counts;
        if (outcome.exitCode == Complete || outcome.exitCode == Incomplete)
            return;
        verification.exitCode = NotRead;
        verification.whyNot = outcome.survey.findings.isEmpty()
                                  ? words::sentence(outcome.reason)
                                  : words::sentence(outcome.survey.findings.constFirst());
    };
    return run.exec();
}

int verify(const Options &options, Output &output)
{
    for (const QString &path : options.files) {
        Verification verification;
        verification.path = path;
        verification.source = options.source;
        verification.file = readExchangeFile(path);
        if (!verification.file.message.isNull())
            verification.exitCode = NotRead;
        else if (!verification.file.isWhole())
            verification.exitCode = Incomplete;
        if (!options.source.isNull() && verification.file.message.isNull()) {
            if (!survey(options, verification))
                return Interrupts::exitCode();
            if (verification.whyNot.isNull() && !hasAll(verification.file, verification.wanted))
                verification.exitCode = Incomplete;
        }
        output.tell(verification);
    }
    return output.exitCode;
}

} // namespace batch
