// SPDX-License-Identifier: MIT
#pragma once

#include <QDomElement>
#include <QString>
#include <QVarLengthArray>

/// The children of one node, for many lookups by name. They are walked over once: a walk through
/// the document costs far more than a comparison of names.
class ChildLookup
{
public:
    explicit ChildLookup(const QDomNode &parent)
    {
        for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling())
            children.append({child.nodeName(), child});
    }

    /// The first child element of exactly this name; null if there is none.
    QDomElement first(const QString &name) const
    {
        for (const Child &child : children) {
            if (child.name == name)
                return child.node.toElement();
        }
        return {};
    }

private:
    struct Child {
        QString name; // of what is no element, it begins with "#"
        QDomNode node;
    };

    QVarLengthArray<Child, 32> children;
};
