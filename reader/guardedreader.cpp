// SPDX-License-Identifier: MIT
#include "reader/guardedreader.h"

#include "reader/limits.h"
#include "reader/source.h"
#include "reader/treebuilder.h"

#include <QMap>
#include <QSet>
#include <QXmlDefaultHandler>
#include <QXmlSimpleReader>

#include <memory>
#include <set>

// The toolkit would rather have everybody use its stream reader, which reads sources differently:
// it keeps white space, and fails on an undeclared entity.
QT_WARNING_DISABLE_DEPRECATED

namespace
{

/// Hands what the parser reports to the builder of the tree. Texts can come in pieces, and are
/// joined. Where an operation returns false, parsing ends as at an error.
class BuildingHandler : public QXmlDefaultHandler
{
public:
    BuildingHandler(QDomDocument &document, Loading &loading) : loading(loading), builder(document)
    {
        loading.positionsAreEnds = true;
    }

    void setDocumentLocator(QXmlLocator *newLocator) override { locator = newLocator; }

    bool startElement(const QString & /*namespaceUri*/, const QString & /*localName*/,
                      const QString &name, const QXmlAttributes &attributes) override
    {
        if (!endText())
            return false;
        builder.startElement(shared(name));
        for (int i = 0; i < attributes.count(); ++i)
            builder.attribute(attributes.qName(i), attributes.value(i));
        if (loading.wantsPositions)
            loading.positions.append({locator->lineNumber(), locator->columnNumber()});
        return true;
    }

    bool endElement(const QString & /*namespaceUri*/, const QString & /*localName*/,
                    const QString & /*name*/) override
    {
        if (!endText())
            return false;
        builder.endElement();
        return true;
    }

    bool characters(const QString &characters) override
    {
        if (inCData)
            builder.cdata(characters);
        else
            text += characters;
        return true;
    }

    bool startCDATA() override
    {
        inCData = true;
        return endText() && builder.nesting() > 0;
    }

    bool endCDATA() override
    {
        inCData = false;
        return true;
    }

    bool processingInstruction(const QString &target, const QString &data) override
    {
        if (!endText())
            return false;
        builder.processingInstruction(target, data);
        return true;
    }

    bool comment(const QString &comment) override
    {
        if (!endText())
            return false;
        builder.comment(comment);
        return true;
    }

    bool externalEntityDecl(const QString &name, const QString & /*publicId*/,
                            const QString & /*systemId*/) override
    {
        externalEntities.insert(name);
        return true;
    }

    bool skippedEntity(const QString &name) override
    {
        // A text goes on behind the reference to an external entity, and ends at an undeclared one.
        return externalEntities.find(name) != externalEntities.end() || endText();
    }

    bool endDocument() override { return builder.nesting() == 0; }

    bool fatalError(const QXmlParseException &exception) override
    {
        if (loading.failure == LoadFailure::None) {
            loading.failure = LoadFailure::NotWellFormed;
            loading.message = exception.message();
        }
        loading.failedAt = {exception.lineNumber(), exception.columnNumber()};
        return false;
    }

protected:
    int nesting() const { return builder.nesting(); }

    Loading &loading;

private:
    /// False where there is a text outside the root.
    bool endText()
    {
        const bool fits = builder.nesting() > 0 || text.trimmed().isEmpty();
        if (builder.nesting() > 0)
            builder.text(text);
        text = QString();
        return fits;
    }

    /// One copy of each name takes a tenth off the memory of a tree.
    QString shared(const QString &name)
    {
        if (names.size() < limits::sharedNames)
            return *names.insert(name);
        const auto known = names.constFind(name);
        return known != names.constEnd() ? *known : name;
    }

    TreeBuilder builder;
    QXmlLocator *locator = nullptr;
    QSet<QString> names;
    bool inCData = false;
    QString text;
    std::set<QString> externalEntities;
};

/// Looks at everything before it is built.
class GuardingHandler : public BuildingHandler
{
public:
    GuardingHandler(QXmlSimpleReader &reader, Source &source, QDomDocument &document,
                    Loading &loading)
        : BuildingHandler(document, loading), reader(reader), source(source)
    {
        // As QDomDocument sets up a reader of its own.
        reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
        reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), true);
        reportEntities(false);
        reader.setContentHandler(this);
        reader.setLexicalHandler(this);
        reader.setDeclHandler(this);
        reader.setErrorHandler(this);
    }

    bool startElement(const QString &namespaceUri, const QString &localName, const QString &name,
                      const QXmlAttributes &attributes) override
    {
        source.leaveProlog();
        if (nesting() == limits::nesting)
            return refuse(LoadFailure::TooDeep);
        if (attributes.count() > limits::attributes)
            return refuse(LoadFailure::TooManyAttributes);
        return BuildingHandler::startElement(namespaceUri, localName, name, attributes);
    }

    bool internalEntityDecl(const QString &name, const QString &value) override
    {
        // Those of the DTD itself could build up content models, and no trade data has them.
        if (name.startsWith(QLatin1Char('%')))
            return refuse(LoadFailure::ParameterEntity);
        // Their texts come in pieces then. Sources without entities of their own do without.
        reportEntities(true);
        entitySizes.insert(name, value.size());
        entityText += name.size() + value.size();
        return (entitySizes.size() <= limits::entities && entityText <= limits::entityText) ||
               refuse(LoadFailure::TooManyEntities);
    }

    bool startEntity(const QString &name) override
    {
        expansion += entitySizes.value(name);
        return expansion <= source.size() + limits::expansion ||
               refuse(LoadFailure::TooMuchExpansion);
    }

private:
    bool refuse(LoadFailure failure)
    {
        loading.failure = failure;
        return false;
    }

    void reportEntities(bool enable)
    {
        for (const char *feature :
             {"http://trolltech.com/xml/features/report-start-end-entity",
              "http://trolltech.com/xml/features/report-whitespace-only-CharData"})
            reader.setFeature(QLatin1String(feature), enable);
    }

    QXmlSimpleReader &reader;
    Source &source;
    QMap<QString, qsizetype> entitySizes;
    qsizetype entityText = 0;
    qint64 expansion = 0;
};

} // namespace

bool readGuarded(QIODevice &device, QDomDocument &document, Loading &loading)
{
    Source source(device, loading);
    auto reader = std::make_unique<QXmlSimpleReader>();
    GuardingHandler handler(*reader, source, document, loading);
    try {
        return reader->parse(&source);
    } catch (...) {
        // The parser does not survive a lack of memory in a state to be destroyed in.
        static_cast<void>(reader.release());
        throw;
    }
}
