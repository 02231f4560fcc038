// SPDX-License-Identifier: MIT
#include "window/goodspage.h"

#include "window/textview.h"
#include "window/views.h"
#include "words/language.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

using words::Words;

namespace window
{

GoodsPage::GoodsPage(Desk &desk)
    : desk(desk),
      filterField(new QLineEdit),
      groupsView(new QTreeView),
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
    goodsView->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    goodsView->horizontalHeader()->setSectionsClickable(true);

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

bool GoodsPage::chooseCode(const QString &code)
{
    constexpr int most = 1000; // more take a view too long
    QVector<int> places;
    const QVector<Good> &all = desk.source()->goods;
    for (int place = 0; place < all.size() && places.size() < most; ++place) {
        if (all.at(place).field(GoodField::Code) == code)
            places.append(place);
    }
    if (places.isEmpty())
        return false;
    filterField->clear();
    groupsView->setCurrentIndex({});
    arrange(places);
    return true;
}

QVector<int> GoodsPage::chosen() const
{
    QVector<int> places;
    for (const QModelIndex &index : goodsView->selectionModel()->selectedRows())
        places.append(goods.placeAt(index.row()));
    std::sort(places.begin(), places.end());
    return places;
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

void GoodsPage::arrange(const QVector<int> &toChoose)
{
    Arrangement arrangement;
    arrangement.text = filterField->text();
    arrangement.group = GroupsModel::groupAt(groupsView->currentIndex());
    const QHeaderView *const header = goodsView->horizontalHeader();
    const int column = header->sortIndicatorSection();
    if (column >= 0 && column < goodFieldCount)
        arrangement.sortedBy = GoodField(column);
    arrangement.order = header->sortIndicatorOrder();
    desk.arrange(arrangement,
                 [this, toChoose](const QVector<int> &places) { show(places, toChoose); });
}

void GoodsPage::show(const QVector<int> &places, const QVector<int> &toChoose)
{
    const int row = currentRow(*goodsView);
    const int column = std::max(goodsView->currentIndex().column(), 0);
    const QVector<int> current = !toChoose.isEmpty() ? toChoose
                                 : row >= 0          ? QVector<int>{goods.placeAt(row)}
                                                     : QVector<int>();
    goods.show(desk.source(), places);
    QItemSelection selection;
    for (int newRow = 0; newRow < goods.rowCount(); ++newRow) {
        if (!std::binary_search(current.cbegin(), current.cend(), goods.placeAt(newRow)))
            continue;
        const QModelIndex index = goods.index(newRow, column);
        if (selection.isEmpty())
            goodsView->setCurrentIndex(index);
        selection.select(index, index);
    }
    goodsView->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect |
                                                       QItemSelectionModel::Rows);
    if (!selection.isEmpty())
        goodsView->scrollTo(goodsView->currentIndex());
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
