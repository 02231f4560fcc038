// SPDX-License-Identifier: MIT
#include "reader/commxmlreader.h"
#include "reader/tree.h"

QString CommXmlReader::directText(const QDomNode &node)
{
    QString text = QLatin1String("");
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
        const QDomText childText = child.toText();
        if (!childText.isNull())
            text += childText.data();
    }
    return text;
}

QString CommXmlReader::attributeValue(const QDomNode &node, const QString &name)
{
    const QDomNode item = node.attributes().namedItem(name);
    return item.isNull() ? QString() : item.toAttr().value();
}

QDomNode CommXmlReader::findElementByText(const QDomNode &parent, const QString &tag,
                                          const QString &text)
{
    for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling()) {
        const QDomElement element = child.toElement();
        if (!element.isNull() && element.tagName() == tag && textOf(element) == text)
            return child;
        const QDomNode found = findElementByText(child, tag, text);
        if (!found.isNull())
            return found;
    }
    return {};
}

QDomNode CommXmlReader::findElementByAttribute(const QDomNode &parent, const QString &tag,
                                               const QString &attribute, const QString &value)
{
    for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling()) {
        const QDomElement element = child.toElement();
        if (!element.isNull() && element.tagName() == tag && element.hasAttribute(attribute) &&
            element.attribute(attribute) == value)
            return child;
    }
    return {};
}
