// SPDX-License-Identifier: MIT
#include "export/yml/offers.h"

#include "export/yml/displayname.h"
#include "reader/commxmlreader.h"

using namespace exchange;
using namespace exporter;

namespace
{

std::optional<QString> shownName(const QDomElement &name)
{
    return yml::displayName(textOf(name));
}

/// The fields of an "offer". Prices are multiplied by `factor`, if there is one.
FieldTable offerFields(const Export &to, bool extended, std::optional<double> factor)
{
    const Reading price = [&to, factor](const QDomElement &element) {
        if (!factor)
            return withoutTabs(textOf(element));
        const Price read = readPrice(textOf(element), factor);
        if (!read.isNumber)
            to.doubted(element, Doubt::PriceNoNumber);
        return withoutTabs(read.text);
    };
    const Reading path = [&to](const QDomElement &id) { return to.path(id); };
    const QString name = QStringLiteral("name");
    const Target typePrefix{"DP7"_l1, "DP7:"_l1};
    const Target country{"DP3"_l1, "country:"_l1};
    const Target priceTarget{"DC1"_l1, priceKey};
    const Target vendor{"DP12"_l1, "vendor:"_l1};

    const FieldTable typeFields = {
        {QStringLiteral("vendorCode"), fullText, target::article, withoutTabs, withoutTabs},
        {QStringLiteral("typePrefix"), fullText, typePrefix, withoutBrackets, withoutTabs},
        {QStringLiteral("model"), fullText, target::name, withoutBrackets, withoutTabs},
    };
    const FieldTable plainName = {
        {name, fullText, target::name, withoutBrackets, withoutTabs},
    };
    const FieldTable extendedName = {
        {QStringLiteral("RussianName"), shownName, target::name, unchanged, unchanged, name},
    };
    const FieldTable tradeFields = {
        {QStringLiteral("barcode"), fullText, target::barcode, withoutTabs, withoutTabs},
        {QStringLiteral("categoryId"), path, target::group},
        {QStringLiteral("price"), price, priceTarget},
        {QStringLiteral("vendor"), fullText, vendor, withoutTabs, withoutTabs},
    };
    const FieldTable extendedFields = {
        {QStringLiteral("priceR"), price, priceTarget},
        {QStringLiteral("priceD"), price, {"DC5"_l1, "DC5:"_l1}},
        {QStringLiteral("Vendor"), fullText, vendor, withoutTabs, withoutTabs},
        {QStringLiteral("LastCountry"), fullText, country, withoutTabs, withoutTabs},
        {QStringLiteral("PN"), fullText, target::article, withoutBrackets, withoutTabs},
        {QStringLiteral("weight"), fullText, {"DP16"_l1, "weight:"_l1}, withoutTabs, withoutTabs},
    };
    return extended ? typeFields + extendedName + tradeFields + extendedFields
                    : typeFields + plainName + tradeFields;
}

} // namespace

void yml::exportOffers(const QList<QDomNode> &prices, const Export &to, const GoodsOptions &options,
                       bool extended, QList<PictureLink> &pictures)
{
    const FieldTable fields = offerFields(to, extended, options.priceFactor);
    const QString piece = QStringLiteral("шт"); // no element tells the unit

    for (const QDomNode &section : prices) {
        for (const QDomElement &element : childElements(section, QStringLiteral("offer"))) {
            const QString code = CommXmlReader::attributeValue(element, QStringLiteral("id"));
            if (code.isEmpty()) {
                to.leftOut(ItemKind::Offer, element, Loss::NoCode);
                continue;
            }
            const ChildLookup offer(element);
            const bool soldOut =
                extended && textOf(offer.first(QStringLiteral("count"))) == QLatin1String("0");
            Item item = {ItemKind::Offer, element, code, readFields(offer, fields), {}};
            if (soldOut)
                to.doubted(element, Doubt::SoldOut);
            else if (extended)
                item.values.append({target::unit, piece, piece});
            if (options.withDescription && !soldOut)
                item.text = textOf(offer.first(QStringLiteral("description")));
            to.goods(item, options, !soldOut);

            const QDomElement picture = offer.first(QStringLiteral("picture"));
            if (!picture.isNull())
                pictures.append({code, withoutTabs(textOf(picture))});
        }
    }
}

bool CommXmlReader::exportYmlOffers(bool prefixRows, bool withDescription, bool markHtml,
                                    bool extendedOffers, bool applyFactor, double priceFactor)
{
    pictureLinks.clear();
    yml::exportOffers(prices, exportTo(writer, categoryIndex),
                      offerOptions(prefixRows, withDescription, markHtml, applyFactor, priceFactor),
                      extendedOffers, pictureLinks);
    return !prices.isEmpty();
}
