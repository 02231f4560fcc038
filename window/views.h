// SPDX-License-Identifier: MIT
//
// What the views of all pages share.
#pragma once

#include "window/tablemodel.h"

#include <QAbstractItemView>
#include <QSettings>
#include <QSplitter>
#include <QTableView>

namespace window
{

/// A table of rows, for `model`, which outlives it.
QTableView *tableView(TableModel &model, const QString &accessibleName);

/// The row that the keyboard is at; -1 if there is none.
int currentRow(const QAbstractItemView &view);

// The arrangement of a page, by the name of the splitter or table. Settings may hold anything.
void save(QSettings &settings, const QString &name, const QSplitter &splitter);
void save(QSettings &settings, const QString &name, const QTableView &table);
void restore(const QSettings &settings, const QString &name, QSplitter &splitter);
void restore(const QSettings &settings, const QString &name, QTableView &table);

} // namespace window
