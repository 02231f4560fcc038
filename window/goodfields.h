// SPDX-License-Identifier: MIT
//
// What there is to tell of a good or an offer. A new field is a line of GoodField and one of the
// table in goodfields.cpp.
#pragma once

#include <QLatin1String>
#include <QVector>

#include <array>

namespace window
{

enum class GoodField {
    Code,
    Article,
    Name,
    Group, ///< its path
    Unit,
    Barcode,
    Prices,
    Maker,
    Country,
    Weight,
    Picture, ///< its address
    Note,    ///< that it is sold out, in words: with extended offers it has no goods row then
};

constexpr int goodFieldCount = int(GoodField::Note) + 1; // the last one

struct GoodFieldInfo {
    GoodField field;
    const char *heading;   ///< in the words of the code
    int width;             ///< of its column at first, in characters
    bool isNumber = false; ///< its column is sorted by number, and stands at the right
    QVector<QLatin1String> rowCodes = {}; ///< of the values of a goods row that it shows
};

/// In the order of GoodField, which is that of the columns.
extern const std::array<GoodFieldInfo, goodFieldCount> goodFields;

} // namespace window
