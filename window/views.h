// SPDX-License-Identifier: MIT
//
// What the views of all pages share.
#pragma once

#include "window/tablemodel.h"

#include <QAbstractItemView>
#include <QTableView>

namespace window
{

/// A table of rows, for `model`, which outlives it.
QTableView *tableView(TableModel &model, const QString &accessibleName);

/// The row that the keyboard is at; -1 if there is none.
int currentRow(const QAbstractItemView &view);

} // namespace window
