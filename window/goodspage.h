// SPDX-License-Identifier: MIT
#pragma once

#include "window/desk.h"
#include "window/groupsmodel.h"
#include "window/tables.h"

#include <QItemSelection>
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

    /// Shows all goods, and goes to this one of Source::goods.
    void goTo(int place);

    /// The places of the chosen goods in Source::goods, rising.
    QVector<int> chosen() const;

    int shownCount() const { return goods.rowCount(); }

    void filter(); ///< brings the keyboard to the filter
    void sortByCurrentColumn();
    void sortAsInSource();

    bool isColumnShown(int column) const;
    void showColumn(int column);
    void hideColumn(int column); ///< unless no other one is shown
    void showAllColumns();
    void hideCurrentColumn();
    void moveCurrentColumn(int step); ///< 1 to the right, -1 to the left

    QTableView &table() const { return *goodsView; }

    void save(QSettings &settings) const;
    void restore(const QSettings &settings);

private:
    /// `toChoose`: what is to be the current good then, in place of that which is.
    void arrange(std::optional<int> toChoose = {});
    void show(const QVector<int> &places, std::optional<int> toChoose);
    void showDescription();

    /// The rows that show any of these places, which are in rising order.
    QItemSelection rowsOf(const QVector<int> &places) const;

    /// The nearest column that is shown beside this one; -1 if there is none.
    int columnBeside(int column, int step) const;

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
