// SPDX-License-Identifier: MIT
#include "export/commerceml/walks.h"

#include "reader/vocabulary.h"

using namespace exchange;
using namespace exporter;

namespace commerceml
{

/// The path of the first group that a good names.
static Reading pathOfFirstGroup(const Export &to)
{
    return [&to](const QDomElement &goodsGroups) {
        const QDomElement id = goodsGroups.firstChildElement(idElement);
        return id.isNull() ? std::nullopt : to.path(id);
    };
}

static const QString articleElement = QStringLiteral("Артикул");
static const QString barcodeElement = QStringLiteral("Штрихкод");
static const QString unitElement = QStringLiteral("БазоваяЕдиница");

FieldTable goodsFields(const Export &to, Cleaning nameCleaning)
{
    return {
        {articleElement, fullText, target::article, withoutTabs},
        {nameElement, fullText, target::name, nameCleaning},
        {barcodeElement, fullText, target::barcode, withoutTabs},
        {groupsElement, pathOfFirstGroup(to), target::group},
        {unitElement, ownText, target::unit},
    };
}

FieldTable orderGoodsFields(const Export &to)
{
    return {
        {articleElement, fullText, rowOnly(target::article.rowCode), withoutTabs},
        {nameElement, fullText, target::name, withoutBrackets, simplified},
        {groupsElement, pathOfFirstGroup(to), target::group},
        {unitElement, ownText, target::unit},
    };
}

void exportGoods(const QList<QDomNode> &sections, const GoodsPlace &place, const Export &to,
                 const GoodsOptions &options,
                 const std::function<FieldValues(const ChildLookup &goods)> &read)
{
    for (const QDomNode &section : sections) {
        const QDomElement list = section.firstChildElement(place.list);
        for (const QDomElement &element : childElements(list, place.element)) {
            const ChildLookup goods(element);
            const QDomElement id = goods.first(idElement);
            if (id.isNull()) {
                to.leftOut(place.kind, element, Loss::NoCode);
                continue;
            }
            Item item = {place.kind, element, textOf(id), read(goods), {}};
            if (options.withDescription)
                item.text = textOf(goods.first(QStringLiteral("Описание")));
            to.goods(item, options);
        }
    }
}

} // namespace commerceml
