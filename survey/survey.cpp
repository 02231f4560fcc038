// SPDX-License-Identifier: MIT
#include "survey/survey.h"

#include "export/commerceml/walks.h"
#include "reader/tree.h"
#include "survey/collector.h"
#include "survey/elements.h"
#include "survey/encoding.h"
#include "survey/filestate.h"
#include "survey/loadfailure.h"

#include <QCryptographicHash>
#include <QFileInfo>

#include <algorithm>
#include <limits>
#include <new>

namespace survey
{

namespace
{

/// The attributes of a root that tell the version of its format and the date of the export.
struct RootAttributes {
    QString version;
    QString date;
};

const QMap<SourceDialect, RootAttributes> rootAttributes = {
    {CommerceMlDialect, {QStringLiteral("ВерсияСхемы"), QStringLiteral("ДатаФормирования")}},
    {YmlDialect, {QString(), QStringLiteral("date")}},
};

/// The reader of one source, which tells nothing on its own.
class SurveyReader : public CommXmlReader, private Collector
{
public:
    explicit SurveyReader(const Request &request)
        : request(request), before(QFileInfo(request.source))
    {
        following.wantsPositions = true;
        following.goesOn = [this](qint64 bytes) { return goesOn(bytes); };
        setLoading(&following);
        setObserver(this);
    }

    /// Loads the source, has `exportAll` export it, and tells what there is to tell.
    template <typename ExportAll>
    Survey look(const ExportAll &exportAll)
    {
        if (loadSource(request.source)) {
            if (request.keepsTree)
                keepTree(document);
            if (request.loaded != nullptr)
                request.loaded->tree = document;
            readStructure();
            if (goesOn(before.size))
                exportAll();
            finish();
            if (goesOn(before.size))
                tellOfDocument();
        } else if (following.failure != LoadFailure::Stopped) {
            tellOfFailure();
        }
        if (FileState(QFileInfo(request.source)).differs(before))
            add(Kind::Changed);
        std::stable_sort(
            result.findings.begin(), result.findings.end(),
            [](const Finding &a, const Finding &b) { return a.position < b.position; });
        return result;
    }

    void exportToNowhere()
    {
        exportGoods();
        exchange::Writer nowhere;
        commerceml::exportDocs(docs, exportTo(nowhere, groupIndex), withGoods, documentType());
    }

    void exportToFile(const QString &path, Conversion &conversion)
    {
        // openOutput() would wait for a key where it fails.
        outputEnabled = QFile(path).open(QIODevice::Append | QIODevice::ExistingOnly);
        outputFileName = path;
        writer.digest = &digest;
        writer.gathers = true;
        if (!outputEnabled || !openOutput()) {
            exportToNowhere();
            return;
        }
        exportGoods();
        exportDocs(withGoods, documentType());
        writer.finish();
        conversion.isWritten = !writer.hasFailed();
        conversion.size = writer.size();
        conversion.digest = digest.result();
        closeOutput();
    }

private:
    static constexpr bool withGoods = true;

    int documentType() const { return request.purchase ? 0 : 1; }

    void exportGoods()
    {
        exportKatalogs(/*prefixRows=*/false, /*withDescription=*/true, /*markHtml=*/true);
        exportPrices(/*prefixRows=*/false, /*withDescription=*/true, /*markHtml=*/true,
                     /*extendedOffers=*/true, /*applyFactor=*/false, /*priceFactor=*/1.0);
    }

    void exported(const exporter::Item &item) override
    {
        goodsRows.clear(); // nobody wants them
        Collector::exported(item);
    }

    void logMessage(const QString & /*text*/) override {}

    bool goesOn(qint64 bytes)
    {
        read = std::max(read, bytes); // a second reader begins anew
        result.stopped = result.stopped || (request.goesOn && !request.goesOn(read, before.size));
        return !result.stopped;
    }

    void add(Finding finding)
    {
        constexpr int mostOfAKind = 10;
        int &count = result.found[finding.kind];
        ++count;
        if (!request.all && count > mostOfAKind)
            return;
        if (finding.level == Level::Loss && request.accepted.contains(finding.kind))
            finding.level = Level::Doubt;
        result.findings.append(finding);
    }

