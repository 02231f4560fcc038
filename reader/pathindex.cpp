// SPDX-License-Identifier: MIT
#include "reader/pathindex.h"

#include "reader/tree.h"

#include <QCryptographicHash>

#include <algorithm>
#include <tuple>

static constexpr int noSection = -1;

/// Keys of one digest are the same: nobody can choose two that are not. Short ones stand for
/// themselves.
static QByteArray digestOf(const QString &key)
{
    constexpr int digestSize = 32;
    const QByteArray bytes(reinterpret_cast<const char *>(key.utf16()),
                           key.size() * static_cast<int>(sizeof(QChar)));
    return bytes.size() < digestSize ? bytes
                                     : QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

PathIndex::Path PathIndex::path(const QList<QDomNode> &sections, const QString &key)
{
    // Lists that nobody has changed share their data, and compare at once.
    if (sections != indexed)
        build(sections);
    const auto known = paths.constFind(key);
    if (known != paths.constEnd())
        return *known;

    Path path = {QLatin1String(""), Flaw::UnknownKey};
    if (const Node *const node = visitFirst(key)) {
        path.flaw = node->flaw;
        path.bottom = node->bottom;
        if (path.bottom != nullptr)
            path.text = names(*path.bottom).join(pathSeparator);
    }
    paths.insert(key, path);
    return path;
}

const PathIndex::Node *PathIndex::bottom(const QList<QDomNode> &sections, const QString &key)
{
    if (sections != indexed)
        build(sections);
    const Node *const node = visitFirst(key);
    return node != nullptr ? node->bottom : nullptr;
}

void PathIndex::clear()
{
    *this = PathIndex(kind);
}

void PathIndex::build(const QList<QDomNode> &sections)
{
    clear();
    indexed = sections;
    while (enclosing.size() < indexed.size()) {
        const int section = static_cast<int>(enclosing.size());
        enclosing.append(noSection);
        QString text;
        collect(indexed.at(section), section, text);
    }
    std::stable_sort(places.begin(), places.end(),
                     [](const Place &a, const Place &b) { return a.digest < b.digest; });
}

/// Adds the texts that it finds to `text`.
void PathIndex::collect(const QDomNode &parent, int section, QString &text)
{
    for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isText())
            text += child.nodeValue();
        const QDomElement element = child.toElement();
        if (element.isNull())
            continue;
        const Keyed keyed = kind.keyed(element);
        const auto place = places.size();
        if (!keyed.node.isNull())
            places.append({section, keyed.node, {}});
        const auto begin = text.size();
        if (kind.isDeep) {
            // What sections share is visited once: nested in each other, they could be very many.
            const int next = static_cast<int>(enclosing.size());
            const bool isNextSection = next < indexed.size() && element == indexed.at(next);
            if (isNextSection)
                enclosing.append(section);
            collect(element, isNextSection ? next : section, text);
        }
        if (!keyed.node.isNull())
            places[place].digest = digestOf(keyed.key ? *keyed.key : text.mid(begin));
    }
}

/// Where those of a digest begin, or those of them that are in this section or behind it.
PathIndex::Places::const_iterator PathIndex::find(const QByteArray &digest, int section) const
{
    return std::lower_bound(places.cbegin(), places.cend(), std::tie(digest, section),
                            [](const Place &place, const auto &wanted) {
                                return std::tie(place.digest, place.section) < wanted;
                            });
}

/// The first node with this key in each section that has one, by section.
QMap<int, QDomNode> PathIndex::firstNodes(const QString &key) const
{
    const QByteArray digest = digestOf(key);
    QMap<int, QDomNode> firsts;
    for (Places::const_iterator place = find(digest, noSection);
         place != places.cend() && place->digest == digest; ++place) {
        // Where a section has its first node already, those around it have, too.
        int section = place->section;
        while (section != noSection && !firsts.contains(section)) {
            firsts.insert(section, place->node);
            section = enclosing.at(section);
        }
    }
    return firsts;
}

/// The first node with this key in this section, for a kind that is not deep; null if there is
/// none.
QDomNode PathIndex::nodeIn(int section, const QString &key) const
{
    const QByteArray digest = digestOf(key);
    const Places::const_iterator place = find(digest, section);
    const bool isFound =
        place != places.cend() && place->section == section && place->digest == digest;
    return isFound ? place->node : QDomNode();
}

/// The first node with this key that has a path; without one, the last node, or null if there is
/// none.
const PathIndex::Node *PathIndex::visitFirst(const QString &key)
{
    const Node *node = nullptr;
    const QMap<int, QDomNode> found = firstNodes(key);
    for (auto first = found.cbegin();
         first != found.cend() && (node == nullptr || node->bottom == nullptr); ++first)
        node = visit(first.value(), first.key());
    return node;
}

/// The node with all above it, each looked at unless it is known.
const PathIndex::Node *PathIndex::visit(const QDomNode &first, int section)
{
    Way way;
    bool isKnown = false;
    for (QDomNode next = first; !next.isNull() && !isKnown;) {
        const auto [place, isNew] = nodes.try_emplace(identityOf(next));
        Node *const node = &place->second;
        isKnown = !isNew;
        if (isNew) {
            const Step step = kind.step(next);
            node->name = step.name;
            next = step.keyAbove ? nodeIn(section, *step.keyAbove) : step.above;
            if (step.keyAbove && next.isNull())
                node->flaw = Flaw::MissingParent;
        }
        if (!way.isEmpty() && node->name)
            way.last()->above = node;
        way.append(node);
    }
    if (isKnown)
        closeLoop(way);
    for (auto node = way.crbegin() + (isKnown ? 1 : 0); node != way.crend(); ++node) {
        const Node *const above = (*node)->above;
        if (hasName(*node))
            (*node)->bottom = *node;
        else if (above != nullptr && !(*node)->isInLoop)
            (*node)->bottom = above->bottom;
        if (above != nullptr && (*node)->flaw == Flaw::None)
            (*node)->flaw = above->flaw;
    }
    return way.first();
}

/// Marks the loop of a way that has come back to where it has been, if it has.
void PathIndex::closeLoop(const Way &way)
{
    const Way::const_iterator end = way.cend() - 1;
    const Way::const_iterator loop = std::find(way.cbegin(), end, way.last());
    // Where one has a name, the path begins elsewhere without those that have none.
    const bool isNamed = std::any_of(loop, end, hasName);
    std::for_each(loop, end, [=](Node *node) {
        node->isInLoop = true;
        node->flaw = Flaw::Loop;
        node->bottom = isNamed ? node : nullptr;
    });
}

QStringList PathIndex::names(const Node &bottom)
{
    QStringList names;
    const Node *loop = nullptr;
    for (const Node *next = &bottom; next != nullptr && next != loop; next = next->above) {
        names.append(next->name.value_or(QString()));
        if (next->isInLoop && loop == nullptr)
            loop = next;
    }
    while (!names.isEmpty() && names.first().isEmpty())
        names.removeFirst();
    std::reverse(names.begin(), names.end());
    return names;
}
