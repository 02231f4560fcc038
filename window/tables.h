// SPDX-License-Identifier: MIT
//
// What the tables of the window show of a source.
#pragma once

#include "window/source.h"
#include "window/tablemodel.h"

#include <memory>

namespace window
{

using SourcePointer = std::shared_ptr<const Source>;

/// The goods, in an arrangement.
class GoodsModel : public TableModel
{
public:
    GoodsModel();

    void show(SourcePointer newSource, QVector<int> newPlaces);

    /// In Source::goods.
    int placeAt(int row) const { return places.at(row); }

private:
    const Good &good(int row) const { return source->goods.at(places.at(row)); }

    SourcePointer source = std::make_shared<Source>();
    QVector<int> places;
};

class OrdersModel : public TableModel
{
public:
    OrdersModel();

    void show(SourcePointer newSource);

private:
    const Order &order(int row) const { return source->orders.at(row); }

    SourcePointer source = std::make_shared<Source>();
};

/// The lines of an order.
class LinesModel : public TableModel
{
public:
    LinesModel();

    void show(const QVector<OrderLine> &newLines);

private:
    QVector<OrderLine> lines;
};

class DetailsModel : public TableModel
{
public:
    DetailsModel();

    void show(const QVector<KeyValue> &newDetails);

private:
    QVector<KeyValue> details;
};

/// How many findings there are of each kind that there are any of. The first row is all of them.
class KindsModel : public TableModel
{
public:
    KindsModel();

    void show(const SourcePointer &source);

    /// Nothing for all of them.
    std::optional<survey::Kind> kindAt(int row) const;

private:
    struct Row {
        survey::Kind kind;
        survey::Level level;
        int count;
    };

    QVector<Row> kinds;
    int count = 0;
};

/// The findings of a kind, or all.
class FindingsModel : public TableModel
{
public:
    FindingsModel();

    void show(SourcePointer newSource, std::optional<survey::Kind> kind);

    const survey::Finding &finding(int row) const
    {
        return source->survey.findings.at(places.at(row));
    }

    /// All that is shown, as a table with semicolons between its cells.
    QByteArray toCsv() const;

private:
    SourcePointer source = std::make_shared<Source>();
    QVector<int> places;
};

} // namespace window
