// SPDX-License-Identifier: MIT
//
// Field tables: which child elements of an item are read, how, and where their values go.
#pragma once

#include "exchange/cleaning.h"
#include "exchange/format.h"
#include "reader/tree.h"

#include <QDomElement>
#include <QString>
#include <QVector>

#include <functional>
#include <optional>

namespace exporter
{

/// Takes a field's value from its element, which exists; nothing where the field is left out.
using Reading = std::function<std::optional<QString>(const QDomElement &element)>;

/// One line of a field table.
struct Field {
    QString element;         ///< the child element of the item
    Reading reading;         ///< how its value is read
    exchange::Target target; ///< where the value goes
    exchange::Cleaning rowCleaning = exchange::unchanged;
    exchange::Cleaning lineCleaning = exchange::unchanged;
    QString otherElement = {}; ///< read where the item does not have `element`
};

using FieldTable = QVector<Field>;

/// The values of an item's fields, in the order of the table. Absent elements give none.
exchange::FieldValues readFields(const ChildLookup &item, const FieldTable &table);

// Readings that any table may use.

/// The full text, be it empty.
std::optional<QString> fullText(const QDomElement &element);

/// The full text, unless it is empty.
std::optional<QString> filledText(const QDomElement &element);

/// The text without that of child elements, unless it is empty.
std::optional<QString> ownText(const QDomElement &element);

/// `text`, unless it is empty.
std::optional<QString> unlessEmpty(const QString &text);

} // namespace exporter
