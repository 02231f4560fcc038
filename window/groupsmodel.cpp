// SPDX-License-Identifier: MIT
#include "window/groupsmodel.h"

#include "window/tablemodel.h"
#include "words/language.h"

#include <utility>

using words::Words;

namespace window
{

// The id of an index is the place of its group and one more; that of all goods is 0.

int GroupsModel::groupAt(const QModelIndex &index)
{
    return index.isValid() ? int(index.internalId()) - 1 : -1;
}

void GroupsModel::show(std::shared_ptr<const Source> newSource)
{
    beginResetModel();
    source = std::move(newSource);
    tops.clear();
    rowsOfGroups.fill(0, source->groups.size());
    for (int place = 0; place < source->groups.size(); ++place) {
        const Group &group = source->groups.at(place);
        if (group.parent < 0) {
            tops.append(place);
            rowsOfGroups[place] = int(tops.size()); // behind all goods
        }
        for (int row = 0; row < group.children.size(); ++row)
            rowsOfGroups[group.children.at(row)] = row;
    }
    endResetModel();
}

QModelIndex GroupsModel::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || row >= rowCount(parent) || column < 0 || column >= columnCount(parent))
        return {};
    int group = -1;
    if (parent.isValid())
        group = source->groups.at(groupAt(parent)).children.at(row);
    else if (row > 0)
        group = tops.at(row - 1);
    return createIndex(row, column, quintptr(group) + 1);
}

QModelIndex GroupsModel::parent(const QModelIndex &index) const
{
    const int group = groupAt(index);
    const int above = group < 0 ? -1 : source->groups.at(group).parent;
    return above < 0 ? QModelIndex() : createIndex(rowsOfGroups.at(above), 0, quintptr(above) + 1);
}

int GroupsModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return 1 + int(tops.size());
    const int group = groupAt(parent);
    return group < 0 || parent.column() > 0 ? 0 : int(source->groups.at(group).children.size());
}

int GroupsModel::columnCount(const QModelIndex & /*parent*/) const
{
    return 2;
}

QVariant GroupsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::TextAlignmentRole))
        return {};
    const bool isNumber = index.column() > 0;
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignVCenter | (isNumber ? Qt::AlignRight : Qt::AlignLeft));
    const int group = groupAt(index);
    if (group < 0)
        return isNumber ? QVariant(int(source->goods.size())) : Words::tr("All goods");
    return isNumber ? QVariant(source->groups.at(group).goods)
                    : cellText(source->groups.at(group).name);
}

QVariant GroupsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == 0 ? Words::tr("Group") : Words::tr("Goods");
}

} // namespace window
