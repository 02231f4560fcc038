// SPDX-License-Identifier: MIT
#include "exchange/goodsrow.h"

namespace exchange
{

constexpr QLatin1Char tab('\t');
constexpr QLatin1String rowPrefix = "##\t"_l1;
constexpr QLatin1String htmlCode = "DISHTML"_l1;
constexpr QLatin1String descriptionMarker = "-----"_l1;

static void addField(QString &row, QLatin1String rowCode, const QString &value)
{
    row += tab;
    row += rowCode;
    row += tab;
    row += value;
}

QString goodsRow(const QString &goodsCode, bool prefixed, const FieldValues &values)
{
    constexpr int usualRow = 1'000;
    QString row;
    row.reserve(usualRow);
    if (prefixed)
        row += rowPrefix;
    row += goodsCode;
    for (const FieldValue &value : values) {
        if (!value.target.rowCode.isEmpty())
            addField(row, value.target.rowCode, value.rowText);
    }
    return row;
}

void appendGoodsRow(QStringList &goodsRows, QString row, const QString &description, HtmlMark mark)
{
    if (!description.isEmpty() && mark != HtmlMark::None)
        addField(row, htmlCode, QString::number(mark == HtmlMark::Html ? 1 : 0));
    row.squeeze(); // rows stay in memory to the end of the run
    goodsRows.append(row);
    if (!description.isEmpty())
        goodsRows << descriptionMarker << description << descriptionMarker;
}

} // namespace exchange
