// SPDX-License-Identifier: MIT
#include "reader/sectionindex.h"

#include "reader/childelements.h"
#include "reader/text.h"

#include <algorithm>
#include <utility>

static constexpr int noSection = -1;

QString SectionIndex::path(const QList<QDomNode> &sections, const QString &key,
                           const StepOf &stepOf)
{
    // Lists that nobody has changed share their data, and compare at once.
    if (sections != indexed) {
        indexed = sections;
        build();
    }
    const auto known = paths.constFind(key);
    if (known != paths.constEnd())
        return *known;

    QString path = QLatin1String("");
    for (const Entry &entry : findFirsts(key)) {
        const QDomNode found =
            kind.attribute.isEmpty() ? entry.element.parentNode() : QDomNode(entry.element);
        path = ancestors.path(found,
                              [&](const QDomNode &node) { return stepOf(node, entry.section); });
        if (!path.isEmpty())
            break;
    }
    paths.insert(key, path);
    return path;
}

QDomElement SectionIndex::findIn(int section, const QString &key) const
{
    const std::pair<quint32, int> place(hashOf(QStringRef(&key)), section);
    const auto *entry =
        std::lower_bound(entries.cbegin(), entries.cend(), place,
                         [](const Entry &e, const auto &wanted) { return e.place() < wanted; });
    for (; entry != entries.cend() && entry->place() == place; ++entry) {
        if (hasKey(*entry, key))
            return entry->element;
    }
    return {};
}

void SectionIndex::clear()
{
    indexed.clear();
    build();
}

void SectionIndex::build()
{
    paths.clear();
    ancestors.clear();
    entries = {};
    enclosing.clear();
    while (enclosing.size() < indexed.size()) {
        const int section = enclosing.size();
        enclosing.append(noSection);
        if (kind.attribute.isEmpty())
            collectByText(indexed.at(section), section, nullptr);
        else
            collectByAttribute(section);
    }
    std::sort(entries.begin(), entries.end(), [](const Entry &a, const Entry &b) {
        return std::make_pair(a.place(), a.position) < std::make_pair(b.place(), b.position);
    });
}

void SectionIndex::collectByAttribute(int section)
{
    for (const QDomElement &element : ChildElements(indexed.at(section), kind.tag)) {
        const QDomAttr attribute = element.attributes().namedItem(kind.attribute).toAttr();
        if (attribute.isNull())
            continue;
        const QString key = attribute.value();
        entries.append({hashOf(QStringRef(&key)), section, entries.size(), element});
    }
}

/// `text` collects that of the elements around; null outside all that have a key.
void SectionIndex::collectByText(const QDomNode &parent, int section, QString *text)
{
    for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (text != nullptr && child.isText())
            *text += child.nodeValue();
        const QDomElement element = child.toElement();
        if (element.isNull())
            continue;

        // What sections share is visited once: nested in each other, they could be very many.
        const int next = enclosing.size();
        const bool isNextSection = next < indexed.size() && element == indexed.at(next);
        if (isNextSection)
            enclosing.append(section);
        const int innerSection = isNextSection ? next : section;

        if (element.tagName() != kind.tag) {
            collectByText(element, innerSection, text);
            continue;
        }
        const int position = entries.size();
        entries.append({0, section, position, element});
        // Elements with a key can be nested, too.
        QString ownText;
        QString *const innerText = text == nullptr ? &ownText : text;
        const int begin = innerText->size();
        collectByText(element, innerSection, innerText);
        entries[position].hash = hashOf(innerText->midRef(begin));
    }
}

/// A polynomial modulo a prime: without its base nobody can choose keys of one hash.
quint32 SectionIndex::hashOf(const QStringRef &key) const
{
    constexpr quint64 prime = 0x7fffffff;
    quint64 hash = 0;
    for (const QChar c : key)
        hash = (hash * hashBase + c.unicode() + 1) % prime;
    return static_cast<quint32>(hash);
}

bool SectionIndex::hasKey(const Entry &entry, const QString &key) const
{
    return key == (kind.attribute.isEmpty()
                       ? textOf(entry.element)
                       : entry.element.attributes().namedItem(kind.attribute).nodeValue());
}

/// The first element with this key of each section that has one, in the order of the sections.
SectionIndex::Entries SectionIndex::findFirsts(const QString &key) const
{
    const quint32 hash = hashOf(QStringRef(&key));
    const auto *entry =
        std::lower_bound(entries.cbegin(), entries.cend(), hash,
                         [](const Entry &e, quint32 wanted) { return e.hash < wanted; });
    Entries found;
    for (; entry != entries.cend() && entry->hash == hash; ++entry) {
        const bool sectionIsNew = found.isEmpty() || found.last().section != entry->section;
        if (sectionIsNew && hasKey(*entry, key))
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
