// SPDX-License-Identifier: MIT
#include "window/desk.h"
#include "window/groupsmodel.h"
#include "window/loader.h"
#include "window/tables.h"

#include <QtTest>

using namespace window;

/// The cells of a table that hold something.
static QStringList cells(const TableModel &model)
{
    QStringList lines;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList line;
        for (int column = 0; column < model.columnCount(); ++column) {
            const QString heading =
                model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
            const QString text = model.text(row, column);
            if (!text.isEmpty())
                line << heading + "=" + text;
        }
        lines << line.join("|");
    }
    return lines;
}

static QStringList groups(const GroupsModel &model, const QModelIndex &parent = {},
                          const QString &indent = {})
{
    QStringList lines;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex name = model.index(row, 0, parent);
        if (model.parent(name) != parent)
            return {"wrong parent"};
        lines << indent + name.data().toString() + " " +
                     model.index(row, 1, parent).data().toString();
        lines << groups(model, name, indent + "-");
    }
    return lines;
}

const QString catalogue =
    "<r><Классификатор><Группы><Группа><Ид>1</Ид><Наименование>Инструмент</Наименование>"
    "<Группы><Группа><Ид>2</Ид><Наименование>Дрели</Наименование></Группа></Группы></Группа>"
    "<Группа><Ид>3</Ид><Наименование>Книги</Наименование></Группа></Группы></Классификатор>"
    "<Каталог><Товары>"
    "<Товар><Ид>т1</Ид><Наименование>дрель 10</Наименование><Группы><Ид>2</Ид></Группы>"
    "<Описание>&lt;b&gt;D&lt;/b&gt;</Описание></Товар>"
    "<Товар><Наименование>без кода</Наименование></Товар>"
    "<Товар><Ид>т2</Ид><Артикул>A-7</Артикул><Наименование>Дрель 9</Наименование>"
    "<БазоваяЕдиница>шт</БазоваяЕдиница><Группы><Ид>2</Ид></Группы></Товар>"
    "<Товар><Ид>т3</Ид><Наименование>Ключ</Наименование><Группы><Ид>1</Ид></Группы></Товар>"
    "<Товар><Ид>т4</Ид></Товар></Товары></Каталог>"
    "<ПакетПредложений><Предложения><Предложение><Ид>п</Ид><Цены>"
    "<Цена><ЦенаЗаЕдиницу>20</ЦенаЗаЕдиницу></Цена><Цена><ЦенаЗаЕдиницу>3</ЦенаЗаЕдиницу></Цена>"
    "</Цены></Предложение></Предложения></ПакетПредложений></r>";

const QString feed =
    "<yml_catalog><shop><categories><category id='1'>Посуда</category></categories><offers>"
    "<offer id='a'><name>Чашка</name><price>9.50</price><categoryId>1</categoryId>"
    "<picture>p/1.jpg</picture><vendor>V</vendor><LastCountry>RU</LastCountry>"
    "<weight>0.3</weight></offer>"
    "<offer id='a'><name>Блюдце</name><count>0</count></offer>"
    "<offer id='b'><name>Нож</name><priceR>7</priceR><picture>p/2.jpg</picture></offer>"
    "</offers></shop></yml_catalog>";

const QString documents =
    "<r><Документ><Номер>1</Номер><Дата>2024-05-06</Дата><Сумма>30</Сумма><Контрагенты>"
    "<Контрагент><Ид>к</Ид><Наименование>Ромашка</Наименование><Роль>Продавец</Роль>"
    "<ИНН>77</ИНН></Контрагент></Контрагенты><Комментарий>скоро</Комментарий>"
    "<Товары><Товар><Ид>т</Ид><Наименование>Гвоздь</Наименование><Количество>3</Количество>"
    "<ЦенаЗаЕдиницу>10</ЦенаЗаЕдиницу><Сумма>30</Сумма></Товар>"
    "<Товар><Наименование>Доставка</Наименование><Сумма>5</Сумма></Товар></Товары>"
    "<ЗначенияРеквизитов><ЗначениеРеквизита><Наименование>Статус заказа</Наименование>"
    "<Значение>Новый</Значение></ЗначениеРеквизита></ЗначенияРеквизитов></Документ>"
    "<Документ><Номер>2</Номер></Документ>"
    "<Документ><Контрагенты><Контрагент><Ид>к</Ид></Контрагент></Контрагенты></Документ>"
    "<Документ><Номер>4</Номер><Контрагенты><Контрагент><Ид>к</Ид></Контрагент></Контрагенты>"
    "</Документ><Документ><Номер>5</Номер></Документ></r>";

