// SPDX-License-Identifier: MIT
//
// What is read of a good in CommerceML. A good stands in catalogues, price packages and orders, and
// each kind of section has a table of its own, which is for one export.
#pragma once

#include "export/export.h"

#include <QDomNode>
#include <QList>

#include <functional>

namespace commerceml
{

/// A "Товар" of a "Каталог".
exporter::FieldTable catalogueGoodsFields(const exporter::Export &to);

/// A "Предложение" of a "ПакетПредложений", its prices excepted.
exporter::FieldTable packageOfferFields(const exporter::Export &to);

/// A "Товар" of a "Документ".
exporter::FieldTable orderGoodsFields(const exporter::Export &to);

/// Where goods stand in a section.
struct GoodsPlace {
    QString list; ///< the element that holds them, the first of its name
    QString element;
    exporter::ItemKind kind;
};

/// Exports the goods of sections, each with the values that `read` gives.
void exportGoods(const QList<QDomNode> &sections, const GoodsPlace &place,
                 const exporter::Export &to, const exporter::GoodsOptions &options,
                 const std::function<exchange::FieldValues(const ChildLookup &goods)> &read);

} // namespace commerceml
