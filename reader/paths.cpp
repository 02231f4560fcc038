// SPDX-License-Identifier: MIT
#include "reader/commxmlreader.h"
#include "reader/tree.h"
#include "reader/vocabulary.h"

using namespace commerceml;

namespace
{

/// Not only groups bear ids: the element that comes first in a section ends the path.
PathIndex::Keyed whatHasId(const QDomElement &element)
{
    if (element.tagName() != idElement)
        return {};
    return {element.parentNode()};
}

/// The group that holds `group` among its subgroups; null for a group at the top.
QDomNode parentGroup(const QDomNode &group)
{
    const QDomNode list = group.parentNode();
    const QDomNode parent = list.parentNode();
    return list.nodeName() == groupsElement && parent.nodeName() == groupElement ? parent
                                                                                 : QDomNode();
}

PathIndex::Step groupStep(const QDomNode &group)
{
    const QDomElement name = group.firstChildElement(nameElement);
    return {name.isNull() ? std::nullopt : std::optional(textOf(name)), parentGroup(group)};
}

} // namespace

const PathIndex::Kind CommXmlReader::groupPaths = {whatHasId, groupStep, true};

PathIndex::Path CommXmlReader::buildPath(PathIndex &index, const QString &id)
{
    PathIndex::Path path = index.path(groups, id);
    pathBuffer = path.text;
    return path;
}

QString CommXmlReader::groupPath(const QString &id)
{
    return buildPath(groupIndex, id).text;
}
