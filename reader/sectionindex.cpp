// SPDX-License-Identifier: MIT
#include "reader/sectionindex.h"

#include <algorithm>
#include <utility>

static constexpr int noSection = -1;

static QString joined(QStringList namesFromTheEnd)
{
    while (!namesFromTheEnd.isEmpty() && namesFromTheEnd.first().isEmpty())
        namesFromTheEnd.removeFirst();
    std::reverse(namesFromTheEnd.begin(), namesFromTheEnd.end());
    return namesFromTheEnd.join(QLatin1String(" \\ "));
}

QString SectionIndex::path(const QList<QDomNode> &sections, const QString &key,
                           const NamesOf &namesOf)
{
    // Lists that nobody has changed share their data, and compare at once.
    if (sections != indexed) {
        indexed = sections;
        build();
    }
    const auto known = paths.constFind(key);
    if (known != paths.constEnd())
        return *known;

    QString path;
    for (const Entry &entry : findFirsts(key)) {
        path = joined(namesOf(entry.element, entry.section));
        if (!path.isEmpty())
            break;
    }
    paths.insert(key, path);
    return path;
}

QDomElement SectionIndex::findIn(int section, const QString &key) const
{
    const std::pair<quint32, int> place(hashOf(key), section);
    const auto *entry =
        std::lower_bound(entries.cbegin(), entries.cend(), place,
                         [](const Entry &e, const auto &wanted) { return e.place() < wanted; });
    for (; entry != entries.cend() && entry->place() == place; ++entry) {
        if (kind.keyOf(entry->element) == key)
            return entry->element;
    }
    return {};
}

void SectionIndex::build()
{
    paths.clear();
    entries.clear();
    enclosing.clear();
    while (enclosing.size() < indexed.size()) {
        const int section = enclosing.size();
        enclosing.append(noSection);
        collect(indexed.at(section), section);
    }

    std::stable_sort(entries.begin(), entries.end(),
                     [](const Entry &a, const Entry &b) { return a.place() < b.place(); });
    // Only the first element with a key is ever found, and there can be very many others.
    auto *const others =
        std::unique(entries.begin(), entries.end(), [&](const Entry &a, const Entry &b) {
            return a.place() == b.place() && kind.keyOf(a.element) == kind.keyOf(b.element);
        });
    entries.erase(others, entries.end());
}

void SectionIndex::collect(const QDomNode &parent, int section)
{
    for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling()) {
        const QDomElement element = child.toElement();
        if (element.isNull())
            continue;
        if (element.tagName() == kind.tag) {
            const QString key = kind.keyOf(element);
            if (!key.isNull())
                entries.append({hashOf(key), section, entries.size(), element});
        }
        if (!kind.atAnyDepth)
            continue;
        // What sections share is visited once: nested in each other, they could be very many.
        const int next = enclosing.size();
        const bool isNextSection = next < indexed.size() && element == indexed.at(next);
        if (isNextSection)
            enclosing.append(section);
        collect(element, isNextSection ? next : section);
    }
}

/// A polynomial modulo a prime: without its base nobody can choose keys of one hash.
quint32 SectionIndex::hashOf(const QString &key) const
{
    constexpr quint64 prime = 0x7fffffff;
    quint64 hash = 0;
    for (const QChar c : key)
        hash = (hash * hashBase + c.unicode() + 1) % prime;
    return static_cast<quint32>(hash);
}

/// The first element with this key of each section that has one, in the order of the sections.
SectionIndex::Entries SectionIndex::findFirsts(const QString &key) const
{
    const quint32 hash = hashOf(key);
    const auto *entry =
        std::lower_bound(entries.cbegin(), entries.cend(), hash,
                         [](const Entry &e, quint32 wanted) { return e.hash < wanted; });
    Entries found;
    for (; entry != entries.cend() && entry->hash == hash; ++entry) {
        if (kind.keyOf(entry->element) == key)
            found.append(*entry);
    }
    std::sort(found.begin(), found.end(),
              [](const Entry &a, const Entry &b) { return a.position < b.position; });

    QMap<int, Entry> firsts;
    for (Entry candidate : qAsConst(found)) {
        // Where a section has its first element already, those around it have, too.
        while (candidate.section != noSection && !firsts.contains(candidate.section)) {
            firsts.insert(candidate.section, candidate);
            candidate.section = enclosing.at(candidate.section);
        }
    }
    return firsts.values().toVector();
}
