// SPDX-License-Identifier: MIT
#include "window/desk.h"
#include "window/groupsmodel.h"
#include "window/harmless.h"
#include "window/loader.h"
#include "window/tables.h"
#include "window/texts.h"

#include <QtTest>

#include <atomic>
#include <limits>
#include <new>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace window;

// Where goods are sorted by numbers, the linker puts this in between: memory runs out there.
std::optional<double>
realNumberIn(const QString &field) asm("__real__ZN6window8numberInERK7QString");
std::optional<double>
wrappedNumberIn(const QString &field) asm("__wrap__ZN6window8numberInERK7QString");

static std::atomic_bool memoryRunsOut;

std::optional<double> wrappedNumberIn(const QString &field)
{
    if (memoryRunsOut)
        throw std::bad_alloc();
    return realNumberIn(field);
}

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
    "<Документ><Номер>2</Номер><Комментарий>позже</Комментарий><Контрагенты><Контрагент>"
    "<Наименование>Без кода</Наименование></Контрагент></Контрагенты><Товары><Товар><Ид>а</Ид>"
    "</Товар><Товар/></Товары></Документ>"
    "<Документ><Контрагенты><Контрагент><Ид>к</Ид></Контрагент></Контрагенты><Товары><Товар>"
    "<Ид>б</Ид><Количество>2</Количество></Товар></Товары></Документ>"
    "<Документ><Номер>4</Номер><Контрагенты><Контрагент><Ид>к</Ид></Контрагент></Контрагенты>"
    "</Документ><Документ><Номер>5</Номер></Документ><Документ><Номер>6</Номер><Контрагенты>"
    "<Контрагент><Ид>п</Ид></Контрагент></Контрагенты><Товары><Товар><Ид>в</Ид></Товар></Товары>"
    "</Документ></r>";

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
            << QStringList{"All goods 5", "Инструмент 3", "-Дрели 2", "Книги 0"};
        QTest::newRow("YML") << feed
                             << QStringList{"Code=a|Name=Чашка|Group=Посуда|Unit=шт|Prices=9.50|"
                                            "Maker=V|Country=RU|Weight=0.3|Picture=p/1.jpg",
                                            "Code=a|Name=Блюдце|Note=sold out",
                                            "Code=b|Name=Нож|Unit=шт|Prices=7|Picture=p/2.jpg"}
                             << QStringList{"All goods 3", "Посуда 1"};
        const auto offers = [](const QStringList &categories) {
            QString xml;
            for (const QString &category : categories)
                xml += "<offer id='o'><categoryId>" + category + "</categoryId></offer>";
            return "</categories><offers>" + xml + "</offers></yml_catalog>";
        };
        QTest::newRow("odd groups")
            << "<yml_catalog><categories><category id='1'>A \\ B</category>"
               "<category id='2' parentId='1'>C</category><category id='3'>A</category>"
               "<category id='4' parentId='3'>B</category><category id='4'>again</category>"
               "<category id='5'>A</category><category id='6' parentId='5'>D</category>"
               "<category id='7'/><category id='8' parentId='7'>E</category>"
               "<category>no id</category><category id='9' parentId='no'>F</category>" +
                   offers({"2", "6", "8"})
            << QStringList{"Code=o|Group=A \\ B \\ C|Unit=шт", "Code=o|Group=A \\ D|Unit=шт",
                           "Code=o|Group= \\ E|Unit=шт"}
            << QStringList{"All goods 3", "A \\ B 1", "-C 1", "A 1", "-B 0",
                           "-D 1",        " 1",       "-E 1", "F 0"};
        QTest::newRow("loops")
            << "<yml_catalog><categories><category id='1' parentId='2'>A</category>"
               "<category id='2' parentId='1'>B</category><category id='3' "
               "parentId='1'>C</category>"
               "<category id='4' parentId='4'>D</category>" +
                   offers({"1", "3", "3"})
            << QStringList{"Code=o|Group=B \\ A|Unit=шт", "Code=o|Group=B \\ A \\ C|Unit=шт",
                           "Code=o|Group=B \\ A \\ C|Unit=шт"}
            << QStringList{"All goods 3", "A 3", "-C 2", "B 0", "D 0"};
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
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("group");
        QTest::addColumn<int>("field");
        QTest::addColumn<int>("order");
        QTest::addColumn<QString>("codes");
        const QString priced = QString(catalogue).replace(
            "</Предложения>", "<Предложение><Ид>п2</Ид><Цены><Цена><ЦенаЗаЕдиницу>100"
                              "</ЦенаЗаЕдиницу></Цена></Цены></Предложение></Предложения>");
        QTest::newRow("all") << priced << "" << -1 << -1 << 0 << "т1 т2 т3 т4 п п2";
        QTest::newRow("any case") << priced << "ДРЕЛЬ" << -1 << -1 << 0 << "т1 т2";
        QTest::newRow("words in different fields")
            << priced << " a-7  дрел " << -1 << -1 << 0 << "т2";
        QTest::newRow("nothing has it") << priced << "дрель ключ" << -1 << -1 << 0 << "";
        QTest::newRow("a group and those below") << priced << "" << 0 << -1 << 0 << "т1 т2 т3";
        QTest::newRow("a group in a group") << priced << "9" << 1 << -1 << 0 << "т2";
        QTest::newRow("as people sort")
            << priced << "дрель" << -1 << int(GoodField::Name) << 0 << "т2 т1";
        QTest::newRow("falling") << priced << "" << -1 << int(GoodField::Article) << 1
                                 << "т2 т1 т3 т4 п п2";
        QTest::newRow("those without a number come last")
            << priced << "" << -1 << int(GoodField::Prices) << 1 << "п2 п т1 т2 т3 т4";
        QTest::newRow("by number")
            << priced << "" << -1 << int(GoodField::Prices) << 0 << "п п2 т1 т2 т3 т4";
        QTest::newRow("by number with blanks")
            << QString(feed).replace("<priceR>7<", "<priceR>1 000,5<") << "" << -1
            << int(GoodField::Prices) << 1 << "b a a";
        const QString names = QString(feed).replace("'a'><name>Блюдце", "'c'><name>Блюдце");
        QTest::newRow("words of a note") << names << "SOLD" << -1 << -1 << 0 << "c";
        QTest::newRow("by note") << names << "" << -1 << int(GoodField::Note) << 1 << "c a b";
    }

    void arrangements()
    {
        QFETCH(QString, xml);
        QFETCH(QString, text);
        QFETCH(int, group);
        QFETCH(int, field);
        QFETCH(int, order);
        const Opened opened = openText(xml);
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
            "Not exported=" + sentence(exporter::Loss::NoPartner) +
                "|Number=2|Partner=Без кода|Comment=позже",
            "Not exported=" + sentence(exporter::Loss::NoNumber) + "|Partner=к",
            "Not exported=" + sentence(exporter::Loss::NoLines) + "|Number=4|Partner=к",
            "Not exported=" + sentence(exporter::Loss::BehindTheEnd) + "|Number=5",
            "Not exported=" + sentence(exporter::Loss::BehindTheEnd) + "|Number=6|Partner=п",
        };
        QCOMPARE(cells(orders), expected);
        const QStringList expectedLines[] = {
            {"Code=т|Name=Гвоздь|Quantity=3|Price=10|Sum=30",
             "Not exported=it has no code|Name=Доставка|Sum=5"},
            {"Code=а", "Not exported=it has no code"},
            {"Code=б|Quantity=2"},
            {},
            {},
            {"Code=в"},
        };
        LinesModel lines;
        for (int order = 0; order < expected.size(); ++order) {
            lines.show(opened.source->orders.at(order).lines);
            QCOMPARE(cells(lines), expectedLines[order]);
        }
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
        QVERIFY(cells(kinds).contains("Level=loss|Count=2|Kind=document without a partner"));
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
                       "\"loss\";\"line 1, column 973\";\"'=\"\"4\";\"the document has no "
                       "lines, and the export ends at it: 2 documents behind it are lost\"\r\n"));
    }

    void elements_data()
    {
        QTest::addColumn<QString>("head");
        QTest::newRow("positions of elements") << "";
        QTest::newRow("positions of ends") << "<!DOCTYPE r [<!ENTITY e 'x'>]>";
    }

    /// Where the elements are shown that findings are about.
    void elements()
    {
        QFETCH(QString, head);
        const Opened opened = openText(
            head +
            "<r><Каталог><Товары>"
            "<Товар><Ид>1</Ид><Наименование>a</Наименование><Группы><Ид>2</Ид></Группы></Товар>"
            "<Товар><Наименование>b</Наименование><Группы><Ид>2</Ид></Группы></Товар>"
            "<Товар><Ид>1</Ид><Наименование>c</Наименование><Группы><Ид>2</Ид></Группы></Товар>"
            "</Товары><Товары><Товар><Ид>1</Ид></Товар></Товары></Каталог>"
            "<Документ><Номер>1</Номер><Контрагенты><Контрагент><Ид></Ид></Контрагент>"
            "</Контрагенты><Товары>"
            "<Товар><Ид>1</Ид><Наименование>d</Наименование><Группы><Ид>3</Ид></Группы></Товар>"
            "<Товар><Наименование>e</Наименование></Товар></Товары></Документ>"
            "<Документ><Номер>1</Номер></Документ></r>");
        QStringList lines;
        for (const survey::Finding &finding : opened.source->survey.findings) {
            const Shown shown = shownAt(*opened.source, finding.position);
            lines << QString("%1 %2 %3 %4")
                         .arg(survey::infoOf(finding.kind).name)
                         .arg(shown.good)
                         .arg(shown.order)
                         .arg(shown.line);
        }
        QCOMPARE(lines.join(", "),
                 QString("unknown-group 0 -1 -1, no-code -1 -1 -1, duplicate-code 1 -1 -1, "
                         "unknown-group 1 -1 -1, not-reached -1 -1 -1, empty-code -1 0 -1, "
                         "unknown-group -1 0 0, no-code -1 0 1, no-partner -1 1 -1"));
        QCOMPARE(shownAt(*opened.source, {}).good, -1);
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

    void harmless_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QString &html, const QString &expected) {
            QTest::newRow(name) << html << expected;
        };
        const QString none = "none";
        row("attributes", "<P class=\"a>b\" id = 'c>d' e=f>x</P\n>", "<p>x</p>");
        row("a tag in lines", "<b\n\tid=1\n>x</b>", "<b>x</b>");
        row("other elements", "<body><a href='x'>l</a><img src=x><o:p>m</o:p><font>n", "lmn");
        row("left out",
            "a<!DOCTYPE x><!-- <b> --><?x y?><STYLE>p {}</style >b<script><b></script>c", "abc");
        row("left out to the end", "a<script>b<b>", "a");
        row("no tags", "a < b <= c <<b>d</b> </> <1> & &; &amp; <b",
            "a &lt; b &lt;= c &lt;<b>d</b> &lt;/&gt; &lt;1&gt; &amp; &amp;; &amp; &lt;b");
        row("a quote without its end", "<b a='>x</b> <i a=\">y", "<b>x</b> <i>y</i>");
        row("ends that are missing", "<p>a<p><b>b<ul><li>c<li>d</ul>e",
            "<p>a</p><p><b>b</b></p><ul><li>c</li><li>d</li></ul>e");
        row("a table without ends", "<table><td>a<td><p>b<tr><th>c<table><tr><td>d</table>e",
            "<table><tr><td>a</td><td><p>b</p></td></tr><tr><th>c<table><tr><td>d</td></tr></table>"
            "e</th></tr></table>");
        row("ends of nothing", "</p><table><tr><td>a</b></ul></td></tr></table></table></li>",
            "<table><tr><td>a</td></tr></table>");
        row("ends behind a border", "<b><table><tr><td>a</b>b</table><ul><li>c<ul><li>d</ul>e</ul>",
            "<b><table><tr><td>ab</td></tr></table><ul><li>c<ul><li>d</li></ul>e</li></ul></b>");
        row("cells without a table", "<td>a</td><tr>b", "ab");
        row("references",
            "&nbsp;&#151;&#x1F600;&#x2067;&#8238;&#0;&#xD800;&#x110000;&#12345678901;",
            "&nbsp;&#151;&#x1F600;&amp;#xD800;&amp;#x110000;&amp;#12345678901;");
        row("a long word", "<p>" + QString(600, 'x'),
            "<p>" + QString(500, 'x') + "\n" + QString(100, 'x') + "</p>");
        const QString cell = "<td>" + QString(400, 'x') + "</td>";
        row("words in cells", "<table><tr>" + cell + cell + "</tr></table>",
            "<table><tr>" + cell + cell + "</tr></table>");
        row("many elements", QString("<br>").repeated(1'501), none);
        row("deep", QString("<i>").repeated(31), none);
        row("many letters", QString("x ").repeated(15'001), none);
        row("many lines", QString("\n").repeated(5'001), none);
        const QString nested = QString("<table><tr><td>").repeated(3);
        row("many letters in tables in tables", nested + QString("x ").repeated(2'000), none);
        row("many elements in tables in tables", nested + QString("<hr>").repeated(500), none);
        row("too much to read", "x<!--" + QString(1'000'000, '-') + "-->", none);
    }

    void harmless()
    {
        QFETCH(QString, html);
        const auto shown = harmlessHtml(html);
        QTEST(shown.value_or("none"), "expected");
    }

    void harmlessTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        QTest::newRow("few letters") << "a <b>\t&amp;\r\nb"
                                     << "a <b>\t&amp;\r\nb";
        QTest::newRow("a long word")
            << QString(1001, 'x') << QString(500, 'x') + "\n" + QString(500, 'x') + "\nx";
        QTest::newRow("pairs stay together")
            << "x" + QString("😀").repeated(250) << "x" + QString("😀").repeated(250);
        QTest::newRow("marks of a letter")
            << "e" + QString(600, QChar(0x301))
            << "e" + QString(499, QChar(0x301)) + "\n" + QString(101, QChar(0x301));
        QTest::newRow("what turns others")
            << QString("a") + QChar(0x202E) + QChar(0x2067) + "b" + QChar(0xFDD0) << "ab";
        QTest::newRow("cut") << QString("x ").repeated(15'001)
                             << QString("x ").repeated(15'000) + "\n…";
        QTest::newRow("cut lines")
            << QString("\r").repeated(5'001) << QString("\r").repeated(5'000) + "\n…";
    }

    void harmlessTexts()
    {
        QFETCH(QString, text);
        QTEST(harmlessText(text), "expected");
    }

    void stopped_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::newRow("catalogue") << catalogue;
        QTest::newRow("documents") << documents;
    }

    /// Whoever opens a source is asked at each of its items, and can stop it at any time.
    void stopped()
    {
        QFETCH(QString, xml);
        const QString path = fileWith(xml.toUtf8());
        int asked = 0;
        int most = std::numeric_limits<int>::max();
        const auto goesOn = [&](qint64, qint64) { return ++asked < most; };
        const Opened whole = openSource(path, false, goesOn);
        QVERIFY(whole.reader);
        const int all = asked;
        QVERIFY(all > whole.source->goods.size() + whole.source->orders.size());
        for (most = 1; most <= all; ++most) {
            asked = 0;
            const Opened opened = openSource(path, false, goesOn);
            QVERIFY(!opened.reader);
            QVERIFY(opened.source->survey.stopped);
            QVERIFY(opened.source->goods.isEmpty() && opened.source->orders.isEmpty());
            QCOMPARE(asked, most);
        }
    }

    /// It is told, and what is shown can be arranged anew, but nothing be read with what is left.
#ifdef Q_OS_UNIX
    /// As where the disk of another machine does not answer.
    void stuck()
    {
        const QByteArray pipe = QFile::encodeName(folder.filePath("pipe"));
        QCOMPARE(mkfifo(pipe, 0600), 0);
        QStringList paths;
        {
            Loader loader;
            loader.opened = [&](const Opened &opened) { paths << opened.source->path; };
            loader.open(QFile::decodeName(pipe), false);
            const QString source = fileWith("<r/>");
            loader.open(source, false);
            QTRY_COMPARE_WITH_TIMEOUT(paths, QStringList(source), 30'000);
        }
        // Whoever reads it goes on, and ends.
        const int writer = ::open(pipe, O_WRONLY | O_NONBLOCK);
        QVERIFY(writer >= 0);
        ::close(writer);
    }
#endif

    void outOfMemory()
    {
        Desk desk;
        QVector<bool> readersLost;
        desk.ranOut = [&](bool isReaderLost) { readersLost.append(isReaderLost); };
        desk.replace(openText(catalogue));
        Arrangement byPrice;
        byPrice.sortedBy = GoodField::Prices;
        QVector<int> places;
        const auto tell = [&](const QVector<int> &arranged) { places = arranged; };
        memoryRunsOut = true;
        desk.arrange(byPrice, tell);
        desk.collect([](SourceReader &) {}, [](SourceReader &) {});
        QTRY_COMPARE(readersLost, QVector<bool>({false}));
        memoryRunsOut = false;
        QVERIFY(places.isEmpty());
        desk.arrange(byPrice, tell);
        QTRY_COMPARE(places.size(), 5);
        QVERIFY(desk.hasReader());
        desk.collect([](SourceReader &) { throw std::bad_alloc(); },
                     [](SourceReader &) { QFAIL("there is nothing to tell"); });
        QTRY_COMPARE(readersLost, QVector<bool>({false, true}));
        QVERIFY(!desk.hasReader());
    }
};

QTEST_GUILESS_MAIN(WindowModelsTest)
#include "windowmodels.moc"
