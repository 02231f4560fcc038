// SPDX-License-Identifier: MIT
//
// The walks of the CommerceML exports, each in a file of its name.
#pragma once

#include "export/export.h"

#include <QDomNode>
#include <QList>

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

/// Exports the partner of a document.
void exportPartner(const QDomElement &partner, const exporter::Export &to);

/// Exports the head of an order.
void exportOrderHead(const QDomElement &doc, const exporter::Export &to, int documentType);

/// Exports the lines of an order, `withGoods` behind a goods block of `goodsFields` each. False if
/// there are no lines.
bool exportOrderLines(const QDomElement &doc, const exporter::Export &to, bool withGoods,
                      const exporter::FieldTable &goodsFields);

} // namespace commerceml
