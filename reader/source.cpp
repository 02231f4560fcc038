// SPDX-License-Identifier: MIT
#include "reader/source.h"

#include "reader/limits.h"

Source::Source(QIODevice &device, Loading &loading)
    : QXmlInputSource(&device), device(device), loading(loading)
{
}

void Source::fetchData()
{
    constexpr int piecesToAskAfter = 64; // a piece is 1 kB

    if (loading.failure != LoadFailure::None)
        return;
    QXmlInputSource::fetchData();
    characters += data().size();
    if (inProlog)
        brackets += static_cast<int>(data().count(QLatin1Char('(')));
    if (brackets > limits::brackets)
        endHere(LoadFailure::TooManyBrackets);
    if (loading.goesOn && ++pieces % piecesToAskAfter == 0 && !loading.goesOn(device.pos()))
        endHere(LoadFailure::Stopped);
}

void Source::endHere(LoadFailure failure)
{
    loading.failure = failure;
    setData(QString());
}
