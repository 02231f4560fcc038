// SPDX-License-Identifier: MIT
#include "reader/commxmlreader.h"
#include "reader/tree.h"

namespace
{

PathIndex::Keyed categoryWithId(const QDomElement &element)
{
    if (element.tagName() != QLatin1String("category"))
        return {};
    const QString id = CommXmlReader::attributeValue(element, QStringLiteral("id"));
    return id.isNull() ? PathIndex::Keyed() : PathIndex::Keyed{element, id};
}

PathIndex::Step categoryStep(const QDomNode &category)
{
    const QString parent = CommXmlReader::attributeValue(category, QStringLiteral("parentId"));
    const bool isTop = parent.isNull() || parent == QLatin1String("0");
    return {textOf(category), {}, isTop ? std::nullopt : std::optional(parent)};
}

} // namespace

const PathIndex::Kind CommXmlReader::categoryPaths = {categoryWithId, categoryStep, false};

QString CommXmlReader::ymlCategoryPath(const QString &id)
{
    return buildPath(categoryIndex, id).text;
}
