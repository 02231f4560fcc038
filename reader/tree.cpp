// SPDX-License-Identifier: MIT
#include "reader/tree.h"

const void *identityOf(const QDomNode &node)
{
    struct Access : QDomNode {
        explicit Access(const QDomNode &node) : QDomNode(node) {}
        const void *identity() const { return impl; }
    };
    return Access(node).identity();
}

void keepTree(const QDomDocument &document)
{
    // Volatile: what nobody reads would not be there at all.
    [[maybe_unused]] static const QDomDocument *volatile kept = nullptr;
    kept = new QDomDocument(document);
}

static void appendTexts(QString &text, const QDomNode &parent)
{
    for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isText())
            text += child.nodeValue();
        else if (child.isElement())
            appendTexts(text, child);
    }
}

QString textOf(const QDomNode &element)
{
    const QDomNode child = element.firstChild();
    if (child.isText() && child.nextSibling().isNull())
        return child.nodeValue();

    QString text = element.isNull() ? QString() : QLatin1String("");
    appendTexts(text, element);
    return text;
}

QVector<QDomElement> childElements(const QDomNode &parent, const QString &name)
{
    QVector<QDomElement> elements;
    for (QDomElement element = parent.firstChildElement(name); !element.isNull();
         element = element.nextSiblingElement(name))
        elements.append(element);
    return elements;
}
