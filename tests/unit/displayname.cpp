// SPDX-License-Identifier: MIT
#include "export/yml/displayname.h"

#include "probe.h"

class DisplayNameTest : public QObject
{
    Q_OBJECT

private slots:
    void displayName_data() { addRows("names.txt"); }

    void displayName()
    {
        QTEST(::displayName(QString::fromUtf8(QTest::currentDataTag())), "expected");
    }
};

QTEST_APPLESS_MAIN(DisplayNameTest)
#include "displayname.moc"
