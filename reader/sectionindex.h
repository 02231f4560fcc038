// SPDX-License-Identifier: MIT
#pragma once

#include <QDomElement>
#include <QHash>
#include <QList>
#include <QString>
#include <QVector>

#include <optional>
#include <utility>

/// Finds elements of sections by a key as a search through each section would, but looks at the
/// sections only once, and again when they are others than the last time. Remembers the paths that
/// its user made of them.
///
/// Holds hashes of the keys and not the keys, which elements within elements could make many times
/// larger than the source.
class SectionIndex
{
public:
    /// What is found, and the key that it is found by.
    struct Kind {
        QString tag;
        bool atAnyDepth; ///< or only as a child of the section
        std::optional<QString> (*keyOf)(const QDomElement &element); ///< nothing: never found
    };

    struct Entry {
        uint hash;
        int section; ///< position of the section in the list
        QDomElement element;
    };

    explicit SectionIndex(Kind kind) : kind(std::move(kind)) {}

    /// The path that was remembered for this key, if there is one.
    std::optional<QString> rememberedPath(const QList<QDomNode> &sections, const QString &key);

    /// Remembers a path until the sections are others. To be called for what was asked for alone:
    /// all paths there could be are far larger than the source.
    void rememberPath(const QString &key, const QString &path) { paths.insert(key, path); }

    /// The first element of each section that has this key, in the order of the sections. Sections
    /// without one give none.
    QVector<Entry> find(const QList<QDomNode> &sections, const QString &key);

    /// The first element of one section that has this key; null if there is none.
    QDomElement findIn(const QList<QDomNode> &sections, int section, const QString &key);

private:
    void refresh(const QList<QDomNode> &sections);
    void collect(const QDomNode &parent, int section);

    Kind kind;
    QList<QDomNode> indexed;
    QHash<QString, QString> paths;
    QVector<Entry> entries; // by hash, then by section, then in document order
};
