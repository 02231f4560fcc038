// SPDX-License-Identifier: MIT
#include "export/yml/displayname.h"

#include "exchange/cleaning.h"

#include <QVector>

namespace
{

/// The characters of a text, with no difference between cases.
QVector<uint> folded(const QString &text)
{
    QVector<uint> characters = text.toUcs4();
    for (uint &character : characters)
        character = QChar::toCaseFolded(character);
    return characters;
}

/// Whether `text` holds `part`, in any case of letters. QString can take the product of their
/// lengths to find out, this their sum (it is the search of Knuth, Morris and Pratt).
bool holds(const QString &text, const QString &part)
{
    const QVector<uint> wanted = folded(part);
    if (wanted.isEmpty())
        return true;

    // How much of the beginning of `wanted` is there again at the end of its first i + 1.
    QVector<int> repeated = {0};
    const auto advance = [&](int matched, uint character) {
        while (matched > 0 && wanted.at(matched) != character)
            matched = repeated.at(matched - 1);
        return wanted.at(matched) == character ? matched + 1 : 0;
    };
    for (int i = 1; i < wanted.size(); ++i)
        repeated.append(advance(repeated.last(), wanted.at(i)));

    int matched = 0;
    for (const uint character : folded(text)) {
        matched = advance(matched, character);
        if (matched == wanted.size())
            return true;
    }
    return false;
}

} // namespace

QString yml::displayName(const QString &name)
{
    constexpr QLatin1Char open('[');
    constexpr QLatin1Char close(']');

    QString shown = name;
    const auto end = name.indexOf(close);
    if (name.startsWith(open) && end >= 0) {
        const QString inner = name.mid(1, end - 1);
        if (holds(name.mid(end), inner))
            shown = name.mid(end + 2); // the bracket, and the blank that mostly follows it
    }
    if (shown.startsWith(open)) {
        shown.remove(0, 1);
        const auto first = shown.indexOf(close);
        if (first >= 0)
            shown.remove(first, 1);
    }
    return exchange::withoutBrackets(shown);
}
