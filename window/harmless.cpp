// SPDX-License-Identifier: MIT
#include "window/harmless.h"

#include <QVector>

#include <algorithm>
#include <iterator>

namespace window
{

/// Isolates and overrides within each other take the toolkit the square of their number, and some
/// of what is no character has a meaning for its documents.
static bool isShown(uint code)
{
    const bool turnsOthers =
        (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
    const bool isNoCharacter = code == 0 || (code >= 0xFDD0 && code <= 0xFDEF);
    return !turnsOthers && !isNoCharacter;
}

static bool endsLine(uint code)
{
    return code == u'\n' || code == u'\r' || code == QChar::LineSeparator ||
           code == QChar::ParagraphSeparator;
}

/// Puts letters behind each other. Those that no blank parts are laid out as one, in the square of
/// their number, so lines are broken between them.
class Letters
{
public:
    explicit Letters(QString &to) : to(to) {}

    void add(uint code, const QString &written)
    {
        constexpr int longestWord = 500;
        if (!isShown(code))
            return;
        if (code == u' ' || code == u'\t' || endsLine(code))
            part();
        else if (++inWord > longestWord && !QChar::isLowSurrogate(code)) {
            to += u'\n';
            inWord = 1;
        }
        to += written;
        effort += weight;
        lines += endsLine(code) ? 1 : 0;
    }

    /// What comes next is laid out by itself.
    void part() { inWord = 0; }

    /// In tables within each other each takes twice as long as in the one around it.
    void setTables(int depth) { weight = 1 << depth; }

    /// Whether this is as much as is laid out in no time.
    bool isFull() const
    {
        constexpr int mostLetters = 30000;
        constexpr int mostLines = 5000;
        return effort >= mostLetters || lines >= mostLines;
    }

private:
    QString &to;
    int inWord = 0;
    int effort = 0; ///< in letters that no table is around
    int weight = 1;
    int lines = 0;
};

QString harmlessText(const QString &text)
{
    QString shown;
    Letters letters(shown);
    for (const QChar letter : text) {
        if (letters.isFull())
            return shown + QStringLiteral("\n…");
        letters.add(letter.unicode(), letter);
    }
    return shown;
}

namespace
{

enum Role : unsigned {
    Inline = 1,
    Paragraph = 2,
    Block = 4,
    Empty = 8,
    List = 16,
    Item = 32,
    Table = 64,
    Row = 128,
    Cell = 256,
    LeftOut = 512, ///< with its content
};

struct Element {
    const char *name;
    const char *shownAs;
    Role role;
};

} // namespace

static constexpr Element tableRow = {"tr", "tr", Row};

static constexpr Element elements[] = {
    {"article", "div", Block},
    {"b", "b", Inline},
    {"big", "big", Inline},
    {"blockquote", "blockquote", Block},
    {"br", "br", Empty},
    {"caption", "div", Block},
    {"center", "center", Block},
    {"code", "code", Inline},
    {"dd", "dd", Item},
    {"del", "s", Inline},
    {"div", "div", Block},
    {"dl", "dl", List},
    {"dt", "dt", Item},
    {"em", "em", Inline},
    {"h1", "h1", Block},
    {"h2", "h2", Block},
    {"h3", "h3", Block},
    {"h4", "h4", Block},
    {"h5", "h5", Block},
    {"h6", "h6", Block},
    {"hr", "hr", Empty},
    {"i", "i", Inline},
    {"ins", "u", Inline},
    {"li", "li", Item},
    {"ol", "ol", List},
    {"p", "p", Paragraph},
    {"pre", "pre", Block},
    {"s", "s", Inline},
    {"script", "", LeftOut},
    {"section", "div", Block},
    {"small", "small", Inline},
    {"strike", "s", Inline},
    {"strong", "strong", Inline},
    {"style", "", LeftOut},
    {"sub", "sub", Inline},
    {"sup", "sup", Inline},
    {"table", "table", Table},
    {"td", "td", Cell},
    {"th", "th", Cell},
    {"title", "", LeftOut},
    tableRow,
    {"u", "u", Inline},
    {"ul", "ul", List},
};

static const Element *elementOf(const QString &name)
{
    const auto *const found =
        std::find_if(std::begin(elements), std::end(elements), [&](const Element &element) {
            return name.compare(QLatin1String(element.name), Qt::CaseInsensitive) == 0;
        });
    return found == std::end(elements) ? nullptr : found;
}

static bool isAsciiLetter(QChar letter)
{
    const uint lower = letter.unicode() | 0x20U;
    return lower >= 'a' && lower <= 'z';
}

namespace
{

/// Reads HTML from its first letter to the last, each of them once or twice.
class HtmlReader
{
public:
    explicit HtmlReader(const QString &html)
        : html(html),
          size(int(html.size())),
          lastTagEnd(int(html.lastIndexOf(u'>'))),
          letters(shown)
    {
    }

    std::optional<QString> read();

private:
    bool readMarkup();
    bool readTag();
    bool readReference();
    bool startsWith(const char *text) const
    {
        const auto length = int(qstrlen(text));
        return html.mid(place, length) == QLatin1String(text);
    }
    int endOfTag(int from);
    void skipTo(int end) { place = end < 0 ? size : end; }

    void start(const Element &element);
    void end(const Element &element);
    void put(const Element &element);
    void open(const Element &element);
    void close(int depth);
    void countTables(const Element &element, int step);
    template <typename IsWanted>
    int innermost(IsWanted isWanted, unsigned borders) const;
    int innermostOf(unsigned roles, unsigned borders) const
    {
        return innermost([&](const Element &element) { return (element.role & roles) != 0; },
                         borders);
    }

    const QString &html;
    const int size;
    const int lastTagEnd;
    int place = 0;
    bool heedsQuotes = true;
    QString shown;
    Letters letters;
    QVector<const Element *> around;
    int tables = 0; ///< around this place
    int effort = 0; ///< in elements that one table at most is around
    bool isSmall = true;
};

} // namespace

std::optional<QString> HtmlReader::read()
{
    while (place < size && isSmall) {
        const QChar letter = html.at(place);
        if ((letter == u'<' && readMarkup()) || (letter == u'&' && readReference()))
            continue;
        ++place;
        letters.add(letter.unicode(), QString(letter).toHtmlEscaped());
        isSmall = !letters.isFull();
    }
    if (!isSmall)
        return {};
    close(0);
    return shown;
}

/// False if this is none, and so text.
bool HtmlReader::readMarkup()
{
    if (startsWith("<!--")) {
        const auto end = int(html.indexOf(QLatin1String("-->"), place + 2));
        skipTo(end < 0 ? end : end + 3);
        return true;
    }
    if (startsWith("<!") || startsWith("<?")) {
        const auto end = int(html.indexOf(u'>', place));
        skipTo(end < 0 ? end : end + 1);
        return true;
    }
    return readTag();
}

bool HtmlReader::readTag()
{
    const bool isEnd = startsWith("</");
    const int nameAt = place + (isEnd ? 2 : 1);
    int behindName = nameAt;
    while (behindName < size &&
           (isAsciiLetter(html.at(behindName)) ||
            (behindName > nameAt && (html.at(behindName).isDigit() || html.at(behindName) == u':' ||
                                     html.at(behindName) == u'-'))))
        ++behindName;
    const int behindTag = behindName == nameAt ? -1 : endOfTag(behindName);
    if (behindTag < 0)
        return false;
    place = behindTag;
    const Element *const element = elementOf(html.mid(nameAt, behindName - nameAt));
    if (element != nullptr && isEnd)
        end(*element);
    else if (element != nullptr)
        start(*element);
    return true;
}

/// Behind the tag; -1 if it has no end.
int HtmlReader::endOfTag(int from)
{
    if (from > lastTagEnd)
        return -1;
    QChar before;
    for (int at = from; heedsQuotes && at < size; ++at) {
        const QChar letter = html.at(at);
        if (letter == u'>')
            return at + 1;
        if ((letter == u'"' || letter == u'\'') && before == u'=') {
            at = int(html.indexOf(letter, at + 1));
            if (at < 0)
                break;
        }
        if (!letter.isSpace())
            before = letter;
    }
    // There are too many quotes; whoever looks for their ends again and again takes long.
    heedsQuotes = false;
    return int(html.indexOf(u'>', from)) + 1;
}

/// False if this is none that the toolkit is to read.
bool HtmlReader::readReference()
{
    constexpr int longest = 10;
    int behind = place + 1;
    while (behind < size && behind - place < longest &&
           (isAsciiLetter(html.at(behind)) || html.at(behind).isDigit() || html.at(behind) == u'#'))
        ++behind;
    if (behind == place + 1 || behind >= size || html.at(behind) != u';')
        return false;
    const QString name = html.mid(place + 1, behind - place - 1);
    uint code = 'x';
    bool isRead = true;
    if (name.startsWith(u'#')) {
        const bool isHex = name.startsWith(QLatin1String("#x"), Qt::CaseInsensitive);
        code = name.mid(isHex ? 2 : 1).toUInt(&isRead, isHex ? 16 : 10);
    }
    if (!isRead || code > QChar::LastValidCodePoint || QChar::isSurrogate(code))
        return false;
    letters.add(code, html.mid(place, behind + 1 - place));
    isSmall = !letters.isFull();
    place = behind + 1;
    return true;
}

void HtmlReader::start(const Element &element)
{
    if ((element.role & (Paragraph | Block | List | Table)) != 0) {
        const int paragraph = innermostOf(Paragraph, Cell | Table);
        if (paragraph >= 0)
            close(paragraph);
    }
    switch (element.role) {
    case LeftOut:
        skipTo(int(html.indexOf(QLatin1String("</") + QLatin1String(element.name), place,
                                Qt::CaseInsensitive)));
        return;
    case Empty:
        put(element);
        return;
    case Item: {
        const int item = innermostOf(Item, List | Cell | Table);
        if (item >= 0)
            close(item);
        break;
    }
    case Row:
    case Cell: {
        const int parent = innermostOf(element.role == Row ? Table : Table | Row, 0);
        if (parent < 0)
            return;
        close(parent + 1);
        if (element.role == Cell && around.last()->role == Table)
            open(tableRow);
        break;
    }
    default:
        break;
    }
    open(element);
}

void HtmlReader::end(const Element &element)
{
    const unsigned borders = element.role == Table                ? 0U
                             : (element.role & (Row | Cell)) != 0 ? unsigned(Table)
                                                                  : unsigned(Cell | Table);
    const int depth =
        innermost([&](const Element &other) { return other.name == element.name; }, borders);
    if (depth >= 0)
        close(depth);
}

void HtmlReader::put(const Element &element)
{
    constexpr int most = 1500;
    effort += std::max(tables, 1);
    isSmall = isSmall && effort <= most;
    shown += u'<' + QLatin1String(element.shownAs) + u'>';
    if (element.role != Inline)
        letters.part();
}

void HtmlReader::open(const Element &element)
{
    constexpr int deepest = 30;
    put(element);
    around.append(&element);
    isSmall = isSmall && around.size() <= deepest;
    countTables(element, 1);
}

void HtmlReader::close(int depth)
{
    while (around.size() > depth) {
        const Element *const element = around.takeLast();
        shown += QLatin1String("</") + QLatin1String(element->shownAs) + u'>';
        if (element->role != Inline)
            letters.part();
        countTables(*element, -1);
    }
}

void HtmlReader::countTables(const Element &element, int step)
{
    tables += element.role == Table ? step : 0;
    letters.setTables(tables);
}

/// The depth of the innermost element of this kind that no border is around; -1 if there is none.
template <typename IsWanted>
int HtmlReader::innermost(IsWanted isWanted, unsigned borders) const
{
    for (int depth = int(around.size()) - 1; depth >= 0; --depth) {
        if (isWanted(*around.at(depth)))
            return depth;
        if ((around.at(depth)->role & borders) != 0)
            return -1;
    }
    return -1;
}

std::optional<QString> harmlessHtml(const QString &html)
{
    constexpr int longest = 1000000; // pictures may be in it
    return html.size() > longest ? std::nullopt : HtmlReader(html).read();
}

} // namespace window
