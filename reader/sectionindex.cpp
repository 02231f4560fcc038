// SPDX-License-Identifier: MIT
#include "reader/sectionindex.h"

#include <algorithm>
#include <tuple>

QVector<SectionIndex::Entry> SectionIndex::find(const QList<QDomNode> &sections, const QString &key)
{
    refresh(sections);
    const uint hash = qHash(key);
    const auto *entry =
        std::lower_bound(entries.cbegin(), entries.cend(), hash,
                         [](const Entry &e, uint wanted) { return e.hash < wanted; });
    QVector<Entry> found;
    for (; entry != entries.cend() && entry->hash == hash; ++entry) {
        const bool sectionIsNew = found.isEmpty() || found.last().section != entry->section;
        if (sectionIsNew && kind.keyOf(entry->element) == key)
            found.append(*entry);
    }
    return found;
}

QDomElement SectionIndex::findIn(const QList<QDomNode> &sections, int section, const QString &key)
{
    const QVector<Entry> found = find(sections, key);
    const auto *entry = std::find_if(found.cbegin(), found.cend(),
                                     [=](const Entry &e) { return e.section == section; });
    return entry != found.cend() ? entry->element : QDomElement();
}

std::optional<QString> SectionIndex::rememberedPath(const QList<QDomNode> &sections,
                                                    const QString &key)
{
    refresh(sections);
    const auto path = paths.constFind(key);
    return path != paths.constEnd() ? std::optional(*path) : std::nullopt;
}

void SectionIndex::refresh(const QList<QDomNode> &sections)
{
    // Lists that nobody has changed share their data, and compare at once.
    if (sections == indexed)
        return;
    indexed = sections;
    paths.clear();
    entries.clear();
    for (int i = 0; i < indexed.size(); ++i)
        collect(indexed.at(i), i);

    const auto place = [](const Entry &e) { return std::tie(e.hash, e.section); };
    std::stable_sort(entries.begin(), entries.end(),
                     [&](const Entry &a, const Entry &b) { return place(a) < place(b); });
    // Only the first element with a key is ever found, and there can be very many others.
    auto *const others =
        std::unique(entries.begin(), entries.end(), [&](const Entry &a, const Entry &b) {
            return place(a) == place(b) && kind.keyOf(a.element) == kind.keyOf(b.element);
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
            if (const std::optional<QString> key = kind.keyOf(element))
                entries.append({qHash(*key), section, element});
        }
        if (kind.atAnyDepth)
            collect(element, section);
    }
}
