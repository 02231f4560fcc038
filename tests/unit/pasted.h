// SPDX-License-Identifier: MIT
#pragma once

#include <QClipboard>
#include <QGuiApplication>
#include <QProcess>
#include <QtTest>

/// What is on the clipboard; on an X server another program is asked.
inline QString pasted()
{
    if (QGuiApplication::platformName() != "xcb")
        return QGuiApplication::clipboard()->text();
    QProcess other;
    bool isOver = false;
    QObject::connect(&other, qOverload<int, QProcess::ExitStatus>(&QProcess::finished),
                     [&] { isOver = true; });
    other.start("xclip", {"-out", "-selection", "clipboard"});
    return QTest::qWaitFor([&] { return isOver; })
               ? QString::fromUtf8(other.readAllStandardOutput())
               : "no answer";
}
