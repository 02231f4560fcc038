// SPDX-License-Identifier: MIT
#include "reader/commxmlreader.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace
{

struct DialectRoot {
    QString name; // in lower case
    SourceDialect dialect;
};

const DialectRoot dialectRoots[] = {
    {QStringLiteral("коммерческаяинформация"), CommerceMlDialect},
    {QStringLiteral("yml_catalog"), YmlDialect},
    {QStringLiteral("xml_catalog"), YmlDialect},
};

} // namespace

bool CommXmlReader::readStructure()
{
    for (QList<QDomNode> *sections : {&katalogs, &groups, &docs, &prices})
        sections->clear();
    groupIndex.clear();
    categoryIndex.clear();
    pictureLinks.clear();
    if (rootElement.isNull())
        return false;

    const QString rootName = rootElement.tagName().toLower();
    const auto *root = std::find_if(std::begin(dialectRoots), std::end(dialectRoots),
                                    [&](const DialectRoot &r) { return r.name == rootName; });
    if (root != std::end(dialectRoots))
        dialect = root->dialect;

    collectSections(rootElement);
    goodsRows.clear();
    return true;
}

void CommXmlReader::collectSections(const QDomNode &parent)
{
    struct SectionKind {
        QString element;
        QList<QDomNode> CommXmlReader::*list;
    };
    static const SectionKind kinds[] = {
        {QStringLiteral("Классификатор"), &CommXmlReader::groups},
        {QStringLiteral("Каталог"), &CommXmlReader::katalogs},
        {QStringLiteral("ПакетПредложений"), &CommXmlReader::prices},
        {QStringLiteral("Документ"), &CommXmlReader::docs},
        {QStringLiteral("categories"), &CommXmlReader::groups},
        {QStringLiteral("offers"), &CommXmlReader::prices},
    };

    // A program with a window stays alive while a long document is walked.
    QCoreApplication::processEvents(QEventLoop::AllEvents);
    for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isElement()) {
            const QString name = child.nodeName();
            const auto *kind =
                std::find_if(std::begin(kinds), std::end(kinds),
                             [&](const SectionKind &k) { return k.element == name; });
            if (kind != std::end(kinds))
                (this->*kind->list).append(child);
        }
        collectSections(child);
    }
}
