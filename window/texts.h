// SPDX-License-Identifier: MIT
//
// What the window says that stands in more than one cell.
#pragma once

#include "delivery/outcome.h"
#include "export/observer.h"
#include "survey/survey.h"

#include <QStringList>

namespace window
{

/// Why a document or a line is not exported, or only in part.
QString sentence(exporter::Loss loss);

/// "line 3, column 5"; empty where there is none to tell.
QString placeInWords(const SourcePosition &position);

/// A finding with its place.
QString inWords(const survey::Finding &finding);

/// The errors of a source, with their places; what ran out where there are none.
QStringList errorsInWords(const survey::Survey &survey);

/// Why there is no use in reading a file, with its path; empty where there may be.
QString whyNotReadable(const QString &path);

/// What came of a conversion, in lines.
QStringList outcomeInWords(const delivery::Outcome &outcome);

} // namespace window
