// SPDX-License-Identifier: MIT
//
// The words of the exchange file and of the goods rows. docs/exchange-format.md and
// docs/goods-rows.md tell what they mean.
#pragma once

#include <QLatin1String>
#include <QString>
#include <QVector>

#include <cstddef>

namespace exchange
{

/// An ASCII literal that needs no conversion ahead of its use.
constexpr QLatin1String operator""_l1(const char *text, std::size_t size) noexcept
{
    return QLatin1String(text, static_cast<int>(size));
}

/// The first line of every exchange file.
constexpr QLatin1String fileHeader = "Ryk data for exchange"_l1;

/// The marker lines around a block.
struct Block {
    QLatin1String begin;
    QLatin1String end;
};

constexpr Block goodsBlock{"##goods"_l1, "##endgoods"_l1};
constexpr Block partnerBlock{"##partner"_l1, "##endpartner"_l1};
constexpr Block orderBlock{"##order"_l1, "##endorder"_l1};
constexpr Block itemBlock{"##item"_l1, "##enditem"_l1};

/// Ends the lines of one order.
constexpr QLatin1String closeOrder = "##closeorder"_l1;

/// The marker lines around a free text, the last thing in its block.
constexpr Block freeText{"--- begin ---"_l1, "--- end ---"_l1};

// Keys of more than one kind of block.
constexpr QLatin1String codeKey = "code:"_l1; // the first line of goods and partner blocks
constexpr QLatin1String nameKey = "name:"_l1;
constexpr QLatin1String priceKey = "price:"_l1;

/// Where a value goes: its code in a goods row and its key in the exchange file. Either may be
/// empty: the value does not go there.
struct Target {
    QLatin1String rowCode;
    QLatin1String key;
};

/// A value that no goods row has.
constexpr Target lineOnly(QLatin1String key)
{
    return {{}, key};
}

/// A value that the exchange file does not have.
constexpr Target rowOnly(QLatin1String rowCode)
{
    return {rowCode, {}};
}

// Targets of several tables. One that a single table fills stands there.
namespace target
{
constexpr Target article{"DART"_l1, "article:"_l1};
constexpr Target name{"DP8"_l1, nameKey};
constexpr Target barcode{"DSC"_l1, "barcode:"_l1};
constexpr Target group{"DP6"_l1, "group:"_l1};
constexpr Target unit{"DP10"_l1, "unit:"_l1};
} // namespace target

/// A value on its way out. The goods row and the exchange file may get different forms of it.
struct FieldValue {
    Target target;
    QString rowText;
    QString lineText;
};

using FieldValues = QVector<FieldValue>;

} // namespace exchange
