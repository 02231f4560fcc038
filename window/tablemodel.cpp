// SPDX-License-Identifier: MIT
#include "window/tablemodel.h"

#include "words/language.h"

namespace window
{

QString cellText(const QString &text)
{
    constexpr int longest = 500;
    return text.left(longest).simplified();
}

void TableModel::startOver(int newRowCount, const std::function<void()> &change)
{
    beginResetModel();
    if (change)
        change();
    rows = newRowCount;
    endResetModel();
}

int TableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : rows;
}

int TableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(columns.size());
}

QVariant TableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Column &column = columns.at(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return cellText(column.text(index.row()));
    case Qt::TextAlignmentRole:
        return int(Qt::AlignVCenter | (column.isNumber ? Qt::AlignRight : Qt::AlignLeft));
    default:
        return {};
    }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return words::Words::tr(columns.at(section).heading);
}

} // namespace window
