// SPDX-License-Identifier: MIT
//
// How a value is cleaned or formatted before it goes out.
#pragma once

#include <QString>

#include <optional>

namespace exchange
{

using Cleaning = QString (*)(QString text);

/// The text as it stands.
QString unchanged(QString text);

/// Each tab becomes one blank; nothing else changes.
QString withoutTabs(QString text);

/// withoutTabs(), and square brackets become parentheses.
QString withoutBrackets(QString text);

/// No white space at the ends, one blank for every run of it inside.
QString simplified(QString text);

/// A price as text: up to 13 significant digits, "." as the decimal point, no trailing zeros,
/// exponent form for very large and very small numbers.
QString priceFormat(double price);

/// A price of a source.
struct Price {
    double number; ///< 0 where the text is no number, or one too large for a double
    QString text;  ///< as in the source, or the product with a factor in priceFormat()
    bool isNumber; ///< false also for infinity and what is called nan
};

/// Reads a price, and multiplies it by `factor` if there is one.
Price readPrice(const QString &sourceText, std::optional<double> factor);

} // namespace exchange
