// SPDX-License-Identifier: MIT
#include "probe.h"

static const char *const classifier = R"(
<r>
  <Классификатор>
    <Ид>classifier</Ид><Наименование>C</Наименование>
    <Свойства><Свойство><Ид>shared with a property</Ид><Наименование>P</Наименование></Свойство></Свойства>
    <Группы>
      <Группа><Ид>top</Ид><Наименование>Top</Наименование>
        <Группы>
          <Группа><Ид>middle</Ид><Наименование>Middle</Наименование>
            <Группы>
              <Группа><Ид>leaf</Ид><Наименование> Leaf [1]	</Наименование></Группа>
              <Группа><Ид>nameless leaf</Ид></Группа>
              <Группа><Ид>shared with a property</Ид><Наименование>G</Наименование></Группа>
            </Группы>
          </Группа>
          <Группа><Ид>nameless</Ид>
            <Группы><Группа><Ид>below nameless</Ид><Наименование>B</Наименование></Группа></Группы>
          </Группа>
        </Группы>
        <Чужое><Группа><Ид>out of the nesting</Ид><Наименование>O</Наименование></Группа></Чужое>
      </Группа>
      <Группа><Ид>empty name</Ид><Наименование/>
        <Группы><Группа><Ид>below empty</Ид><Наименование>E</Наименование></Группа></Группы>
      </Группа>
      <Группа><Ид>in both</Ид></Группа>
    </Группы>
  </Классификатор>
  <Классификатор>
    <Группа><Ид>in both</Ид><Наименование>Second</Наименование></Группа>
    <Группа><Ид>top</Ид><Наименование>not asked</Наименование></Группа>
  </Классификатор>
</r>)";

class PathsTest : public QObject
{
    Q_OBJECT

private slots:
    void groupPath_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("top") << "Top";
        QTest::newRow("leaf") << "Top \\ Middle \\  Leaf [1]\t";
        QTest::newRow("nameless leaf") << "Top \\ Middle";
        QTest::newRow("below nameless") << "B";
        QTest::newRow("below empty") << " \\ E";
        QTest::newRow("shared with a property") << "P";
        QTest::newRow("out of the nesting") << "O";
        QTest::newRow("classifier") << "C";
        QTest::newRow("in both") << "Second";
        QTest::newRow("unknown") << "";
    }

    void groupPath()
    {
        const QString id = QString::fromUtf8(QTest::currentDataTag());
        Probe probe(QString::fromUtf8(classifier));
        QTEST(probe.groupPath(id), "path");
        QTEST(probe.groupPath(id), "path"); // nothing is left of the first time
        QTEST(probe.pathBuffer, "path");
        probe.groups.clear();
        QCOMPARE(probe.groupPath(id), QString());
    }
};

QTEST_GUILESS_MAIN(PathsTest)
#include "paths.moc"
