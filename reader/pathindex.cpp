// SPDX-License-Identifier: MIT
#include "reader/pathindex.h"

#include <QCryptographicHash>
#include <QStringList>

#include <algorithm>
#include <utility>

static constexpr int noSection = -1;

/// Keys of one digest are the same: nobody can choose two that are not.
static QByteArray digestOf(const QString &key)
{
    return QCryptographicHash::hash(
        QByteArray::fromRawData(reinterpret_cast<const char *>(key.utf16()),
                                key.size() * static_cast<int>(sizeof(QChar))),
        QCryptographicHash::Sha256);
}

/// What tells a node from all others.
static const void *identity(const QDomNode &node)
{
    struct Access : QDomNode {
        explicit Access(const QDomNode &node) : QDomNode(node) {}
        const void *identity() const { return impl; }
    };
    return Access(node).identity();
}

PathIndex::Path PathIndex::path(const QList<QDomNode> &sections, const QString &key)
{
    // Lists that nobody has changed share their data, and compare at once.
    if (sections != indexed) {
        clear();
        indexed = sections;
        while (enclosing.size() < indexed.size()) {
            enclosing.append(noSection);
            collect(indexed.at(enclosing.size() - 1), enclosing.size() - 1);
        }
    }
    const auto known = paths.constFind(key);
    if (known != paths.constEnd())
        return *known;

    Path path = {QLatin1String(""), Flaw::UnknownKey};
    const QMap<int, QDomNode> found = firstNodes(key);
    for (auto node = found.cbegin(); node != found.cend() && path.text.isEmpty(); ++node)
        path = pathTo(visit(node.value(), node.key()));
    paths.insert(key, path);
    return path;
}

void PathIndex::clear()
{
    *this = PathIndex(kind);
}

void PathIndex::collect(const QDomNode &parent, int section)
{
    for (QDomElement element = parent.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement()) {
        const Keyed keyed = kind.keyed(element);
        if (!keyed.node.isNull())
            places[digestOf(keyed.key)].append({section, keyed.node});
        if (!kind.isDeep)
            continue;
        // What sections share is visited once: nested in each other, they could be very many.
        const int next = enclosing.size();
        const bool isNextSection = next < indexed.size() && element == indexed.at(next);
        if (isNextSection)
            enclosing.append(section);
        collect(element, isNextSection ? next : section);
    }
}

/// The first node with this key in each section that has one, by section.
QMap<int, QDomNode> PathIndex::firstNodes(const QString &key) const
{
    QMap<int, QDomNode> firsts;
    for (const Place &place : places.value(digestOf(key))) {
        // Where a section has its first node already, those around it have, too.
        int section = place.section;
        while (section != noSection && !firsts.contains(section)) {
            firsts.insert(section, place.node);
            section = enclosing.at(section);
        }
    }
    return firsts;
}

/// The first node with this key that is told in this section, and in none within it; null if there
/// is none.
QDomNode PathIndex::nodeIn(int section, const QString &key) const
{
    const QVector<Place> found = places.value(digestOf(key));
    const auto *place =
        std::lower_bound(found.cbegin(), found.cend(), section,
                         [](const Place &p, int wanted) { return p.section < wanted; });
    return place != found.cend() && place->section == section ? place->node : QDomNode();
}

/// The node with all above it, each looked at unless it is known.
const PathIndex::Node *PathIndex::visit(const QDomNode &first, int section)
{
    QVector<Node *> way;
    bool isKnown = false;
    for (QDomNode next = first; !next.isNull() && !isKnown;) {
        const auto [place, isNew] = nodes.try_emplace(identity(next));
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
    if (isKnown) {
        auto *const end = way.end() - 1;
        auto *const loop = std::find(way.begin(), end, way.last());
        // Where one has a name, the path begins elsewhere without those that have none.
        const bool isNamed = std::any_of(loop, end, hasName);
        std::for_each(loop, end, [=](Node *node) {
            node->isInLoop = true;
            node->flaw = Flaw::Loop;
            node->bottom = isNamed ? node : nullptr;
        });
    }
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

PathIndex::Path PathIndex::pathTo(const Node *node)
{
    QStringList names;
    const Node *loop = nullptr;
    for (const Node *next = node->bottom; next != nullptr && next != loop; next = next->above) {
        names.append(next->name.value_or(QString()));
        if (next->isInLoop && loop == nullptr)
            loop = next;
    }
    while (!names.isEmpty() && names.first().isEmpty())
        names.removeFirst();
    std::reverse(names.begin(), names.end());
    return {QLatin1String("") + names.join(pathSeparator), node->flaw};
}
