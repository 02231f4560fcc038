// SPDX-License-Identifier: MIT
#include "reader/commxmlreader.h"

#include <QSet>

QString CommXmlReader::ymlCategoryPath(const QString &id)
{
    pathBuffer = categoryIndex.path(groups, id, [&](QDomElement category, int section) {
        QStringList names;
        QSet<QString> walked = {id}; // parents can lead back to where the walk has been
        while (!category.isNull()) {
            names.append(category.text());
            const QString parent = attributeValue(category, QStringLiteral("parentId"));
            if (parent.isNull() || parent == QLatin1String("0") || walked.contains(parent))
                break;
            walked.insert(parent);
            category = categoryIndex.findIn(section, parent);
        }
        return names;
    });
    return pathBuffer;
}
