// SPDX-License-Identifier: MIT
#include "reader/commxmlreader.h"

#include <QCoreApplication>
#include <QMap>

#include <algorithm>
#include <iterator>

bool CommXmlReader::readStructure()
{
    for (QList<QDomNode> *sections : {&katalogs, &groups, &docs, &prices})
        sections->clear();
    groupIndex.clear();
    categoryIndex.clear();
    pictureLinks.clear();
    if (rootElement.isNull())
        return false;

    static const QMap<QString, SourceDialect> dialects = {
        {QStringLiteral("коммерческаяинформация"), CommerceMlDialect},
        {QStringLiteral("yml_catalog"), YmlDialect},
        {QStringLiteral("xml_catalog"), YmlDialect},
    };
    dialect = dialects.value(rootElement.tagName().toLower(), dialect);

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
        if (!child.isElement())
            continue; // and holds none
        const QString name = child.nodeName();
        const auto *kind = std::find_if(std::begin(kinds), std::end(kinds),
                                        [&](const SectionKind &k) { return k.element == name; });
        if (kind != std::end(kinds))
            (this->*kind->list).append(child);
        collectSections(child);
    }
}
