// SPDX-License-Identifier: MIT
#include "window/grouptree.h"

namespace window
{

int GroupTree::placeOf(const PathIndex::Node &bottom)
{
    QVector<const PathIndex::Node *> unknown;
    const PathIndex::Node *node = &bottom;
    while (node != nullptr && !places.contains(node)) {
        unknown.append(node);
        node = node->isInLoop ? nullptr : node->above;
    }
    int place = places.value(node, -1);
    for (auto next = unknown.crbegin(); next != unknown.crend(); ++next) {
        place = childOf(place, (*next)->name.value_or(QString()));
        places.insert(*next, place);
    }
    return place;
}

int GroupTree::childOf(int parent, const QString &name)
{
    const auto known = children.constFind({parent, name});
    if (known != children.cend())
        return *known;
    const int place = int(groups.size());
    groups.append({name, parent, {}, 0});
    if (parent >= 0)
        groups[parent].children.append(place);
    children.insert({parent, name}, place);
    return place;
}

QVector<Group> GroupTree::counted(const QVector<Good> &goods) const
{
    QVector<Group> all = groups;
    for (const Good &good : goods) {
        if (good.group >= 0)
            ++all[good.group].goods;
    }
    // Each group stands behind its parent.
    for (auto place = all.size() - 1; place >= 0; --place) {
        const int parent = all.at(place).parent;
        if (parent >= 0)
            all[parent].goods += all.at(place).goods;
    }
    return all;
}

} // namespace window
