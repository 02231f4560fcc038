// SPDX-License-Identifier: MIT
#include "window/desk.h"

#include <new>
#include <utility>

namespace window
{

Desk::~Desk()
{
    if (isOutdated)
        *isOutdated = true;
}

Opened Desk::replace(Opened opened)
{
    if (isOutdated)
        *isOutdated = true;
    return {std::exchange(shown, opened.source), std::exchange(reader, std::move(opened.reader))};
}

void Desk::putAway(Opened opened)
{
    const auto old = std::make_shared<Opened>(std::move(opened));
    background.run([old] { *old = {}; });
}

void Desk::run(std::function<void()> work, std::function<void()> tell)
{
    background.run(std::move(work), std::move(tell));
}

void Desk::arrange(const Arrangement &arrangement,
                   std::function<void(const QVector<int> &places)> tell)
{
    if (isOutdated)
        *isOutdated = true;
    const auto isStopped = std::make_shared<std::atomic_bool>(false);
    isOutdated = isStopped;
    const auto places = std::make_shared<QVector<int>>();
    const auto isOut = std::make_shared<bool>(false);
    const auto work = [=, source = shown] {
        try {
            *places = arranged(*source, arrangement, *isStopped);
        } catch (const std::bad_alloc &) {
            *isOut = true;
        }
    };
    background.run(work, [=, tell = std::move(tell)] {
        if (*isStopped)
            return;
        if (*isOut)
            ranOut(/*isReaderLost=*/false);
        else
            tell(*places);
    });
}

void Desk::collect(const std::function<void(SourceReader &reader)> &collect,
                   std::function<void(SourceReader &reader)> tell)
{
    if (!reader)
        return;
    const auto lent = std::make_shared<Opened>(Opened{shown, std::move(reader)});
    const auto isOut = std::make_shared<bool>(false);
    const auto work = [=] {
        try {
            collect(*lent->reader);
        } catch (const std::bad_alloc &) {
            lent->reader.reset(); // it is good for nothing then
            *isOut = true;
        }
    };
    background.run(work, [=, tell = std::move(tell)] {
        if (lent->source != shown) {
            putAway(std::move(*lent));
            return;
        }
        reader = std::move(lent->reader);
        if (*isOut)
            ranOut(/*isReaderLost=*/true);
        else
            tell(*reader);
    });
}

} // namespace window
