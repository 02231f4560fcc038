// SPDX-License-Identifier: MIT
#include "reader/scanner.h"

#include <algorithm>
#include <utility>

/// Decoded ahead, in characters: what the caches of a processor hold.
static constexpr int usualStep = 1 << 14;

/// Characters of a reference, with its semicolon.
static constexpr int longestReference = 12;

static bool isBlank(QChar character)
{
    return character == u' ' || character == u'\n' || character == u'\t' || character == u'\r';
}

/// Characters that are nothing but text, wherever they stand.
static bool isPlain(QChar character)
{
    const ushort c = character.unicode();
    return c >= 0x20 ? c < 0xfffe : isBlank(character);
}

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
    while (isBlank(at(0)))
        ++position;
    return position > before;
}

void Scanner::takePlain(QString &value, QChar end, QChar otherEnd, QChar thirdEnd)
{
    int length = 0;
    for (QChar next = at(0); isPlain(next) && next != end && next != otherEnd && next != thirdEnd;
         next = at(length)) {
        ++length;
        if (length == usualStep) {
            value += take(length);
            length = 0;
            drop();
        }
    }
    // What is appended to grows in steps, and most texts are all in one piece.
    if (value.isEmpty() && length > 0)
        value = text.mid(position, length);
    else
        value.append(text.constData() + position, length);
    position += length;
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
    if (!startsName(at(0)))
        return false;
    int length = 1;
    while (continuesName(at(length)))
        ++length;
    const QStringView found = QStringView(text).mid(position, length);
    const auto mark = static_cast<unsigned>(length * 31 + found.at(0).unicode() * 7 +
                                            found.at(length - 1).unicode());
    QString &known = names[mark % names.size()];
    if (known != found)
        known = found.toString();
    name = known;
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
    return std::all_of(name.begin(), name.end(), startsName);
}

bool Scanner::startsName(QChar character)
{
    const ushort c = character.unicode();
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           (c >= 0x410 && c <= 0x44f) || c == 0x401 || c == 0x451;
}

bool Scanner::continuesName(QChar character)
{
    const ushort c = character.unicode();
    return startsName(character) || (c >= '0' && c <= '9') || c == '-' || c == '.' || c == ':';
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
