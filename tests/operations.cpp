// SPDX-License-Identifier: MIT
//
// operations SOURCE RESULTS CALL...: calls operations of a reader that has loaded SOURCE, one after
// the other, and prints to RESULTS what each returns, the goods rows and pictures that it leaves,
// and what it tells an observer.
//
// A CALL is the name of an operation and those of its parameters that are set, or are given a value
// with "=". Rows and paths end in "$": they can hold line ends and blanks.
#include "export/commerceml/walks.h"
#include "job/console.h"
#include "reader/commxmlreader.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <functional>
#include <iterator>

namespace
{

using namespace exporter;

class Operations : public CommXmlReader, private Observer
{
public:
    explicit Operations(QTextStream &results) : results(results) { setObserver(this); }

    void call(const QString &text)
    {
        const QStringList words = text.split(' ');
        const auto is = [&](const char *parameter) { return words.contains(parameter); };
        const auto value = [&](const QString &parameter) {
            return words.filter(QRegularExpression("^" + parameter + "=")).value(0).section('=', 1);
        };
        const auto offers =
            [&](bool (CommXmlReader::*exporter)(bool, bool, bool, bool, bool, double)) {
                return (this->*exporter)(is("prefixRows"), is("withDescription"), is("markHtml"),
                                         is("extendedOffers"), is("applyFactor"),
                                         value("priceFactor").toDouble());
            };
        const QMap<QString, std::function<bool()>> operations = {
            {"readStructure", [&] { return readStructure(); }},
            {"openOutput",
             [&] {
                 outputFileName = value("outputFileName");
                 outputEnabled = true;
                 return openOutput();
             }},
            {"exportKatalogs",
             [&] {
                 return exportKatalogs(is("prefixRows"), is("withDescription"), is("markHtml"));
             }},
            {"exportPrices", [&] { return offers(&CommXmlReader::exportPrices); }},
            {"exportYmlOffers", [&] { return offers(&CommXmlReader::exportYmlOffers); }},
            {"exportDocs",
             [&] { return exportDocs(is("withGoods"), value("documentType").toInt()); }},
            {"exportDocsToNowhere",
             [&] {
                 exchange::Writer nowhere;
                 return commerceml::exportDocs(docs, exportTo(nowhere, groupIndex), is("withGoods"),
                                               value("documentType").toInt());
             }},
            {"collectDocumentRows", [&] { return collectDocumentRows(is("withGoods")); }},
            {"groupPath", [&] { return path(groupPath(text.section("id=", 1))); }},
            {"ymlCategoryPath", [&] { return path(ymlCategoryPath(text.section("id=", 1))); }},
        };
        results << "> " << text << '\n';
        goodsRows.clear();
        const bool returned = operations.value(words.first())();
        results << "returned " << (returned ? "true" : "false") << '\n';
        for (const QString &row : std::as_const(goodsRows))
            results << "row " << row << "$\n";
        for (const PictureLink &picture : std::as_const(pictureLinks))
            results << "picture " << picture.first << " " << picture.second << "$\n";
    }

private:
    /// Whether there is one.
    bool path(const QString &path)
    {
        results << "path " << (path == pathBuffer ? path : "not in pathBuffer") << "$\n";
        return !path.isEmpty();
    }

    void logMessage(const QString & /*text*/) override {
    } // the log of the program has its own tests

    static QString nameOf(ItemKind kind)
    {
        static const char *const names[] = {"Good",  "Offer",     "Partner",
                                            "Order", "OrderGood", "OrderLine"};
        return names[int(kind)];
    }

    void exported(const Item &item) override
    {
        results << "exported " << nameOf(item.kind) << " " << item.code << ", "
                << item.values.size() << " values, text of " << item.text.size() << ", from "
                << item.element.tagName() << '\n';
    }

    void leftOut(ItemKind kind, const QDomElement &element, Loss loss) override
    {
        static const char *const names[] = {"NoCode", "NoPartner", "NoNumber", "NoLines",
                                            "BehindTheEnd"};
        results << "left out " << nameOf(kind) << " " << element.tagName() << ": "
                << names[int(loss)] << '\n';
    }

    void doubted(const QDomElement &element, Doubt doubt) override
    {
        static const char *const names[] = {"OtherRole", "UnknownGroup",  "MissingParent",
                                            "GroupLoop", "PriceNoNumber", "PricesDropped",
                                            "SoldOut"};
        results << "doubt at " << element.tagName() << ": " << names[int(doubt)] << '\n';
    }

    QTextStream &results;
};

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QFile file(arguments.value(2));
    if (!file.open(QIODevice::WriteOnly))
        return 1;
    QTextStream results(&file);
    useUtf8(results);
    Operations reader(results);
    if (!reader.loadSource(arguments.at(1)) || !reader.readStructure())
        return 2;
    for (const QString &call : arguments.mid(3))
        reader.call(call);
    return 0;
}
