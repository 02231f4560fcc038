// SPDX-License-Identifier: MIT
//
// Reads a source for the window. All of it walks over trees, and none of it belongs in the thread
// of the window.
#pragma once

#include "reader/commxmlreader.h"
#include "window/copyoptions.h"
#include "window/source.h"

#include <QDomDocument>

#include <functional>
#include <memory>

namespace window
{

/// The reader of a source that somebody else has loaded. It is used by one thread at a time.
class SourceReader : public CommXmlReader, private exporter::Observer
{
public:
    explicit SourceReader(const QDomDocument &tree);

    /// Adds goods, orders and groups to `source`, from what a survey has read. `goesOn` is asked at
    /// each item; where it says no, this is false, and neither source nor reader are of any use.
    bool describe(Source &source, const survey::Loaded &loaded,
                  const std::function<bool()> &goesOn);

    /// Fills goodsRows anew with the rows of the goods, or of `chosen` ones of Source::goods, which
    /// are in rising order.
    void collectRows(const CopyOptions &options, const QVector<int> *chosen = nullptr);

    /// Fills goodsRows anew with those of an order, by its place in Source::orders.
    void collectOrderRows(int order, bool withGoods);

    /// The lines that goodsRows are on the clipboard.
    int lineCount() const { return lines; }
    void forgetRows() { goodsRows.clear(); }

    void logMessage(const QString & /*text*/) override {}

private:
    struct Description;
    struct Stopped {
    }; ///< thrown through the walks

    void inGroup(const PathIndex::Path &path) override;
    void exported(const exporter::Item &item) override;
    void leftOut(exporter::ItemKind kind, const QDomElement &element, exporter::Loss loss) override;
    void doubted(const QDomElement &element, exporter::Doubt doubt) override;
    void addLost(const QDomElement &document, exporter::Loss loss);
    Order orderFrom(const QDomElement &document) const;
    OrderLine lineFrom(const QDomElement &element) const;
    survey::Extent extentOf(const QDomElement &element) const;
    void askWhetherToGoOn() const;
    void addGroups();
    void takePicture();
    void keepChosenRows();
    void countLines();

    Description *description = nullptr; ///< what describe() is at

    const QVector<int> *chosenGoods = nullptr; ///< what collectRows() keeps
    int goodsSeen = 0;
    int chosenSeen = 0;
    int rowsKept = 0;
    int lines = 0;
};

/// A source that is open: what is shown of it, and what more can be read of it.
struct Opened {
    std::shared_ptr<const Source> source; ///< with its survey alone where it could not be loaded
    std::unique_ptr<SourceReader> reader; ///< null then
};

/// Loads and checks a source, and describes it. `goesOn` is asked as survey::Request::goesOn is;
/// Survey::stopped tells that it said no.
Opened openSource(const QString &path, bool purchase,
                  const std::function<bool(qint64 done, qint64 total)> &goesOn);

} // namespace window
