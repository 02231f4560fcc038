// SPDX-License-Identifier: MIT
//
// The class of the program. A run calls, in this order: loadSource(), readStructure(), sets
// outputFileName and outputEnabled, then openOutput(), the exporters, closeOutput().
#pragma once

#include "exchange/writer.h"
#include "reader/pathindex.h"

#include <QDomDocument>
#include <QFile>
#include <QList>
#include <QPair>
#include <QStringList>
#include <QTextStream>

namespace exporter
{
class Observer;
struct Export;
} // namespace exporter

struct Loading;

/// The kind of a source, told by the name of its root element.
enum SourceDialect : int {
    UndeterminedDialect = -1,
    CommerceMlDialect = 0,
    YmlDialect = 1, ///< root "yml_catalog" or "xml_catalog"
};

/// A goods code and the address of a picture of that good.
using PictureLink = QPair<QString, QString>;

/// One source document and the exchange file that is made of it.
///
/// The exporters write lines only while outputEnabled is true; those of goods and offers build
/// goodsRows either way. An exporter never fails on data: a missing element only leaves out its
/// line. No operation throws, unless memory runs out behind loadSource(): closeOutput() is all that
/// the reader is good for then. All lookups of children take the first direct child of exactly the
/// name; texts are not trimmed.
///
/// What a host, a program other than xml2ryk, should know:
/// - A reader is for one source. Of an earlier one stay the dialect, where the new root is of
///   another name, and the tree, beside the new one, until readStructure().
/// - The tree stays in memory as long as the reader: with Qt 5.15, 6 to 7 times the size of a
///   CommerceML file, and 13 times that of a YML feed. The exporters append to goodsRows until
///   openOutput(), readStructure() or closeOutput() empties them.
/// - openOutput() waits for a key on standard input where the file can't be opened, and a window
///   stands still until then. survey::convert() writes the same bytes and never waits; or convert
///   in a process whose standard input is empty.
/// - loadSource() and readStructure() have the thread's waiting events handled on their way.
class CommXmlReader
{
public:
    QList<PictureLink> pictureLinks; ///< filled by exportYmlOffers()
    QString outputFileName;          ///< path of the exchange file; null after closeOutput()
    bool outputEnabled = false;      ///< no line reaches the exchange file while this is false

    CommXmlReader() = default;

    /// Closes the exchange file if it is still open; writes nothing.
    ~CommXmlReader();

    Q_DISABLE_COPY(CommXmlReader)

    // --- Object and files: reader/files.cpp ------------------------------------------------------

    /// Writes `text` in quotation marks, with a blank behind them, as a line of the toolkit's debug
    /// output, which for a console program is standard error, in the local 8-bit encoding: the ANSI
    /// code page on Windows, elsewhere UTF-8.
    virtual void logMessage(const QString &text);

    /// Parses the XML file at `path` into the document; its encoding is what the file declares.
    /// False if it can't be opened or is not well-formed: document and root element are empty then,
    /// and logMessage() has told which. The file is closed in every case.
    bool loadSource(const QString &path);

    /// Opens the exchange file outputFileName, in place of any older one, and writes its header.
    /// True at once where outputEnabled is false. False, with outputEnabled cleared, if the name is
    /// empty or the file can't be opened; the latter is told on the console and waits for a key.
    bool openOutput();

    /// Closes the exchange file if it is open, and clears outputFileName, outputEnabled and
    /// goodsRows.
    void closeOutput();

    // --- Section lists: reader/sections.cpp ------------------------------------------------------

    /// Tells the dialect from the root's name, in any case of letters, and fills the section lists
    /// anew. Forgets paths, pictures and goods rows. A root of another name leaves the dialect as
    /// it was. False if there is no root: the goods rows stay then.
    bool readStructure();

    /// Appends every section below `parent` to its list, in document order, sections nested in
    /// other sections included.
    void collectSections(const QDomNode &parent);

    // --- Node access: reader/nodes.cpp -----------------------------------------------------------

    /// The text and CDATA children of `node`, joined; empty, not null, if there are none.
    static QString directText(const QDomNode &node);

    /// The value of an attribute; null if `node` does not have it.
    static QString attributeValue(const QDomNode &node, const QString &name);

    // For hosts: the exporters take paths from an index instead, which finds the same elements.

    /// The first element below `parent`, at any depth, with this tag and exactly this full text;
    /// null if there is none.
    static QDomNode findElementByText(const QDomNode &parent, const QString &tag,
                                      const QString &text);

    /// The first direct child element of `parent` with this tag that has the attribute with exactly
    /// this value; null if there is none.
    static QDomNode findElementByAttribute(const QDomNode &parent, const QString &tag,
                                           const QString &attribute, const QString &value);

    // --- Paths: reader/paths.cpp, export/yml/categories.cpp --------------------------------------

    /// The names from the top group down to the CommerceML group with this "Ид", joined by
    /// pathSeparator; empty if no section of groups gives one.
    QString groupPath(const QString &id);

