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

static const char *const categories = R"(
<r>
  <categories>
    <category id='1'>Tools [1]	</category>
    <category id='5' parentId='1'>Drills</category><category id='5'>second</category>
    <category id='9' parentId='5'>Cordless</category>
    <category id='0' parentId='0'>zero</category>
    <category id='child of 0' parentId='0'>C</category>
    <category id='nameless leaf' parentId='1'/>
    <category id='top nameless'/><category id='below nameless' parentId='top nameless'>B</category>
    <category id='orphan' parentId='none'>O</category>
    <category id='empty parent' parentId=''>E</category>
    <category id='self' parentId='self'>S</category>
    <category id='loop 1' parentId='loop 2'>L1</category><category id='loop 2' parentId='loop 1'>L2</category>
    <category id='into the loop' parentId='loop 1'>I</category>
    <category id='in both' parentId='top nameless'/>
    <other><category id='deeper'>D</category></other>
  </categories>
  <categories><category id='in both'>Second</category><category id='1'>not asked</category><category id='none'>N</category></categories>
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

    void ymlCategoryPath_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("1") << "Tools [1]\t";
        QTest::newRow("9") << "Tools [1]\t \\ Drills \\ Cordless";
        QTest::newRow("0") << "zero";
        QTest::newRow("child of 0") << "C";
        QTest::newRow("nameless leaf") << "Tools [1]\t";
        QTest::newRow("below nameless") << " \\ B";
        QTest::newRow("orphan") << "O";
        QTest::newRow("empty parent") << "E";
        QTest::newRow("self") << "S";
        QTest::newRow("loop 1") << "L2 \\ L1";
        QTest::newRow("into the loop") << "L2 \\ L1 \\ I";
        QTest::newRow("in both") << "Second";
        QTest::newRow("01") << "";
        QTest::newRow("deeper") << "";
    }

    void ymlCategoryPath()
    {
        const QString id = QString::fromUtf8(QTest::currentDataTag());
        Probe probe(QString::fromUtf8(categories));
        QTEST(probe.ymlCategoryPath(id), "path");
        QTEST(probe.ymlCategoryPath(id), "path");
        QTEST(probe.pathBuffer, "path");
        probe.groups.clear();
        QCOMPARE(probe.ymlCategoryPath(id), QString());
    }
};

QTEST_GUILESS_MAIN(PathsTest)
#include "paths.moc"
