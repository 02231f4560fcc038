// SPDX-License-Identifier: MIT
#pragma once

#include <QDomElement>
#include <QList>
#include <QMap>
#include <QRandomGenerator>
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
    /// What is found: elements with this tag, by one of two keys.
    struct Kind {
        QString tag;

        /// The key is the value of this attribute; found are children of a section that have it.
        /// If empty, the key is the full text; found are elements at any depth below a section.
        QString attribute;
    };

    /// The names along a path, from its end `element` up. `section` is the position of the section
    /// that the element was found in.
    using NamesOf = std::function<QStringList(const QDomElement &element, int section)>;

    /// `hashBase` is for tests: a source must not know it.
    explicit SectionIndex(Kind kind, quint32 hashBase = QRandomGenerator::system()->generate())
        : kind(std::move(kind)), hashBase(hashBase)
    {
    }

    /// The path to the first element with this key, names from the top down, joined by " \ ";
    /// names at its end that are empty are left out. That of the first section that gives one which
    /// is not empty; empty if none does.
    QString path(const QList<QDomNode> &sections, const QString &key, const NamesOf &namesOf);

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
    QMap<QString, QString> paths;
};
