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

/// The number that a text is. One that is none, or too large for a double, counts as 0.
double priceNumber(const QString &text);

/// A price as the source has it, or with a factor its product with the factor in priceFormat().
QString priceText(const QString &sourceText, std::optional<double> factor);

} // namespace exchange
