// SPDX-License-Identifier: MIT
//
// gaps SOURCE...: opens each source in the window, and prints how long that took, and the longest
// time that the window took to answer an event meanwhile.
#include "delivery/program.h"
#include "window/mainwindow.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>

int main(int argc, char *argv[])
{
    delivery::prepareProgram();
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    window::MainWindow window(settings);
    window.show();
    const QAction *const stop = window.findChild<QAction *>("stop"); // there is something to stop
    QElapsedTimer clock;
    clock.start();
    qint64 last = 0;
    qint64 longest = 0;
    QTimer pulse;
    QObject::connect(&pulse, &QTimer::timeout, [&] {
        const qint64 now = clock.nsecsElapsed();
        longest = std::max(longest, now - last);
        last = now;
    });
    pulse.start(1);
    const auto settle = [](int milliseconds) {
        QEventLoop loop;
        QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
        loop.exec();
    };
    settle(500);
    std::printf("| Source | Size | Open after | Longest gap |\n| --- | --- | --- | --- |\n");
    const QStringList sources = QCoreApplication::arguments().mid(1);
    for (const QString &source : sources) {
        longest = 0;
        last = clock.nsecsElapsed();
        const qint64 begin = last;
        window.open(source);
        while (stop->isEnabled())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        const qint64 end = clock.nsecsElapsed();
        settle(500); // what is shown is laid out by then
        const QFileInfo file(source);
        std::printf("| %s | %.1f MB | %.2f s | %.0f ms |\n", qPrintable(file.completeBaseName()),
                    double(file.size()) / 1e6, double(end - begin) / 1e9, double(longest) / 1e6);
        std::fflush(stdout);
    }
    return 0;
}
