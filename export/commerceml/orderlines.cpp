// SPDX-License-Identifier: MIT
#include "export/commerceml/walks.h"
#include "reader/commxmlreader.h"
#include "reader/tree.h"
#include "reader/vocabulary.h"

using namespace commerceml;
using namespace exchange;
using namespace exporter;

namespace
{

const QString quantityElement = QStringLiteral("Количество");

const FieldTable itemFields = {
    {quantityElement, fullText, lineOnly("qty:"_l1)},
    {unitPriceElement, fullText, lineOnly(priceKey)},
};

QVector<QDomElement> orderLines(const QDomNode &doc)
{
    return childElements(doc.firstChildElement(goodsListElement), goodsElement);
}

} // namespace

bool commerceml::exportOrderLines(const QDomElement &doc, const Export &to, bool withGoods,
                                  const FieldTable &goodsFields)
{
    const QVector<QDomElement> lines = orderLines(doc);
    if (lines.isEmpty())
        return false;
    for (const QDomElement &element : lines) {
        const ChildLookup line(element);
        const QDomElement id = line.first(idElement);
        if (withGoods && id.isNull()) {
            to.leftOut(ItemKind::OrderLine, element, Loss::NoCode);
            continue;
        }
        const QString code = withGoods ? textOf(id) : QString();
        if (withGoods)
            to.item({ItemKind::OrderGood, element, code, readFields(line, goodsFields), {}},
                    goodsBlock);
        to.item({ItemKind::OrderLine, element, code, readFields(line, itemFields), {}}, itemBlock,
                {});
    }
    to.writer.writeLine(closeOrder);
    return true;
}

bool CommXmlReader::collectDocumentRows(bool withGoods)
{
    const QVector<QDomElement> lines = orderLines(docs.value(0));
    if (lines.isEmpty())
        return false;
    constexpr bool prefixed = true;
    Export to = exportTo(writer, groupIndex);
    to.observer = nullptr; // nothing is exported
    const FieldTable goodsFields = orderGoodsFields(to);
    for (const QDomElement &element : lines) {
        const ChildLookup line(element);
        const QDomElement id = line.first(idElement);
        if (withGoods && id.isNull())
            continue;
        const QString code = withGoods ? textOf(id) : QString();
        if (withGoods)
            goodsRows.append(goodsRow(code, prefixed, readFields(line, goodsFields)));
        // The quantity brings its tab along: without it the price takes its place.
        QString row = code + QLatin1Char('\t');
        const QDomElement quantity = line.first(quantityElement);
        if (!quantity.isNull())
            row += textOf(quantity) + QLatin1Char('\t');
        goodsRows.append(row + textOf(line.first(unitPriceElement)));
    }
    return true;
}
