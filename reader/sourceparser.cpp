// SPDX-License-Identifier: MIT
#include "reader/sourceparser.h"

#include "reader/quickreader.h"

#include <QMap>
#include <QSet>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <memory>
#include <new>
#include <set>

// The toolkit would rather have everybody use its stream reader, which reads sources differently:
// it keeps white space, and fails on an undeclared entity.
QT_WARNING_DISABLE_DEPRECATED

namespace
{

/// Levels of elements. Each takes stack while the source is parsed, walked and freed, and can read
/// all texts below it once more. Real sources stay under 50.
constexpr int maximalNesting = 128;

/// Attributes of one element. The tree finds them by hashes that names can be chosen to share. Real
/// sources stay under 20.
constexpr int maximalAttributes = 256;

/// Opening brackets ahead of the root element. Each can be a level of a content model in the DTD,
/// which takes stack.
constexpr int maximalBrackets = 1'000;

/// Entities that a source declares with a value, and the characters of their names and values. At
/// each the parser looks for all others in it, by such hashes again. Those of XHTML are 253.
constexpr int maximalEntities = 300;
constexpr int maximalEntityText = 100'000;

/// Characters that entities may add to those of the source itself, which they may double as well.
constexpr qint64 maximalExpansion = 1'000'000;

/// Names that elements share, found by such hashes: more than any vocabulary has.
constexpr int maximalSharedNames = 500;

/// Counts what the parser reads.
class Source : public QXmlInputSource
{
public:
    using QXmlInputSource::QXmlInputSource;

    void fetchData() override
    {
        QXmlInputSource::fetchData();
        if (inProlog)
            brackets += data().count(QLatin1Char('('));
        if (brackets > maximalBrackets)
            endHere();
        characters += data().size();
    }

    qint64 characters = 0;
    bool inProlog = true;

private:
    /// To the parser this is the end of the source, which is not well-formed then.
    void endHere() { setData(QString()); }

    int brackets = 0;
};

/// A parser that looks at everything before the builder of the tree gets it. Where a handler
/// returns false, parsing ends as at an error.
class GuardedReader : public QXmlSimpleReader, private QXmlDefaultHandler
{
public:
    explicit GuardedReader(Source &source) : source(source)
    {
        // As QDomDocument sets up a reader of its own.
        setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
        setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), true);
        reportEntities(false);
    }

    // The document comes with its builder.

    void setContentHandler(QXmlContentHandler *handler) override
    {
        builder = handler;
        QXmlSimpleReader::setContentHandler(this);
    }

    void setLexicalHandler(QXmlLexicalHandler *handler) override
    {
        lexicalBuilder = handler;
        QXmlSimpleReader::setLexicalHandler(this);
    }

    // Nobody reads what a DTD declares, and the document would hold it by such hashes.

    void setDeclHandler(QXmlDeclHandler * /*handler*/) override
    {
        QXmlSimpleReader::setDeclHandler(this);
    }

    void setDTDHandler(QXmlDTDHandler * /*handler*/) override {}

private:
    bool startElement(const QString &namespaceUri, const QString &localName, const QString &name,
                      const QXmlAttributes &attributes) override
    {
        source.inProlog = false;
        if (!buildText() || ++nesting > maximalNesting || attributes.count() > maximalAttributes)
            return false;
        // One copy of each name takes a tenth off the memory of a tree.
        const auto sharedName =
            names.size() < maximalSharedNames ? names.insert(name) : names.find(name);
        return builder->startElement(namespaceUri, localName,
                                     sharedName != names.end() ? *sharedName : name, attributes);
    }

    bool endElement(const QString &namespaceUri, const QString &localName,
                    const QString &name) override
    {
        --nesting;
        return buildText() && builder->endElement(namespaceUri, localName, name);
    }

    bool characters(const QString &characters) override
    {
        if (!entitiesReported || inCData)
            return builder->characters(characters);
        text += characters;
        return true;
    }

    bool processingInstruction(const QString &target, const QString &data) override
    {
        return buildText() && builder->processingInstruction(target, data);
    }

    bool skippedEntity(const QString &name) override
    {
        // A text goes on behind the reference to an external entity, and ends at an undeclared one.
        return externalEntities.find(name) != externalEntities.end() || buildText();
    }

    bool comment(const QString &comment) override
    {
        return buildText() && lexicalBuilder->comment(comment);
    }

    bool startCDATA() override
    {
        inCData = true;
        return buildText() && lexicalBuilder->startCDATA();
    }

    bool endCDATA() override
    {
        inCData = false;
        return lexicalBuilder->endCDATA();
    }

    bool endDocument() override { return builder->endDocument(); }

    bool internalEntityDecl(const QString &name, const QString &value) override
    {
        // Those of the DTD itself could build up content models, and no trade data has them.
        if (name.startsWith(QLatin1Char('%')))
            return false;
        reportEntities(true);
        entitySizes.insert(name, value.size());
        entityText += name.size() + value.size();
        return entitySizes.size() <= maximalEntities && entityText <= maximalEntityText;
    }

    bool externalEntityDecl(const QString &name, const QString & /*publicId*/,
                            const QString & /*systemId*/) override
    {
        externalEntities.insert(name);
        return true;
    }

    bool startEntity(const QString &name) override
    {
        expansion += entitySizes.value(name);
        return expansion <= source.characters + maximalExpansion;
    }

    /// With reports, texts come in pieces, the white ones too: buildText() joins them again.
    /// Sources without entities of their own do without.
    void reportEntities(bool enable)
    {
        entitiesReported = enable;
        setFeature(QStringLiteral("http://trolltech.com/xml/features/report-start-end-entity"),
                   enable);
        setFeature(
            QStringLiteral("http://trolltech.com/xml/features/report-whitespace-only-CharData"),
            enable);
    }

    bool buildText()
    {
        if (text.isEmpty())
            return true;
        const bool built = text.simplified().isEmpty() || builder->characters(text);
        text.clear();
        return built;
    }

    Source &source;
    QXmlContentHandler *builder = nullptr;
    QXmlLexicalHandler *lexicalBuilder = nullptr;
    QSet<QString> names;
    int nesting = 0;

    bool entitiesReported = false;
    bool inCData = false;
    QString text;
    QMap<QString, int> entitySizes;
    std::set<QString> externalEntities;
    int entityText = 0;
    qint64 expansion = 0;
};

} // namespace

bool parseSource(QIODevice &device, QDomDocument &document)
{
    try {
        // What can be read only once is left to the reader that reads everything.
        if (!device.isSequential() && readQuickly(device, document, maximalNesting))
            return true;
    } catch (const std::bad_alloc &) {
        document.clear();
        return false;
    }
    if (!device.isSequential())
        device.seek(0);

    Source source(&device);
    auto reader = std::make_unique<GuardedReader>(source);
    try {
        if (document.setContent(&source, reader.get()))
            return true;
    } catch (const std::bad_alloc &) {
        // The parser of the toolkit does not survive this in a state to be destroyed in.
        static_cast<void>(reader.release());
    }
    document.clear();
    return false;
}
