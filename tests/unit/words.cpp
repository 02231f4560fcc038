// SPDX-License-Identifier: MIT
#include "survey/loadfailure.h"
#include "words/findings.h"
#include "words/language.h"
#include "words/outcomes.h"
#include "words/toolkit.h"

#include <QRegularExpression>
#include <QSet>
#include <QtTest>

using namespace words;
using delivery::Reason;
using delivery::Replacement;
using survey::failureFinding;
using survey::Finding;
using survey::Kind;
using survey::Level;

/// What is said in each language.
struct Said {
    QString english;
    QString russian;
};

template <typename Say>
static Said inBoth(const Say &say)
{
    Said said;
    const Speaking russian(Language::Russian);
    {
        const Speaking english(Language::English);
        said.english = say();
    }
    said.russian = say();
    return said;
}

static Said inBoth(Kind kind, const QStringList &details)
{
    return inBoth([&] { return sentence(Finding{kind, Level::Doubt, {}, true, {}, details}); });
}

/// Whether it was said in two languages, each to the end.
static bool isWhole(const Said &said)
{
    static const QRegularExpression cyrillic("[а-я]");
    static const QRegularExpression open("%|: $|^$");
    return said.russian.contains(cyrillic) && !said.english.contains(cyrillic) &&
           !said.english.contains(open) && !said.russian.contains(open);
}

class WordsTest : public QObject
{
    Q_OBJECT

private slots:
    static void everyKindHasASentence()
    {
        // Those that have details, with all forms of them; the first one shows up in the sentence.
        const QMultiMap<Kind, QStringList> details = {
            {Kind::NotReadable, {"odd"}},
            {Kind::NotWellFormed, {"other", "odd"}},
            {Kind::WrongEncoding, {"", ""}},
            {Kind::WrongEncoding, {"UTF-8", ""}},
            {Kind::WrongEncoding, {"KOI8-R", "UTF-8"}},
            {Kind::Limit, {"memory"}},
            {Kind::NothingToExport, {"root"}},
            {Kind::NothingToExport, {"HTML"}},
            {Kind::NoCode, {"name"}},
            {Kind::NoCode, {"name", "line"}},
            {Kind::NoLines, {"0"}},
            {Kind::NoLines, {"2"}},
            {Kind::PrefixedName, {"x:name"}},
            {Kind::NotReached, {"name"}},
            {Kind::OtherRole, {"p1"}},
            {Kind::UnknownGroup, {"g1"}},
            {Kind::UnknownGroup, {"g1", "parent"}},
            {Kind::GroupLoop, {"g1"}},
            {Kind::PriceNotANumber, {"1,5"}},
            {Kind::LineBreak, {"name:"}},
            {Kind::LineBreak, {""}},
            {Kind::MarkerInText, {"name:", "##goods"}},
            {Kind::BrokenCharacters, {"name:"}},
        };
        QSet<QString> all;
        QSet<QString> names;
        for (const survey::KindInfo &info : survey::kinds()) {
            const Said name = inBoth([&] { return kindName(info.kind); });
            QVERIFY2(isWhole(name), info.name);
            QVERIFY2(!names.contains(name.russian), info.name);
            names.insert(name.russian);
            const auto forms = details.contains(info.kind) ? details.values(info.kind)
                                                           : QList<QStringList>{QStringList()};
            for (const QStringList &form : forms) {
                const Said said = inBoth(info.kind, form);
                QVERIFY2(isWhole(said), info.name);
                QVERIFY2(!all.contains(said.russian), info.name);
                all.insert(said.russian);
                const bool isKey = info.kind == Kind::Limit || form.value(0) == "0";
                const QString shown = form.value(info.kind == Kind::NotWellFormed ? 1 : 0);
                if (isKey)
                    continue;
                QVERIFY2(said.english.contains(shown), info.name);
                QVERIFY2(said.russian.contains(shown), info.name);
            }
        }
    }

    /// With the words that a survey has for them.
    static void everyFailureHasASentence()
    {
        Loading loading;
        loading.failure = LoadFailure::NotWellFormed;
        loading.failedAt = {2, 1};
        for (const char *message :
             {"unexpected end of file", "tag mismatch", "letter is expected",
              "error occurred while parsing reference", "error occurred while parsing element",
              "error occurred while parsing content", "error occurred while parsing comment",
              "invalid name for processing instruction", "unexpected character",
              "recursive entities", "error occurred while parsing document type definition",
              "wrong value for standalone declaration"}) {
            loading.message = message;
            const Finding finding = failureFinding(loading, false);
            const Said said = inBoth([&] { return sentence(finding); });
            QVERIFY2(isWhole(said) && !said.english.contains(message), message);
        }
        loading.failedAt = {1, 1};
        const Finding noXml = failureFinding(loading, false);
        const Finding html = failureFinding(loading, true);
        QCOMPARE(sentence(noXml), "the source is no well-formed XML: it is no XML at all");
        QCOMPARE(sentence(html), "the source is no well-formed XML: it is an HTML page");
        for (auto failure = LoadFailure::TooDeep; failure <= LoadFailure::OutOfMemory;
             failure = LoadFailure(int(failure) + 1)) {
            loading.failure = failure;
            const Finding finding = failureFinding(loading, false);
            QVERIFY(isWhole(inBoth([&] { return sentence(finding); })));
        }
    }

