// SPDX-License-Identifier: MIT
#include "probe.h"

class NodesTest : public QObject
{
    Q_OBJECT

private slots:
    void directText_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QString>("text");
        QTest::newRow("no children") << "<a/>"
                                     << "";
        QTest::newRow("around a child") << "<a> one<b>not</b>two <!--not--></a>"
                                        << " onetwo ";
        QTest::newRow("CDATA") << "<a>1<![CDATA[ <2> ]]>3</a>"
                               << "1 <2> 3";
        QTest::newRow("child elements only") << "<a><b>not</b></a>"
                                             << "";
    }

    void directText()
    {
        QFETCH(QString, xml);
        const QString text = Probe::directText(Probe(xml).rootElement);
        QTEST(text, "text");
        QVERIFY(!text.isNull());
    }

    void attributeValue()
    {
        const Probe probe("<a id='1' empty=''>text</a>");
        const QDomNode node = probe.rootElement;
        QCOMPARE(Probe::attributeValue(node, "id"), QString("1"));
        QVERIFY(Probe::attributeValue(node, "empty").isEmpty());
        for (const QDomNode &without : {node, node.firstChild(), QDomNode()})
            QVERIFY(Probe::attributeValue(without, "ID").isNull());
    }

    void findElementByText_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QString>("hit"); // its attribute n
        QTest::newRow("deep in an earlier sibling")
            << "<r><a><b><id n='1'>x</id></b></a><id n='2'>x</id></r>"
            << "1";
        QTest::newRow("outer of two") << "<r><id n='1'><id n='2'>x</id></id></r>"
                                      << "1";
        QTest::newRow("inner, outer has more text") << "<r><id n='1'>y<id n='2'>x</id></id></r>"
                                                    << "2";
        QTest::newRow("full text of descendants") << "<r><id n='1'><b>x</b><!--y--></id></r>"
                                                  << "1";
        QTest::newRow("not trimmed") << "<r><id n='1'> x</id><id n='2'>x</id></r>"
                                     << "2";
        QTest::newRow("case") << "<r><ID n='1'>x</ID><id n='2'>X</id></r>"
                              << "";
    }

    void findElementByText()
    {
        QFETCH(QString, xml);
        const Probe probe(xml);
        const QDomNode hit = Probe::findElementByText(probe.rootElement, "id", "x");
        QTEST(Probe::attributeValue(hit, "n"), "hit");
        QVERIFY(Probe::findElementByText({}, "id", QString()).isNull());
    }

    void findElementByAttribute_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("first of two") << "1"
                                      << "first";
        QTest::newRow("an empty value must be there") << ""
                                                      << "empty";
        QTest::newRow("another tag") << "2"
                                     << "";
        QTest::newRow("deeper") << "3"
                                << "";
        QTest::newRow("the parent itself") << "4"
                                           << "";
    }

    void findElementByAttribute()
    {
        QFETCH(QString, value);
        const Probe probe(
            QStringLiteral("<c id='4'>text<c>none</c><d id='2'/><d><c id='3'/></d>"
                           "<c id='1'>first</c><c id='1'>second</c><c id=''>empty</c></c>"));
        const QDomNode hit = Probe::findElementByAttribute(probe.rootElement, "c", "id", value);
        QTEST(hit.toElement().text(), "text");
    }
};

QTEST_GUILESS_MAIN(NodesTest)
#include "nodes.moc"
