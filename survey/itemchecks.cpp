// SPDX-License-Identifier: MIT
#include "survey/itemchecks.h"

#include "exchange/cleaning.h"

#include <algorithm>

using namespace exchange;
using exporter::Item;
using exporter::ItemKind;

namespace survey
{

namespace
{

/// An item with what the checks want to know of it.
struct Checked {
    const Item &item;
    const std::function<bool(Kind kind)> &isDoubted;
    bool isOdd; ///< a text of it holds a line end, or what is no character to read
};

using Found = std::optional<QStringList>; // the details, where there is something

const QString *filledValue(const Item &item, QLatin1String key)
{
    for (const FieldValue &value : item.values) {
        if (value.target.key == key && !value.lineText.isEmpty())
            return &value.lineText;
    }
    return nullptr;
}

Found when(bool isFound)
{
    return isFound ? Found(QStringList()) : std::nullopt;
}

/// Calls `look` with each text of an item that gets into the exchange file, and its key, until it
/// tells true.
template <typename Look>
bool findText(const Item &item, const Look &look)
{
    const QLatin1String itemKey = item.kind == ItemKind::Order ? "number:"_l1 : codeKey;
    return look(itemKey, item.code) ||
           std::any_of(item.values.cbegin(), item.values.cend(),
                       [&](const FieldValue &value) {
                           return !value.target.key.isEmpty() &&
                                  look(value.target.key, value.lineText);
                       }) ||
           look(QLatin1String(), item.text);
}

bool isLineEnd(QChar character)
{
    return character == u'\n' || character == u'\r';
}

bool isBroken(QChar character)
{
    return character == QChar::ReplacementCharacter ||
           (character.category() == QChar::Other_Control && character != u'\t' &&
            !isLineEnd(character));
}

/// Without a branch for each character, since every text of a source goes through here.
bool isOddText(const QString &text)
{
    unsigned odd = 0;
    for (const QChar character : text) {
        const unsigned code = character.unicode();
        odd |= static_cast<unsigned>(code < 0x20) |
               static_cast<unsigned>(code - 0x7f < 0xa0 - 0x7f) |
               static_cast<unsigned>(code == QChar::ReplacementCharacter);
    }
    return odd != 0;
}

bool isMarker(QStringView line)
{
    return line.startsWith(QLatin1String("##")) || line == freeText.begin || line == freeText.end;
}

/// The first text that has a character of the kind; a free text has no key.
Found findCharacter(const Checked &checked, bool (*isWanted)(QChar), bool inFreeText)
{
    Found found;
    if (checked.isOdd) {
        findText(checked.item, [&](QLatin1String key, const QString &text) {
            if ((inFreeText || !key.isEmpty()) && std::any_of(text.begin(), text.end(), isWanted))
                found = QStringList(key);
            return found.has_value();
        });
    }
    return found;
}

/// A line that whoever reads the exchange file takes for a marker. What stands behind a key is
/// none.
Found findMarker(const Checked &checked)
{
    constexpr int longestLine = 40;
    Found found;
    findText(checked.item, [&](QLatin1String key, const QString &text) {
        const auto *begin = text.cbegin();
        if (!key.isEmpty())
            begin = checked.isOdd ? std::find_if(begin, text.cend(), isLineEnd) : text.cend();
        while (begin != text.cend()) {
            if (isLineEnd(*begin)) {
                ++begin;
                continue;
            }
            const auto *const end =
                checked.isOdd ? std::find_if(begin, text.cend(), isLineEnd) : text.cend();
            const QStringView line(begin, end);
            if (isMarker(line)) {
                found = QStringList{key, line.left(longestLine).toString()};
                return true;
            }
            begin = end;
        }
        return false;
    });
    return found;
}

Found findNoPriceNumber(const Checked &checked)
{
    const QString *const price = filledValue(checked.item, priceKey);
    const bool isFound = price != nullptr && !checked.isDoubted(Kind::PriceNotANumber) &&
                         !readPrice(*price, std::nullopt).isNumber;
    return isFound ? Found(QStringList(*price)) : std::nullopt;
}

Found findNoGroup(const Checked &checked)
{
    // Price packages leave groups to the catalogue.
    const bool isAsked = checked.item.kind == ItemKind::Good ||
                         checked.item.element.tagName() == QLatin1String("offer");
    return when(isAsked && filledValue(checked.item, target::group.key) == nullptr &&
                !checked.isDoubted(Kind::UnknownGroup) && !checked.isDoubted(Kind::GroupLoop));
}

constexpr unsigned bit(ItemKind kind)
{
    return 1U << static_cast<unsigned>(kind);
}

constexpr unsigned trade = bit(ItemKind::Good) | bit(ItemKind::Offer);
constexpr unsigned any = ~0U;

struct ItemCheck {
    Kind kind;
    unsigned items; ///< of these kinds
    Found (*find)(const Checked &checked);
};

constexpr ItemCheck checks[] = {
    {Kind::NoGroup, trade, findNoGroup},
    {Kind::NoName, trade | bit(ItemKind::OrderGood),
     [](const Checked &checked) { return when(filledValue(checked.item, nameKey) == nullptr); }},
    {Kind::NoPrice, bit(ItemKind::Offer),
     [](const Checked &checked) { return when(filledValue(checked.item, priceKey) == nullptr); }},
    {Kind::PriceNotANumber, bit(ItemKind::Offer) | bit(ItemKind::OrderLine), findNoPriceNumber},
    {Kind::EmptyCode, any & ~bit(ItemKind::OrderLine), // which has that of its good
     [](const Checked &checked) { return when(checked.item.code.isEmpty()); }},
    {Kind::LineBreak, any,
     [](const Checked &checked) { return findCharacter(checked, isLineEnd, false); }},
    {Kind::MarkerInText, any, findMarker},
    {Kind::BrokenCharacters, any,
     [](const Checked &checked) { return findCharacter(checked, isBroken, true); }},
};

} // namespace

void checkItem(const Item &item, const std::function<bool(Kind kind)> &isDoubted,
               const std::function<void(Kind kind, const QStringList &details)> &found)
{
    bool isOdd = false;
    findText(item, [&](QLatin1String /*key*/, const QString &text) {
        isOdd = isOdd || isOddText(text);
        return isOdd;
    });
    const Checked checked = {item, isDoubted, isOdd};
    for (const ItemCheck &check : checks) {
        if ((check.items & bit(item.kind)) == 0)
            continue;
        if (const Found details = check.find(checked))
            found(check.kind, *details);
    }
}

} // namespace survey
