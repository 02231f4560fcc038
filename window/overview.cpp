// SPDX-License-Identifier: MIT
#include "window/overview.h"

#include "words/findings.h"
#include "words/language.h"

#include <QMap>

#include <algorithm>

using words::Words;

namespace window
{

namespace
{

Chart goodsByGroup(const Source &source)
{
    QVector<Bar> bars;
    int grouped = 0;
    for (const Group &group : source.groups) {
        if (group.parent >= 0 || group.goods == 0)
            continue;
        bars.append({words::printable(group.name), group.goods});
        grouped += group.goods;
    }
    std::stable_sort(bars.begin(), bars.end(),
                     [](const Bar &a, const Bar &b) { return a.count > b.count; });
    constexpr int most = 12;
    int others = 0;
    while (bars.size() > most)
        others += bars.takeLast().count;
    if (others > 0)
        bars.append({Words::tr("other groups"), others});
    const int goods = int(source.goods.size());
    if (grouped < goods)
        bars.append({Words::tr("in no group"), goods - grouped});
    return {Words::tr("Goods by group"), bars};
}

Chart goodsByPrice(const Source &source)
{
    QVector<Bar> bars;
    double from = 0;
    for (std::size_t range = 0; range < source.goodsByPrice.size(); ++range) {
        const int count = source.goodsByPrice[range];
        const double to = range == 0 ? 1 : from * 10;
        const auto text = [](double number) { return QString::number(number, 'f', 0); };
        const bool isLast = range == source.goodsByPrice.size() - 1;
        if (count > 0)
            bars.append({isLast ? Words::tr("%1 and more").arg(text(from))
                                : Words::tr("%1 to %2").arg(text(from), text(to)),
                         count});
        from = to;
    }
    if (source.goodsWithoutPrice > 0)
        bars.append({Words::tr("without a price"), source.goodsWithoutPrice});
    return {Words::tr("Goods by price"), bars};
}

Chart findingsByLevel(const Source &source)
{
    QMap<survey::Level, int> counts;
    for (const survey::Finding &finding : source.survey.findings)
        ++counts[finding.level];
    QVector<Bar> bars;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        bars.append({words::levelWord(count.key()), count.value()});
    return {Words::tr("Findings by level"), bars};
}

} // namespace

QVector<Chart> overviewOf(const Source &source)
{
    QVector<Chart> charts = {goodsByGroup(source), goodsByPrice(source), findingsByLevel(source)};
    charts.erase(std::remove_if(charts.begin(), charts.end(),
                                [](const Chart &chart) { return chart.bars.isEmpty(); }),
                 charts.end());
    return charts;
}

} // namespace window
