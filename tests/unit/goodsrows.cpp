// SPDX-License-Identifier: MIT
#include "probe.h"

#include <functional>

/// Runs an exporter and gives back its result.
using Export = std::function<bool(Probe &)>;
Q_DECLARE_METATYPE(Export)

class GoodsRowsTest : public QObject
{
    Q_OBJECT

private slots:
    void rows_data()
    {
        QTest::addColumn<Export>("run");
        QTest::addColumn<QString>("rows"); // joined by "|"

        const QString good = "c\t1#2\tDART\ta 1\tDP8\tn [1]\tDSC\tb 1\tDP6\tGro\tup\tDP10\tшт\t1";
        const QString description = "|-----|line 1\nline\t2|-----";
        const QString empty = "\tDART\t\tDP8\t\tDSC\t";
        QTest::newRow("katalogs, as the job")
            << Export([](Probe &p) { return p.exportKatalogs(false, true, true); })
            << good + "\tDISHTML\t1" + description + "|c2|" + empty;
        QTest::newRow("katalogs, not HTML")
            << Export([](Probe &p) { return p.exportKatalogs(false, true, false); })
            << good + description + "|c2|" + empty;
        QTest::newRow("katalogs, prefix, no description")
            << Export([](Probe &p) { return p.exportKatalogs(true, false, true); })
            << "##\t" + good + "|##\tc2|##\t" + empty;

        const QString offer = "p1\tDART\ta[1]\tDP8\tn (1) (2)\tDSC\tb[1]\tDP6\tGro\tup\tDP10\tшт";
        const QString prices = "\tDC1\t100.00\tDC3\tdear\tDC4\t\tDC5\t150";
        QTest::newRow("prices, as the job")
            << Export([](Probe &p) { return p.exportPrices(false, true, true, true, false, 1.5); })
            << offer + prices + "\tDISHTML\t1|-----|text|-----|p2";
        QTest::newRow("prices, prefix, not HTML")
            << Export([](Probe &p) { return p.exportPrices(true, true, false, true, false, 1.5); })
            << "##\t" + offer + prices + "\tDISHTML\t0|-----|text|-----|##\tp2";
        QTest::newRow("prices, factor, no description")
            << Export([](Probe &p) { return p.exportPrices(false, false, true, true, true, 1.5); })
            << offer + "\tDC1\t150\tDC3\t0\tDC4\t0\tDC5\t225|p2";

        const QString yml = "o\t1\tDART\tv [1]\tDP7\tt (2)\tDP8\tm (3)\tDP8\t%1\tDSC\tb [5]\t"
                            "DP6\tDri\tlls\tDC1\t%2\tDP12\tV [6]";
        const QString extended = "\tDC1\t%1\tDC5\t%2\tDP12\tW [7]\tDP3\tL [8]\tDART\tP (9)\t"
                                 "DP16\t1 [10]\tDP10\tшт";
        QTest::newRow("YML, as the job")
            << Export([](Probe &p) { return p.exportYmlOffers(false, true, true, true, false, 2); })
            << yml.arg("n (4)", "10 .50") + extended.arg("11", "dear") +
                   "\tDISHTML\t1|-----|text\t[11]|-----|o3\tDP10\tшт";
        QTest::newRow("YML, prefix, plain, not HTML")
            << Export(
                   [](Probe &p) { return p.exportYmlOffers(true, true, false, false, false, 2); })
            << "##\t" + yml.arg("(N) n (4)", "10 .50") +
                   "\tDISHTML\t0|-----|text\t[11]|-----|##\to2\tDP8\tnot read"
                   "\tDISHTML\t0|-----|none left|-----|##\to3";
        QTest::newRow("YML, factor, no description")
            << Export([](Probe &p) { return p.exportYmlOffers(false, false, true, true, true, 2); })
            << yml.arg("n (4)", "0") + extended.arg("22", "0") + "|o3\tDP10\tшт";

        QTest::newRow("document, with goods")
            << Export([](Probe &p) { return p.collectDocumentRows(true); })
            << "##\tt1\tDART\ta 1\tDP8\t n (1) \tDP6\tGro\tup\tDP10\tшт|t1\t2.0\t10|##\tt2|t2\t5";
        QTest::newRow("document, lines alone")
            << Export([](Probe &p) { return p.collectDocumentRows(false); })
            << "\t2.0\t10|\t1\t|\t5";
        QTest::newRow("documents leave no rows")
            << Export([](Probe &p) { return !p.exportDocs(true, 1); }) << "";
    }

    void rows()
    {
        QFETCH(Export, run);
        Probe probe(source("goods.xml"));
        QVERIFY(run(probe));
        QTEST(probe.goodsRows.join("|"), "rows");
        Probe nothing(
            "<Документы><Документ/><Документ><Товары><Товар/></Товары></Документ></Документы>");
        QVERIFY(run(nothing) == QByteArray(QTest::currentDataTag()).startsWith("documents"));
    }

    void pictures()
    {
        const QList<PictureLink> pictures = {{"o\t1", "a [b].jpg"}, {"o2", ""}};
        Probe probe(source("goods.xml"));
        for (int run = 0; run < 2; ++run) {
            QVERIFY(probe.exportYmlOffers(false, true, true, true, false, 1.0));
            QCOMPARE(probe.pictureLinks, pictures);
        }
        QVERIFY(probe.readStructure());
        QVERIFY(probe.pictureLinks.isEmpty());
    }

    void exchangeFileOfOtherParameters()
    {
        const QTemporaryDir folder;
        Probe probe(source("goods.xml"));
        probe.outputFileName = folder.filePath("out.txt");
        probe.outputEnabled = true;
        QVERIFY(probe.openOutput());
        QVERIFY(probe.exportPrices(false, false, true, true, true, 1.1));
        QVERIFY(probe.exportYmlOffers(false, false, true, false, false, 1.0));
        QFile file(probe.outputFileName);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray lines = file.readAll();
        QVERIFY(lines.contains("\nprice:165\nprice_discount:110\n##endgoods\n"));
        QVERIFY(lines.contains("\nname:m [3]\nname:[N] n [4]\nbarcode:b [5]\n"));
    }
};

QTEST_GUILESS_MAIN(GoodsRowsTest)
#include "goodsrows.moc"
