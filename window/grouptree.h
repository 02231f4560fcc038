// SPDX-License-Identifier: MIT
#pragma once

#include "reader/pathindex.h"
#include "window/source.h"

#include <QHash>
#include <QVector>

#include <utility>

namespace window
{

/// The groups of a source. Those of one path are one, as they are in the exchange file. Each one of
/// a loop is at the top: to give it its path would take the square of the loop.
class GroupTree
{
public:
    /// The place of the group at the end of a path, which is added where it is not known yet.
    int placeOf(const PathIndex::Node &bottom);

    /// All groups, each with the number of these goods in it and below it.
    QVector<Group> counted(const QVector<Good> &goods) const;

private:
    int childOf(int parent, const QString &name);

    QVector<Group> groups;
    QHash<const PathIndex::Node *, int> places;
    QHash<std::pair<int, QString>, int> children;
};

} // namespace window
