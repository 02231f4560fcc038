// SPDX-License-Identifier: MIT
#include "reader/sectionindex.h"

#include <algorithm>
#include <tuple>

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
    for (const Entry &entry : find(key)) {
        path = joined(namesOf(entry.element, entry.section));
        if (!path.isEmpty())
            break;
    }
    paths.insert(key, path);
    return path;
}

QDomElement SectionIndex::findIn(int section, const QString &key) const
{
    for (const Entry &entry : find(key)) {
        if (entry.section == section)
            return entry.element;
    }
    return {};
}

void SectionIndex::build()
{
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
            const QString key = kind.keyOf(element);
            if (!key.isNull())
                entries.append({qHash(key), section, element});
        }
        if (kind.atAnyDepth)
            collect(element, section);
    }
}

QVector<SectionIndex::Entry> SectionIndex::find(const QString &key) const
{
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
