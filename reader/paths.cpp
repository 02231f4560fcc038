// SPDX-License-Identifier: MIT
#include "reader/commxmlreader.h"
#include "reader/vocabulary.h"

#include <algorithm>
#include <optional>

using namespace commerceml;

/// The group that holds `group` among its subgroups; null for a group at the top.
static QDomNode parentGroup(const QDomNode &group)
{
    const QDomNode list = group.parentNode();
    const QDomNode parent = list.parentNode();
    return list.nodeName() == groupsElement && parent.nodeName() == groupElement ? parent
                                                                                 : QDomNode();
}

QString CommXmlReader::joinedPath(QStringList names)
{
    while (!names.isEmpty() && names.first().isEmpty())
        names.removeFirst();
    std::reverse(names.begin(), names.end());
    return names.join(QLatin1String(" \\ "));
}

QString CommXmlReader::groupPath(const QString &id)
{
    if (const std::optional<QString> path = groupIndex.rememberedPath(groups, id))
        return pathBuffer = *path;

    pathBuffer = QLatin1String("");
    // Not only groups bear ids: the element that comes first in a section is taken.
    for (const SectionIndex::Entry &found : groupIndex.find(groups, id)) {
        QDomNode group = found.element.parentNode();
        QDomElement name = group.firstChildElement(nameElement);
        QStringList names;
        if (!name.isNull())
            names.append(name.text());
        for (;;) {
            group = parentGroup(group);
            name = group.firstChildElement(nameElement);
            if (name.isNull())
                break;
            names.append(name.text());
        }
        pathBuffer = joinedPath(names);
        if (!pathBuffer.isEmpty())
            break;
    }
    groupIndex.rememberPath(id, pathBuffer);
    return pathBuffer;
}
