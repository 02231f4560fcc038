// SPDX-License-Identifier: MIT
#include "window/goodspage.h"

#include "window/settings.h"
#include "window/textview.h"
#include "window/views.h"
#include "words/language.h"

#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSplitter>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

using words::Words;

namespace window
{

/// A tree that is expanded no deeper than the view bears, which calls itself for each level.
class GroupsView : public QTreeView
{
protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        constexpr int levels = 50;
        if (event->key() == Qt::Key_Asterisk)
            expandRecursively(currentIndex(), levels);
        else
            QTreeView::keyPressEvent(event);
    }
};

/// A field that leaves the keys of actions to them, also those that would mean something in it.
class FilterField : public QLineEdit
{
protected:
    bool event(QEvent *event) override
    {
        if (event->type() != QEvent::ShortcutOverride)
            return QLineEdit::event(event);
        const auto *const pressed = dynamic_cast<QKeyEvent *>(event);
        const QKeySequence keys(int(pressed->modifiers()) + pressed->key());
        const QList<QAction *> actions = window()->findChildren<QAction *>();
        const bool isTaken = std::any_of(actions.cbegin(), actions.cend(),
                                         [&](QAction *one) { return one->shortcut() == keys; });
        return !isTaken && QLineEdit::event(event);
    }
};

GoodsPage::GoodsPage(Desk &desk)
    : desk(desk),
      filterField(new FilterField),
      groupsView(new GroupsView),
      goodsView(tableView(goods, Words::tr("Goods"))),
      description(new TextView),
      columns(new QSplitter),
      rows(new QSplitter(Qt::Vertical))
{
    filterField->setPlaceholderText(Words::tr("Filter: words of any column"));
    filterField->setAccessibleName(Words::tr("Filter"));
    filterField->setClearButtonEnabled(true);
    filterField->setMaxLength(200);
    groupsView->setModel(&groups);
    groupsView->setAccessibleName(Words::tr("Groups"));
    groupsView->setUniformRowHeights(true);
    groupsView->header()->setStretchLastSection(false);
    groupsView->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    groupsView->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    description->setAccessibleName(Words::tr("Description"));
    description->setPlaceholderText(Words::tr("No description"));
    goodsView->horizontalHeader()->setSortIndicatorShown(true);
    goodsView->horizontalHeader()->setSectionsClickable(true);
    sortAsInSource();

    rows->addWidget(goodsView);
    rows->addWidget(description);
    rows->setStretchFactor(0, 3);
    rows->setStretchFactor(1, 1);
    auto *const right = new QWidget;
    auto *const rightLayout = new QVBoxLayout(right);
    rightLayout->setContentsMargins({});
    rightLayout->addWidget(filterField);
    rightLayout->addWidget(rows);
    columns->addWidget(groupsView);
    columns->addWidget(right);
    columns->setStretchFactor(1, 1);
    constexpr int letters = 32; // of a group, at first
    const int width = letters * fontMetrics().averageCharWidth();
    columns->setSizes({width, 3 * width});
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(columns);

    connect(filterField, &QLineEdit::textChanged, this, [this] { arrange(); });
    connect(filterField, &QLineEdit::returnPressed, goodsView, [this] { goodsView->setFocus(); });
    connect(groupsView->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this] { arrange(); });
    connect(goodsView->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this,
            [this] { arrange(); });
    connect(goodsView->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this] { showDescription(); });
    connect(goodsView->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (changed)
            changed();
    });
}

void GoodsPage::showSource()
{
    groups.show(desk.source());
    show({}, {});
    constexpr int mostOpened = 30; // groups, at first sight
    if (groups.rowCount() <= mostOpened)
        groupsView->expandToDepth(0);
    arrange();
}

void GoodsPage::goTo(int place)
{
    filterField->clear();
    groupsView->setCurrentIndex(groups.index(0, 0));
    arrange(place);
    goodsView->setFocus();
}

