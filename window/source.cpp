// SPDX-License-Identifier: MIT
#include "window/source.h"

#include <algorithm>
#include <cmath>

namespace window
{

Shown shownAt(const Source &source, const SourcePosition &position)
{
    Shown shown;
    SourcePosition innermost;
    const auto isFurtherIn = [&](const survey::Extent &extent) {
        const bool isIt =
            !(position < extent.begin) && position < extent.end && !(extent.begin < innermost);
        if (isIt)
            innermost = extent.begin;
        return isIt;
    };
    for (int good = 0; good < source.goods.size(); ++good) {
        if (isFurtherIn(source.goods.at(good).extent))
            shown = {good, -1, -1};
    }
    for (int order = 0; order < source.orders.size(); ++order) {
        if (isFurtherIn(source.orders.at(order).extent))
            shown = {-1, order, -1};
        const QVector<OrderLine> &lines = source.orders.at(order).lines;
        for (int line = 0; line < lines.size(); ++line) {
            if (isFurtherIn(lines.at(line).extent))
                shown = {-1, order, line};
        }
    }
    return shown;
}

std::optional<double> numberIn(const QString &field)
{
    bool isNumber = false;
    QString text = field.section(u';', 0, 0).replace(u',', u'.');
    const auto isSpace = [](QChar letter) { return letter.isSpace(); }; // also between digits
    text.truncate(int(std::remove_if(text.begin(), text.end(), isSpace) - text.begin()));
    const double number = text.toDouble(&isNumber);
    return isNumber && !std::isnan(number) ? std::optional(number) : std::nullopt;
}

} // namespace window
