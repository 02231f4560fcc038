// SPDX-License-Identifier: MIT
#include "exchange/cleaning.h"

#include <cmath>
#include <utility>

namespace exchange
{

QString unchanged(QString text)
{
    return text;
}

QString withoutTabs(QString text)
{
    return text.replace(QLatin1Char('\t'), QLatin1Char(' '));
}

QString withoutBrackets(QString text)
{
    return withoutTabs(std::move(text))
        .replace(QLatin1Char('['), QLatin1Char('('))
        .replace(QLatin1Char(']'), QLatin1Char(')'));
}

QString simplified(QString text)
{
    return std::move(text).simplified();
}

QString priceFormat(double price)
{
    constexpr int significantDigits = 13;
    return QString::number(price, 'g', significantDigits);
}

Price readPrice(const QString &sourceText, std::optional<double> factor)
{
    // What is too large is read as infinity all the same.
    bool isRead = false;
    const double read = sourceText.toDouble(&isRead);
    const double number = (isRead ? read : 0.0) * factor.value_or(1.0);
    return {number, factor ? priceFormat(number) : sourceText, isRead && std::isfinite(number)};
}

} // namespace exchange
