// SPDX-License-Identifier: MIT
//
// What the walks behind the exporters share.
#pragma once

#include "exchange/goodsrow.h"
#include "exchange/writer.h"
#include "export/fields.h"
#include "export/observer.h"
#include "reader/pathindex.h"

#include <QStringList>

#include <functional>
#include <optional>

namespace exporter
{

/// How an exporter presents goods.
struct GoodsOptions {
    bool prefixRows = false;
    bool withDescription = false;
    exchange::HtmlMark htmlMark = exchange::HtmlMark::None;
    std::optional<double> priceFactor = {}; ///< prices are multiplied by it, if there is one
};

/// The options of an exporter of catalogues, from its parameters: a described good's row is marked
/// as HTML or not at all.
GoodsOptions catalogueOptions(bool prefixRows, bool withDescription, bool markHtml);

/// The options of an exporter of offers, from its parameters: a described offer's row is marked as
/// HTML or not HTML.
GoodsOptions offerOptions(bool prefixRows, bool withDescription, bool markHtml, bool applyFactor,
                          double priceFactor);

/// Where an export takes paths from and where it goes.
struct Export {
    exchange::Writer &writer;                                   ///< gets the lines
    QStringList &goodsRows;                                     ///< gets the goods rows
    std::function<PathIndex::Path(const QString &id)> findPath; ///< of a group or category
    Observer *observer = nullptr;                               ///< hears of it; null: nobody does

    /// The path of the group or category that the text of an element names, if there is one.
    std::optional<QString> path(const QDomElement &id) const;

    /// Exports an item as a block, whose first line is `codeKey` and its code, if there is a key.
    void item(const Item &item, const exchange::Block &block,
              QLatin1String codeKey = exchange::codeKey) const;

    /// Exports the block of a good or an offer, and, if `hasRow`, its goods row and description
    /// entries.
    void goods(const Item &item, const GoodsOptions &options, bool hasRow = true) const;

    /// Tells the observer of an item that is left out.
    void leftOut(ItemKind kind, const QDomElement &element, Loss loss) const
    {
        if (observer != nullptr)
            observer->leftOut(kind, element, loss);
    }

    /// Tells the observer of a doubt about the next item.
    void doubted(const QDomElement &element, Doubt doubt) const
    {
        if (observer != nullptr)
            observer->doubted(element, doubt);
    }
};

} // namespace exporter
