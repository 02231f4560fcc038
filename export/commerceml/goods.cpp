// SPDX-License-Identifier: MIT
#include "export/commerceml/goods.h"

#include "reader/commxmlreader.h"
#include "reader/text.h"
#include "reader/vocabulary.h"

using namespace commerceml;
using namespace exchange;

/// The path of the first group that a good names.
static std::optional<QString> pathOfFirstGroup(CommXmlReader &reader,
                                               const QDomElement &goodsGroups)
{
    const QDomElement id = goodsGroups.firstChildElement(idElement);
    return id.isNull() ? std::nullopt : unlessEmpty(reader.groupPath(textOf(id)));
}

static const QString articleElement = QStringLiteral("Артикул");
static const QString barcodeElement = QStringLiteral("Штрихкод");
static const QString unitElement = QStringLiteral("БазоваяЕдиница");

/// Catalogues and price packages differ in how a name is cleaned for the goods row.
static FieldTable goodsFields(Cleaning nameCleaning)
{
    return {
        {articleElement, fullText, target::article, withoutTabs},
        {nameElement, fullText, target::name, nameCleaning},
        {barcodeElement, fullText, target::barcode, withoutTabs},
        {groupsElement, pathOfFirstGroup, target::group},
        {unitElement, ownText, target::unit},
    };
}

const FieldTable &catalogueGoodsFields()
{
    static const FieldTable table = goodsFields(withoutTabs);
    return table;
}

const FieldTable &offerFields()
{
    static const FieldTable table = goodsFields(withoutBrackets);
    return table;
}

const FieldTable &orderGoodsFields()
{
    static const FieldTable table = {
        {articleElement, fullText, {target::article.rowCode, {}}, withoutTabs},
        {nameElement, fullText, target::name, withoutBrackets, simplified},
        {groupsElement, pathOfFirstGroup, target::group},
        {unitElement, ownText, target::unit},
    };
    return table;
}

QString goodsDescription(const ChildLookup &goods)
{
    return textOf(goods.first(QStringLiteral("Описание")));
}
