// SPDX-License-Identifier: MIT
#include "export/commerceml/walks.h"
#include "reader/vocabulary.h"

#include <algorithm>
#include <iterator>

using namespace commerceml;
using namespace exchange;
using namespace exporter;

namespace
{

/// An address as one text.
std::optional<QString> presentation(const QDomElement &address)
{
    const QDomElement text = address.firstChildElement(QStringLiteral("Представление"));
    return text.isNull() ? std::nullopt : std::optional(textOf(text));
}

const FieldTable partnerFields = {
    {nameElement, fullText, lineOnly(nameKey)},
    {QStringLiteral("ПолноеНаименование"), fullText, lineOnly("fullname:"_l1)},
    {QStringLiteral("ИНН"), fullText, lineOnly("inn:"_l1)},
    {QStringLiteral("КПП"), fullText, lineOnly("kpp:"_l1)},
    {QStringLiteral("ОКПО"), fullText, lineOnly("okpo:"_l1)},
    {QStringLiteral("АдресРегистрации"), presentation, lineOnly("address_legal:"_l1), unchanged,
     simplified},
    {QStringLiteral("Адрес"), presentation, lineOnly("address_actual:"_l1), unchanged, simplified},
};

const QString mailType = QStringLiteral("Почта");
const QString phoneTypes[] = {
    QStringLiteral("ТелефонРабочий"),
    QStringLiteral("ТелефонМобильный"),
    QStringLiteral("ТелефонДомашний"),
};

/// By the order of the phones, whatever their types; the last one serves all that follow.
constexpr QLatin1String phoneKeys[] = {
    "phone:"_l1,
    "phone2:"_l1,
    "phone3:"_l1,
};

/// The mail addresses and phones of a partner, in the order of the source.
FieldValues readContacts(const QDomElement &partner)
{
    FieldValues values;
    const auto *phoneKey = std::begin(phoneKeys);
    const QDomElement list = partner.firstChildElement(QStringLiteral("Контакты"));
    for (const QDomElement &contact : childElements(list, QStringLiteral("Контакт"))) {
        const QDomElement value = contact.firstChildElement(valueElement);
        if (value.isNull())
            continue;
        const QString type = textOf(contact.firstChildElement(QStringLiteral("Тип")));
        if (type == mailType) {
            values.append({lineOnly("email:"_l1), {}, textOf(value)});
        } else if (std::count(std::begin(phoneTypes), std::end(phoneTypes), type) > 0) {
            values.append({lineOnly(*phoneKey), {}, textOf(value)});
            if (phoneKey != std::end(phoneKeys) - 1)
                ++phoneKey;
        }
    }
    return values;
}

} // namespace

void commerceml::exportPartner(const QDomElement &partner, const Export &to)
{
    to.item({ItemKind::Partner,
             partner,
             textOf(partner.firstChildElement(idElement)),
             readFields(ChildLookup(partner), partnerFields) + readContacts(partner),
             {}},
            partnerBlock);
}
