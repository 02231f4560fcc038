// SPDX-License-Identifier: MIT
//
// How everything here reads the tree of a document.
#pragma once

#include <QDomDocument>
#include <QDomElement>
#include <QString>
#include <QVarLengthArray>
#include <QVector>

#include <utility>

/// What tells a node from all others of its document, as long as that is there.
const void *identityOf(const QDomNode &node);

/// Keeps the tree of a document until the process ends: to take a million nodes apart would take a
/// twentieth of a run, for nothing.
void keepTree(const QDomDocument &document);

/// The texts of an element and of all elements within it, joined; null for a null node. It is that
/// of QDomElement::text(), which copies a text once more for each level that it lies below.
QString textOf(const QDomNode &element);

/// The direct child elements of a node that bear exactly this name, in document order. A null node
/// has none.
QVector<QDomElement> childElements(const QDomNode &parent, const QString &name);

/// The child elements of one node, for many lookups by name. They are walked over once: a walk
/// through the document costs far more than a comparison of names.
class ChildLookup
{
public:
    explicit ChildLookup(const QDomNode &parent)
    {
        for (QDomElement child = parent.firstChildElement(); !child.isNull();
             child = child.nextSiblingElement())
            children.append({child.tagName(), child});
    }

    /// The first child element of exactly this name; null if there is none.
    QDomElement first(const QString &name) const
    {
        for (const auto &[childName, child] : children) {
            if (childName == name)
                return child;
        }
        return {};
    }

private:
    QVarLengthArray<std::pair<QString, QDomElement>, 32> children; // with their names
};
