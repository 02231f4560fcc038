// SPDX-License-Identifier: MIT
#include "window/sourcereader.h"

#include "export/commerceml/walks.h"
#include "reader/tree.h"
#include "reader/vocabulary.h"
#include "window/grouptree.h"
#include "words/language.h"

#include <QSet>

#include <new>
#include <utility>

using namespace exchange;
using namespace exporter;
using words::Words;

namespace window
{

namespace
{

const QString sumElement = QStringLiteral("Сумма");
const QString roleElement = QStringLiteral("Роль");

/// A value as people read it: where the two forms differ, that of the row is nearer to the source.
QString shown(const FieldValue &value)
{
    return value.rowText.isEmpty() ? value.lineText : value.rowText;
}

/// A key as it stands in the exchange file, without its colon.
QString keyOf(const FieldValue &value)
{
    QString key = value.target.key;
    key.chop(1);
    return key;
}

QString valueOf(const FieldValues &values, QLatin1String key)
{
    for (const FieldValue &value : values) {
        if (keyOf(value) == key)
            return shown(value);
    }
    return {};
}

Good goodFrom(const Item &item)
{
    Good good;
    good.field(GoodField::Code) = item.code;
    good.description = item.text;
    for (const FieldValue &value : item.values) {
        for (const GoodFieldInfo &info : goodFields) {
            if (!info.rowCodes.contains(value.target.rowCode))
                continue;
            QString &text = good.field(info.field);
            const QString more = shown(value);
            if (text.isEmpty())
                text = more;
            else if (!more.isEmpty() && more != text)
                text += "; "_l1 + more;
        }
    }
    return good;
}

void countPrices(Source &source)
{
    for (const Good &good : source.goods) {
        const std::optional<double> price = numberIn(good.field(GoodField::Prices));
        if (!price) {
            ++source.goodsWithoutPrice;
            continue;
        }
        std::size_t range = 0;
        for (double limit = 1; *price >= limit && range < source.goodsByPrice.size() - 1;
             limit *= 10)
            ++range;
        ++source.goodsByPrice[range];
    }
}

} // namespace

/// What becomes of a source.
struct SourceReader::Description {
    Source &source;
    const survey::Loaded &loaded;
    const std::function<bool()> &goesOn;
    GroupTree tree = {};
    const int documentType = source.purchase ? 0 : 1;

