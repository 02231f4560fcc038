// SPDX-License-Identifier: MIT
#include "reader/sourceparser.h"

#include <QSet>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

// The toolkit would rather have everybody use its stream reader, which reads sources differently:
// it keeps white space, and fails on an undeclared entity.
QT_WARNING_DISABLE_DEPRECATED

namespace
{

/// Stands between the parser and the builder of the tree.
class BuilderGuard : public QXmlDefaultHandler
{
public:
    void setBuilder(QXmlContentHandler *handler) { builder = handler; }

    bool startElement(const QString &namespaceUri, const QString &localName, const QString &name,
                      const QXmlAttributes &attributes) override
    {
        // Elements share one copy of their name: a sixth of the memory of a tree.
        return builder->startElement(namespaceUri, localName, *names.insert(name), attributes);
    }

    bool endElement(const QString &namespaceUri, const QString &localName,
                    const QString &name) override
    {
        return builder->endElement(namespaceUri, localName, name);
    }

    bool characters(const QString &text) override { return builder->characters(text); }

    bool processingInstruction(const QString &target, const QString &data) override
    {
        return builder->processingInstruction(target, data);
    }

    bool endDocument() override { return builder->endDocument(); }

private:
    QXmlContentHandler *builder = nullptr;
    QSet<QString> names;
};

class GuardedReader : public QXmlSimpleReader
{
public:
    GuardedReader()
    {
        // As QDomDocument sets up a reader of its own.
        setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
        setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), true);
        setFeature(
            QStringLiteral("http://trolltech.com/xml/features/report-whitespace-only-CharData"),
            false);
    }

    // The document comes with its builder.
    void setContentHandler(QXmlContentHandler *handler) override
    {
        guard.setBuilder(handler);
        QXmlSimpleReader::setContentHandler(&guard);
    }

private:
    BuilderGuard guard;
};

} // namespace

bool parseSource(QIODevice &device, QDomDocument &document)
{
    QXmlInputSource source(&device);
    GuardedReader reader;
    return document.setContent(&source, &reader);
}
