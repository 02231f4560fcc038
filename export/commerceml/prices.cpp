// SPDX-License-Identifier: MIT
#include "export/commerceml/walks.h"
#include "reader/commxmlreader.h"
#include "reader/tree.h"
#include "reader/vocabulary.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>
#include <utility>

using namespace commerceml;
using namespace exchange;
using namespace exporter;

namespace
{

/// The goods row has a place for this many prices, by position in the source; the rest is not read.
constexpr QLatin1String priceRowCodes[] = {
    "DC1"_l1, "DC2"_l1, "DC3"_l1, "DC4"_l1, "DC5"_l1,
};

/// The highest prices, highest first, have these keys; lower ones are not written.
constexpr QLatin1String priceKeys[] = {priceKey, "price_discount:"_l1};

/// Falling order. What is not a number compares with nothing and comes last.
bool isHigher(double left, double right)
{
    return std::isnan(right) ? !std::isnan(left) : left > right;
}

/// The prices of an offer: each by its position for the goods row, then the highest for the
/// exchange file.
FieldValues readPrices(const Export &to, const ChildLookup &offer, std::optional<double> factor)
{
    FieldValues values;
    QVector<double> numbers;
    const auto *rowCode = std::begin(priceRowCodes);
    bool isDropped = false;
    const QDomElement list = offer.first(QStringLiteral("Цены"));
    for (const QDomElement &price : childElements(list, QStringLiteral("Цена"))) {
        const QDomElement unitPrice = price.firstChildElement(unitPriceElement);
        if (rowCode == std::end(priceRowCodes)) {
            if (unitPrice.isNull())
                continue;
            isDropped = true;
            break;
        }
        if (!unitPrice.isNull()) {
            const QString text = textOf(unitPrice);
            const Price read = readPrice(text, factor);
            if (!read.isNumber)
                to.doubted(unitPrice, Doubt::PriceNoNumber);
            values.append({rowOnly(*rowCode), read.text, {}});
            numbers.append(read.number);
        }
        ++rowCode;
    }

    std::sort(numbers.begin(), numbers.end(), isHigher);
    const auto *key = std::begin(priceKeys);
    for (const double number : std::as_const(numbers)) {
        if (key == std::end(priceKeys)) {
            isDropped = true;
            break;
        }
        values.append({lineOnly(*key), {}, priceFormat(number)});
        ++key;
    }
    if (isDropped)
        to.doubted(list, Doubt::PricesDropped);
    return values;
}

} // namespace

void commerceml::exportPrices(const QList<QDomNode> &prices, const Export &to,
                              const GoodsOptions &options)
{
    const FieldTable fields = goodsFields(to, withoutBrackets);
    exportGoods(prices,
                {QStringLiteral("Предложения"), QStringLiteral("Предложение"), ItemKind::Offer}, to,
                options, [&](const ChildLookup &offer) {
                    return readFields(offer, fields) + readPrices(to, offer, options.priceFactor);
                });
}

bool CommXmlReader::exportPrices(bool prefixRows, bool withDescription, bool markHtml,
                                 bool extendedOffers, bool applyFactor, double priceFactor)
{
    if (dialect == YmlDialect)
        return exportYmlOffers(prefixRows, withDescription, markHtml, extendedOffers, applyFactor,
                               priceFactor);

    commerceml::exportPrices(
        prices, exportTo(writer, groupIndex),
        offerOptions(prefixRows, withDescription, markHtml, applyFactor, priceFactor));
    return !prices.isEmpty();
}
