// SPDX-License-Identifier: MIT
#include "export/commerceml/goods.h"
#include "reader/childelements.h"
#include "reader/commxmlreader.h"
#include "reader/text.h"
#include "reader/vocabulary.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>

using namespace commerceml;
using namespace exchange;

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
FieldValues readPrices(const ChildLookup &offer, std::optional<double> factor)
{
    FieldValues values;
    QVector<double> numbers;
    const auto *rowCode = std::begin(priceRowCodes);
    const QDomElement list = offer.first(QStringLiteral("Цены"));
    for (const QDomElement &price : ChildElements(list, QStringLiteral("Цена"))) {
        if (rowCode == std::end(priceRowCodes))
            break;
        const QDomElement unitPrice = price.firstChildElement(unitPriceElement);
        if (!unitPrice.isNull()) {
            const QString text = textOf(unitPrice);
            values.append({{*rowCode, {}}, priceText(text, factor), {}});
            numbers.append(priceNumber(text) * factor.value_or(1.0));
        }
        ++rowCode;
    }

    std::sort(numbers.begin(), numbers.end(), isHigher);
    const auto *key = std::begin(priceKeys);
    for (const double number : qAsConst(numbers)) {
        if (key == std::end(priceKeys))
            break;
        values.append({{{}, *key}, {}, priceFormat(number)});
        ++key;
    }
    return values;
}

} // namespace

bool CommXmlReader::exportPrices(bool prefixRows, bool withDescription, bool markHtml,
                                 bool extendedOffers, bool applyFactor, double priceFactor)
{
    if (dialect == YmlDialect)
        return exportYmlOffers(prefixRows, withDescription, markHtml, extendedOffers, applyFactor,
                               priceFactor);

    const GoodsOptions options{prefixRows, markHtml ? HtmlMark::Html : HtmlMark::PlainText};
    const std::optional<double> factor = applyFactor ? std::optional(priceFactor) : std::nullopt;
    for (const QDomNode &package : qAsConst(prices)) {
        const QDomElement list = package.firstChildElement(QStringLiteral("Предложения"));
        for (const QDomElement &element : ChildElements(list, QStringLiteral("Предложение"))) {
            const ChildLookup offer(element);
            const QDomElement id = offer.first(idElement);
            if (id.isNull())
                continue;
            exportGoods(textOf(id),
                        readFields(*this, offer, offerFields()) + readPrices(offer, factor),
                        withDescription ? goodsDescription(offer) : QString(), options);
        }
    }
    return !prices.isEmpty();
}
