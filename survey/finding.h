// SPDX-License-Identifier: MIT
//
// What people should know of a source before they rely on what an export makes of it.
#pragma once

#include "reader/loading.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace survey
{

enum class Level {
    Error, ///< the source can't be read, or gives nothing
    Loss,  ///< something of it is left out
    Doubt, ///< it is exported, but may not be what was meant
};

enum class Kind {
    NotReadable,
    NotWellFormed,
    WrongEncoding,
    Limit,
    NothingToExport,
    Empty,
    Changed,
    NoCode,
    NoPartner,
    NoNumber,
    NoLines,
    PrefixedName,
    NotReached,
    OtherRole,
    UnknownGroup,
    GroupLoop,
    NoGroup,
    NoName,
    NoPrice,
    PriceNotANumber,
    PricesDropped,
    DuplicateCode,
    EmptyCode,
    LineBreak,
    MarkerInText,
    BrokenCharacters,
    SoldOut,
};

inline auto qHash(Kind kind, decltype(::qHash(0)) seed = 0)
{
    return ::qHash(static_cast<int>(kind), seed);
}

struct KindInfo {
    Kind kind;
    const char *name; ///< as users write it
    Level level;      ///< unless a finding has another one
};

/// All kinds, in their order. What the details of each are stands at the table, in finding.cpp.
const QVector<KindInfo> &kinds();

const KindInfo &infoOf(Kind kind);

/// The kind that users write so, if there is one.
std::optional<Kind> kindNamed(const QString &name);

struct Finding {
    Kind kind;
    Level level;
    SourcePosition position; ///< 0:0 where there is none to tell
    bool isExact;            ///< false: it is where the start tag ends, not where it begins
    QString code;            ///< of the good, or the number of the order; empty if there is none
    QStringList details;     ///< what a sentence about it names
};

} // namespace survey
