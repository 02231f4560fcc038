// SPDX-License-Identifier: MIT
//
// What is read of a good in CommerceML. A good stands in catalogues, price packages and orders, and
// each kind of section has a table of its own.
#pragma once

#include "export/fields.h"

/// A "Товар" of a "Каталог".
const FieldTable &catalogueGoodsFields();

/// A "Предложение" of a "ПакетПредложений", its prices excepted.
const FieldTable &offerFields();

/// A "Товар" of a "Документ".
const FieldTable &orderGoodsFields();

/// The description of a good or an offer; empty if it has none.
QString goodsDescription(const ChildLookup &goods);
