// SPDX-License-Identifier: MIT
#include "window/arrangement.h"

#include <QCollator>

#include <algorithm>
#include <functional>
#include <limits>
#include <utility>
#include <vector>

namespace window
{

namespace
{

bool holds(const Good &good, const QString &word)
{
    return std::any_of(good.fields.cbegin(), good.fields.cend(), [&](const QString &field) {
        return field.contains(word, Qt::CaseInsensitive);
    });
}

/// For each group, whether it is `group` or below it.
std::vector<bool> groupsBelow(const Source &source, int group)
{
    std::vector<bool> isBelow(std::size_t(source.groups.size()));
    for (int place = 0; place < source.groups.size(); ++place) {
        const int parent = source.groups.at(place).parent;
        isBelow[std::size_t(place)] =
            place == group || (parent >= 0 && isBelow[std::size_t(parent)]);
    }
    return isBelow;
}

/// Rising or falling; what is equal stays in its order.
template <typename KeyOf, typename IsLess>
void sortBy(QVector<int> &places, Qt::SortOrder order, const KeyOf &keyOf, const IsLess &isLess)
{
    std::vector<std::pair<decltype(keyOf(0)), int>> keyed;
    keyed.reserve(std::size_t(places.size()));
    for (const int place : std::as_const(places))
        keyed.emplace_back(keyOf(place), place);
    std::stable_sort(keyed.begin(), keyed.end(), [&](const auto &a, const auto &b) {
        return order == Qt::AscendingOrder ? isLess(a.first, b.first) : isLess(b.first, a.first);
    });
    std::transform(keyed.cbegin(), keyed.cend(), places.begin(),
                   [](const auto &one) { return one.second; });
}

} // namespace

QVector<int> arranged(const Source &source, const Arrangement &arrangement,
                      const std::atomic_bool &isStopped)
{
    QVector<int> places;
    const QStringList words = arrangement.text.simplified().split(u' ', Qt::SkipEmptyParts);
    const std::vector<bool> isBelow =
        arrangement.group >= 0 ? groupsBelow(source, arrangement.group) : std::vector<bool>();
    for (int place = 0; place < source.goods.size() && !isStopped; ++place) {
        const Good &good = source.goods.at(place);
        if (arrangement.group >= 0 && (good.group < 0 || !isBelow[std::size_t(good.group)]))
            continue;
        if (std::all_of(words.cbegin(), words.cend(),
                        [&](const QString &word) { return holds(good, word); }))
            places.append(place);
    }
    if (!arrangement.sortedBy || isStopped)
        return places;

    const GoodField field = *arrangement.sortedBy;
    const auto text = [&](int place) -> const QString & {
        return source.goods.at(place).field(field);
    };
    if (goodFields[std::size_t(field)].isNumber) {
        constexpr double none = std::numeric_limits<double>::infinity(); // comes last, either way
        const int sign = arrangement.order == Qt::AscendingOrder ? 1 : -1;
        const auto number = [&](int place) {
            const std::optional<double> read = numberIn(text(place));
            return read ? sign * *read : none;
        };
        sortBy(places, Qt::AscendingOrder, number, std::less<>());
    } else {
        QCollator collator;
        collator.setNumericMode(true);
        // Paths of groups can be far longer.
        constexpr int longest = 200;
        const auto beginning = [&](int place) { return text(place).left(longest); };
        // By its sort keys the toolkit gives another order on Windows.
        sortBy(places, arrangement.order, beginning,
               [&](const QString &a, const QString &b) { return collator.compare(a, b) < 0; });
    }
    return places;
}

} // namespace window