class WindowModelsTest : public QObject
{
    Q_OBJECT

    QTemporaryDir folder;

    QString fileWith(const QByteArray &xml) const
    {
        QFile file(folder.filePath("source.xml"));
        if (!file.open(QIODevice::WriteOnly) || file.write(xml) != xml.size())
            qFatal("no source can be written");
        return file.fileName();
    }

    Opened openText(const QString &xml, bool purchase = false) const
    {
        return openSource(fileWith(xml.toUtf8()), purchase, {});
    }

    static QVector<int> all(const Source &source)
    {
        return arranged(source, {}, std::atomic_bool(false));
    }

private slots:
    void goods_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<QStringList>("expectedGroups");
        QTest::newRow("CommerceML")
            << catalogue
            << QStringList{"Code=т1|Name=дрель 10|Group=Инструмент \\ Дрели",
                           "Code=т2|Article=A-7|Name=Дрель 9|Group=Инструмент \\ Дрели|Unit=шт",
                           "Code=т3|Name=Ключ|Group=Инструмент", "Code=т4", "Code=п|Prices=20; 3"}
            << QStringList{"All goods 5", "Инструмент 3", "-Дрели 2"};
        QTest::newRow("YML") << feed
                             << QStringList{"Code=a|Name=Чашка|Group=Посуда|Unit=шт|Prices=9.50|"
                                            "Maker=V|Country=RU|Weight=0.3|Picture=p/1.jpg",
                                            "Code=a|Name=Блюдце|Note=sold out",
                                            "Code=b|Name=Нож|Unit=шт|Prices=7|Picture=p/2.jpg"}
                             << QStringList{"All goods 3", "Посуда 1"};
        QTest::newRow("nothing") << "<r/>" << QStringList() << QStringList{"All goods 0"};
    }

    void goods()
    {
        QFETCH(QString, xml);
        const Opened opened = openText(xml);
        QVERIFY(opened.reader);
        GoodsModel goods;
        goods.show(opened.source, all(*opened.source));
        QTEST(cells(goods), "expected");
        GroupsModel tree;
        tree.show(opened.source);
        QTEST(groups(tree), "expectedGroups");
    }

    void arrangements_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("group");
        QTest::addColumn<int>("field");
        QTest::addColumn<int>("order");
        QTest::addColumn<QString>("codes");
        QTest::newRow("all") << "" << -1 << -1 << 0 << "т1 т2 т3 т4 п";
        QTest::newRow("any case") << "ДРЕЛЬ" << -1 << -1 << 0 << "т1 т2";
        QTest::newRow("words in different fields") << " a-7  дрел " << -1 << -1 << 0 << "т2";
        QTest::newRow("nothing has it") << "дрель ключ" << -1 << -1 << 0 << "";
        QTest::newRow("a group and those below") << "" << 0 << -1 << 0 << "т1 т2 т3";
        QTest::newRow("a group in a group") << "9" << 1 << -1 << 0 << "т2";
        QTest::newRow("as people sort") << "дрель" << -1 << int(GoodField::Name) << 0 << "т2 т1";
        QTest::newRow("falling") << "" << -1 << int(GoodField::Prices) << 1 << "т1 т2 т3 т4 п";
        QTest::newRow("by number") << "" << -1 << int(GoodField::Prices) << 0 << "п т1 т2 т3 т4";
    }

    void arrangements()
    {
        QFETCH(QString, text);
        QFETCH(int, group);
        QFETCH(int, field);
        QFETCH(int, order);
        const Opened opened = openText(catalogue);
        Arrangement arrangement = {text, group, {}, Qt::SortOrder(order)};
        if (field >= 0)
            arrangement.sortedBy = GoodField(field);
        QStringList codes;
        for (const int place : arranged(*opened.source, arrangement, std::atomic_bool(false)))
            codes << opened.source->goods.at(place).field(GoodField::Code);
        QTEST(codes.join(" "), "codes");
    }

    void orders()
    {
        const Opened opened = openText(documents, /*purchase=*/true);
        OrdersModel orders;
        orders.show(opened.source);
        const QStringList expected = {
            QString("Number=1|Date=2024-05-06|Partner=Ромашка|Role=Продавец|") +
                "Comment=скоро|Status=Новый|Sum=30",
            "Number=2|Not exported=" + sentence(exporter::Loss::NoPartner),
            "Partner=к|Not exported=" + sentence(exporter::Loss::NoNumber),
            "Number=4|Partner=к|Not exported=" + sentence(exporter::Loss::NoLines),
            "Number=5|Not exported=" + sentence(exporter::Loss::BehindTheEnd),
        };
        QCOMPARE(cells(orders), expected);
        LinesModel lines;
        lines.show(opened.source->orders.first().lines);
        QCOMPARE(cells(lines), QStringList({"Code=т|Name=Гвоздь|Quantity=3|Price=10|Sum=30",
                                            "Name=Доставка|Sum=5|Not exported=it has no code"}));
        DetailsModel details;
        details.show(opened.source->orders.first().partnerDetails);
        QCOMPARE(cells(details), QStringList({"Detail=Code|Value=к", "Detail=Name|Value=Ромашка",
                                              "Detail=INN|Value=77"}));
    }

    void findings()
    {
        const Opened opened = openText(QString(documents).replace(">4<", ">=\"4<"));
        KindsModel kinds;
        kinds.show(opened.source);
        QCOMPARE(kinds.kindAt(0), std::nullopt);
        FindingsModel findings;
        findings.show(opened.source, std::nullopt);
        QCOMPARE(kinds.text(0, 1), QString::number(findings.rowCount()));
        int sum = 0;
        for (int row = 1; row < kinds.rowCount(); ++row) {
            findings.show(opened.source, kinds.kindAt(row));
            QCOMPARE(kinds.text(row, 1), QString::number(findings.rowCount()));
            sum += findings.rowCount();
        }
        findings.show(opened.source, std::nullopt);
        QCOMPARE(sum, findings.rowCount());
        findings.show(opened.source, survey::Kind::NoLines);
        QCOMPARE(
            findings.toCsv(),
            QByteArray("\xEF\xBB\xBF\"Level\";\"Place\";\"Good or order\";\"Finding\"\r\n"
                       "\"loss\";\"line 1, column 734\";\"'=\"\"4\";\"the document has no "
                       "lines, and the export ends at it: 1 document behind it is lost\"\r\n"));
    }

    void chosenRows_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QVector<int>>("chosen");
        QTest::addColumn<QString>("codes");
        QTest::newRow("none") << catalogue << QVector<int>() << "";
        QTest::newRow("some, with a description")
            << catalogue << QVector<int>{0, 2} << "т1 - <b>D</b> - т3";
        QTest::newRow("the last one") << catalogue << QVector<int>{4} << "п";
        QTest::newRow("one that is sold out") << feed << QVector<int>{1, 2} << "b";
    }

    void chosenRows()
    {
        struct Rows : SourceReader {
            using SourceReader::goodsRows;
            static QString codesOf(SourceReader &reader)
            {
                QStringList codes;
                for (const QString &row : std::as_const(static_cast<Rows &>(reader).goodsRows))
                    codes << row.section('\t', 0, 0).replace("-----", "-");
                return codes.join(" ");
            }
        };
        QFETCH(QString, xml);
        QFETCH(QVector<int>, chosen);
        const Opened opened = openText(xml);
        opened.reader->collectRows({}, &chosen);
        QTEST(Rows::codesOf(*opened.reader), "codes");
    }
};

QTEST_GUILESS_MAIN(WindowModelsTest)
#include "windowmodels.moc"
