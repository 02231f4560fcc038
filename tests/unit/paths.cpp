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
        QCOMPARE((probe.*pathOf)(id), QString());
    }

private slots:
    void groupPath_data() { addRows("group-paths.txt"); }

    void groupPath() { check("classifiers.xml", &CommXmlReader::groupPath); }

    void ymlCategoryPath_data() { addRows("category-paths.txt"); }

    void ymlCategoryPath() { check("categories.xml", &CommXmlReader::ymlCategoryPath); }
};

QTEST_GUILESS_MAIN(PathsTest)
#include "paths.moc"
