// SPDX-License-Identifier: MIT
//
// What a survey tells, in words.
#pragma once

#include "survey/survey.h"

#include <QString>

namespace words
{

/// A text of a source as it can stand in a line that people read: without line breaks and whatever
/// else a terminal obeys, and not long.
QString printable(const QString &text);

QString levelWord(survey::Level level);

/// What findings of this kind have in common, in a few words.
QString kindName(survey::Kind kind);

QString sentence(const survey::Finding &finding);

/// "5000 goods, 20 offers", or "nothing".
QString countsInWords(const survey::Counts &counts);

/// "1 loss, 2 doubts"; empty if nothing was found.
QString levelsInWords(const survey::Survey &survey);

} // namespace words
