// SPDX-License-Identifier: MIT
//
// For programs that tell people what became of a source: what an export reports on its way.
#pragma once

#include "exchange/format.h"
#include "reader/pathindex.h"

#include <QDomElement>
#include <QString>

namespace exporter
{

/// What has a block of its own in the exchange file.
enum class ItemKind {
    Good,      ///< of a catalogue
    Offer,     ///< of a price package or a YML feed
    Partner,   ///< of a document
    Order,     ///< a document
    OrderGood, ///< of a line of an order
    OrderLine,
};

struct Item {
    ItemKind kind;
    QDomElement element;
    QString code; ///< the number of an order; null for a line that is exported without its good
    exchange::FieldValues values;
    QString text; ///< the description of a good or an offer, the requisites of an order
};

/// Why an item is left out.
enum class Loss {
    NoCode,      ///< a good, an offer or an order line without its identifier
    NoPartner,   ///< a document without a partner, or whose partner has no code
    NoNumber,    ///< a document of which only the partner is exported
    NoLines,     ///< a document without lines: only its partner and head are exported
    BehindTheEnd ///< a document behind one without lines, which ends the export
};

/// What is exported, but may not be what was meant.
enum class Doubt {
    OtherRole,     ///< at a partner: it has another role than the wanted one
    UnknownGroup,  ///< at an id: no section has it
    MissingParent, ///< at an id: a parent above its category is missing
    GroupLoop,     ///< at an id: the parents above its category lead back to one of themselves
    PriceNoNumber, ///< at a price that is read as a number, but is none that is finite
    PricesDropped, ///< at the prices of an offer: a block has places for two, and five are read
    SoldOut,       ///< at an offer: it has neither a unit nor a description nor a goods row
};

/// Hears of each item that an export comes to, in the order of the exchange file, from the place
/// that decides on it. An export does not come to what stands elsewhere: in a second list of goods,
/// or in a section of another kind of source. Elements are those of the reader's document.
class Observer
{
public:
    Observer() = default;
    virtual ~Observer() = default;
    Q_DISABLE_COPY(Observer)

    /// `item` is exported, or would be if lines were being written. Whether they reached the file
    /// is for exchange::Writer::hasFailed() to tell.
    virtual void exported(const Item &item) = 0;

    /// An item is left out, wholly or, for a document, from the point that `loss` tells.
    virtual void leftOut(ItemKind kind, const QDomElement &element, Loss loss) = 0;

    /// The item that is reported next is in the group or category that this path leads to.
    virtual void inGroup(const PathIndex::Path & /*path*/) {}

    /// There is a doubt about the item that is reported next.
    virtual void doubted(const QDomElement &element, Doubt doubt) = 0;
};

} // namespace exporter
