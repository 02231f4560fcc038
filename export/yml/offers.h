// SPDX-License-Identifier: MIT
#pragma once

#include "export/export.h"
#include "reader/commxmlreader.h"

#include <QDomNode>
#include <QList>

namespace yml
{

/// Exports the offers of sections; `extended`: with the extended fields, a composed name, the unit,
/// and no goods row for an offer whose count is 0. `pictures` gets the first picture of each offer.
void exportOffers(const QList<QDomNode> &prices, const exporter::Export &to,
                  const exporter::GoodsOptions &options, bool extended,
                  QList<PictureLink> &pictures);

} // namespace yml
