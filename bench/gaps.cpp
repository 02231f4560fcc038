// SPDX-License-Identifier: MIT
//
// gaps SOURCE: opens it in the window, chooses its first good and looks for another one, and prints
// after how many seconds it was open, and how many milliseconds the window left an event without an
// answer at most.
#include "delivery/program.h"
#include "window/mainwindow.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QSettings>
#include <QTableView>
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
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
        timer.start(milliseconds);
        loop.exec();
    };
    settle(500);
    longest = 0;
    last = clock.nsecsElapsed();
    const qint64 begin = last;
    window.open(QCoreApplication::arguments().value(1));
    while (stop->isEnabled())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const qint64 end = clock.nsecsElapsed();
    constexpr int shown = 500; // what is to be shown is laid out by then
    settle(shown);
    for (QTableView *const table : window.findChildren<QTableView *>()) {
        if (table->accessibleName() == QLatin1String("Goods"))
            table->selectRow(0);
    }
    settle(shown);
    window.findChild<QLineEdit *>()->setText(QStringLiteral("1"));
    settle(shown);
    std::printf("%.2f %.0f\n", double(end - begin) / 1e9, double(longest) / 1e6);
    return 0;
}
