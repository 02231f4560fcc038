// SPDX-License-Identifier: MIT
#pragma once

#include <QDomElement>
#include <QString>
#include <QVarLengthArray>

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
        for (const Child &child : children) {
            if (child.name == name)
                return child.element;
        }
        return {};
    }

private:
    struct Child {
        QString name;
        QDomElement element;
    };

    QVarLengthArray<Child, 32> children;
};
