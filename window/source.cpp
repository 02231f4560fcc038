// SPDX-License-Identifier: MIT
#include "window/source.h"

#include <cmath>

namespace window
{

std::optional<double> numberIn(const QString &field)
{
    bool isNumber = false;
    QString text = field.section(u';', 0, 0).trimmed();
    const double number = text.replace(u',', u'.').toDouble(&isNumber);
    return isNumber && !std::isnan(number) ? std::optional(number) : std::nullopt;
}

} // namespace window
