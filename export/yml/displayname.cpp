// SPDX-License-Identifier: MIT
#include "export/yml/displayname.h"

#include "exchange/cleaning.h"

QString displayName(const QString &name)
{
    constexpr QLatin1Char open('[');
    constexpr QLatin1Char close(']');

    QString shown = name;
    const int end = name.indexOf(close);
    if (name.startsWith(open) && end >= 0) {
        const QString inner = name.mid(1, end - 1);
        if (name.mid(end).contains(inner, Qt::CaseInsensitive))
            shown = name.mid(end + 2); // the bracket, and the blank that mostly follows it
    }
    if (shown.startsWith(open)) {
        shown.remove(0, 1);
        const int first = shown.indexOf(close);
        if (first >= 0)
            shown.remove(first, 1);
    }
    return exchange::withoutBrackets(shown);
}
