// SPDX-License-Identifier: MIT
#include "reader/scanner.h"

#include <algorithm>
#include <utility>

/// Decoded ahead, in characters: what the caches of a processor hold.
static constexpr int usualStep = 1 << 14;

/// Most texts are shorter, and all names are.
static constexpr int usualText = 500;

/// Characters of a reference, with its semicolon.
static constexpr int longestReference = 12;

namespace
{

/// What a character can be, in bits.
enum CharacterClass : uchar {
    Text = 1,   ///< nothing but text, wherever it stands
    Markup = 2, ///< text as well, but in some places more than that
    Blank = 4,
    StartsName = 8,
    ContinuesName = 16,
};

constexpr auto classes = [] {
    std::array<uchar, 0x460> table = {};
    const auto mark = [&table](char16_t first, char16_t last, int bits) {
        for (std::size_t c = first; c <= last; ++c)
            table[c] = static_cast<uchar>(table[c] | bits);
    };
    mark(0x20, table.size() - 1, Text);
    for (const char16_t blank : {u' ', u'\n', u'\t', u'\r'})
        mark(blank, blank, Text | Blank);
    for (const char16_t character : {u'<', u'&', u']', u'"', u'\'', u'-', u'?'})
        mark(character, character, Markup);
    for (const char16_t sign : {u'-', u'.', u':'})
        mark(sign, sign, ContinuesName);
    mark(u'0', u'9', ContinuesName);
    mark(u'_', u'_', StartsName | ContinuesName);
    mark(u'a', u'z', StartsName | ContinuesName);
    mark(u'A', u'Z', StartsName | ContinuesName);
    mark(u'А', u'я', StartsName | ContinuesName);
    mark(u'Ё', u'Ё', StartsName | ContinuesName);
    mark(u'ё', u'ё', StartsName | ContinuesName);
    return table;
}();

uchar classOf(QChar character)
{
    const char16_t c = character.unicode();
    return c < classes.size() ? classes[c] : uchar(c < 0xfffe ? Text : 0);
}

bool is(QChar character, CharacterClass bits)
{
    return (classOf(character) & bits) != 0;
}

} // namespace

Scanner::Scanner(QIODevice &device, Loading &loading)
    : source(device, loading), countsPlaces(loading.wantsPositions)
{
}

bool Scanner::isAtEnd()
{
    if (position > usualStep)
        drop();
    return position == text.size() && !fetch(position) && source.isAtEnd();
}

QString Scanner::take(int count)
{
    QString taken = text.mid(position, count);
    position += count;
    return taken;
}

bool Scanner::skip(QLatin1String word)
{
    const int length = static_cast<int>(word.size());
    at(length - 1);
    const bool isThere =
        text.size() - position >= length && QStringView(text).mid(position, length) == word;
    if (isThere)
        position += length;
    return isThere;
}

bool Scanner::skipBlanks()
{
    const int before = position;
    while (is(at(0), Blank))
        ++position;
    return position > before;
}

bool Scanner::skipBlanksTo(QChar end)
{
    int length = 0;
    while (is(at(length), Blank))
        ++length;
    const bool isThere = at(length) == end;
    if (isThere)
        position += length;
    return isThere;
}

void Scanner::takePlain(QString &value, QChar end, QChar otherEnd, QChar thirdEnd)
{
    at(usualText);
    do {
        const QChar *const begin = text.constData() + position;
        const QChar *const last = text.constData() + text.size();
        const QChar *const found = std::find_if(begin, last, [=](QChar next) {
            const int bits = classOf(next) & (Text | Markup);
            return bits != Text &&
                   (bits == 0 || next == end || next == otherEnd || next == thirdEnd);
        });
        const int length = static_cast<int>(found - begin);
        // What is appended to grows in steps, and most texts are all in one piece.
        if (value.isEmpty() && length > 0)
            value = QString(begin, length);
        else
            value.append(begin, length);
        position += length;
        if (found != last)
            return;
        drop();
    } while (fetch(position));
}

