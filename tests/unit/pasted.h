// SPDX-License-Identifier: MIT
#pragma once

#include <QClipboard>
#include <QGuiApplication>
#include <QProcess>
#include <QtTest>

/// What is on the clipboard; where other programs get at it, one of them is asked.
inline QString pasted()
{
    if (QGuiApplication::platformName() == "offscreen")
        return QGuiApplication::clipboard()->text();
    QProcess other;
    bool isOver = false;
    QObject::connect(&other, qOverload<int, QProcess::ExitStatus>(&QProcess::finished),
                     [&] { isOver = true; });
    other.start(PASTE, {"-out", "-selection", "clipboard"});
    if (!QTest::qWaitFor([&] { return isOver; }))
        return "no answer";
    return QString::fromUtf8(other.readAllStandardOutput()).remove('\r');
}
