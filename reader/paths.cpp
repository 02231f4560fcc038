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

static AncestorPaths::Step groupStep(const QDomNode &group, int /*section*/)
{
    const QDomElement name = group.firstChildElement(nameElement);
    return {name.isNull() ? std::nullopt : std::optional(textOf(name)), parentGroup(group)};
}

QString CommXmlReader::groupPath(const QString &id)
{
    pathBuffer = groupIndex.path(groups, id, groupStep);
    return pathBuffer;
}
