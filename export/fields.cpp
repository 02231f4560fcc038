// SPDX-License-Identifier: MIT
#include "export/fields.h"

#include "reader/commxmlreader.h"

#include <QVarLengthArray>

exchange::FieldValues readFields(CommXmlReader &reader, const QDomNode &item,
                                 const FieldTable &table)
{
    // One walk over the children for all fields; a lookup for each would walk as often.
    QVarLengthArray<QDomElement, 24> elements(table.size());
    for (QDomElement child = item.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        const QString name = child.tagName();
        for (int i = 0; i < table.size(); ++i) {
            if (table.at(i).element == name && elements[i].isNull())
                elements[i] = child;
        }
    }

    exchange::FieldValues values;
    values.reserve(table.size());
    for (int i = 0; i < table.size(); ++i) {
        if (elements[i].isNull())
            continue;
        const Field &field = table.at(i);
        if (const std::optional<QString> value = field.reading(reader, elements[i]))
            values.append({field.target, field.rowCleaning(*value), field.lineCleaning(*value)});
    }
    return values;
}

std::optional<QString> fullText(CommXmlReader &, const QDomElement &element)
{
    return element.text();
}

std::optional<QString> filledText(CommXmlReader &, const QDomElement &element)
{
    return unlessEmpty(element.text());
}

std::optional<QString> ownText(CommXmlReader &, const QDomElement &element)
{
    return unlessEmpty(CommXmlReader::directText(element));
}

std::optional<QString> unlessEmpty(const QString &text)
{
    return text.isEmpty() ? std::nullopt : std::optional(text);
}
