// SPDX-License-Identifier: MIT
#include "survey/finding.h"

namespace survey
{

const QVector<KindInfo> &kinds()
{
    // Behind each, the details of its findings, in their order.
    static const QVector<KindInfo> table = {
        // what the system says
        {Kind::NotReadable, "not-readable", Level::Error},
        // the fault, of `faults` in loadfailure.cpp, and what the parser says, in English
        {Kind::NotWellFormed, "not-well-formed", Level::Error},
        // the declared encoding and the one that fits, empty where there is none or nobody can
        // tell; a doubt where the source is well-formed all the same
        {Kind::WrongEncoding, "wrong-encoding", Level::Error},
        // the limit, of `limits` there
        {Kind::Limit, "limit", Level::Error},
        // the name of the root
        {Kind::NothingToExport, "nothing-to-export", Level::Error},
        {Kind::Empty, "empty", Level::Error},
        {Kind::Changed, "changed", Level::Error},
        // the name of the element, and "line" where it is an order line
        {Kind::NoCode, "no-code", Level::Loss},
        {Kind::NoPartner, "no-partner", Level::Loss},
        {Kind::NoNumber, "no-number", Level::Loss},
        // how many documents behind it are lost as well
        {Kind::NoLines, "no-lines", Level::Loss},
        // the name
        {Kind::PrefixedName, "prefixed-name", Level::Loss},
        // the name
        {Kind::NotReached, "not-reached", Level::Loss},
        // the code of the partner
        {Kind::OtherRole, "other-role", Level::Doubt},
        // the id, and "parent" where it is a parent of the category with this id that is missing
        {Kind::UnknownGroup, "unknown-group", Level::Doubt},
        // the id
        {Kind::GroupLoop, "group-loop", Level::Doubt},
        {Kind::NoGroup, "no-group", Level::Doubt},
        {Kind::NoName, "no-name", Level::Doubt},
        {Kind::NoPrice, "no-price", Level::Doubt},
        // the price
        {Kind::PriceNotANumber, "price-not-a-number", Level::Doubt},
        {Kind::PricesDropped, "prices-dropped", Level::Doubt},
        {Kind::DuplicateCode, "duplicate-code", Level::Doubt},
        {Kind::EmptyCode, "empty-code", Level::Doubt},
        // the key of the exchange file, for these three; empty for a free text
        {Kind::LineBreak, "line-break", Level::Doubt},
        // and the line
        {Kind::MarkerInText, "marker-in-text", Level::Doubt},
        {Kind::BrokenCharacters, "broken-characters", Level::Doubt},
        {Kind::SoldOut, "sold-out", Level::Doubt},
    };
    return table;
}

const KindInfo &infoOf(Kind kind)
{
    return kinds().at(static_cast<int>(kind));
}

std::optional<Kind> kindNamed(const QString &name)
{
    for (const KindInfo &info : kinds()) {
        if (name == QLatin1String(info.name))
            return info.kind;
    }
    return std::nullopt;
}

} // namespace survey
