// SPDX-License-Identifier: MIT
#include "pasted.h"
#include "probe.h"

class ClipboardTest : public QObject
{
    Q_OBJECT

    static inline QStringList printed;

private slots:
    void rows()
    {
        Probe probe("<r><Каталог><Товары>"
                    "<Товар><Ид>1</Ид><Описание>дрель\nи сверло</Описание></Товар>"
                    "<Товар><Ид>2</Ид></Товар></Товары></Каталог></r>");
        probe.exportKatalogs(false, true, true);
        const QStringList rows = probe.goodsRows;
        probe.copyRowsToClipboard();
        QCOMPARE(pasted(), QString("1\tDISHTML\t1\n-----\nдрель\nи сверло\n-----\n2\n"));
        QCOMPARE(probe.goodsRows, rows);

        probe.goodsRows.clear();
        probe.copyRowsToClipboard();
        QCOMPARE(pasted(), QString());
    }

    void diagnostics_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QStringList>("log");
        QTest::addColumn<QString>("text");
        QTest::newRow("CommerceML")
            << "<r><Классификатор/><Каталог><Товары><Товар><Ид>k</Ид><Описание>D</Описание></Товар>"
               "</Товары></Каталог><ПакетПредложений><Предложения><Предложение><Ид>p</Ид>"
               "<Цены><Цена><ЦенаЗаЕдиницу>10.50</ЦенаЗаЕдиницу></Цена></Цены>"
               "<Описание>D</Описание></Предложение></Предложения></ПакетПредложений><Документ/></"
               "r>"
            << QStringList{"Katalogs:  2 ", "Groups:  2   false ", "Docs:  2 ", "Prices:  2 "}
            << QString("k\tDISHTML\t1\n-----\nD\n-----\n").repeated(2) +
                   QString("p\tDC1\t10.50\tDISHTML\t1\n-----\nD\n-----\n").repeated(2);
        QTest::newRow("YML without categories")
            << "<yml_catalog><offers><offer id='o'/></offers></yml_catalog>"
            << QStringList{"Katalogs:  0 ", "Groups:  0   true ", "Docs:  0 ", "Prices:  2 "}
            << "o\tDP10\tшт\no\tDP10\tшт\n";
    }

    void diagnostics()
    {
        QFETCH(QString, xml);
        QFETCH(QStringList, log);
        Probe probe(xml);
        probe.goodsRows = QStringList{"older"};
        printed.clear();
        const QtMessageHandler before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &text) { printed << text; });
        probe.runDiagnostics();
        qInstallMessageHandler(before);
        QCOMPARE(printed, log);
        QTEST(pasted(), "text");
    }
};

QTEST_MAIN(ClipboardTest)
#include "clipboard.moc"
