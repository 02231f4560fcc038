// SPDX-License-Identifier: MIT
#include "reader/quickreader.h"

#include "reader/limits.h"
#include "reader/scanner.h"
#include "reader/treebuilder.h"

namespace
{

/// Walks over the decoded text. Each operation that returns a bool gives up with false, at the
/// first thing that is not plain.
class QuickReader
{
public:
    QuickReader(QIODevice &device, QDomDocument &document, Loading &loading)
        : loading(loading), scanner(device, loading), builder(document)
    {
    }

    bool read()
    {
        if (!readDeclaration())
            return false;
        while (!scanner.isAtEnd()) {
            if (!(scanner.at(0) == u'<' ? readMarkup() : readText()))
                return false;
        }
        return hasRoot && builder.nesting() == 0;
    }

private:
    bool readDeclaration()
    {
        if (scanner.at(0) != u'<' || scanner.at(1) != u'?')
            return true;
        if (!scanner.skip(QLatin1String("<?xml version=")))
            return false;
        QString version;
        QString encoding;
        if (!takeQuoted(version) || version != QLatin1String("1.0"))
            return false;
        QString data = QStringLiteral("version='1.0'");
        if (scanner.skip(QLatin1String(" encoding="))) {
            if (!takeQuoted(encoding) || encoding.isEmpty())
                return false;
            data += QStringLiteral(" encoding='%1'").arg(encoding);
        }
        scanner.skipBlanks();
        if (!scanner.skip(QLatin1String("?>")))
            return false;
        builder.processingInstruction(QStringLiteral("xml"), data);
        return true;
    }

    /// A word in quotes, of ASCII letters, digits and signs of names.
    bool takeQuoted(QString &word)
    {
        const QChar quote = scanner.at(0);
        if (quote != u'"' && quote != u'\'')
            return false;
        int length = 0;
        while (scanner.at(length + 1) < QChar(0x7f) &&
               Scanner::continuesName(scanner.at(length + 1)))
            ++length;
        if (scanner.at(length + 1) != quote)
            return false;
        scanner.pass(1);
        word = scanner.take(length);
        scanner.pass(1);
        return true;
    }

    bool readText()
    {
        if (builder.nesting() == 0)
            return scanner.skipBlanks();
        if (scanner.skipBlanksTo(u'<'))
            return true; // builds nothing
        QString value;
        for (;;) {
            scanner.takePlain(value, u'<', u'&', u']');
            const QChar next = scanner.at(0);
            if (next == u'<')
                break;
            scanner.pass(1);
            QString entity;
            if (next == u']' && !(scanner.at(0) == u']' && scanner.at(1) == u'>'))
                value += next;
            else if (next != u'&' || !scanner.takeReference(value, entity))
                return false;
            if (!entity.isEmpty()) {
                builder.text(value);
                value.clear();
            }
        }
        builder.text(value);
        return true;
    }

    bool readMarkup()
    {
        switch (scanner.at(1).unicode()) {
        case '/':
            return readEndTag();
        case '!':
            return scanner.at(2) == u'-'   ? readComment()
                   : scanner.at(2) == u'[' ? readCdata()
                                           : readDoctype();
        case '?':
            return readInstruction();
        default:
            return readStartTag();
        }
    }

    bool readStartTag()
    {
        if ((hasRoot && builder.nesting() == 0) || builder.nesting() == limits::nesting)
            return false;
        hasRoot = true;
        scanner.leaveProlog();
        if (loading.wantsPositions)
            loading.positions.append(scanner.place());
        scanner.pass(1);
        QString name;
        if (!scanner.takeName(name))
            return false;
        builder.startElement(name);
        for (int attributes = 0; attributes <= limits::attributes; ++attributes) {
            const bool isApart = scanner.skipBlanks();
            if (scanner.at(0) == u'>') {
                scanner.pass(1);
                return true;
            }
            if (scanner.at(0) == u'/' && scanner.at(1) == u'>') {
                scanner.pass(2);
                builder.endElement();
                return true;
            }
            if (!isApart || !readAttribute())
                return false;
        }
        return false;
    }

    bool readAttribute()
    {
        QString name;
        if (!scanner.takeName(name) || scanner.at(0) != u'=')
            return false;
        scanner.pass(1);
        const QChar quote = scanner.at(0);
        if (quote != u'"' && quote != u'\'')
            return false;
        scanner.pass(1);
        QString value;
        for (;;) {
            scanner.takePlain(value, quote, u'<', u'&');
            const QChar next = scanner.at(0);
            QString entity; // leaves nothing here
            scanner.pass(1);
            if (next == quote)
                break;
            if (next != u'&' || !scanner.takeReference(value, entity))
                return false;
        }
        builder.attribute(name, value.isNull() ? QStringLiteral("") : value);
        return true;
    }

    bool readEndTag()
    {
        scanner.pass(2);
        if (builder.nesting() == 0 || !scanner.skipName(builder.name()))
            return false;
        scanner.skipBlanks();
        if (scanner.at(0) != u'>')
            return false;
        scanner.pass(1);
        builder.endElement();
        return true;
    }

    bool readComment()
    {
        QString comment = QLatin1String("");
        if (!scanner.skip(QLatin1String("<!--")) ||
            !scanner.takeUpTo(QLatin1String("--"), comment) || scanner.at(0) != u'>')
            return false;
        scanner.pass(1);
        builder.comment(comment);
        return true;
    }

    bool readCdata()
    {
        QString value = QLatin1String("");
        if (builder.nesting() == 0 || !scanner.skip(QLatin1String("<![CDATA[")) ||
            !scanner.takeUpTo(QLatin1String("]]>"), value))
            return false;
        builder.cdata(value);
        return true;
    }

    bool readInstruction()
    {
        scanner.pass(2);
        QString target;
        QString data = QLatin1String("");
        if (!scanner.takeName(target) ||
            target.compare(QLatin1String("xml"), Qt::CaseInsensitive) == 0 ||
            !scanner.skipBlanks() || !scanner.takeUpTo(QLatin1String("?>"), data))
            return false;
        builder.processingInstruction(target, data);
        return true;
    }

    bool readDoctype()
    {
        QString name;
        QString address;
        if (hasRoot || hasDoctype || !scanner.skip(QLatin1String("<!DOCTYPE ")) ||
            !scanner.takeName(name))
            return false;
        hasDoctype = true;
        if (scanner.skip(QLatin1String(" SYSTEM \"")) &&
            !scanner.takeUpTo(QLatin1String("\""), address))
            return false;
        scanner.skipBlanks();
        if (scanner.at(0) != u'>')
            return false;
        scanner.pass(1);
        return true;
    }

    Loading &loading;
    Scanner scanner;
    TreeBuilder builder;
    bool hasRoot = false;
    bool hasDoctype = false;
};

} // namespace

bool readQuickly(QIODevice &device, QDomDocument &document, Loading &loading)
{
    return QuickReader(device, document, loading).read();
}
