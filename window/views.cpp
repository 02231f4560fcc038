// SPDX-License-Identifier: MIT
#include "window/views.h"

#include <QHeaderView>

#include <algorithm>

namespace window
{

QTableView *tableView(TableModel &model, const QString &accessibleName)
{
    auto *const view = new QTableView;
    view->setModel(&model);
    view->setAccessibleName(accessibleName);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setTabKeyNavigation(false); // which is for the next view
    view->setAlternatingRowColors(true);
    view->setWordWrap(false);
    view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    // Windows shows it hardly at all where the keyboard is elsewhere.
    QPalette palette = view->palette();
    for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText})
        palette.setColor(QPalette::Inactive, role, palette.color(QPalette::Active, role));
    view->setPalette(palette);
    view->verticalHeader()->hide();
    view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view->verticalHeader()->setDefaultSectionSize(view->fontMetrics().height() * 3 / 2);
    view->horizontalHeader()->setSectionsMovable(true);
    view->horizontalHeader()->setStretchLastSection(true);
    view->horizontalHeader()->setHighlightSections(false);
    for (int column = 0; column < model.columnCount(); ++column) {
        const int width = model.widthOf(column) * view->fontMetrics().averageCharWidth();
        view->setColumnWidth(column,
                             std::max(width, view->horizontalHeader()->sectionSizeHint(column)));
    }
    return view;
}

int currentRow(const QAbstractItemView &view)
{
    return view.currentIndex().isValid() ? view.currentIndex().row() : -1;
}

} // namespace window
