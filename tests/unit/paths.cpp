// SPDX-License-Identifier: MIT
#include "probe.h"

class PathsTest : public QObject
{
    Q_OBJECT

    /// The id is the name of the row.
    static void check(const char *file, QString (CommXmlReader::*pathOf)(const QString &))
    {
        const QString id = QString::fromUtf8(QTest::currentDataTag());
        Probe probe(source(file));
        for (int time = 0; time < 2; ++time) { // nothing is left of the first time
            QTEST((probe.*pathOf)(id), "expected");
            QTEST(probe.pathBuffer, "expected");
        }
        probe.groups.clear();
        QCOMPARE((probe.*pathOf)(id), QString(""));
        QVERIFY(!(probe.*pathOf)(id).isNull() && !probe.pathBuffer.isNull());
    }

private slots:
    void groupPath_data() { addRows("group-paths.txt"); }

    void groupPath() { check("classifiers.xml", &CommXmlReader::groupPath); }

    void ymlCategoryPath_data() { addRows("category-paths.txt"); }

    void readStructureForgetsPaths()
    {
        Probe probe("<r><Классификатор><Ид>1</Ид><Наименование>old</Наименование>"
                    "<category id='1'>old</category></Классификатор></r>");
        for (const QString name : {"old", "new"}) {
            QCOMPARE(probe.groupPath("1"), name);
            QCOMPARE(probe.ymlCategoryPath("1"), name);
            for (QDomNode child :
                 {probe.groups.first().childNodes().at(1), probe.groups.first().childNodes().at(2)})
                child.firstChild().setNodeValue("new");
            QVERIFY(probe.readStructure());
        }
    }

    void ymlCategoryPath() { check("categories.xml", &CommXmlReader::ymlCategoryPath); }
};

QTEST_GUILESS_MAIN(PathsTest)
#include "paths.moc"
