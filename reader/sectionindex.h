// SPDX-License-Identifier: MIT
#pragma once

#include "reader/ancestorpaths.h"

#include <QDomElement>
#include <QList>
#include <QMap>
#include <QRandomGenerator>
#include <QString>
#include <QVector>

#include <functional>
#include <utility>

/// Answers for a path by a key that ends it, as a search through one section after the other
/// would, but looks at the sections only once, and again when they are others than the last time.
///
/// Holds hashes of the keys and not the keys, which elements within elements could make many times
/// larger than the source.
class SectionIndex
{
public:
    /// What has a key.
    struct Kind {
        QString tag; ///< of the elements that tell the keys

        /// The key is the value of this attribute of a child of a section, and leads to that child.
        /// If empty, the key is the full text of an element at any depth, and leads to its parent.
        QString attribute;
    };

    /// The step of a path at a node that was found in this section.
    using StepOf = std::function<AncestorPaths::Step(const QDomNode &node, int section)>;

    /// `hashBase` is for tests: a source must not know it.
    explicit SectionIndex(Kind kind, quint32 hashBase = QRandomGenerator::system()->generate())
        : kind(std::move(kind)), hashBase(hashBase)
    {
    }

    /// The path that the first of these sections gives, in which something has this key and a path
    /// that is not empty. Empty if none does.
    QString path(const QList<QDomNode> &sections, const QString &key, const StepOf &stepOf);

    /// Forgets the sections and their document.
    void clear();

    /// The first element with this key in one section of the latest path(), the sections nested in
    /// it left out; null if there is none.
    QDomElement findIn(int section, const QString &key) const;

private:
    struct Entry {
        quint32 hash;
        int section; // the innermost one around it
        int position;
        QDomElement element;

        std::pair<quint32, int> place() const { return {hash, section}; }
    };
    using Entries = QVector<Entry>;

    void build();
    void collectByAttribute(int section);
    void collectByText(const QDomNode &parent, int section, QString *text);
    quint32 hashOf(const QStringRef &key) const;
    bool hasKey(const Entry &entry, const QString &key) const;
    Entries findFirsts(const QString &key) const;

    Kind kind;
    quint32 hashBase;
    QList<QDomNode> indexed;
    QVector<int> enclosing; // the section around each section
    Entries entries;        // by hash, then by section, then by position in the source
    AncestorPaths ancestors;
    QMap<QString, QString> paths; // those asked for
};
