// SPDX-License-Identifier: MIT
#include "probe.h"

static const char *const goods = R"(
<КоммерческаяИнформация>
  <Классификатор><Группы><Группа><Ид>g</Ид><Наименование>Gro	up</Наименование></Группа></Группы></Классификатор>
  <Каталог><Товары>
    <Товар><Ид>c	1#2</Ид><Артикул>a	1</Артикул><Наименование>n	[1]</Наименование><Штрихкод>b	1</Штрихкод>
      <Группы><Ид>g</Ид></Группы><БазоваяЕдиница>шт	1</БазоваяЕдиница><Описание>line 1
line	2</Описание></Товар>
    <Товар><Артикул>no id</Артикул></Товар>
    <Товар><Ид>c2</Ид></Товар>
    <Товар><Ид/><Артикул/><Наименование/><Штрихкод/><Группы/><БазоваяЕдиница/><Описание/></Товар>
  </Товары></Каталог>
  <ПакетПредложений><Предложения>
    <Предложение><Ид>p1</Ид><Артикул>a[1]</Артикул><Наименование>n	[1] (2)</Наименование><Штрихкод>b[1]</Штрихкод>
      <Группы><Ид>g</Ид></Группы><БазоваяЕдиница>шт</БазоваяЕдиница>
      <Цены><Цена><ЦенаЗаЕдиницу>100.00</ЦенаЗаЕдиницу></Цена><Цена/><Цена><ЦенаЗаЕдиницу>dear</ЦенаЗаЕдиницу></Цена>
        <Цена><ЦенаЗаЕдиницу/></Цена><Цена><ЦенаЗаЕдиницу>150</ЦенаЗаЕдиницу></Цена><Цена><ЦенаЗаЕдиницу>6</ЦенаЗаЕдиницу></Цена></Цены>
      <Описание>text</Описание></Предложение>
    <Предложение><Ид>p2</Ид></Предложение>
  </Предложения></ПакетПредложений>
  <Документ><Товары>
    <Товар><Ид>t1</Ид><Артикул>a	1</Артикул><Наименование> n	[1] </Наименование><Группы><Ид>g</Ид></Группы>
      <БазоваяЕдиница>шт</БазоваяЕдиница><Количество>2.0</Количество><ЦенаЗаЕдиницу>10</ЦенаЗаЕдиницу></Товар>
    <Товар><Количество>1</Количество></Товар>
    <Товар><Ид>t2</Ид><ЦенаЗаЕдиницу>5</ЦенаЗаЕдиницу></Товар>
  </Товары></Документ>
  <Документ><Товары><Товар><Ид>second document</Ид></Товар></Товары></Документ>
</КоммерческаяИнформация>)";

static QStringList lines(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char('|'));
}

class GoodsRowsTest : public QObject
{
    Q_OBJECT

private slots:
    void katalogs_data()
    {
        QTest::addColumn<bool>("prefixRows");
        QTest::addColumn<bool>("withDescription");
        QTest::addColumn<bool>("markHtml");
        QTest::addColumn<QStringList>("rows");
        const QString first =
            QStringLiteral("c\t1#2\tDART\ta 1\tDP8\tn [1]\tDSC\tb 1\tDP6\tGro\tup\t"
                           "DP10\tшт\t1");
        const QString empty = "\tDART\t\tDP8\t\tDSC\t";
        const QStringList description = lines("-----|line 1\nline\t2|-----");
        QTest::newRow("as the job")
            << false << true << true
            << (QStringList(first + "\tDISHTML\t1") + description) + QStringList({"c2", empty});
        QTest::newRow("not HTML") << false << true << false
                                  << QStringList(first) + description + QStringList({"c2", empty});
        QTest::newRow("prefix, no description")
            << true << false << true << QStringList({"##\t" + first, "##\tc2", "##\t" + empty});
    }

    void katalogs()
    {
        QFETCH(bool, prefixRows);
        QFETCH(bool, withDescription);
        QFETCH(bool, markHtml);
        Probe probe(QString::fromUtf8(goods));
        QVERIFY(probe.exportKatalogs(prefixRows, withDescription, markHtml));
        QTEST(probe.goodsRows, "rows");
        probe.closeOutput();
        QVERIFY(probe.goodsRows.isEmpty());
    }

    void prices_data()
    {
        QTest::addColumn<bool>("prefixRows");
        QTest::addColumn<bool>("markHtml");
        QTest::addColumn<bool>("applyFactor");
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("prices");
        const QString plain = "\tDC1\t100.00\tDC3\tdear\tDC4\t\tDC5\t150";
        QTest::newRow("as the job") << false << true << false << "" << plain + "\tDISHTML\t1";
        QTest::newRow("not HTML") << true << false << false << "##\t" << plain + "\tDISHTML\t0";
        QTest::newRow("factor") << false << true << true << ""
                                << "\tDC1\t150\tDC3\t0\tDC4\t0\tDC5\t225\tDISHTML\t1";
    }

    void prices()
    {
        QFETCH(bool, prefixRows);
        QFETCH(bool, markHtml);
        QFETCH(bool, applyFactor);
        QFETCH(QString, start);
        QFETCH(QString, prices);
        Probe probe(QString::fromUtf8(goods));
        QVERIFY(probe.exportPrices(prefixRows, true, markHtml, true, applyFactor, 1.5));
        const QString first =
            start + "p1\tDART\ta[1]\tDP8\tn (1) (2)\tDSC\tb[1]\tDP6\tGro\tup\tDP10\tшт";
        QCOMPARE(probe.goodsRows,
                 QStringList({first + prices, "-----", "text", "-----", start + "p2"}));
    }

    void factorInTheExchangeFile()
    {
        const QTemporaryDir folder;
        Probe probe(QString::fromUtf8(goods));
        probe.outputFileName = folder.filePath("out.txt");
        probe.outputEnabled = true;
        QVERIFY(probe.openOutput());
        QVERIFY(probe.exportPrices(false, false, true, true, true, 1.1));
        QFile file(probe.outputFileName);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains("\nprice:165\nprice_discount:110\n##endgoods\n"));
    }

    void documentRows_data()
    {
        QTest::addColumn<bool>("withGoods");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("with goods") << true
                                    << lines("##\tt1\tDART\ta 1\tDP8\t n (1) "
                                             "\tDP6\tGro\tup\tDP10\tшт|t1\t2.0\t10|##\tt2|t2\t5");
        QTest::newRow("lines alone") << false << lines("\t2.0\t10|\t1\t|\t5");
    }

    void documentRows()
    {
        QFETCH(bool, withGoods);
        Probe probe(QString::fromUtf8(goods));
        QVERIFY(probe.collectDocumentRows(withGoods));
        QTEST(probe.goodsRows, "rows");
        QVERIFY(!probe.exportDocs(true, 1)); // no exchange file is open
        QTEST(probe.goodsRows, "rows");
    }

    void nothingToExport()
    {
        Probe probe(QStringLiteral("<Документы><Документ/><Документ><Товары><Товар/></Товары>"
                                   "</Документ></Документы>"));
        QVERIFY(!probe.exportKatalogs(false, true, true));
        QVERIFY(!probe.exportPrices(false, true, true, true, false, 1.0));
        QVERIFY(!probe.collectDocumentRows(false)); // only the first document counts
        QVERIFY(probe.goodsRows.isEmpty());
    }
};

QTEST_GUILESS_MAIN(GoodsRowsTest)
#include "goodsrows.moc"
