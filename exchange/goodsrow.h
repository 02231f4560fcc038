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

/// Builds one goods row: the goods code, then a tab, a field code, a tab and a value per field.
class GoodsRow
{
public:
    /// Starts the row with `goodsCode`, behind "##" and a tab where `prefixed`.
    GoodsRow(const QString &goodsCode, bool prefixed);

    void addField(QLatin1String rowCode, const QString &value);

    /// Adds those of `values` that have a place in goods rows.
    void addFields(const FieldValues &values);

    const QString &text() const { return row; }

private:
    QString row;
};

/// Appends `row` to `goodsRows`, and behind it, where `description` is not empty, the description
/// between two marker entries; the row is marked with `mark` then.
void appendGoodsRow(QStringList &goodsRows, GoodsRow row, const QString &description,
                    HtmlMark mark);

} // namespace exchange
