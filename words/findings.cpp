// SPDX-License-Identifier: MIT
#include "words/findings.h"

#include "words/language.h"
#include "words/outcomes.h"

#include <QMap>

#include <algorithm>
#include <iterator>

using survey::Finding;
using survey::Kind;
using survey::Level;

namespace words
{

namespace
{

struct Text {
    const char *key;
    const char *words;
};

// Why a source is not well-formed: the faults that a survey tells, and what the parser says of
// those that it does not.
const Text faults[] = {
    {"nothing", QT_TRANSLATE_NOOP("Words", "it is empty")},
    {"html", QT_TRANSLATE_NOOP("Words", "it is an HTML page")},
    {"no-xml", QT_TRANSLATE_NOOP("Words", "it is no XML at all")},
    {"end", QT_TRANSLATE_NOOP("Words", "it ends in the middle")},
    {"tag", QT_TRANSLATE_NOOP("Words", "an end tag is not that of the element it stands in")},
    {"reference", QT_TRANSLATE_NOOP("Words", "an \"&\" with no entity behind it; the plain "
                                             "character is written \"&amp;\"")},
    {"element", QT_TRANSLATE_NOOP("Words", "a broken tag, or a \"<\" that begins none; the plain "
                                           "character is written \"&lt;\"")},
    {"content", QT_TRANSLATE_NOOP("Words", "something that no element may hold, such as \"]]>\"")},
    {"comment", QT_TRANSLATE_NOOP("Words", "a comment with \"--\" in it")},
    {"declaration",
     QT_TRANSLATE_NOOP("Words", "an XML declaration that is not at the very beginning")},
    {"unexpected character", QT_TRANSLATE_NOOP("Words", "a character that may not stand there")},
    {"recursive entities", QT_TRANSLATE_NOOP("Words", "an entity that holds itself")},
    {"external parsed general entity reference not allowed in attribute value",
     QT_TRANSLATE_NOOP("Words", "an entity of another file in an attribute")},
    {"error occurred while parsing document type definition",
     QT_TRANSLATE_NOOP("Words", "a broken document type declaration")},
    {"version expected while reading the XML declaration",
     QT_TRANSLATE_NOOP("Words", "a broken XML declaration")},
    {"encoding declaration or standalone declaration expected while reading the XML declaration",
     QT_TRANSLATE_NOOP("Words", "a broken XML declaration")},
    {"standalone declaration expected while reading the XML declaration",
     QT_TRANSLATE_NOOP("Words", "a broken XML declaration")},
    {"wrong value for standalone declaration",
     QT_TRANSLATE_NOOP("Words", "a broken XML declaration")},
};

const Text limits[] = {
    {"nesting", QT_TRANSLATE_NOOP("Words", "elements are nested too deep")},
    {"attributes", QT_TRANSLATE_NOOP("Words", "an element has too many attributes")},
    {"brackets", QT_TRANSLATE_NOOP("Words", "there are too many brackets ahead of the root")},
    {"entities", QT_TRANSLATE_NOOP("Words", "it declares too many entities, or too long ones")},
    {"parameter-entity", QT_TRANSLATE_NOOP("Words", "it declares a parameter entity")},
    {"expansion", QT_TRANSLATE_NOOP("Words", "its entities stand for too much text")},
    {"memory", QT_TRANSLATE_NOOP("Words", "it takes more memory than there is")},
};

/// The words of a key; null if it has none.
template <std::size_t size>
QString wordsOf(const Text (&texts)[size], const QString &key)
{
    const auto *const text = std::find_if(std::begin(texts), std::end(texts), [&](const Text &one) {
        return key == QLatin1String(one.key);
    });
    return text != std::end(texts) ? Words::tr(text->words) : QString();
}

QString notReadable(const QStringList &details)
{
    const QString why = systemWords(details.value(0));
    const QString what = Words::tr("the source can't be read");
    return why.isEmpty() ? what : what + QLatin1String(": ") + why;
}

QString notWellFormed(const QStringList &details)
{
    QString why;
    for (const QString &key : details) {
        if (why.isNull())
            why = wordsOf(faults, key);
    }
    return Words::tr("the source is no well-formed XML: %1")
        .arg(why.isNull() ? details.value(1) : why);
}

QString wrongEncoding(const QStringList &details)
{
    const QString declared = details.value(0);
    const QString fitting = details.value(1);
    if (declared.isEmpty())
        return Words::tr("no encoding is declared, and the source is not in UTF-8");
    if (fitting.isEmpty())
        return Words::tr("the declared encoding is %1, but the source is in another one")
            .arg(declared);
    return Words::tr("the declared encoding is %1, but the source is in %2").arg(declared, fitting);
}

QString limit(const QStringList &details)
{
    return Words::tr("the source goes beyond a limit: %1").arg(wordsOf(limits, details.value(0)));
}

QString nothingToExport(const QStringList &details)
{
    const QString root = details.value(0);
    if (root.compare(QLatin1String("html"), Qt::CaseInsensitive) == 0)
        return Words::tr("the source is an HTML page, no trade data");
    return Words::tr("the source is no trade data: its root is \"%1\"").arg(root);
}

QString noCode(const QStringList &details)
{
    return (details.size() > 1
                ? Words::tr("the order line \"%1\" has no identifier, and is left out")
                : Words::tr("\"%1\" has no identifier, and is left out"))
        .arg(details.value(0));
}

QString noLines(const QStringList &details)
{
    const int lost = details.value(0).toInt();
    return lost == 0
               ? Words::tr("the document has no lines, and the export ends at it")
               : Words::tr("the document has no lines, and the export ends at it: %n document(s) "
                           "behind it are lost",
                           nullptr, lost);
}

QString unknownGroup(const QStringList &details)
{
    return (details.size() > 1 ? Words::tr("a group above the group \"%1\" is missing")
                               : Words::tr("there is no group \"%1\""))
        .arg(details.value(0));
}

/// What in the exchange file holds something odd: the details begin with its key.
QString holder(const QStringList &details)
{
    const QString key = details.value(0);
    return key.isEmpty() ? Words::tr("the free text") : Words::tr("the value of \"%1\"").arg(key);
}

QString lineBreak(const QStringList &details)
{
    return Words::tr("%1 has a line break").arg(holder(details));
}

QString markerInText(const QStringList &details)
{
    return Words::tr("%1 has the line \"%2\", which looks like one of the exchange file")
        .arg(holder(details), details.value(1));
}

QString brokenCharacters(const QStringList &details)
{
    return Words::tr("%1 has broken or control characters").arg(holder(details));
}

struct Sentence {
    Kind kind;
    const char *name;
    const char *text;                                // with its first detail for %1
    QString (*write)(const QStringList &) = nullptr; // where the details ask for more
};

const Sentence sentences[] = {
    {Kind::NotReadable, QT_TRANSLATE_NOOP("Words", "not readable"), nullptr, notReadable},
    {Kind::NotWellFormed, QT_TRANSLATE_NOOP("Words", "no well-formed XML"), nullptr, notWellFormed},
    {Kind::WrongEncoding, QT_TRANSLATE_NOOP("Words", "wrong encoding"), nullptr, wrongEncoding},
    {Kind::Limit, QT_TRANSLATE_NOOP("Words", "beyond a limit"), nullptr, limit},
    {Kind::NothingToExport, QT_TRANSLATE_NOOP("Words", "no trade data"), nullptr, nothingToExport},
    {Kind::Empty, QT_TRANSLATE_NOOP("Words", "nothing to export"),
     QT_TRANSLATE_NOOP("Words", "there is nothing in the source to export")},
    {Kind::Changed, QT_TRANSLATE_NOOP("Words", "changed while it was read"),
     QT_TRANSLATE_NOOP("Words", "the source changed while it was read")},
    {Kind::NoCode, QT_TRANSLATE_NOOP("Words", "no identifier"), nullptr, noCode},
    {Kind::NoPartner, QT_TRANSLATE_NOOP("Words", "document without a partner"),
     QT_TRANSLATE_NOOP("Words", "the document has no partner with a code, and is left out")},
    {Kind::NoNumber, QT_TRANSLATE_NOOP("Words", "document without a number"),
     QT_TRANSLATE_NOOP("Words", "the document has no number, and only its partner is exported")},
    {Kind::NoLines, QT_TRANSLATE_NOOP("Words", "document without lines"), nullptr, noLines},
    {Kind::PrefixedName, QT_TRANSLATE_NOOP("Words", "name with a prefix"),
     QT_TRANSLATE_NOOP("Words", "\"%1\" has a prefix, and is not known by this name")},
    {Kind::NotReached, QT_TRANSLATE_NOOP("Words", "where no export looks for it"),
     QT_TRANSLATE_NOOP("Words", "\"%1\" stands where no export looks for it, and is left out")},
    {Kind::OtherRole, QT_TRANSLATE_NOOP("Words", "partner of another role"),
     QT_TRANSLATE_NOOP("Words", "the partner \"%1\" has another role than the wanted one")},
    {Kind::UnknownGroup, QT_TRANSLATE_NOOP("Words", "unknown group"), nullptr, unknownGroup},
    {Kind::GroupLoop, QT_TRANSLATE_NOOP("Words", "groups that lead back to themselves"),
     QT_TRANSLATE_NOOP("Words", "the groups above the group \"%1\" lead back to one of them")},
    {Kind::NoGroup, QT_TRANSLATE_NOOP("Words", "no group"),
     QT_TRANSLATE_NOOP("Words", "it is in no group")},
    {Kind::NoName, QT_TRANSLATE_NOOP("Words", "no name"),
     QT_TRANSLATE_NOOP("Words", "it has no name")},
    {Kind::NoPrice, QT_TRANSLATE_NOOP("Words", "no price"),
     QT_TRANSLATE_NOOP("Words", "it has no price")},
    {Kind::PriceNotANumber, QT_TRANSLATE_NOOP("Words", "price that is no number"),
     QT_TRANSLATE_NOOP("Words", "the price \"%1\" is no number")},
    {Kind::PricesDropped, QT_TRANSLATE_NOOP("Words", "too many prices"),
     QT_TRANSLATE_NOOP("Words", "it has more prices than the exchange file holds")},
    {Kind::DuplicateCode, QT_TRANSLATE_NOOP("Words", "repeated code"),
     QT_TRANSLATE_NOOP("Words", "another one in the same section has this code")},
    {Kind::EmptyCode, QT_TRANSLATE_NOOP("Words", "empty code"),
     QT_TRANSLATE_NOOP("Words", "its code is empty")},
    {Kind::LineBreak, QT_TRANSLATE_NOOP("Words", "line break"), nullptr, lineBreak},
    {Kind::MarkerInText, QT_TRANSLATE_NOOP("Words", "line like one of the exchange file"), nullptr,
     markerInText},
    {Kind::BrokenCharacters, QT_TRANSLATE_NOOP("Words", "broken or control characters"), nullptr,
     brokenCharacters},
    {Kind::SoldOut, QT_TRANSLATE_NOOP("Words", "sold out"),
     QT_TRANSLATE_NOOP("Words", "it is sold out, and exported without unit and description")},
};

/// Null if the kind has none.
const Sentence *sentenceOf(Kind kind)
{
    const auto *const found =
        std::find_if(std::begin(sentences), std::end(sentences),
                     [kind](const Sentence &one) { return one.kind == kind; });
    return found != std::end(sentences) ? found : nullptr;
}

} // namespace

QString printable(const QString &text)
{
    constexpr int longest = 60;
    QString result = text.simplified();
    if (result.size() > longest) {
        const bool isInPair = result.at(longest - 1).isHighSurrogate();
        result.truncate(isInPair ? longest - 1 : longest);
        result += QChar(0x2026); // an ellipsis
    }
    for (QChar &character : result) {
        if (character.category() == QChar::Other_Control ||
            character.category() == QChar::Other_Format)
            character = QChar::ReplacementCharacter;
    }
    return result;
}

QString levelWord(Level level)
{
    switch (level) {
    case Level::Error:
        return Words::tr("error");
    case Level::Loss:
        return Words::tr("loss");
    case Level::Doubt:
        return Words::tr("doubt");
    }
    return {};
}

QString kindName(Kind kind)
{
    const Sentence *const found = sentenceOf(kind);
    return found != nullptr ? Words::tr(found->name) : QString();
}

QString sentence(const Finding &finding)
{
    QStringList details;
    for (const QString &detail : finding.details)
        details.append(printable(detail));
    const Sentence *const found = sentenceOf(finding.kind);
    if (found == nullptr)
        return {};
    if (found->write != nullptr)
        return found->write(details);
    const QString text = Words::tr(found->text);
    return details.isEmpty() ? text : text.arg(details.first());
}

QString countsInWords(const survey::Counts &counts)
{
    QStringList parts;
    const auto add = [&](int count, const char *text) {
        if (count > 0)
            parts.append(Words::tr(text, nullptr, count));
    };
    add(counts.goods, QT_TRANSLATE_N_NOOP("Words", "%n good(s)"));
    add(counts.offers, QT_TRANSLATE_N_NOOP("Words", "%n offer(s)"));
    add(counts.documents, QT_TRANSLATE_N_NOOP("Words", "%n document(s)"));
    add(counts.lines, QT_TRANSLATE_N_NOOP("Words", "%n order line(s)"));
    add(counts.partners - counts.documents,
        QT_TRANSLATE_N_NOOP("Words", "%n partner(s) without an order"));
    return parts.isEmpty() ? Words::tr("nothing") : parts.join(QLatin1String(", "));
}

QString levelsInWords(const survey::Survey &survey)
{
    // All findings of a kind have the same level, and the first ones are always there.
    QMap<Kind, Level> levels;
    for (const Finding &finding : survey.findings)
        levels.insert(finding.kind, finding.level);
    QMap<Level, int> counts;
    for (auto level = levels.cbegin(); level != levels.cend(); ++level)
        counts[level.value()] += survey.found.value(level.key());

    QStringList parts;
    const auto add = [&](Level level, const char *text) {
        if (counts.contains(level))
            parts.append(Words::tr(text, nullptr, counts.value(level)));
    };
    add(Level::Error, QT_TRANSLATE_N_NOOP("Words", "%n error(s)"));
    add(Level::Loss, QT_TRANSLATE_N_NOOP("Words", "%n loss(es)"));
    add(Level::Doubt, QT_TRANSLATE_N_NOOP("Words", "%n doubt(s)"));
    return parts.join(QLatin1String(", "));
}

} // namespace words
