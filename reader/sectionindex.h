// SPDX-License-Identifier: MIT
#pragma once

#include <QDomElement>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <utility>

/// Answers for a path by the key of the element that it ends in, as a search through one section
/// after the other would, but looks at the sections only once, and again when they are others than
/// the last time.
///
/// Holds hashes of the keys and not the keys, which elements within elements could make many times
/// larger than the source; and of the paths only those that were asked for, since all that there
/// could be are far larger than the source, too.
class SectionIndex
{
public:
    /// What is found, and the key that it is found by.
    struct Kind {
        QString tag;
        bool atAnyDepth;                              ///< or only as a child of the section
        QString (*keyOf)(const QDomElement &element); ///< null: never found
    };

    /// The names along a path, from its end `element` up. `section` is the position of the section
    /// that the element was found in.
    using NamesOf = std::function<QStringList(const QDomElement &element, int section)>;

    explicit SectionIndex(Kind kind) : kind(std::move(kind)) {}

    /// The path to the first element with this key, names from the top down, joined by " \ ";
    /// names at its end that are empty are left out. That of the first section that gives one which
    /// is not empty; empty if none does.
    QString path(const QList<QDomNode> &sections, const QString &key, const NamesOf &namesOf);

    /// The first element with this key in one section of the latest path(); null if there is none.
    QDomElement findIn(int section, const QString &key) const;

private:
    struct Entry {
        uint hash;
        int section;
        QDomElement element;
    };

    void build();
    void collect(const QDomNode &parent, int section);
    QVector<Entry> find(const QString &key) const;

    Kind kind;
    QList<QDomNode> indexed;
    QHash<QString, QString> paths;
    QVector<Entry> entries; // by hash, then by section, then in document order
};
