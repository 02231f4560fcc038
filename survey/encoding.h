// SPDX-License-Identifier: MIT
//
// Whether the bytes of a source are in the encoding that it declares.
#pragma once

#include "reader/loading.h"

#include <QFile>
#include <QString>

#include <optional>

namespace survey
{

struct WrongEncoding {
    QString declared; ///< empty if none is
    QString fitting;  ///< empty if nobody can tell
    SourcePosition position;
};

/// Looks at the bytes of `file`, open for reading, from its beginning. UTF-8, where it is declared
/// or nothing known is, is only looked at if `looksAtUtf8`; others only where UTF-8 would show.
std::optional<WrongEncoding> findWrongEncoding(QFile &file, bool looksAtUtf8);

/// Whether it begins as an HTML page does.
bool beginsAsHtml(QFile &file);

} // namespace survey
