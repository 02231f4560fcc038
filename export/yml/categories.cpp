// SPDX-License-Identifier: MIT
#include "reader/commxmlreader.h"

#include <QSet>

#include <optional>

/// The id of the category that holds this one; nothing for a root category.
static std::optional<QString> parentId(const QDomElement &category)
{
    const QDomNode parent = category.attributes().namedItem(QStringLiteral("parentId"));
    const QString id = parent.toAttr().value();
    return parent.isNull() || id == QLatin1String("0") ? std::nullopt : std::optional(id);
}

QString CommXmlReader::ymlCategoryPath(const QString &id)
{
    pathBuffer = QLatin1String("");
    for (const QDomNode &section : qAsConst(groups)) {
        QSet<QString> walked; // parents can lead back to where the walk has been
        std::optional<QString> next = id;
        while (next && !walked.contains(*next)) {
            const QDomElement category = findElementByAttribute(section, QStringLiteral("category"),
                                                                QStringLiteral("id"), *next)
                                             .toElement();
            if (!prependToPath(category))
                break;
            walked.insert(*next);
            next = parentId(category);
        }
        if (!pathBuffer.isEmpty())
            break;
    }
    return pathBuffer;
}
