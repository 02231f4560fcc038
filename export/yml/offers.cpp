// SPDX-License-Identifier: MIT
#include "export/fields.h"
#include "export/yml/displayname.h"
#include "reader/childelements.h"
#include "reader/commxmlreader.h"
#include "reader/text.h"

using namespace exchange;

namespace
{

std::optional<QString> categoryPath(CommXmlReader &reader, const QDomElement &categoryId)
{
    return unlessEmpty(reader.ymlCategoryPath(textOf(categoryId)));
}

std::optional<QString> shownName(CommXmlReader &, const QDomElement &name)
{
    return displayName(textOf(name));
}

/// The fields of an "offer". Prices are multiplied by `factor`, if there is one.
FieldTable offerFields(bool extended, std::optional<double> factor)
{
    const Reading price = [factor](CommXmlReader &, const QDomElement &element) {
        return withoutTabs(priceText(textOf(element), factor));
    };
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
        {QStringLiteral("categoryId"), categoryPath, target::group},
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

/// Empty if the offer has none.
QString description(const ChildLookup &offer)
{
    return textOf(offer.first(QStringLiteral("description")));
}

/// An extended offer tells that nothing of the good is left.
bool isSoldOut(const ChildLookup &offer)
{
    return textOf(offer.first(QStringLiteral("count"))) == QLatin1String("0");
}

} // namespace

bool CommXmlReader::exportYmlOffers(bool prefixRows, bool withDescription, bool markHtml,
                                    bool extendedOffers, bool applyFactor, double priceFactor)
{
    pictureLinks.clear();
    const GoodsOptions options{prefixRows, markHtml ? HtmlMark::Html : HtmlMark::PlainText};
    const FieldTable fields =
        offerFields(extendedOffers, applyFactor ? std::optional(priceFactor) : std::nullopt);
    const QString piece = QStringLiteral("шт"); // no element tells the unit

    for (const QDomNode &section : qAsConst(prices)) {
        for (const QDomElement &element : ChildElements(section, QStringLiteral("offer"))) {
            const QString code = attributeValue(element, QStringLiteral("id"));
            if (code.isEmpty())
                continue;
            const ChildLookup offer(element);
            FieldValues values = readFields(*this, offer, fields);
            if (extendedOffers && isSoldOut(offer)) {
                writeGoods(code, values);
            } else {
                if (extendedOffers)
                    values.append({target::unit, piece, piece});
                exportGoods(code, values, withDescription ? description(offer) : QString(),
                            options);
            }
            const QDomElement picture = offer.first(QStringLiteral("picture"));
            if (!picture.isNull())
                pictureLinks.append({code, withoutTabs(textOf(picture))});
        }
    }
    return !prices.isEmpty();
}
