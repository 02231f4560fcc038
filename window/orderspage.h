// SPDX-License-Identifier: MIT
#pragma once

#include "window/tables.h"

#include <QWidget>

#include <functional>

class QLabel;
class QPlainTextEdit;
class QSettings;
class QSplitter;
class QTableView;

namespace window
{

/// The documents, with the lines and the partner of the current one.
class OrdersPage : public QWidget
{
public:
    OrdersPage();

    /// Told when another order is chosen.
    std::function<void()> changed;

    void show(const SourcePointer &newSource);

    /// Goes to this one of Source::orders, and to this line of it; -1: to none.
    void goTo(int order, int line);

    /// In Source::orders; -1 if there is none.
    int current() const;

    void save(QSettings &settings) const;
    void restore(const QSettings &settings);

private:
    void showCurrent();

    SourcePointer source = std::make_shared<Source>();
    OrdersModel orders;
    LinesModel lines;
    DetailsModel details;
    QTableView *ordersView;
    QTableView *linesView;
    QTableView *detailsView;
    QPlainTextEdit *requisites;
    QLabel *reason;
    QSplitter *rows;
    QSplitter *columns;
};

} // namespace window
