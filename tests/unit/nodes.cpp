// SPDX-License-Identifier: MIT
#include "probe.h"

class NodesTest : public QObject
{
    Q_OBJECT

private slots:
    void directText()
    {
        const auto text = [](const char *xml) {
            return Probe::directText(Probe(QString::fromUtf8(xml)).rootElement);
        };
        QVERIFY(text("<a/>").isEmpty() && !text("<a/>").isNull());
        QCOMPARE(text("<a> one<b>not</b>two <!--not--></a>"), QString(" onetwo "));
        QCOMPARE(text("<a>1<![CDATA[ <2> ]]>3</a>"), QString("1 <2> 3"));
        QCOMPARE(text("<a><b>not</b></a>"), QString(""));
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

    void findElementByText()
    {
        const auto hit = [](const char *xml) {
            const Probe probe(QString::fromUtf8(xml));
            return Probe::attributeValue(Probe::findElementByText(probe.rootElement, "id", "x"),
                                         "n");
        };
        // Document order, an element ahead of what is in it; its full text, whole and exact.
        QCOMPARE(hit("<r><a><b><id n='1'>x</id></b></a><id n='2'>x</id></r>"), QString("1"));
        QCOMPARE(hit("<r><id n='1'><id n='2'>x</id></id></r>"), QString("1"));
        QCOMPARE(hit("<r><id n='1'>y<id n='2'>x</id></id></r>"), QString("2"));
        QCOMPARE(hit("<r><id n='1'><b>x</b><!--y--></id></r>"), QString("1"));
        QCOMPARE(hit("<r><id n='1'> x</id><id n='2'>x</id></r>"), QString("2"));
        QCOMPARE(hit("<r><ID n='1'>x</ID><id n='2'>X</id></r>"), QString());
        QVERIFY(Probe::findElementByText({}, "id", QString()).isNull());
    }

    void findElementByAttribute()
    {
        const Probe probe("<c id='4'>text<c>none</c><d id='2'/><d><c id='3'/></d>"
                          "<c id='1'>first</c><c id='1'>second</c><c id=''>empty</c></c>");
        const auto text = [&](const char *tag, const char *value) {
            return Probe::findElementByAttribute(probe.rootElement, tag, "id", value)
                .toElement()
                .text();
        };
        QCOMPARE(text("c", "1"), QString("first"));
        QCOMPARE(text("c", ""), QString("empty"));
        for (const char *elsewhere : {"2", "3", "4"}) // another tag, deeper, the parent itself
            QCOMPARE(text("c", elsewhere), QString());
        QVERIFY(Probe::findElementByAttribute(probe.rootElement, "", "id", "1").isNull());
    }
};

QTEST_GUILESS_MAIN(NodesTest)
#include "nodes.moc"