    static void outcomes()
    {
        using Hindrance = Replacement::Hindrance;
        Reason reason;
        QCOMPARE(sentence(reason), QString());
        for (int kind = int(Reason::Kind::TimedOut); kind <= int(Reason::Kind::FewerDocuments);
             ++kind) {
            reason.kind = Reason::Kind(kind);
            if (reason.kind != Reason::Kind::Hindered)
                QVERIFY(isWhole(inBoth([&] { return sentence(reason); })));
        }
        reason = {Reason::Kind::Hindered, {}, "File too large"};
        for (int i = int(Hindrance::NoFolder); i <= int(Hindrance::NotRenamed); ++i) {
            reason.hindrance = Hindrance(i);
            QVERIFY(isWhole(inBoth([&] { return sentence(reason); })));
            QVERIFY(sentence(reason).endsWith(": a file may not become so large"));
        }
        QCOMPARE(systemWords("No space left on device"), "the disk is full");
        QCOMPARE(systemWords("There is not enough space on the disk.\r\n"), "the disk is full");
        QCOMPARE(systemWords("Odd failure."), "Odd failure");
    }

    static void numbers()
    {
        survey::Counts counts;
        counts.offers = 5;
        const Speaking russian(Language::Russian);
        const QPair<int, QString> goods[] = {
            {1, "1 товар"}, {2, "2 товара"}, {5, "5 товаров"}, {11, "11 товаров"}, {21, "21 товар"},
        };
        for (const auto &[count, words] : goods) {
            counts.goods = count;
            QCOMPARE(countsInWords(counts), words + ", 5 предложений");
        }
        const Speaking english(Language::English);
        counts.documents = counts.partners = 1;
        counts.lines = 2;
        QCOMPARE(countsInWords(counts), "21 goods, 5 offers, 1 document, 2 order lines");
        QCOMPARE(countsInWords({}), "nothing");

        survey::Survey survey;
        QCOMPARE(levelsInWords(survey), QString());
        survey.found = {{Kind::NoCode, 12}, {Kind::NoLines, 1}, {Kind::NoName, 2}};
        survey.findings = {{Kind::NoCode, Level::Doubt, {}, true, {}, {}}, // it was accepted
                           {Kind::NoLines, Level::Loss, {}, true, {}, {}},
                           {Kind::NoName, Level::Doubt, {}, true, {}, {}},
                           {Kind::NoName, Level::Doubt, {}, true, {}, {}}};
        QCOMPARE(levelsInWords(survey), "1 loss, 14 doubts");
    }

    static void textsOfSources()
    {
        const QChar odd = QChar::ReplacementCharacter;
        const QChar turn(0x202e); // what follows is written from right to left
        QCOMPARE(printable(" 1,5\r\n руб\x1b[2J" + QString(turn)),
                 "1,5 руб" + QString(odd) + "[2J" + odd);
        const QString cut = printable(QString(59, 'x') + "😀" + "x");
        QCOMPARE(cut, QString(59, 'x') + "…");
        QCOMPARE(inBoth(Kind::MarkerInText, {"%2", "##%1"}).english,
                 "the value of \"%2\" has the line \"##%1\", which looks like one of the exchange "
                 "file");
    }

    static void languageOfTheLocale()
    {
        const struct {
            const char *all;
            const char *messages;
            const char *lang;
            Language language;
        } locales[] = {
            {"C.UTF-8", "ru_RU.UTF-8", "ru_RU.UTF-8", Language::English},
            {"", "ru_RU.UTF-8", "en_US.UTF-8", Language::Russian},
            {"", "", "ru_UA.KOI8-U", Language::Russian},
            {"", "", "de_DE", Language::English},
        };
        for (const auto &locale : locales) {
            qputenv("LC_ALL", locale.all);
            qputenv("LC_MESSAGES", locale.messages);
            qputenv("LANG", locale.lang);
            QCOMPARE(languageOfUser(), locale.language);
        }
    }

    static void menusOfTheToolkit()
    {
        const ToolkitTexts texts;
        for (const char *const text : {"&Undo", "Select All", "Scroll here"}) {
            const Said said = inBoth([&] { return texts.translate("QLineEdit", text, "", -1); });
            QVERIFY2(isWhole(said), text);
        }
        QVERIFY(texts.translate("QLineEdit", "Loading", "", -1).isNull());
    }
};

QTEST_GUILESS_MAIN(WordsTest)
#include "words.moc"
