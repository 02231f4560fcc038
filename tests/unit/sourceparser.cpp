// SPDX-License-Identifier: MIT
#include "reader/sourceparser.h"
#include "probe.h"

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
};

QTEST_GUILESS_MAIN(SourceParserTest)
#include "sourceparser.moc"
