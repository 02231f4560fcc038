// SPDX-License-Identifier: MIT
#include "reader/commxmlreader.h"
#include "reader/text.h"

QString CommXmlReader::ymlCategoryPath(const QString &id)
{
    const auto step = [&](const QDomNode &category, int section) {
        const QString parent = attributeValue(category, QStringLiteral("parentId"));
        const bool isTop = parent.isNull() || parent == QLatin1String("0");
        return AncestorPaths::Step{textOf(category),
                                   isTop ? QDomNode() : categoryIndex.findIn(section, parent)};
    };
    pathBuffer = categoryIndex.path(groups, id, step);
    return pathBuffer;
}
