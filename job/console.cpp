// SPDX-License-Identifier: MIT
#include "job/console.h"

#include "job/platform.h"

#include <QObject>

#include <cstdio>

QTextStream &consoleOut()
{
    static QTextStream stream(stdout);
    return stream;
}

void printMessage(const QString &text, bool pause)
{
    consoleOut() << text << Qt::endl;
    if (pause)
        pauseForKey();
}

void pauseForKey()
{
    printMessage(QObject::tr("Press any key to continue..."), false);
    readKey();
}