bool Scanner::takeUpTo(QLatin1String end, QString &value)
{
    const QChar first = end.at(0);
    for (;;) {
        takePlain(value, first, first, first);
        if (skip(end))
            return true;
        if (at(0) != first)
            return false;
        value += first;
        ++position;
    }
}

bool Scanner::takeName(QString &name)
{
    at(usualText);
    const QChar *const begin = text.constData() + position;
    const QChar *const last = text.constData() + text.size();
    const QChar *const end =
        std::find_if(begin, last, [](QChar character) { return !is(character, ContinuesName); });
    const int length = static_cast<int>(end - begin);
    if (length == 0 || length > usualText || !is(*begin, StartsName))
        return false;
    const auto mark =
        static_cast<unsigned>(length * 31 + begin->unicode() * 7 + (end - 1)->unicode());
    QString &known = names[mark % names.size()];
    if (!std::equal(begin, end, known.cbegin(), known.cend()))
        known = QString(begin, length);
    name = known;
    position += length;
    return true;
}

bool Scanner::skipName(const QString &name)
{
    const int length = static_cast<int>(name.size());
    if (is(at(length), ContinuesName) || text.size() - position < length ||
        !std::equal(name.cbegin(), name.cend(), text.constData() + position))
        return false;
    position += length;
    return true;
}

bool Scanner::takeReference(QString &value, QString &entity)
{
    int length = 0;
    while (length < longestReference && at(length) != u';')
        ++length;
    if (length == 0 || length == longestReference)
        return false;
    const QString name = take(length);
    pass(1);
    if (name.at(0) == u'#') {
        bool isNumber = false;
        const bool isHex = name.size() > 1 && name.at(1) == u'x';
        const QString digits = name.mid(isHex ? 2 : 1);
        // The conversion would take blanks, signs and a prefix, too.
        const bool isPlainNumber = std::all_of(digits.begin(), digits.end(), [=](QChar digit) {
            return (digit >= u'0' && digit <= u'9') || (isHex && digit >= u'a' && digit <= u'f') ||
                   (isHex && digit >= u'A' && digit <= u'F');
        });
        const char32_t code = digits.toUInt(&isNumber, isHex ? 16 : 10);
        const bool isCharacter =
            code == u'\t' || code == u'\n' || code == u'\r' || (code >= 0x20 && code < 0xd800) ||
            (code >= 0xe000 && code < 0xfffe) || (code >= 0x10000 && code < 0x110000);
        if (!isPlainNumber || !isNumber || !isCharacter)
            return false;
        value += QString::fromUcs4(&code, 1);
        return true;
    }
    static const std::array<std::pair<QLatin1String, char16_t>, 5> known = {{
        {QLatin1String("amp"), u'&'},
        {QLatin1String("lt"), u'<'},
        {QLatin1String("gt"), u'>'},
        {QLatin1String("quot"), u'"'},
        {QLatin1String("apos"), u'\''},
    }};
    for (const auto &[knownName, character] : known) {
        if (name == knownName) {
            value += QChar(character);
            return true;
        }
    }
    entity = name;
    return std::all_of(name.begin(), name.end(),
                       [](QChar character) { return is(character, StartsName); });
}

bool Scanner::continuesName(QChar character)
{
    return is(character, ContinuesName);
}

/// Decodes on until the character at `index` is there, and some more. False if there is none.
bool Scanner::fetch(int index)
{
    while (text.size() <= index || text.size() - position < usualStep) {
        source.fetchData();
        const QString piece = source.data();
        if (piece.isEmpty())
            break;
        text += piece;
    }
    return index < text.size();
}

SourcePosition Scanner::place()
{
    for (; countedPosition < position; ++countedPosition) {
        const QChar passed = text.at(countedPosition);
        if (passed == u'\r' || (passed == u'\n' && lastCounted != u'\r'))
            counted = {counted.line + 1, 1};
        else if (passed != u'\n' && !passed.isLowSurrogate())
            ++counted.column;
        lastCounted = passed;
    }
    return counted;
}

/// Forgets what has been passed.
void Scanner::drop()
{
    if (countsPlaces)
        place();
    text.remove(0, position);
    position = 0;
    countedPosition = 0;
}
