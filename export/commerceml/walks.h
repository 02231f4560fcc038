// SPDX-License-Identifier: MIT
//
// The walks of the CommerceML exports, each in a file of its name, with their steps.
#pragma once

#include "export/export.h"

#include <QDomNode>
#include <QList>

#include <functional>

namespace commerceml
{

/// Exports the goods of catalogues.
void exportKatalogs(const QList<QDomNode> &katalogs, const exporter::Export &to,
                    const exporter::GoodsOptions &options);

/// Exports the offers of price packages.
void exportPrices(const QList<QDomNode> &prices, const exporter::Export &to,
                  const exporter::GoodsOptions &options);

/// Exports documents: `withGoods` with a goods block ahead of each line, `documentType` 1 as sales,
/// 0 as purchases. False if one has no lines, which ends the export.
bool exportDocs(const QList<QDomNode> &docs, const exporter::Export &to, bool withGoods,
                int documentType);

// The steps of exportDocs().

/// The partner of a document; null if it has none. Only the first two partners are looked at: the
/// second one is taken, whatever its role, where the first has a role that is not the wanted one.
QDomElement partnerOf(const QDomElement &doc, int documentType);

/// Exports the partner of a document.
void exportPartner(const QDomElement &partner, const exporter::Export &to);

/// Exports the head of an order.
void exportOrderHead(const QDomElement &doc, const exporter::Export &to, int documentType);

/// Exports the lines of an order, `withGoods` behind a goods block of `goodsFields` each. False if
/// there are no lines.
bool exportOrderLines(const QDomElement &doc, const exporter::Export &to, bool withGoods,
                      const exporter::FieldTable &goodsFields);

// Goods stand in catalogues, price packages and orders. A table is for one export. In goods.cpp.

/// A "Товар" of a "Каталог", or a "Предложение" of a "ПакетПредложений", its prices excepted. They
/// differ in how a name is cleaned for the goods row.
exporter::FieldTable goodsFields(const exporter::Export &to, exchange::Cleaning nameCleaning);

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