    // The next item.
    const PathIndex::Node *group = nullptr;
    QString note = {};
    const QString soldOut = Words::tr("sold out"); // the same text for all
};

SourceReader::SourceReader(const QDomDocument &tree)
{
    document = tree;
    rootElement = document.documentElement();
    readStructure();
    setObserver(this);
}

OrderLine SourceReader::lineFrom(const QDomElement &element) const
{
    OrderLine line;
    line.sum = textOf(element.firstChildElement(sumElement));
    line.extent = extentOf(element);
    return line;
}

Order SourceReader::orderFrom(const QDomElement &document) const
{
    Order order;
    order.number = textOf(document.firstChildElement(commerceml::numberElement));
    order.date = textOf(document.firstChildElement(QStringLiteral("Дата")));
    order.sum = textOf(document.firstChildElement(sumElement));
    order.extent = extentOf(document);
    return order;
}

survey::Extent SourceReader::extentOf(const QDomElement &element) const
{
    const survey::Extents &extents = description->loaded.items;
    const auto known = extents.find(identityOf(element));
    return known != extents.end() ? known->second : survey::Extent();
}

bool SourceReader::describe(Source &source, const survey::Loaded &loaded,
                            const std::function<bool()> &goesOn)
try {
    Description begun = {source, loaded, goesOn};
    description = &begun;
    addGroups();
    const CopyOptions all;
    exportKatalogs(all.prefixRows, all.withDescription, all.markHtml);
    exportPrices(all.prefixRows, all.withDescription, all.markHtml, all.extendedOffers,
                 /*applyFactor=*/false, /*priceFactor=*/1.0);
    Writer nowhere;
    commerceml::exportDocs(docs, exportTo(nowhere, groupIndex), /*withGoods=*/true,
                           begun.documentType);
    takePicture();
    goodsRows.clear();
    description = nullptr;
    source.groups = begun.tree.counted(source.goods);
    countPrices(source);
    return true;
} catch (const Stopped &) {
    return false;
}

void SourceReader::askWhetherToGoOn() const
{
    if (!description->goesOn())
        throw Stopped();
}

/// Adds the groups that goods can be in, in the order of the source.
void SourceReader::addGroups()
{
    const bool isYml = dialect == YmlDialect;
    PathIndex &index = isYml ? categoryIndex : groupIndex;
    QSet<QString> known;
    for (const QDomElement &group : description->loaded.groups) {
        const QString id = isYml ? attributeValue(group, QStringLiteral("id"))
                                 : textOf(group.firstChildElement(commerceml::idElement));
        if (id.isNull() || known.contains(id))
            continue;
        known.insert(id);
        const PathIndex::Node *const bottom = index.bottom(groups, id);
        if (bottom != nullptr)
            description->tree.placeOf(*bottom);
    }
}

void SourceReader::collectRows(const CopyOptions &options, const QVector<int> *chosen)
{
    goodsRows.clear();
    chosenGoods = chosen;
    goodsSeen = chosenSeen = rowsKept = 0;
    exportKatalogs(options.prefixRows, options.withDescription, options.markHtml);
    exportPrices(options.prefixRows, options.withDescription, options.markHtml,
                 options.extendedOffers, options.priceFactor.has_value(),
                 options.priceFactor.value_or(1.0));
    keepChosenRows();
    chosenGoods = nullptr;
    countLines();
}

void SourceReader::collectOrderRows(int order, bool withGoods)
{
    goodsRows.clear();
    // It takes the first one.
    docs.move(order, 0);
    collectDocumentRows(withGoods);
    docs.move(0, order);
    countLines();
}

void SourceReader::countLines()
{
    lines = 0;
    for (const QString &row : std::as_const(goodsRows))
        lines += 1 + int(row.count(u'\n'));
}

/// The rows behind those that are kept are of the good that was seen last.
void SourceReader::keepChosenRows()
{
    if (chosenGoods == nullptr)
        return;
    const int last = goodsSeen - 1;
    if (chosenGoods->value(chosenSeen, -1) == last && last >= 0) {
        ++chosenSeen;
        rowsKept = int(goodsRows.size());
    } else {
        goodsRows.erase(goodsRows.begin() + rowsKept, goodsRows.end());
    }
}

/// A picture comes behind its good.
void SourceReader::takePicture()
{
    if (pictureLinks.isEmpty())
        return;
    description->source.goods.last().field(GoodField::Picture) = pictureLinks.last().second;
    pictureLinks.clear();
}

void SourceReader::inGroup(const PathIndex::Path &path)
{
    if (description != nullptr)
        description->group = path.bottom;
}

void SourceReader::exported(const Item &item)
{
    const bool isGood = item.kind == ItemKind::Good || item.kind == ItemKind::Offer;
    if (isGood) {
        keepChosenRows(); // those of this one are yet to come
        ++goodsSeen;
    }
    if (description == nullptr)
        return;
    askWhetherToGoOn();
    goodsRows.clear();
    const PathIndex::Node *const group = std::exchange(description->group, nullptr);
    if (isGood) {
        takePicture();
        Good good = goodFrom(item);
        good.extent = extentOf(item.element);
        good.field(GoodField::Note) = std::exchange(description->note, QString());
        if (group != nullptr)
            good.group = description->tree.placeOf(*group);
        description->source.goods.append(std::move(good));
        return;
    }
    QVector<Order> &orders = description->source.orders;
    switch (item.kind) {
    case ItemKind::Good:
    case ItemKind::Offer:
        break;
    case ItemKind::Partner: {
        Order order = orderFrom(item.element.parentNode().parentNode().toElement());
        order.role = textOf(item.element.firstChildElement(roleElement));
        order.partnerDetails.append({"code"_l1, item.code});
        for (const FieldValue &value : item.values)
            order.partnerDetails.append({keyOf(value), shown(value)});
        order.partner = valueOf(item.values, "name"_l1);
        if (order.partner.isEmpty())
            order.partner = item.code;
        orders.append(order);
        break;
    }
    case ItemKind::Order: {
        Order &order = orders.last();
        order.number = item.code;
        order.comment = valueOf(item.values, "note"_l1);
        order.status = valueOf(item.values, "status"_l1);
        order.requisites = item.text;
        break;
    }
    case ItemKind::OrderGood: {
        OrderLine line = lineFrom(item.element);
        line.code = item.code;
        line.name = valueOf(item.values, "name"_l1);
        line.unit = valueOf(item.values, "unit"_l1);
        orders.last().lines.append(line);
        break;
    }
    case ItemKind::OrderLine: {
        OrderLine &line = orders.last().lines.last();
        line.quantity = valueOf(item.values, "qty"_l1);
        line.price = valueOf(item.values, "price"_l1);
        break;
    }
    }
}

void SourceReader::leftOut(ItemKind kind, const QDomElement &element, Loss loss)
{
    if (description == nullptr)
        return;
    askWhetherToGoOn();
    QVector<Order> &orders = description->source.orders;
    if (kind == ItemKind::OrderLine) {
        OrderLine line = lineFrom(element);
        line.name = textOf(element.firstChildElement(commerceml::nameElement));
        line.isExported = false;
        orders.last().lines.append(line);
    } else if (kind == ItemKind::Order) {
        addLost(element, loss);
        orders.last().isLost = true;
        orders.last().loss = loss;
    }
}

/// Adds what an export has not come to of a document, in its own steps.
void SourceReader::addLost(const QDomElement &document, Loss loss)
{
    if (loss == Loss::NoLines)
        return; // it was the last step
    Writer nowhere;
    const Export to = exportTo(nowhere, groupIndex);
    if (loss != Loss::NoNumber) {
        const QDomElement partner = commerceml::partnerOf(document, description->documentType);
        if (partner.isNull())
            description->source.orders.append(orderFrom(document));
        else
            commerceml::exportPartner(partner, to);
    }
    commerceml::exportOrderHead(document, to, description->documentType);
    commerceml::exportOrderLines(document, to, /*withGoods=*/true,
                                 commerceml::orderGoodsFields(to));
}

void SourceReader::doubted(const QDomElement & /*element*/, Doubt doubt)
{
    if (description != nullptr && doubt == Doubt::SoldOut)
        description->note = description->soldOut;
}

Opened openSource(const QString &path, bool purchase,
                  const std::function<bool(qint64 done, qint64 total)> &goesOn)
{
    auto source = std::make_shared<Source>();
    const auto withoutItems = [&] {
        source->goods.clear();
        source->orders.clear();
        source->groups.clear();
        return Opened{source, nullptr};
    };
    source->path = path;
    source->state = survey::FileState(QFileInfo(path));
    source->purchase = purchase;
    try {
        survey::Loaded loaded;
        survey::Request request;
        request.source = path;
        request.purchase = purchase;
        request.all = true;
        request.goesOn = goesOn;
        request.loaded = &loaded;
        source->survey = survey::check(request);
        if (loaded.tree.isNull() || source->survey.stopped || source->survey.outOfMemory)
            return {source, nullptr};
        auto reader = std::make_unique<SourceReader>(loaded.tree);
        const auto describesOn = [&] {
            return !goesOn || goesOn(source->state.size, source->state.size);
        };
        if (!reader->describe(*source, loaded, describesOn)) {
            source->survey.stopped = true;
            return withoutItems();
        }
        return {source, std::move(reader)};
    } catch (const std::bad_alloc &) {
        source->survey.outOfMemory = true;
        return withoutItems();
    }
}

} // namespace window
