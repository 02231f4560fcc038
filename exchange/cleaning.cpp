// SPDX-License-Identifier: MIT
#include "exchange/cleaning.h"

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

double priceNumber(const QString &text)
{
    // What is too large is read as infinity all the same.
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber ? number : 0.0;
}

QString priceText(const QString &sourceText, std::optional<double> factor)
{
    return factor ? priceFormat(priceNumber(sourceText) * *factor) : sourceText;
}

} // namespace exchange
