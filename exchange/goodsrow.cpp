// SPDX-License-Identifier: MIT
#include "exchange/goodsrow.h"

namespace exchange
{

constexpr QLatin1Char tab('\t');
constexpr QLatin1String rowPrefix = "##\t"_l1;
constexpr QLatin1String htmlCode = "DISHTML"_l1;
constexpr QLatin1String descriptionMarker = "-----"_l1;

static int fieldSize(QLatin1String rowCode, const QString &value)
{
    return 2 + rowCode.size() + value.size();
}

static void addField(QString &row, QLatin1String rowCode, const QString &value)
{
    row += tab;
    row += rowCode;
    row += tab;
    row += value;
}

QString goodsRow(const QString &goodsCode, bool prefixed, const FieldValues &values)
{
    // Rows stay in memory to the end of the run: growing piece by piece would leave room unused.
    int size = rowPrefix.size() + goodsCode.size() + fieldSize(htmlCode, QStringLiteral("1"));
    for (const FieldValue &value : values)
        size += fieldSize(value.target.rowCode, value.rowText);

    QString row;
    row.reserve(size);
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
    if (description.isEmpty()) {
        goodsRows.append(row);
        return;
    }
    if (mark != HtmlMark::None)
        addField(row, htmlCode, QString::number(mark == HtmlMark::Html ? 1 : 0));
    goodsRows << row << descriptionMarker << description << descriptionMarker;
}

} // namespace exchange
