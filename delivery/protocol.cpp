// SPDX-License-Identifier: MIT
#include "delivery/protocol.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace delivery
{

namespace
{

using namespace survey;

QByteArray toLine(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QJsonValue fromText(const QString &text)
{
    return text.isNull() ? QJsonValue() : QJsonValue(text);
}

QString toText(const QJsonValue &value)
{
    return value.isNull() ? QString() : value.toString();
}

QString nameOf(Kind kind)
{
    return QLatin1String(infoOf(kind).name);
}

// Each number of a source's counts, and what it is called.
struct CountName {
    const char *name;
    int Counts::*number;
};

constexpr CountName countNames[] = {
    {"sections", &Counts::sections}, {"groups", &Counts::groups},
    {"goods", &Counts::goods},       {"offers", &Counts::offers},
    {"partners", &Counts::partners}, {"documents", &Counts::documents},
    {"lines", &Counts::lines},
};

QJsonObject toJson(const Finding &finding)
{
    return {
        {QStringLiteral("kind"), nameOf(finding.kind)},
        {QStringLiteral("level"), int(finding.level)},
        {QStringLiteral("line"), finding.position.line},
        {QStringLiteral("column"), finding.position.column},
        {QStringLiteral("exact"), finding.isExact},
        {QStringLiteral("code"), fromText(finding.code)},
        {QStringLiteral("details"), QJsonArray::fromStringList(finding.details)},
    };
}

QStringList toTexts(const QJsonValue &value)
{
    QStringList texts;
    for (const auto &text : value.toArray())
        texts.append(text.toString());
    return texts;
}

std::optional<Finding> findingFrom(const QJsonObject &object)
{
    const std::optional<Kind> kind = kindNamed(object[QStringLiteral("kind")].toString());
    if (!kind)
        return {};
    return Finding{
        *kind,
        Level(object[QStringLiteral("level")].toInt()),
        {object[QStringLiteral("line")].toInt(), object[QStringLiteral("column")].toInt()},
        object[QStringLiteral("exact")].toBool(),
        toText(object[QStringLiteral("code")]),
        toTexts(object[QStringLiteral("details")])};
}

QJsonObject toJson(const Survey &survey)
{
    QJsonObject counts;
    for (const auto &count : countNames)
        counts.insert(QLatin1String(count.name), survey.counts.*count.number);
    QJsonObject found;
    for (auto it = survey.found.cbegin(); it != survey.found.cend(); ++it)
        found.insert(nameOf(it.key()), it.value());
    QJsonArray findings;
    for (const Finding &finding : survey.findings)
        findings.append(toJson(finding));
    return {
        {QStringLiteral("dialect"), int(survey.dialect)},
        {QStringLiteral("version"), fromText(survey.version)},
        {QStringLiteral("date"), fromText(survey.date)},
        {QStringLiteral("counts"), counts},
        {QStringLiteral("found"), found},
        {QStringLiteral("findings"), findings},
        {QStringLiteral("stopped"), survey.stopped},
        {QStringLiteral("outOfMemory"), survey.outOfMemory},
    };
}

std::optional<Survey> surveyFrom(const QJsonObject &object)
{
    Survey survey;
    survey.dialect = SourceDialect(object[QStringLiteral("dialect")].toInt());
    survey.version = toText(object[QStringLiteral("version")]);
    survey.date = toText(object[QStringLiteral("date")]);
    const QJsonObject counts = object[QStringLiteral("counts")].toObject();
    for (const auto &count : countNames)
        survey.counts.*count.number = counts[QLatin1String(count.name)].toInt();
    const QJsonObject found = object[QStringLiteral("found")].toObject();
    for (auto it = found.constBegin(); it != found.constEnd(); ++it) {
        const std::optional<Kind> kind = kindNamed(it.key());
        if (!kind)
            return {};
        survey.found.insert(*kind, it.value().toInt());
    }
    for (const auto &value : object[QStringLiteral("findings")].toArray()) {
        const std::optional<Finding> finding = findingFrom(value.toObject());
        if (!finding)
            return {};
        survey.findings.append(*finding);
    }
    survey.stopped = object[QStringLiteral("stopped")].toBool();
    survey.outOfMemory = object[QStringLiteral("outOfMemory")].toBool();
    return survey;
}

} // namespace

QByteArray toLine(const Order &order)
{
    QJsonArray accepted;
    for (const Kind kind : order.request.accepted)
        accepted.append(nameOf(kind));
    return toLine(QJsonObject{
        {QStringLiteral("id"), order.id},
        {QStringLiteral("source"), order.request.source},
        {QStringLiteral("purchase"), order.request.purchase},
        {QStringLiteral("all"), order.request.all},
        {QStringLiteral("allowEmpty"), order.request.allowEmpty},
        {QStringLiteral("keepsTree"), order.request.keepsTree},
        {QStringLiteral("accepted"), accepted},
        {QStringLiteral("newFile"), fromText(order.newFile)},
    });
}

std::optional<Order> orderFrom(const QByteArray &line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    if (!object.contains(QStringLiteral("source")))
        return {};
    Order order;
    order.id = object[QStringLiteral("id")].toInt();
    order.request.source = object[QStringLiteral("source")].toString();
    order.request.purchase = object[QStringLiteral("purchase")].toBool();
    order.request.all = object[QStringLiteral("all")].toBool();
    order.request.allowEmpty = object[QStringLiteral("allowEmpty")].toBool();
    order.request.keepsTree = object[QStringLiteral("keepsTree")].toBool();
    for (const QString &name : toTexts(object[QStringLiteral("accepted")])) {
        if (const std::optional<Kind> kind = kindNamed(name))
            order.request.accepted.insert(*kind);
    }
    order.newFile = toText(object[QStringLiteral("newFile")]);
    return order;
}

QByteArray toLine(const Progress &progress)
{
    return toLine(QJsonObject{{QStringLiteral("done"), progress.done},
                              {QStringLiteral("total"), progress.total}});
}

QByteArray toLine(const Conversion &answer)
{
    return toLine(QJsonObject{{QStringLiteral("survey"), toJson(answer.survey)},
                              {QStringLiteral("written"), answer.isWritten},
                              {QStringLiteral("size"), answer.size},
                              {QStringLiteral("digest"), QLatin1String(answer.digest.toHex())}});
}

Reply replyFrom(const QByteArray &line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const auto number = [&](const QString &name) { return qint64(object[name].toDouble()); };
    Reply reply;
    if (object.contains(QStringLiteral("done"))) {
        reply.progress = Progress{number(QStringLiteral("done")), number(QStringLiteral("total"))};
    } else if (object.contains(QStringLiteral("survey"))) {
        const std::optional<Survey> survey =
            surveyFrom(object[QStringLiteral("survey")].toObject());
        if (survey) {
            reply.answer = Conversion{
                *survey, object[QStringLiteral("written")].toBool(), number(QStringLiteral("size")),
                QByteArray::fromHex(object[QStringLiteral("digest")].toString().toLatin1())};
        }
    }
    return reply;
}

} // namespace delivery
