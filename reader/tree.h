// SPDX-License-Identifier: MIT
//
// How everything here reads the tree of a document.
#pragma once

#include <QDomElement>
#include <QString>
#include <QVarLengthArray>

#include <utility>

/// The texts of an element and of all elements within it, joined; null for a null node. It is that
/// of QDomElement::text(), which copies a text once more for each level that it lies below.
QString textOf(const QDomNode &element);

/// The direct child elements of a node that bear exactly one name, in document order, for a
/// range-for. A null node has none.
class ChildElements
{
public:
    ChildElements(const QDomNode &parent, QString name)
        : first(parent.firstChildElement(name)), name(std::move(name))
    {
    }

    class Iterator
    {
    public:
        Iterator(const QDomElement &element, QString name) : element(element), name(std::move(name))
        {
        }

        const QDomElement &operator*() const { return element; }
        bool operator!=(const Iterator &other) const { return element != other.element; }
        Iterator &operator++()
        {
            element = element.nextSiblingElement(name);
            return *this;
        }

    private:
        QDomElement element;
        QString name;
    };

    bool isEmpty() const { return first.isNull(); }

    Iterator begin() const { return {first, name}; }
    Iterator end() const { return {QDomElement(), name}; }

private:
    QDomElement first;
    QString name;
};

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
