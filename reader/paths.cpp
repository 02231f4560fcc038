// SPDX-License-Identifier: MIT
#include "reader/commxmlreader.h"
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

bool CommXmlReader::prependToPath(const QDomElement &name)
{
    if (name.isNull())
        return false;
    pathBuffer =
        pathBuffer.isEmpty() ? name.text() : name.text() + QLatin1String(" \\ ") + pathBuffer;
    return true;
}

QString CommXmlReader::groupPath(const QString &id)
{
    pathBuffer = QLatin1String("");
    for (const QDomNode &section : qAsConst(groups)) {
        // Not only groups bear ids: the element that comes first in the section is taken.
        QDomNode group = findElementByText(section, idElement, id).parentNode();
        prependToPath(group.firstChildElement(nameElement));
        do {
            group = parentGroup(group);
        } while (prependToPath(group.firstChildElement(nameElement)));

        if (!pathBuffer.isEmpty())
            break;
    }
    return pathBuffer;
}
