// SPDX-License-Identifier: MIT
#include "batch/verify.h"

#include "delivery/interrupts.h"
#include "delivery/run.h"

namespace batch
{

using namespace delivery;

/// What the source would bring there; nothing if an interrupt came instead.
static std::optional<Outcome> survey(const Options &options)
{
    RunOptions checking = options.run;
    checking.request.allowEmpty = true; // the file may be empty, too
    std::optional<Outcome> wanted;
    Run run(checking, {{options.source, {}, {}}});
    run.tell = [&](const Outcome &outcome) { wanted = outcome; };
    return run.exec() ? wanted : std::nullopt;
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
            verification.wanted = survey(options);
            if (!verification.wanted)
                return Interrupts::exitCode();
            if (!isRead(*verification.wanted))
                verification.exitCode = NotRead;
            else if (!hasAll(verification))
                verification.exitCode = Incomplete;
        }
        output.tell(verification);
    }
    return output.exitCode;
}

} // namespace batch
