// SPDX-License-Identifier: MIT
#pragma once

#include "window/source.h"

#include <QAbstractItemModel>

#include <memory>

namespace window
{

/// All goods, and the groups, each with the number of its goods.
class GroupsModel : public QAbstractItemModel
{
public:
    void show(std::shared_ptr<const Source> newSource);

    /// In Source::groups; -1 for all goods.
    static int groupAt(const QModelIndex &index);

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::shared_ptr<const Source> source = std::make_shared<Source>();
    QVector<int> tops; ///< the groups above all others
    QVector<int> rowsOfGroups;
};

} // namespace window
