// SPDX-License-Identifier: MIT
#include "exchange/goodsrow.h"

namespace exchange
{

constexpr QLatin1Char tab('\t');
constexpr QLatin1String rowPrefix = "##\t"_l1;
constexpr QLatin1String htmlCode = "DISHTML"_l1;
constexpr QLatin1String descriptionMarker = "-----"_l1;

GoodsRow::GoodsRow(const QString &goodsCode, bool prefixed)
    : row(prefixed ? rowPrefix + goodsCode : goodsCode)
{
}

void GoodsRow::addField(QLatin1String rowCode, const QString &value)
{
    row += tab;
    row += rowCode;
    row += tab;
    row += value;
}

void GoodsRow::addFields(const FieldValues &values)
{
    for (const FieldValue &value : values) {
        if (!value.target.rowCode.isEmpty())
            addField(value.target.rowCode, value.rowText);
    }
}

void appendGoodsRow(QStringList &goodsRows, GoodsRow row, const QString &description, HtmlMark mark)
{
    if (description.isEmpty()) {
        goodsRows.append(row.text());
        return;
    }
    if (mark != HtmlMark::None)
        row.addField(htmlCode, QString::number(mark == HtmlMark::Html ? 1 : 0));
    goodsRows << row.text() << descriptionMarker << description << descriptionMarker;
}

} // namespace exchange
