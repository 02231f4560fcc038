// SPDX-License-Identifier: MIT
#include "export/commerceml/walks.h"
#include "reader/commxmlreader.h"
#include "reader/tree.h"
#include "reader/vocabulary.h"

#include <QMap>

using namespace commerceml;
using namespace exporter;

namespace
{

/// The partner of a document is the one on the other side of the deal.
const QMap<int, QString> partnerRoles = {
    {1, QStringLiteral("Покупатель")},
    {0, QStringLiteral("Продавец")},
};

/// Whether a partner has the role that is wanted, or none to tell.
bool isWanted(const QDomElement &partner, int documentType)
{
    const QDomElement role = partner.firstChildElement(QStringLiteral("Роль"));
    return role.isNull() || !partnerRoles.contains(documentType) ||
           textOf(role) == partnerRoles.value(documentType);
}

} // namespace

QDomElement commerceml::partnerOf(const QDomElement &doc, int documentType)
{
    const QString partnerElement = QStringLiteral("Контрагент");
    const QDomElement first =
        doc.firstChildElement(QStringLiteral("Контрагенты")).firstChildElement(partnerElement);
    return isWanted(first, documentType) ? first : first.nextSiblingElement(partnerElement);
}

bool commerceml::exportDocs(const QList<QDomNode> &docs, const Export &to, bool withGoods,
                            int documentType)
{
    const FieldTable goodsFields = orderGoodsFields(to);
    for (auto doc = docs.cbegin(); doc != docs.cend(); ++doc) {
        const QDomElement element = doc->toElement();
        const QDomElement partner = partnerOf(element, documentType);
        if (partner.firstChildElement(idElement).isNull()) {
            to.leftOut(ItemKind::Order, element, Loss::NoPartner);
            continue;
        }
        if (to.observer != nullptr && !isWanted(partner, documentType))
            to.doubted(partner, Doubt::OtherRole);
        exportPartner(partner, to);

        if (element.firstChildElement(numberElement).isNull()) {
            to.leftOut(ItemKind::Order, element, Loss::NoNumber);
            continue;
        }
        exportOrderHead(element, to, documentType);
        if (!exportOrderLines(element, to, withGoods, goodsFields)) {
            to.leftOut(ItemKind::Order, element, Loss::NoLines);
            for (++doc; doc != docs.cend(); ++doc)
                to.leftOut(ItemKind::Order, doc->toElement(), Loss::BehindTheEnd);
            return false;
        }
    }
    return true;
}

bool CommXmlReader::exportDocs(bool withGoods, int documentType)
{
    if (docs.isEmpty() || !outputEnabled || !outputFile.isOpen())
        return false;
    return commerceml::exportDocs(docs, exportTo(writer, groupIndex), withGoods, documentType);
}
