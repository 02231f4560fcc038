// SPDX-License-Identifier: MIT
//
// A source as the window shows it: plain values, which no tree stands behind.
#pragma once

#include "export/observer.h"
#include "survey/filestate.h"
#include "survey/survey.h"
#include "window/goodfields.h"

#include <QString>
#include <QVector>

#include <array>
#include <optional>

namespace window
{

struct Good {
    std::array<QString, goodFieldCount> fields;
    QString description;
    survey::Extent extent = {};
    int group = -1; ///< in Source::groups; -1: it is in none

    const QString &field(GoodField field) const { return fields[std::size_t(field)]; }
    QString &field(GoodField field) { return fields[std::size_t(field)]; }
};

/// A value, by its key in the exchange file.
struct KeyValue {
    QString key;
    QString value;
};

struct OrderLine {
    QString code;
    QString name;
    QString unit;
    QString quantity;
    QString price;
    QString sum;
    survey::Extent extent = {};
    bool isExported = true;
};

struct Order {
    QString number;
    QString date;
    QString role; ///< of the partner
    QString comment;
    QString status;
    QString sum;
    QString requisites; ///< a line each
    QString partner;    ///< the name, or else the code
    QVector<KeyValue> partnerDetails;
    QVector<OrderLine> lines;
    survey::Extent extent = {};
    bool isLost = false; ///< wholly or in part, by `loss`
    exporter::Loss loss = exporter::Loss::NoPartner;
};

/// A group or category. It has no path: those of a long chain would be far larger than the source.
struct Group {
    QString name;
    int parent = -1;
    QVector<int> children;
    int goods = 0; ///< in it and below it
};

struct Source {
    QString path;
    survey::FileState state; ///< of the file, ahead of its reading
    bool purchase = false;   ///< its documents are read as purchases
    survey::Survey survey;
    QVector<Good> goods;   ///< in the order of their export
    QVector<Order> orders; ///< one for each document
    QVector<Group> groups; ///< each behind its parent

    /// How many goods have a first price below 1, 10, 100 and so on; the last are all others.
    std::array<int, 8> goodsByPrice = {};
    int goodsWithoutPrice = 0;
};

/// The good, or the order with its line, that the tables show; each is -1 if there is none.
struct Shown {
    int good = -1;
    int order = -1;
    int line = -1;
};

/// What is shown of the innermost element at a position of the source.
Shown shownAt(const Source &source, const SourcePosition &position);

/// The number that a price or a weight begins with, if there is one.
std::optional<double> numberIn(const QString &field);

} // namespace window
