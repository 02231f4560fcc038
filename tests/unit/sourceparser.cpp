// SPDX-License-Identifier: MIT
#include "reader/sourceparser.h"
#include "../readers.h"
#include "probe.h"

/// The readers that stand between a source and its tree.
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
        QCOMPARE(compareReaders(xml.replace("\\n", "\n").replace("\\r", "\r").toUtf8()).fault,
                 static_cast<const char *>(nullptr));
    }

    /// Wherever a part of it is cut by the pieces that a source is decoded in.
    void readsPlainSourcesQuickly()
    {
        const QByteArray xml =
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?><!DOCTYPE d SYSTEM \"d\">\n"
            "<d><!--%--><b c='1' d=\"&lt;&u;\"/>x&amp;y&nbsp;z]]<![CDATA[<z>]]]]>"
            "<Ид> &#10;&#x416; </Ид > <?p i?> \r\n</d><!-- end -->\n";
        for (int shift = 0; shift < 300; ++shift) {
            const Comparison comparison =
                compareReaders(QByteArray(xml).replace('%', QByteArray(16'384 - shift, ' ')));
            QVERIFY(comparison.isQuick);
            QCOMPARE(comparison.fault, static_cast<const char *>(nullptr));
        }
    }

    /// The toolkit cuts them to 16 bits.
    void keepsCharactersWhole()
    {
        const Reading reading = readBy(readQuickly, "<a b='&#128512;'>&#x1F600;</a>");
        const QDomElement element = reading.document.documentElement();
        QCOMPARE(element.text(), QString::fromUtf8("\xf0\x9f\x98\x80"));
        QCOMPARE(element.attribute("b"), element.text());
    }

    void tellsWhatFailed_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<LoadFailure>("failure");
        QTest::addColumn<QString>("place");
        const QString dtd = "<!DOCTYPE a [%1]><a>%2</a>";
        const QString entity = "<!ENTITY e%1 '%2'>";
        QString entities;
        QString attributes;
        for (int i = 0; i < 301; ++i) {
            entities += entity.arg(i).arg("v");
            attributes += QString(" a%1=''").arg(i);
        }
        QTest::newRow("end tag") << "<a>\n<b></a>" << LoadFailure::NotWellFormed << "2:7";
        QTest::newRow("depth") << "<a>" + QString("\n<b>").repeated(128) << LoadFailure::TooDeep
                               << "129:3";
        QTest::newRow("attributes")
            << "<a" + attributes + "/>" << LoadFailure::TooManyAttributes << "1:2301";
        QTest::newRow("brackets") << dtd.arg("<!ELEMENT b " + QString(1'001, '('), "")
                                  << LoadFailure::TooManyBrackets << "1:1025";
        QTest::newRow("parameter")
            << dtd.arg("<!ENTITY % p 'v'>", "") << LoadFailure::ParameterEntity << "1:30";
        QTest::newRow("entities") << dtd.arg(entities, "") << LoadFailure::TooManyEntities
                                  << "1:5321";
        QTest::newRow("expansion")
            << dtd.arg(entity.arg(0).arg(QString(60'000, 'v')), QString("\n&e0;").repeated(30))
            << LoadFailure::TooMuchExpansion << "19:4";
    }

    void tellsWhatFailed()
    {
        QFETCH(QString, xml);
        QByteArray bytes = xml.toUtf8();
        QBuffer buffer(&bytes);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        QDomDocument document;
        Loading loading;
        QVERIFY(!parseSource(buffer, document, &loading));
        QTEST(loading.failure, "failure");
        QTEST(toText(loading.failedAt.line, loading.failedAt.column), "place");
        QVERIFY(document.firstChild().isNull());
    }

    /// Both what is plain, and what is not.
    void stopsWhereItIsTold()
    {
        for (const char *root : {"<a>", "<!DOCTYPE a []><a>"}) {
            QByteArray bytes = root + QByteArray(300'000, 'x') + "</a>";
            QBuffer buffer(&bytes);
            QVERIFY(buffer.open(QIODevice::ReadOnly));
            QDomDocument document;
            QVector<qint64> asked;
            Loading loading;
            loading.goesOn = [&](qint64 size) {
                asked << size;
                return asked.size() < 3;
            };
            QVERIFY(!parseSource(buffer, document, &loading));
            QCOMPARE(loading.failure, LoadFailure::Stopped);
            QCOMPARE(asked, QVector<qint64>({65'536, 131'072, 196'608}));
            QVERIFY(document.firstChild().isNull());
        }
    }
};

Q_DECLARE_METATYPE(LoadFailure)
QTEST_GUILESS_MAIN(SourceParserTest)
#include "sourceparser.moc"
