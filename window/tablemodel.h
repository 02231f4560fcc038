// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QString>
#include <QVector>

#include <functional>

namespace window
{

/// A table whose cells are asked for by row.
class TableModel : public QAbstractTableModel
{
public:
    struct Column {
        const char *heading; ///< in the words of the code
        std::function<QString(int row)> text;
        int width = 12;        ///< at first, in characters
        bool isNumber = false; ///< stands at the right
    };

    explicit TableModel(QVector<Column> columns) : columns(std::move(columns)) {}

    /// There is something else to show, in so many rows.
    void startOver(int newRowCount, const std::function<void()> &change = {});

    /// A cell as a program gets it: whole, whatever is in it.
    QString text(int row, int column) const { return columns.at(column).text(row); }

    int widthOf(int column) const { return columns.at(column).width; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVector<Column> columns;
    int rows = 0;
};

/// A text as a cell shows it: one line, and not long, since a view measures all of it.
QString cellText(const QString &text);

} // namespace window
