// SPDX-License-Identifier: MIT
#include "export/fields.h"

#include "reader/commxmlreader.h"

namespace exporter
{

exchange::FieldValues readFields(const ChildLookup &item, const FieldTable &table)
{
    exchange::FieldValues values;
    values.reserve(table.size());
    for (const Field &field : table) {
        QDomElement element = item.first(field.element);
        if (element.isNull() && !field.otherElement.isEmpty())
            element = item.first(field.otherElement);
        if (element.isNull())
            continue;
        if (const std::optional<QString> value = field.reading(element))
            values.append({field.target, field.rowCleaning(*value), field.lineCleaning(*value)});
    }
    return values;
}

std::optional<QString> fullText(const QDomElement &element)
{
    return textOf(element);
}

std::optional<QString> filledText(const QDomElement &element)
{
    return unlessEmpty(textOf(element));
}

std::optional<QString> ownText(const QDomElement &element)
{
    return unlessEmpty(CommXmlReader::directText(element));
}

std::optional<QString> unlessEmpty(const QString &text)
{
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

} // namespace exporter
