// SPDX-License-Identifier: MIT
//
// Goods rows: the tab-coded second form of the goods, for programs with a clipboard.
#pragma once

#include "exchange/format.h"

#include <QStringList>

namespace exchange
{

/// What a described good's row says of its description.
enum class HtmlMark {
    None,      ///< nothing: no DISHTML field
    PlainText, ///< DISHTML 0
    Html,      ///< DISHTML 1
};

/// A goods row: the goods code, behind "##" and a tab where `prefixed`, then a tab, a field code, a
/// tab and the value for each of `values` that has a place in goods rows.
QString goodsRow(const QString &goodsCode, bool prefixed, const FieldValues &values);

/// Appends `row` to `goodsRows`, and behind it, where `description` is not empty, the description
/// between two marker entries; the row is marked with `mark` then.
void appendGoodsRow(QStringList &goodsRows, QString row, const QString &description, HtmlMark mark);

} // namespace exchange