QVector<int> GoodsPage::chosen() const
{
    // The toolkit looks through all ranges for each row of them.
    QVector<int> places;
    for (const QItemSelectionRange &range : goodsView->selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            places.append(goods.placeAt(row));
    }
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

QItemSelection GoodsPage::rowsOf(const QVector<int> &places) const
{
    QItemSelection ranges;
    const auto isWanted = [&](int row) {
        return row < goods.rowCount() &&
               std::binary_search(places.cbegin(), places.cend(), goods.placeAt(row));
    };
    const int lastColumn = goods.columnCount() - 1;
    for (int row = 0; !places.isEmpty() && row < goods.rowCount(); ++row) {
        const int first = row;
        while (isWanted(row))
            ++row;
        if (row > first)
            ranges.append({goods.index(first, 0), goods.index(row - 1, lastColumn)});
    }
    return ranges;
}

void GoodsPage::filter()
{
    filterField->setFocus(Qt::ShortcutFocusReason);
    filterField->selectAll();
}

void GoodsPage::sortByCurrentColumn()
{
    const QModelIndex current = goodsView->currentIndex();
    if (!current.isValid())
        return;
    QHeaderView *const header = goodsView->horizontalHeader();
    const bool isRising = header->sortIndicatorSection() == current.column() &&
                          header->sortIndicatorOrder() == Qt::AscendingOrder;
    header->setSortIndicator(current.column(), isRising ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void GoodsPage::sortAsInSource()
{
    goodsView->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
}

bool GoodsPage::isColumnShown(int column) const
{
    return !goodsView->isColumnHidden(column);
}

void GoodsPage::showColumn(int column)
{
    goodsView->showColumn(column);
    if (goodsView->columnWidth(column) == 0)
        goodsView->resizeColumnToContents(column);
}

void GoodsPage::hideColumn(int column)
{
    int beside = columnBeside(column, 1);
    if (beside < 0)
        beside = columnBeside(column, -1);
    if (beside < 0)
        return;
    // Or else the keyboard would be in a column that nobody sees.
    const QModelIndex current = goodsView->currentIndex();
    if (current.column() == column)
        goodsView->selectionModel()->setCurrentIndex(current.siblingAtColumn(beside),
                                                     QItemSelectionModel::NoUpdate);
    goodsView->hideColumn(column);
}

void GoodsPage::showAllColumns()
{
    for (int column = 0; column < goods.columnCount(); ++column)
        showColumn(column);
}

void GoodsPage::hideCurrentColumn()
{
    if (goodsView->currentIndex().isValid())
        hideColumn(goodsView->currentIndex().column());
}

void GoodsPage::moveCurrentColumn(int step)
{
    const QModelIndex current = goodsView->currentIndex();
    const int beside = current.isValid() ? columnBeside(current.column(), step) : -1;
    if (beside < 0)
        return;
    QHeaderView *const header = goodsView->horizontalHeader();
    header->moveSection(header->visualIndex(current.column()), header->visualIndex(beside));
    goodsView->scrollTo(current);
}

int GoodsPage::columnBeside(int column, int step) const
{
    const QHeaderView *const header = goodsView->horizontalHeader();
    int place = header->visualIndex(column);
    do
        place += step;
    while (place >= 0 && place < header->count() && !isColumnShown(header->logicalIndex(place)));
    return header->logicalIndex(place);
}

void GoodsPage::arrange(std::optional<int> toChoose)
{
    Arrangement arrangement;
    arrangement.text = filterField->text();
    arrangement.group = GroupsModel::groupAt(groupsView->currentIndex());
    const QHeaderView *const header = goodsView->horizontalHeader();
    const int column = header->sortIndicatorSection();
    if (column >= 0 && column < goods.columnCount())
        arrangement.sortedBy = goodFields[std::size_t(column)].field;
    arrangement.order = header->sortIndicatorOrder();
    desk.arrange(arrangement,
                 [this, toChoose](const QVector<int> &places) { show(places, toChoose); });
}

void GoodsPage::show(const QVector<int> &places, std::optional<int> toChoose)
{
    const int row = currentRow(*goodsView);
    const int column = std::max(goodsView->currentIndex().column(), 0);
    const QVector<int> toSelect = toChoose ? QVector<int>{*toChoose} : chosen();
    if (!toChoose && row >= 0)
        toChoose = goods.placeAt(row);
    goods.show(desk.source(), places);
    QItemSelectionModel *const selection = goodsView->selectionModel();
    selection->select(rowsOf(toSelect), QItemSelectionModel::ClearAndSelect);
    const auto newRow = toChoose ? places.indexOf(*toChoose) : -1;
    if (newRow >= 0) {
        // The view itself would heed the keys that are held down.
        selection->setCurrentIndex(goods.index(int(newRow), column), QItemSelectionModel::NoUpdate);
        goodsView->scrollTo(goodsView->currentIndex());
    }
    showDescription();
    if (changed)
        changed();
}

void GoodsPage::showDescription()
{
    const int row = currentRow(*goodsView);
    description->showText(row < 0 ? QString()
                                  : desk.source()->goods.at(goods.placeAt(row)).description);
}

void GoodsPage::save(QSettings &settings) const
{
    window::save(settings, QStringLiteral("goods/columns"), *columns);
    window::save(settings, QStringLiteral("goods/rows"), *rows);
    window::save(settings, QStringLiteral("goods/table"), *goodsView);
}

void GoodsPage::restore(const QSettings &settings)
{
    window::restore(settings, QStringLiteral("goods/columns"), *columns);
    window::restore(settings, QStringLiteral("goods/rows"), *rows);
    window::restore(settings, QStringLiteral("goods/table"), *goodsView);
}

} // namespace window
