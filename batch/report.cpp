// SPDX-License-Identifier: MIT
#include "batch/report.h"

#include "words/findings.h"
#include "words/language.h"
#include "words/outcomes.h"

#include <QJsonArray>

namespace batch
{

using delivery::Damage;
using delivery::ExchangeFile;
using delivery::Replacement;
using survey::Finding;
using words::Language;
using words::Speaking;
using words::Words;

namespace
{

constexpr int format = 1;

QJsonValue orNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

QJsonObject toJson(const Finding &finding)
{
    const bool isSomewhere = finding.position.line > 0;
    return {
        {QStringLiteral("kind"), QLatin1String(survey::infoOf(finding.kind).name)},
        {QStringLiteral("level"), words::levelWord(finding.level)},
        {QStringLiteral("line"), isSomewhere ? finding.position.line : QJsonValue()},
        {QStringLiteral("column"), isSomewhere ? finding.position.column : QJsonValue()},
        {QStringLiteral("exact"), finding.isExact},
        {QStringLiteral("code"), orNull(finding.code)},
        {QStringLiteral("text"), words::sentence(finding)},
    };
}

QJsonValue dialectOf(const survey::Survey &survey)
{
    switch (survey.dialect) {
    case CommerceMlDialect:
        return QStringLiteral("CommerceML");
    case YmlDialect:
        return QStringLiteral("YML");
    default:
        return {};
    }
}

QJsonValue nameOf(std::optional<Replacement::Outcome> file)
{
    if (!file)
        return {};
    switch (*file) {
    case Replacement::Outcome::Created:
        return QStringLiteral("created");
    case Replacement::Outcome::Replaced:
        return QStringLiteral("replaced");
    case Replacement::Outcome::Kept:
        return QStringLiteral("kept");
    }
    return {};
}

/// The word that a summary begins with.
QString verdictOn(int exitCode)
{
    switch (exitCode) {
    case delivery::NotRead:
        return Words::tr("ERROR");
    case delivery::Incomplete:
        return Words::tr("LOSS");
    case delivery::NotWritten:
        return Words::tr("NOT WRITTEN");
    default:
        return Words::tr("OK");
    }
}

QString toLine(const Finding &finding)
{
    QString line = QStringLiteral("  ");
    if (finding.position.line > 0) {
        line += QStringLiteral("%1:%2 ").arg(finding.position.line).arg(finding.position.column);
        if (!finding.isExact)
            line += Words::tr("(here the start tag ends)") + QLatin1Char(' ');
    }
    line += words::levelWord(finding.level);
    if (!finding.code.isEmpty())
        line += QLatin1String(" [") + words::printable(finding.code) + QLatin1Char(']');
    return line + QLatin1String(": ") + words::sentence(finding);
}

/// "VERDICT name: parts".
QString summary(const QString &verdict, const QString &name, QStringList parts)
{
    parts.removeAll(QString());
    return QStringLiteral("%1 %2: %3").arg(verdict, name, parts.join(QLatin1String(", ")));
}

/// Why it was not.
QString whyNotRead(const Outcome &outcome)
{
    return outcome.survey.findings.isEmpty()
               ? words::sentence(outcome.reason)
               : words::sentence(outcome.survey.findings.constFirst());
}

QString damageInWords(const ExchangeFile &file)
{
    switch (file.damage) {
    case Damage::None:
        break;
    case Damage::NoHeader:
        return Words::tr("this is no exchange file: its first line is another one");
    case Damage::CutLine:
        return Words::tr("the file ends in the middle of this line");
    case Damage::OpenBlock:
        return Words::tr("the file ends inside the block that begins here");
    case Damage::OpenOrder:
        return Words::tr("the file ends inside the order that begins here");
    case Damage::StrayLine:
        return Words::tr("this line is in no block, or its block may not stand here");
    case Damage::BrokenBytes:
        return Words::tr("this line has bytes that nobody writes into an exchange file");
    }
    return {};
}

/// What a source should have brought into one: there goods and offers look the same.
survey::Counts asInFile(survey::Counts counts)
{
    counts.goods += counts.offers;
    counts.offers = 0;
    return counts;
}

QJsonObject toJson(const survey::Counts &counts)
{
    return {
        {QStringLiteral("goods"), counts.goods},
        {QStringLiteral("partners"), counts.partners},
        {QStringLiteral("documents"), counts.documents},
        {QStringLiteral("lines"), counts.lines},
    };
}

} // namespace

bool isRead(const Outcome &outcome)
{
    return outcome.exitCode == delivery::Complete || outcome.exitCode == delivery::Incomplete;
}

bool hasAll(const Verification &verification)
{
    const survey::Counts &counts = verification.file.counts;
    const survey::Counts wanted = asInFile(verification.wanted->survey.counts);
    return counts.goods == wanted.goods && counts.partners == wanted.partners &&
           counts.documents == wanted.documents && counts.lines == wanted.lines;
}

QJsonObject toJson(const Outcome &outcome)
{
    const Speaking english(Language::English);
    const survey::Survey &survey = outcome.survey;
    QJsonObject counts;
    for (auto found = survey.found.cbegin(); found != survey.found.cend(); ++found)
        counts.insert(QLatin1String(survey::infoOf(found.key()).name), found.value());
    QJsonArray findings;
    for (const Finding &finding : survey.findings)
        findings.append(toJson(finding));
    QJsonObject object = {
        {QStringLiteral("format"), format},
        {QStringLiteral("source"), outcome.source},
        {QStringLiteral("exit"), outcome.exitCode},
        {QStringLiteral("dialect"), dialectOf(survey)},
        {QStringLiteral("version"), orNull(survey.version)},
        {QStringLiteral("date"), orNull(survey.date)},
        {QStringLiteral("sections"), survey.counts.sections},
        {QStringLiteral("groups"), survey.counts.groups},
        {QStringLiteral("goods"), survey.counts.goods},
        {QStringLiteral("offers"), survey.counts.offers},
        {QStringLiteral("documents"), survey.counts.documents},
        {QStringLiteral("lines"), survey.counts.lines},
        {QStringLiteral("counts"), counts},
        {QStringLiteral("findings"), findings},
        {QStringLiteral("reason"), orNull(words::sentence(outcome.reason))},
    };
    if (!outcome.destination.isNull()) {
        object.insert(QStringLiteral("destination"), outcome.destination);
        object.insert(QStringLiteral("outcome"), nameOf(outcome.file));
    }
    return object;
}

QStringList toLines(const Outcome &outcome)
{
    const survey::Survey &survey = outcome.survey;
    const bool isAboutSource =
        outcome.destination.isNull() || outcome.exitCode == delivery::NotRead;
    QStringList lines = {summary(isAboutSource && outcome.exitCode == delivery::NotWritten
                                     ? verdictOn(delivery::NotRead)
                                     : verdictOn(outcome.exitCode),
                                 isAboutSource ? outcome.source : outcome.destination,
                                 {isRead(outcome) ? words::countsInWords(survey.counts) : QString(),
                                  words::levelsInWords(survey), words::sentence(outcome.reason),
                                  outcome.file == Replacement::Outcome::Kept && isRead(outcome)
                                      ? Words::tr("the same as before")
                                      : QString()})};
    QMap<survey::Kind, int> shown;
    for (const Finding &finding : survey.findings) {
        lines.append(toLine(finding));
        ++shown[finding.kind];
    }
    int more = 0;
    for (auto found = survey.found.cbegin(); found != survey.found.cend(); ++found)
        more += found.value() - shown.value(found.key());
    if (more > 0)
        lines.append(QLatin1String("  ") + Words::tr("%n more, which --all shows", nullptr, more));
    return lines;
}

QJsonObject toJson(const Verification &verification)
{
    const Speaking english(Language::English);
    const ExchangeFile &file = verification.file;
    QJsonObject object = toJson(file.counts);
    object.insert(QStringLiteral("format"), format);
    object.insert(QStringLiteral("file"), verification.path);
    object.insert(QStringLiteral("exit"), verification.exitCode);
    object.insert(QStringLiteral("line"), file.line > 0 ? file.line : QJsonValue());
    const QString text =
        file.message.isNull() ? damageInWords(file) : words::systemWords(file.message);
    object.insert(QStringLiteral("text"), orNull(text));
    if (!verification.source.isNull()) {
        object.insert(QStringLiteral("source"), verification.source);
        const bool isKnown = verification.wanted && isRead(*verification.wanted);
        object.insert(QStringLiteral("wanted"),
                      isKnown ? toJson(asInFile(verification.wanted->survey.counts))
                              : QJsonValue());
        object.insert(QStringLiteral("reason"), isKnown || !verification.wanted
                                                    ? QJsonValue()
                                                    : whyNotRead(*verification.wanted));
    }
    return object;
}

QStringList toLines(const Verification &verification)
{
    const ExchangeFile &file = verification.file;
    const QString &path = verification.path;
    const QString verdict = verification.exitCode == delivery::Incomplete
                                ? Words::tr("NOT WHOLE")
                                : verdictOn(verification.exitCode);
    if (!file.message.isNull())
        return {summary(verdict, path,
                        {Words::tr("the file can't be read") + QLatin1String(": ") +
                         words::systemWords(file.message)})};
    QString comparison;
    if (verification.wanted && !isRead(*verification.wanted)) {
        comparison = whyNotRead(*verification.wanted);
    } else if (verification.wanted && !hasAll(verification)) {
        const survey::Counts wanted = asInFile(verification.wanted->survey.counts);
        comparison = Words::tr("of the source it should have %1").arg(words::countsInWords(wanted));
    }
    QStringList lines = {summary(verdict, path, {words::countsInWords(file.counts), comparison})};
    if (file.damage != Damage::None)
        lines.append(QStringLiteral("  %1: %2").arg(file.line).arg(damageInWords(file)));
    return lines;
}

} // namespace batch
