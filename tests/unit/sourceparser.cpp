// SPDX-License-Identifier: MIT
#include "reader/sourceparser.h"
#include "probe.h"
#include "reader/quickreader.h"

#include <QBuffer>

/// The parser that stands between a source and its tree.
class SourceParserTest : public QObject
{
    Q_OBJECT

private slots:
    void makesTheTreeOfTheToolkit_data()
    {
        QTest::addColumn<QString>("xml");
        int number = 0;
        for (const QString &xml : source("sources.txt").split('\n', Qt::SkipEmptyParts))
            QTest::addRow("line %d", ++number) << xml;
    }

    void makesTheTreeOfTheToolkit()
    {
        QFETCH(QString, xml);
        QByteArray bytes = xml.replace("\\n", "\n").replace("\\r", "\r").toUtf8();
        QDomDocument expected;
        const bool parses = expected.setContent(bytes);

        QBuffer buffer(&bytes);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        QDomDocument document;
        QCOMPARE(parseSource(buffer, document), parses);
        if (parses)
            QCOMPARE(nodeTexts(document), nodeTexts(expected));
    }

    /// Wherever a part of it is cut by the pieces that a source is decoded in.
    void readsPlainSourcesQuickly()
    {
        const QByteArray xml =
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?><!DOCTYPE d SYSTEM \"d\">\n"
            "<d><!--%--><b c='1' d=\"&lt;&u;\"/>x&amp;y&nbsp;z]]<![CDATA[<z>]]]]>"
            "<Ид> &#10;&#x416; </Ид > <?p i?> \r\n</d><!-- end -->\n";
        for (int shift = 0; shift < 300; ++shift) {
            QByteArray bytes = QByteArray(xml).replace('%', QByteArray(16'384 - shift, ' '));
            QBuffer buffer(&bytes);
            QVERIFY(buffer.open(QIODevice::ReadOnly));
            QDomDocument document;
            QVERIFY(readQuickly(buffer, document, 2));
            QDomDocument expected;
            QVERIFY(expected.setContent(bytes));
            QCOMPARE(nodeTexts(document), nodeTexts(expected));
            QCOMPARE(document.doctype().systemId(), expected.doctype().systemId());
        }
    }

    /// The toolkit cuts them to 16 bits.
    void keepsCharactersWhole()
    {
        QByteArray bytes = "<a b='&#128512;'>&#x1F600;</a>";
        QBuffer buffer(&bytes);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        QDomDocument document;
        QVERIFY(parseSource(buffer, document));
        QCOMPARE(document.documentElement().text(), QString::fromUtf8("\xf0\x9f\x98\x80"));
        QCOMPARE(document.documentElement().attribute("b"), document.documentElement().text());
    }
};

QTEST_GUILESS_MAIN(SourceParserTest)
#include "sourceparser.moc"
