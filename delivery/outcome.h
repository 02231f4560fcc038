// SPDX-License-Identifier: MIT
//
// What came of a source.
#pragma once

#include "delivery/replacement.h"
#include "survey/survey.h"

#include <QString>

#include <optional>

namespace delivery
{

/// What a run ends with, and what each source of it would have alone.
enum ExitCode {
    Complete = 0,
    BadUsage = 1,
    NotRead = 2,
    Incomplete = 3,
    NotWritten = 4,
};

/// Why a source was not looked at, or its exchange file is not put in place.
struct Reason {
    enum class Kind {
        None,
        TimedOut,   ///< it took longer than it may
        Died,       ///< the worker did
        NotStarted, ///< there is no worker to be had
        OutOfMemory,
        Hindered,       ///< by something at the destination
        NotWritten,     ///< the new file is not whole
        Loss,           ///< something is left out, and nothing may be
        FewerGoods,     ///< than in the old file
        FewerDocuments, ///< the same
    };

    Kind kind = Kind::None;
    Replacement::Hindrance hindrance = Replacement::Hindrance::None;
    QString message = {}; ///< what the system says of the hindrance; null if nothing
    int before = 0;       ///< in the old file
    int now = 0;          ///< in the new one
};

struct Outcome {
    QString source;
    QString destination; ///< null: the source was only checked
    int exitCode = Complete;
    survey::Survey survey; ///< empty where there is none
    Reason reason;         ///< where no finding tells it

    /// What came of the file at the destination; nothing if there is none.
    std::optional<Replacement::Outcome> file;
};

} // namespace delivery
