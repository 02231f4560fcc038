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
            QTEST((probe.*pathOf)(id), "path");
            QTEST(probe.pathBuffer, "path");
        }
        probe.groups.clear();
        QCOMPARE((probe.*pathOf)(id), QString());
    }

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

    void groupPath() { check("classifiers.xml", &CommXmlReader::groupPath); }

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
        QTest::newRow("empty parent") << "empty id \\ E";
        QTest::newRow("only second") << "X";
        QTest::newRow("self") << "S";
        QTest::newRow("loop 1") << "L2 \\ L1";
        QTest::newRow("into the loop") << "L2 \\ L1 \\ I";
        QTest::newRow("in both") << "Second";
        QTest::newRow("01") << "";
        QTest::newRow("deeper") << "";
    }

    void ymlCategoryPath() { check("categories.xml", &CommXmlReader::ymlCategoryPath); }
};

QTEST_GUILESS_MAIN(PathsTest)
#include "paths.moc"
