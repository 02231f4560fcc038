// SPDX-License-Identifier: MIT
//
// Element names of CommerceML that more than one file reads.
#pragma once

#include <QString>

namespace commerceml
{

inline const QString idElement = QStringLiteral("Ид");
inline const QString nameElement = QStringLiteral("Наименование");
inline const QString valueElement = QStringLiteral("Значение");
inline const QString groupsElement = QStringLiteral("Группы");
inline const QString groupElement = QStringLiteral("Группа");
inline const QString goodsListElement = QStringLiteral("Товары");
inline const QString goodsElement = QStringLiteral("Товар");
inline const QString numberElement = QStringLiteral("Номер");
inline const QString unitPriceElement = QStringLiteral("ЦенаЗаЕдиницу");

} // namespace commerceml
