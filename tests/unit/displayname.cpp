// SPDX-License-Identifier: MIT
#include "export/yml/displayname.h"

#include <QtTest>

class DisplayNameTest : public QObject
{
    Q_OBJECT

private slots:
    void displayName_data()
    {
        QTest::addColumn<QString>("shown");
        QTest::newRow("[Brand] Brand Drill 5") << "Brand Drill 5";
        QTest::newRow("[BRAND] brand drill") << "brand drill";
        QTest::newRow("[Марка] МАРКА дрель") << "МАРКА дрель";
        QTest::newRow("[Brand] Drill 5") << "Brand Drill 5";
        QTest::newRow("[Brand] Drill [5]") << "Brand Drill (5)";
        QTest::newRow("Drill [5]") << "Drill (5)";
        QTest::newRow("[Brand Drill") << "Brand Drill";
        QTest::newRow("[] Drill") << "Drill";
        QTest::newRow("[Brand]Brand Drill") << "rand Drill";
        QTest::newRow("[Brand]") << "Brand";
        QTest::newRow("[]") << "";
        QTest::newRow("[A] [A] B]") << "A B)";
        QTest::newRow("[[A] B") << "(A B";
        QTest::newRow("] [A]") << ") (A)";
        QTest::newRow(" [A]\tB") << " (A) B";
        QTest::newRow("") << "";
    }

    void displayName()
    {
        QTEST(::displayName(QString::fromUtf8(QTest::currentDataTag())), "shown");
    }
};

QTEST_APPLESS_MAIN(DisplayNameTest)
#include "displayname.moc"
