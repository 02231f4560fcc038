// SPDX-License-Identifier: MIT
#include "window/orderspage.h"

#include "window/harmless.h"
#include "window/settings.h"
#include "window/texts.h"
#include "window/views.h"
#include "words/language.h"

#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QVBoxLayout>

using words::Words;

namespace window
{

OrdersPage::OrdersPage()
    : ordersView(tableView(orders, Words::tr("Documents"))),
      linesView(tableView(lines, Words::tr("Lines of the document"))),
      detailsView(tableView(details, Words::tr("Partner"))),
      requisites(new QPlainTextEdit),
      reason(new QLabel),
      rows(new QSplitter(Qt::Vertical)),
      columns(new QSplitter)
{
    ordersView->setSelectionMode(QAbstractItemView::SingleSelection);
    requisites->setReadOnly(true);
    requisites->setTabChangesFocus(true);
    requisites->setAccessibleName(Words::tr("Requisites"));
    requisites->setPlaceholderText(Words::tr("No requisites"));
    reason->setWordWrap(true);
    reason->hide();

    auto *const below = new QWidget;
    auto *const belowLayout = new QVBoxLayout(below);
    belowLayout->setContentsMargins({});
    belowLayout->addWidget(reason);
    belowLayout->addWidget(columns);
    columns->addWidget(linesView);
    columns->addWidget(detailsView);
    columns->addWidget(requisites);
    columns->setStretchFactor(0, 3);
    columns->setStretchFactor(1, 2);
    columns->setStretchFactor(2, 1);
    rows->addWidget(ordersView);
    rows->addWidget(below);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(rows);

    connect(ordersView->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { showCurrent(); });
}

void OrdersPage::show(const SourcePointer &newSource)
{
    source = newSource;
    orders.show(source);
    if (orders.rowCount() > 0)
        ordersView->selectRow(0);
    showCurrent();
}

void OrdersPage::goTo(int order, int line)
{
    ordersView->selectRow(order);
    if (line >= 0)
        linesView->selectRow(line);
    (line >= 0 ? linesView : ordersView)->setFocus();
}

int OrdersPage::current() const
{
    return currentRow(*ordersView);
}

void OrdersPage::showCurrent()
{
    const int row = current();
    const Order order = row < 0 ? Order() : source->orders.at(row);
    lines.show(order.lines);
    details.show(order.partnerDetails);
    requisites->setPlainText(harmlessText(order.requisites));
    reason->setVisible(order.isLost);
    if (order.isLost)
        reason->setText(Words::tr("Not exported: %1").arg(sentence(order.loss)));
    if (changed)
        changed();
}

void OrdersPage::save(QSettings &settings) const
{
    window::save(settings, QStringLiteral("orders/rows"), *rows);
    window::save(settings, QStringLiteral("orders/columns"), *columns);
    window::save(settings, QStringLiteral("orders/table"), *ordersView);
    window::save(settings, QStringLiteral("orders/lines"), *linesView);
    window::save(settings, QStringLiteral("orders/partner"), *detailsView);
}

void OrdersPage::restore(const QSettings &settings)
{
    window::restore(settings, QStringLiteral("orders/rows"), *rows);
    window::restore(settings, QStringLiteral("orders/columns"), *columns);
    window::restore(settings, QStringLiteral("orders/table"), *ordersView);
    window::restore(settings, QStringLiteral("orders/lines"), *linesView);
    window::restore(settings, QStringLiteral("orders/partner"), *detailsView);
}

} // namespace window
