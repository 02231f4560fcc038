// SPDX-License-Identifier: MIT
#include "reader/commxmlreader.h"
#include "reader/text.h"

#include <set>

QString CommXmlReader::ymlCategoryPath(const QString &id)
{
    pathBuffer = categoryIndex.path(groups, id, [&](QDomElement category, int section) {
        QStringList names;
        std::set<QString> walked = {id}; // parents can lead back to where the walk has been
        while (!category.isNull()) {
            names.append(textOf(category));
            const QString parent = attributeValue(category, QStringLiteral("parentId"));
            if (parent.isNull() || parent == QLatin1String("0") || !walked.insert(parent).second)
                break;
            category = categoryIndex.findIn(section, parent);
        }
        return names;
    });
    return pathBuffer;
}
