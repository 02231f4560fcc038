// SPDX-License-Identifier: MIT
#include "export/commerceml/goods.h"
#include "reader/childelements.h"
#include "reader/commxmlreader.h"
#include "reader/text.h"
#include "reader/vocabulary.h"

using namespace commerceml;
using namespace exchange;

namespace
{

const QString quantityElement = QStringLiteral("Количество");

const FieldTable itemFields = {
    {quantityElement, fullText, {{}, "qty:"_l1}},
    {unitPriceElement, fullText, {{}, priceKey}},
};

ChildElements orderLines(const QDomNode &doc)
{
    return {doc.firstChildElement(goodsListElement), goodsElement};
}

} // namespace

bool CommXmlReader::exportOrderLines(const QDomNode &doc, bool withGoods)
{
    const ChildElements lines = orderLines(doc);
    if (lines.isEmpty())
        return false;
    for (const QDomElement &element : lines) {
        const ChildLookup line(element);
        if (withGoods) {
            const QDomElement id = line.first(idElement);
            if (id.isNull())
                continue;
            writeGoods(textOf(id), readFields(*this, line, orderGoodsFields()));
        }
        writeLine(itemBlock.begin);
        writeFields(readFields(*this, line, itemFields));
        writeLine(itemBlock.end);
    }
    writeLine(closeOrder);
    return true;
}

bool CommXmlReader::collectDocumentRows(bool withGoods)
{
    const ChildElements lines = orderLines(docs.value(0));
    if (lines.isEmpty())
        return false;
    constexpr bool prefixed = true;
    for (const QDomElement &element : lines) {
        const ChildLookup line(element);
        QString code;
        if (withGoods) {
            const QDomElement id = line.first(idElement);
            if (id.isNull())
                continue;
            code = textOf(id);
            const FieldValues values = readFields(*this, line, orderGoodsFields());
            goodsRows.append(goodsRow(code, prefixed, values));
        }
        // The quantity brings its tab along: without it the price takes its place.
        QString row = code + QLatin1Char('\t');
        const QDomElement quantity = line.first(quantityElement);
        if (!quantity.isNull())
            row += textOf(quantity) + QLatin1Char('\t');
        goodsRows.append(row + textOf(line.first(unitPriceElement)));
    }
    return true;
}
