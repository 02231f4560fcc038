// SPDX-License-Identifier: MIT
#include "survey/collector.h"

#include "reader/tree.h"
#include "reader/vocabulary.h"
#include "survey/itemchecks.h"

#include <algorithm>
#include <tuple>

using namespace exporter;

namespace survey
{

/// The number of the order that a partner belongs to, or the code of the item itself.
static QString codeOf(const Item &item)
{
    if (item.kind != ItemKind::Partner)
        return item.code;
    const QDomNode document = item.element.parentNode().parentNode();
    return textOf(document.firstChildElement(commerceml::numberElement));
}

void Collector::count(ItemKind kind)
{
    static const std::pair<ItemKind, int Counts::*> counted[] = {
        {ItemKind::Good, &Counts::goods},       {ItemKind::Offer, &Counts::offers},
        {ItemKind::Partner, &Counts::partners}, {ItemKind::Order, &Counts::documents},
        {ItemKind::OrderLine, &Counts::lines},
    };
    for (const auto &[countedKind, member] : counted) {
        if (countedKind == kind)
            ++(counts.*member);
    }
}

void Collector::exported(const Item &item)
{
    const void *const element = identityOf(item.element);
    reported.insert(element);
    count(item.kind);
    const auto isDoubted = [&](Kind kind) {
        return std::any_of(doubts.cbegin(), doubts.cend(),
                           [&](const Mark &doubt) { return doubt.kind == kind; });
    };
    QString code; // which hardly ever has to be looked for
    const auto lookUpCode = [&] {
        if (code.isNull())
            code = codeOf(item);
    };
    checkItem(item, isDoubted, [&](Kind kind, const QStringList &details) {
        lookUpCode();
        marks.append({element, kind, code, details});
    });
    if (!doubts.isEmpty()) {
        lookUpCode();
        takeDoubts(code);
    }
    addCode(item);
}

void Collector::leftOut(ItemKind kind, const QDomElement &element, Loss loss)
{
    static const std::pair<Loss, Kind> kinds[] = {
        {Loss::NoCode, Kind::NoCode},
        {Loss::NoPartner, Kind::NoPartner},
        {Loss::NoNumber, Kind::NoNumber},
        {Loss::NoLines, Kind::NoLines},
    };
    const void *const identity = identityOf(element);
    reported.insert(identity);
    const QString code = kind == ItemKind::Order
                             ? textOf(element.firstChildElement(commerceml::numberElement))
                             : QString();
    takeDoubts(code);
    if (kind == ItemKind::Order && loss != Loss::NoLines)
        lostDocuments.insert(identity);
    if (loss == Loss::BehindTheEnd) {
        ++lostBehind;
        return;
    }
    QStringList details;
    if (loss == Loss::NoCode)
        details.append(element.tagName());
    if (kind == ItemKind::OrderLine)
        details.append(QStringLiteral("line"));
    if (loss == Loss::NoLines)
        noLines = static_cast<int>(marks.size());
    for (const auto &[knownLoss, lossKind] : kinds) {
        if (knownLoss == loss)
            marks.append({identity, lossKind, code, details});
    }
}

void Collector::doubted(const QDomElement &element, Doubt doubt)
{
    const auto add = [&](Kind kind, const QStringList &details = {}) {
        doubts.append({identityOf(element), kind, {}, details});
    };
    switch (doubt) {
    case Doubt::OtherRole:
        add(Kind::OtherRole, {textOf(element.firstChildElement(commerceml::idElement))});
        break;
    case Doubt::UnknownGroup:
        add(Kind::UnknownGroup, {textOf(element)});
        break;
    case Doubt::MissingParent:
        add(Kind::UnknownGroup, {textOf(element), QStringLiteral("parent")});
        break;
    case Doubt::GroupLoop:
        add(Kind::GroupLoop, {textOf(element)});
        break;
    case Doubt::PriceNoNumber:
        add(Kind::PriceNotANumber, {textOf(element)});
        break;
    case Doubt::PricesDropped:
        add(Kind::PricesDropped);
        break;
    case Doubt::SoldOut:
        add(Kind::SoldOut);
        break;
    }
}

void Collector::finish()
{
    markDuplicates();
    if (noLines >= 0)
        marks[noLines].details = QStringList(QString::number(lostBehind));
}

void Collector::takeDoubts(const QString &code)
{
    for (Mark &doubt : doubts) {
        doubt.code = code;
        marks.append(doubt);
    }
    doubts.clear();
}

/// The items of a section come one after the other, and share a list.
void Collector::addCode(const Item &item)
{
    if ((item.kind != ItemKind::Good && item.kind != ItemKind::Offer) || item.code.isEmpty())
        return;
    const void *const parent = identityOf(item.element.parentNode());
    if (parent != list)
        markDuplicates();
    list = parent;
    codes.push_back(
        {qHash(item.code), item.code, static_cast<int>(codes.size()), identityOf(item.element)});
}

void Collector::markDuplicates()
{
    const auto key = [](const Coded &coded) {
        return std::tie(coded.hash, coded.code, coded.place);
    };
    std::sort(codes.begin(), codes.end(),
              [&](const Coded &a, const Coded &b) { return key(a) < key(b); });
    for (size_t i = 1; i < codes.size(); ++i) {
        if (codes[i].hash == codes[i - 1].hash && codes[i].code == codes[i - 1].code)
            marks.append({codes[i].element, Kind::DuplicateCode, codes[i].code, {}});
    }
    codes.clear();
}

} // namespace survey
