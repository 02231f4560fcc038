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
            QCOMPARE(texts(document), texts(expected));
    }

private:
    /// Everything but references to entities.
    static QStringList texts(const QDomNode &node)
    {
        QStringList all;
        const QDomNamedNodeMap attributes = node.attributes();
        for (int i = 0; i < attributes.size(); ++i)
            all << attributes.item(i).nodeName() << attributes.item(i).nodeValue();
        all.sort();
        for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
            if (!child.isEntityReference() && !child.isDocumentType())
                all << child.nodeName() << child.nodeValue() << texts(child) << "end";
        }
        return all;
    }
};

QTEST_GUILESS_MAIN(SourceParserTest)
#include "sourceparser.moc"