    /// The names from the root category down to the YML category with this "id", joined by
    /// pathSeparator; empty if no section of groups gives one. Parents are sought in the same
    /// section; a chain of them ends where it leads back to a category already walked.
    QString ymlCategoryPath(const QString &id);

    // --- CommerceML catalogues and offers: export/commerceml/katalogs.cpp, prices.cpp ------------

    /// Exports the goods of katalogs. `prefixRows`: goods rows start with "##" and a tab.
    /// `withDescription`: descriptions are exported. `markHtml`: the row of a described good says
    /// that it is HTML. False if there is no catalogue.
    bool exportKatalogs(bool prefixRows, bool withDescription, bool markHtml);

    /// Exports the offers of prices, as exportKatalogs() does goods, with up to five prices each;
    /// a described offer's row is marked as HTML or not HTML by `markHtml`. `applyFactor`: prices
    /// are multiplied by `priceFactor`. False if there is no price package. A YML source is handed
    /// over to exportYmlOffers(), which alone reads `extendedOffers`.
    bool exportPrices(bool prefixRows, bool withDescription, bool markHtml, bool extendedOffers,
                      bool applyFactor, double priceFactor);

    // --- YML offers: export/yml/offers.cpp -------------------------------------------------------

    /// Exports the offers of prices, and fills pictureLinks anew. `extendedOffers`: with the
    /// extended fields, a composed name, the unit, and no goods row for an offer whose count is 0;
    /// the other parameters as in exportPrices(). False if there is no section of offers.
    bool exportYmlOffers(bool prefixRows, bool withDescription, bool markHtml, bool extendedOffers,
                         bool applyFactor, double priceFactor);

    // --- CommerceML documents: export/commerceml/documents.cpp, orderlines.cpp -------------------

    /// Exports each document of docs as a partner, an order head and order lines; `withGoods`: with
    /// a goods block ahead of each line. `documentType`: 1 for sales, to a buyer, 0 for purchases,
    /// from a seller. A document without a partner, or whose partner has no code, is skipped. False
    /// if there are no documents, the exchange file is not being written, or an order has no lines:
    /// the export ends at that order.
    bool exportDocs(bool withGoods, int documentType);

    /// Appends a line row for each line of the first document to goodsRows, `withGoods` behind a
    /// goods row of its own; writes no line. False if there is no document or it has no lines.
    bool collectDocumentRows(bool withGoods);

    // --- Clipboard: exchange/clipboard.cpp -------------------------------------------------------

    // They stand in a library of their own, xml2ryk-clipboard, and need a QGuiApplication.

    /// Puts goodsRows on the clipboard, each with a line feed behind it.
    void copyRowsToClipboard();

    /// Collects the sections once more behind those in the lists, prints the sizes of the lists on
    /// the toolkit's debug output, and puts the rows of a fresh run of exportKatalogs() and
    /// exportPrices() on the clipboard.
    void runDiagnostics();

    // --- For hosts that tell people: reader/loading.h, export/observer.h -------------------------

    /// Has all loads from now on follow `newLoading`, which must outlive that. Null, as it is at
    /// first: nobody does.
    void setLoading(Loading *newLoading) { loading = newLoading; }

    /// Has `newObserver`, which must outlive that, hear of all that the exporters do from now on.
    /// Null, as it is at first: nobody does. Of documents it hears only while the exchange file is
    /// open; a subclass can walk them without one, by commerceml::exportDocs() and a writer to
    /// nowhere.
    void setObserver(exporter::Observer *newObserver) { observer = newObserver; }

protected:
    QFile sourceFile;         ///< open only inside loadSource()
    QDomDocument document;    ///< the parsed source
    QDomElement rootElement;  ///< null until a source is loaded
    QStringList goodsRows;    ///< the goods once more, as tab-coded rows
    QFile outputFile;         ///< the exchange file
    QTextStream outputStream; ///< on outputFile, in UTF-8, while that is open; holds no line
    QList<QDomNode> katalogs; ///< "Каталог" sections
    QList<QDomNode> groups;   ///< "Классификатор" and "categories" sections
    QList<QDomNode> docs;     ///< "Документ" sections
    QList<QDomNode> prices;   ///< "ПакетПредложений" and "offers" sections
    QString pathBuffer;       ///< the latest path built
    SourceDialect dialect = UndeterminedDialect;

    Loading *loading = nullptr;
    exporter::Observer *observer = nullptr;
    exchange::Writer writer{outputFile, outputEnabled}; ///< the one way into the exchange file
    PathIndex groupIndex{groupPaths};                   ///< over groups, for CommerceML
    PathIndex categoryIndex{categoryPaths};             ///< over groups, for YML

    /// What an export of this reader takes paths from and where it goes; in export/export.cpp.
    exporter::Export exportTo(exchange::Writer &lines, PathIndex &index);

private:
    // In the files of the paths.
    static const PathIndex::Kind groupPaths;
    static const PathIndex::Kind categoryPaths;

    PathIndex::Path buildPath(PathIndex &index, const QString &id);
};
