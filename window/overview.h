// SPDX-License-Identifier: MIT
//
// What a source holds, in numbers for a picture.
#pragma once

#include "window/source.h"

#include <QString>
#include <QVector>

namespace window
{

struct Bar {
    QString label;
    int count;
};

struct Chart {
    QString title;
    QVector<Bar> bars;
};

/// Goods by group, by price, and findings by level; those that there are any of. In words: it is
/// for the thread of the window.
QVector<Chart> overviewOf(const Source &source);

} // namespace window
