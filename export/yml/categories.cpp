// SPDX-License-Identifier: MIT
#include "reader/commxmlreader.h"

#include <QSet>

#include <optional>

/// The id of the category that holds this one; nothing for a root category.
static std::optional<QString> parentId(const QDomElement &category)
{
    const QDomNode parent = category.attributes().namedItem(QStringLiteral("parentId"));
    const QString id = parent.nodeValue();
    return parent.isNull() || id == QLatin1String("0") ? std::nullopt : std::optional(id);
}

QString CommXmlReader::ymlCategoryPath(const QString &id)
{
    if (const std::optional<QString> path = categoryIndex.rememberedPath(groups, id))
        return pathBuffer = *path;

    pathBuffer = QLatin1String("");
    for (const SectionIndex::Entry &found : categoryIndex.find(groups, id)) {
        QStringList names;
        QSet<QString> walked = {id}; // parents can lead back to where the walk has been
        QDomElement category = found.element;
        while (!category.isNull()) {
            names.append(category.text());
            const std::optional<QString> parent = parentId(category);
            if (!parent || walked.contains(*parent))
                break;
            walked.insert(*parent);
            category = categoryIndex.findIn(groups, found.section, *parent);
        }
        pathBuffer = joinedPath(names);
        if (!pathBuffer.isEmpty())
            break;
    }
    categoryIndex.rememberPath(id, pathBuffer);
    return pathBuffer;
}