    void add(Kind kind, const SourcePosition &position = {}, const QStringList &details = {})
    {
        add({kind, infoOf(kind).level, position, true, {}, details});
    }

    void tellOfFailure()
    {
        QFile file(request.source);
        const bool isSeen = following.failure == LoadFailure::NotWellFormed && before.isFile &&
                            file.open(QIODevice::ReadOnly);
        result.outOfMemory = following.failure == LoadFailure::OutOfMemory;
        if (following.failure == LoadFailure::NotOpened)
            following.message = whyUnreadable(request.source, following.message);
        add(failureFinding(following, isSeen && beginsAsHtml(file)));
        if (isSeen)
            tellOfEncoding(file, Level::Error, true);
    }

    void tellOfEncoding(QFile &file, Level level, bool looksAtUtf8)
    {
        if (const auto wrong = findWrongEncoding(file, looksAtUtf8))
            add({Kind::WrongEncoding,
                 level,
                 wrong->position,
                 true,
                 {},
                 {wrong->declared, wrong->fitting}});
    }

    void tellOfDocument()
    {
        const Elements elements =
            walkElements(document, groups, dialect, *this, request.loaded != nullptr);
        for (const PlacedMark &placed : elements.marks) {
            const Mark &mark = placed.mark;
            add({mark.kind, infoOf(mark.kind).level, following.positions.value(placed.element),
                 !following.positionsAreEnds, mark.code, mark.details});
        }
        for (const PlacedItem &item : elements.items)
            request.loaded->items.emplace(item.element, extentOf(item));
        if (request.loaded != nullptr)
            request.loaded->groups = elements.groupElements;
        tellOfHead(elements.groups);
        QFile file(request.source);
        if (before.isFile && file.open(QIODevice::ReadOnly))
            tellOfEncoding(file, Level::Doubt, result.found.contains(Kind::BrokenCharacters));
        if (!isNothing())
            return;
        if (dialect == UndeterminedDialect)
            add({Kind::NothingToExport,
                 Level::Error,
                 following.positions.value(0),
                 !following.positionsAreEnds,
                 {},
                 {rootElement.tagName()}});
        else if (hasLoss() || !request.allowEmpty)
            add(Kind::Empty);
    }

    Extent extentOf(const PlacedItem &item) const
    {
        constexpr SourcePosition behindAll = {std::numeric_limits<int>::max(), 0};
        return {following.positions.value(item.begin),
                following.positions.value(item.end, behindAll)};
    }

    void tellOfHead(int groupCount)
    {
        const RootAttributes attributes = rootAttributes.value(dialect);
        result.dialect = dialect;
        result.version = attributeValue(rootElement, attributes.version);
        result.date = attributeValue(rootElement, attributes.date);
        result.counts = counts;
        result.counts.groups = groupCount;
        for (const QList<QDomNode> *sections : {&katalogs, &groups, &docs, &prices})
            result.counts.sections += static_cast<int>(sections->size());
    }

    /// Whether the exchange file would be its header alone.
    bool isNothing() const { return counts.goods + counts.offers + counts.partners == 0; }

    bool hasLoss() const
    {
        return std::any_of(result.found.keyBegin(), result.found.keyEnd(),
                           [](Kind kind) { return infoOf(kind).level == Level::Loss; });
    }

    const Request &request;
    const FileState before;
    Loading following;
    qint64 read = 0;
    QCryptographicHash digest{QCryptographicHash::Sha256};
    Survey result;
};

/// What `look` tells; where memory runs out on the way, nothing but that.
template <typename Look>
Survey unlessMemoryRunsOut(const Look &look)
{
    try {
        return look();
    } catch (const std::bad_alloc &) {
        Survey survey;
        survey.outOfMemory = true;
        return survey;
    }
}

} // namespace

Survey check(const Request &request)
{
    return unlessMemoryRunsOut([&] {
        SurveyReader reader(request);
        return reader.look([&] { reader.exportToNowhere(); });
    });
}

Conversion convert(const Request &request, const QString &newFile)
{
    Conversion conversion;
    conversion.survey = unlessMemoryRunsOut([&] {
        SurveyReader reader(request);
        return reader.look([&] { reader.exportToFile(newFile, conversion); });
    });
    return conversion;
}

} // namespace survey
