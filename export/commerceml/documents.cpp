// SPDX-License-Identifier: MIT
#include "reader/commxmlreader.h"
#include "reader/text.h"
#include "reader/vocabulary.h"

#include <algorithm>
#include <iterator>

using namespace commerceml;

namespace
{

/// The partner of a document is the one on the other side of the deal.
struct PartnerRole {
    int documentType;
    QString role;
};

const PartnerRole partnerRoles[] = {
    {1, QStringLiteral("Покупатель")},
    {0, QStringLiteral("Продавец")},
};

/// The partner of a document; null if it has none. Only the first two partners are looked at: the
/// second one is taken, whatever its role, where the first has a role that is not the wanted one.
QDomElement choosePartner(const QDomNode &doc, int documentType)
{
    const QString partnerElement = QStringLiteral("Контрагент");
    const QDomElement first =
        doc.firstChildElement(QStringLiteral("Контрагенты")).firstChildElement(partnerElement);
    const QDomElement role = first.firstChildElement(QStringLiteral("Роль"));
    const auto *wanted =
        std::find_if(std::begin(partnerRoles), std::end(partnerRoles),
                     [=](const PartnerRole &r) { return r.documentType == documentType; });
    if (wanted == std::end(partnerRoles) || role.isNull() || textOf(role) == wanted->role)
        return first;
    return first.nextSiblingElement(partnerElement);
}

} // namespace

bool CommXmlReader::exportDocs(bool withGoods, int documentType)
{
    if (docs.isEmpty() || !outputEnabled || !outputFile.isOpen())
        return false;

    for (const QDomNode &doc : qAsConst(docs)) {
        const QDomElement partner = choosePartner(doc, documentType);
        if (partner.firstChildElement(idElement).isNull())
            continue;
        exportPartner(partner);

        if (doc.firstChildElement(numberElement).isNull())
            continue;
        exportOrderHead(doc, documentType);
        if (!exportOrderLines(doc, withGoods))
            return false;
    }
    return true;
}
