// SPDX-License-Identifier: MIT
#include "reader/commxmlreader.h"
#include "reader/text.h"
#include "reader/vocabulary.h"

using namespace commerceml;

/// The group that holds `group` among its subgroups; null for a group at the top.
static QDomNode parentGroup(const QDomNode &group)
{
    const QDomNode list = group.parentNode();
    const QDomNode parent = list.parentNode();
    return list.nodeName() == groupsElement && parent.nodeName() == groupElement ? parent
                                                                                 : QDomNode();
}

/// The names of a group and of those above it. A group above without a name ends them.
static QStringList groupNames(const QDomElement &id, int /*section*/)
{
    QStringList names;
    QDomNode group = id.parentNode();
    QDomElement name = group.firstChildElement(nameElement);
    if (!name.isNull())
        names.append(textOf(name));
    for (;;) {
        group = parentGroup(group);
        name = group.firstChildElement(nameElement);
        if (name.isNull())
            return names;
        names.append(textOf(name));
    }
}

QString CommXmlReader::groupPath(const QString &id)
{
    pathBuffer = groupIndex.path(groups, id, groupNames);
    return pathBuffer;
}
