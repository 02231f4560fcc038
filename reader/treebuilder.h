// SPDX-License-Identifier: MIT
#pragma once

#include <QDomDocument>
#include <QDomElement>
#include <QString>
#include <QVector>

/// Builds a document, as a reader comes to its parts from the first to the last.
class TreeBuilder
{
public:
    /// `document`, which is empty, outlives the builder.
    explicit TreeBuilder(QDomDocument &document) : document(document) {}

    void startElement(const QString &name);

    /// Of the element that was started last, ahead of all that is in it. Of two with one name the
    /// last one stays.
    void attribute(const QString &name, const QString &value);

    void endElement();

    /// Text that is nothing but white space gives no node.
    void text(const QString &text);
    void cdata(const QString &text);
    void comment(const QString &text);
    void processingInstruction(const QString &target, const QString &data);

    int nesting() const { return static_cast<int>(open.size()); }

    /// The name of the element that was started last and is not ended; there is one.
    QString name() const { return open.last().tagName(); }

private:
    void append(const QDomNode &node);

    QDomDocument &document;
    QVector<QDomElement> open;
};
