// SPDX-License-Identifier: MIT
#include "export/commerceml/goods.h"

#include "reader/commxmlreader.h"
#include "reader/vocabulary.h"

using namespace commerceml;
using namespace exchange;

/// The path of the first group that a good names.
static std::optional<QString> pathOfFirstGroup(CommXmlReader &reader,
                                               const QDomElement &goodsGroups)
{
    const QDomElement id = goodsGroups.firstChildElement(idElement);
    return id.isNull() ? std::nullopt : unlessEmpty(reader.groupPath(id.text()));
}

static const QString articleElement = QStringLiteral("Артикул");
static const QString barcodeElement = QStringLiteral("Штрихкод");
static const QString unitElement = QStringLiteral("БазоваяЕдиница");

const FieldTable &catalogueGoodsFields()
{
    static const FieldTable table = {
        {articleElement, fullText, article, withoutTabs},
        {nameElement, fullText, name, withoutTabs},
        {barcodeElement, fullText, barcode, withoutTabs},
        {groupsElement, pathOfFirstGroup, group},
        {unitElement, ownText, unit},
    };
    return table;
}

const FieldTable &offerFields()
{
    static const FieldTable table = {
        {articleElement, fullText, article, withoutTabs},
        {nameElement, fullText, name, withoutBrackets},
        {barcodeElement, fullText, barcode, withoutTabs},
        {groupsElement, pathOfFirstGroup, group},
        {unitElement, ownText, unit},
    };
    return table;
}

const FieldTable &orderGoodsFields()
{
    static const FieldTable table = {
        {articleElement, fullText, {article.rowCode, {}}, withoutTabs},
        {nameElement, fullText, name, withoutBrackets, simplified},
        {groupsElement, pathOfFirstGroup, group},
        {unitElement, ownText, unit},
    };
    return table;
}

QString goodsDescription(const QDomElement &goods)
{
    return goods.firstChildElement(QStringLiteral("Описание")).text();
}
