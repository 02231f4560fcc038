// SPDX-License-Identifier: MIT
#pragma once

#include "window/desk.h"
#include "window/groupsmodel.h"
#include "window/tables.h"

#include <QWidget>

class QLineEdit;
class QSettings;
class QSplitter;
class QTableView;
class QTreeView;

namespace window
{

class TextView;

/// The table of goods, with the groups beside it and the description of the current one.
class GoodsPage : public QWidget
{
public:
    explicit GoodsPage(Desk &desk);

    /// Told when other goods are shown or chosen.
    std::function<void()> changed;

    /// Shows what is on the desk.
    void showSource();

    /// Shows all goods, and chooses those with this code. False if there are none.
    bool chooseCode(const QString &code);

    /// The places of the chosen goods in Source::goods, rising.
    QVector<int> chosen() const;

    int shownCount() const { return goods.rowCount(); }

    void filter(); ///< brings the keyboard to the filter
    void sortByCurrentColumn();

    QTableView &table() const { return *goodsView; }

    void save(QSettings &settings) const;
    void restore(const QSettings &settings);

private:
    void arrange(const QVector<int> &toChoose = {});
    void show(const QVector<int> &places, const QVector<int> &toChoose);
    void showDescription();

    Desk &desk;
    GoodsModel goods;
    GroupsModel groups;
    QLineEdit *filterField;
    QTreeView *groupsView;
    QTableView *goodsView;
    TextView *description;
    QSplitter *columns;
    QSplitter *rows;
};

} // namespace window
