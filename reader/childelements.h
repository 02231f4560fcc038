// SPDX-License-Identifier: MIT
#pragma once

#include <QDomElement>
#include <QString>

#include <utility>

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
