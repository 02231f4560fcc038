// SPDX-License-Identifier: MIT
#pragma once

#include "window/source.h"

#include <QVector>
#include <Qt>

#include <atomic>
#include <optional>

namespace window
{

/// Which goods are shown, and in which order.
struct Arrangement {
    QString text;   ///< each word of it is in some field
    int group = -1; ///< they are in it or below it; -1: wherever they are
    std::optional<GoodField> sortedBy = {};
    Qt::SortOrder order = Qt::AscendingOrder;
};

/// The places of the goods in Source::goods. Where it is stopped, it may be anything.
QVector<int> arranged(const Source &source, const Arrangement &arrangement,
                      const std::atomic_bool &isStopped);

} // namespace window
