// SPDX-License-Identifier: MIT
//
// Outcomes as people and programs read them.
#pragma once

#include "delivery/exchangefile.h"
#include "delivery/outcome.h"

#include <QJsonObject>
#include <QStringList>

#include <optional>

namespace batch
{

using delivery::Outcome;

/// What came of an exchange file.
struct Verification {
    QString path;
    int exitCode = delivery::Complete;
    delivery::ExchangeFile file;
    QString source;                ///< null: it is compared with none
    std::optional<Outcome> wanted; ///< what came of that
};

/// Whether a source was read, so that its counts say something.
bool isRead(const Outcome &outcome);

/// Whether the file has all that its source should have brought there, which was read.
bool hasAll(const Verification &verification);

// For programs: the texts in it are in English.
QJsonObject toJson(const Outcome &outcome);
QJsonObject toJson(const Verification &verification);

// For people, in the language that is spoken: a summary, and where there is more to tell, further
// lines behind it.
QStringList toLines(const Outcome &outcome);
QStringList toLines(const Verification &verification);

// What it is about.
inline QString subjectOf(const Outcome &outcome)
{
    return outcome.source;
}
inline QString subjectOf(const Verification &verification)
{
    return verification.path;
}

} // namespace batch
