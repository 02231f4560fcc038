// SPDX-License-Identifier: MIT
#include "reader/ancestorpaths.h"

#include <QStringList>
#include <QVector>

#include <algorithm>

/// What tells a node from all others.
static const void *identity(const QDomNode &node)
{
    struct Access : QDomNode {
        explicit Access(const QDomNode &node) : QDomNode(node) {}
        const void *identity() const { return impl; }
    };
    return Access(node).identity();
}

QString AncestorPaths::path(const QDomNode &start, const StepOf &stepOf)
{
    // A node without a name of its own has the path of the next one above. In a loop the path
    // would begin elsewhere, too.
    QVector<Node *> nameless;
    Node *node = find(start, stepOf);
    while (node != nullptr && !node->path && !node->isInLoop &&
           node->name.value_or(QString()).isEmpty()) {
        nameless.append(node);
        node = node->above;
    }
    QString path;
    if (node != nullptr)
        path = node->path ? *node->path : walk(node);
    for (Node *other : qAsConst(nameless))
        other->path = path;
    return path;
}

/// The node with all above it, each looked at unless it is known. Null for a null node.
AncestorPaths::Node *AncestorPaths::find(const QDomNode &start, const StepOf &stepOf)
{
    QVector<Node *> way;
    for (QDomNode next = start; !next.isNull();) {
        const auto [place, isNew] = nodes.try_emplace(identity(next));
        Node *const node = &place->second;
        if (isNew) {
            Step step = stepOf(next);
            node->name = std::move(step.name);
            next = step.above;
        }
        if (!way.isEmpty() && node->name)
            way.last()->above = node;
        if (!isNew) {
            auto *const loop = std::find(way.begin(), way.end(), node);
            std::for_each(loop, way.end(), [](Node *n) { n->isInLoop = true; });
            return way.isEmpty() ? node : way.first();
        }
        way.append(node);
    }
    return way.value(0);
}

/// The path to a node that has a name or is in a loop.
QString AncestorPaths::walk(Node *node)
{
    QStringList names;
    const Node *loop = nullptr;
    const Node *next = node;
    do {
        names.append(next->name.value_or(QString()));
        if (next->isInLoop && loop == nullptr)
            loop = next;
        next = next->above;
    } while (next != nullptr && next != loop);

    while (!names.isEmpty() && names.first().isEmpty())
        names.removeFirst();
    std::reverse(names.begin(), names.end());
    node->path = names.join(QLatin1String(" \\ "));
    if (names.isEmpty()) {
        for (Node *other = node->above; other != node; other = other->above)
            other->path = node->path; // a loop without names has many ways in
    }
    return *node->path;
}
