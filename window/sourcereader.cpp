// SPDX-License-Identifier: MIT
#include "window/sourcereader.h"

#include "export/commerceml/walks.h"
#include "reader/tree.h"
#include "reader/vocabulary.h"

#include <QHash>

#include <new>
#include <utility>

using namespace exchange;
using namespace exporter;

namespace window
{

namespace
{

const QString sumElement = QStringLiteral("Сумма");
const QString roleElement = QStringLiteral("Роль");

/// The fields of a good by the codes of its row.
constexpr std::pair<QLatin1String, GoodField> rowFields[] = {
    {target::article.rowCode, GoodField::Article},
    {target::name.rowCode, GoodField::Name},
    {target::group.rowCode, GoodField::Group},
    {target::unit.rowCode, GoodField::Unit},
    {target::barcode.rowCode, GoodField::Barcode},
    {"DC1"_l1, GoodField::Prices},
    {"DC2"_l1, GoodField::Prices},
    {"DC3"_l1, GoodField::Prices},
    {"DC4"_l1, GoodField::Prices},
    {"DC5"_l1, GoodField::Prices},
    {"DP12"_l1, GoodField::Maker},
    {"DP3"_l1, GoodField::Country},
    {"DP16"_l1, GoodField::Weight},
};

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
        for (const auto &[rowCode, field] : rowFields) {
            if (value.target.rowCode != rowCode)
                continue;
            QString &text = good.field(field);
            const QString more = shown(value);
            if (text.isEmpty())
                text = more;
            else if (!more.isEmpty() && more != text)
                text += "; "_l1 + more;
        }
    }
    return good;
}

OrderLine lineFrom(const QDomElement &element)
{
    OrderLine line;
    line.sum = textOf(element.firstChildElement(sumElement));
    return line;
}

Order orderFrom(const QDomElement &document)
{
    Order order;
    order.number = textOf(document.firstChildElement(commerceml::numberElement));
    order.date = textOf(document.firstChildElement(QStringLiteral("Дата")));
    order.sum = textOf(document.firstChildElement(sumElement));
    return order;
}

/// The groups of goods, by the paths that the exchange file has of them.
class GroupTree
{
public:
    /// The place of the group with this path.
    int placeOf(const QString &path)
    {
        // Goods of a group share the text of its path, which can be long.
        const auto known = places.constFind(path.constData());
        if (known != places.cend())
            return *known;
        int place = -1;
        for (decltype(path.size()) begin = 0; begin >= 0;) {
            const auto end = path.indexOf(pathSeparator, begin);
            place = childOf(place, path.mid(begin, end < 0 ? -1 : end - begin));
            begin = end < 0 ? -1 : end + pathSeparator.size();
        }
        places.insert(path.constData(), place);
        return place;
    }

    QVector<Group> groups;

private:
    int childOf(int parent, const QString &name)
    {
        const auto known = children.constFind({parent, name});
        if (known != children.cend())
            return *known;
        const int place = int(groups.size());
        groups.append({name, parent, {}, 0});
        if (parent >= 0)
            groups[parent].children.append(place);
        children.insert({parent, name}, place);
        return place;
    }

    QHash<const QChar *, int> places;
    QHash<std::pair<int, QString>, int> children;
};

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

/// Finds the groups of all goods.
void findGroups(Source &source)
{
    GroupTree tree;
    for (Good &good : source.goods) {
        const QString &path = std::as_const(good).field(GoodField::Group);
        if (path.isEmpty())
            continue;
        good.group = tree.placeOf(path);
        ++tree.groups[good.group].goods;
    }
    for (auto place = tree.groups.size() - 1; place >= 0; --place) {
        const Group &group = tree.groups.at(place);
        if (group.parent >= 0)
            tree.groups[group.parent].goods += group.goods;
    }
    source.groups = tree.groups;
}

} // namespace

SourceReader::SourceReader(const QDomDocument &tree)
{
    document = tree;
    rootElement = document.documentElement();
    readStructure();
    setObserver(this);
}

void SourceReader::describe(Source &source, bool purchase)
{
    described = &source;
    const CopyOptions all;
    exportKatalogs(all.prefixRows, all.withDescription, all.markHtml);
    exportPrices(all.prefixRows, all.withDescription, all.markHtml, all.extendedOffers,
                 /*applyFactor=*/false, /*priceFactor=*/1.0);
    Writer nowhere;
    commerceml::exportDocs(docs, exportTo(nowhere, groupIndex), /*withGoods=*/true,
                           purchase ? 0 : 1);
    takePicture();
    goodsRows.clear();
    described = nullptr;
    findGroups(source);
    countPrices(source);
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
}

void SourceReader::collectOrderRows(int order, bool withGoods)
{
    goodsRows.clear();
    // It takes the first one.
    docs.move(order, 0);
    collectDocumentRows(withGoods);
    docs.move(0, order);
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
    described->goods.last().field(GoodField::Picture) = pictureLinks.last().second;
    pictureLinks.clear();
}

void SourceReader::exported(const Item &item)
{
    const bool isGood = item.kind == ItemKind::Good || item.kind == ItemKind::Offer;
    if (isGood) {
        keepChosenRows(); // those of this one are yet to come
        ++goodsSeen;
    }
    if (described == nullptr)
        return;
    goodsRows.clear();
    if (isGood) {
        takePicture();
        described->goods.append(goodFrom(item));
        described->goods.last().isSoldOut = std::exchange(isSoldOut, false);
        return;
    }
    QVector<Order> &orders = described->orders;
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
    if (described == nullptr)
        return;
    QVector<Order> &orders = described->orders;
    if (kind == ItemKind::OrderLine) {
        OrderLine line = lineFrom(element);
        line.name = textOf(element.firstChildElement(commerceml::nameElement));
        line.isExported = false;
        orders.last().lines.append(line);
    } else if (kind == ItemKind::Order) {
        const bool isBegun = loss == Loss::NoNumber || loss == Loss::NoLines;
        if (!isBegun)
            orders.append(orderFrom(element));
        orders.last().isLost = true;
        orders.last().loss = loss;
    }
}

void SourceReader::doubted(const QDomElement & /*element*/, Doubt doubt)
{
    isSoldOut = isSoldOut || doubt == Doubt::SoldOut;
}

Opened openSource(const QString &path, bool purchase,
                  const std::function<bool(qint64 done, qint64 total)> &goesOn)
{
    auto source = std::make_shared<Source>();
    source->path = path;
    try {
        QDomDocument tree;
        survey::Request request;
        request.source = path;
        request.purchase = purchase;
        request.all = true;
        request.goesOn = goesOn;
        request.tree = &tree;
        source->survey = survey::check(request);
        if (tree.isNull() || source->survey.stopped || source->survey.outOfMemory)
            return {source, nullptr};
        auto reader = std::make_unique<SourceReader>(tree);
        tree.clear();
        reader->describe(*source, purchase);
        return {source, std::move(reader)};
    } catch (const std::bad_alloc &) {
        source->goods.clear();
        source->orders.clear();
        source->groups.clear();
        source->survey.outOfMemory = true;
        return {source, nullptr};
    }
}

} // namespace window
