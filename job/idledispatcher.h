// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractEventDispatcher>

/// The event dispatcher of an application that has no source of events. The reader looks for events
/// at every node of a document; asking the system each time costs about as much as the parsing.
class IdleDispatcher : public QAbstractEventDispatcher
{
public:
    bool processEvents(QEventLoop::ProcessEventsFlags) override { return false; }
    bool hasPendingEvents() override { return false; }

    void registerSocketNotifier(QSocketNotifier *) override {}
    void unregisterSocketNotifier(QSocketNotifier *) override {}

    void registerTimer(int, int, Qt::TimerType, QObject *) override {}
    bool unregisterTimer(int) override { return false; }
    bool unregisterTimers(QObject *) override { return false; }
    QList<TimerInfo> registeredTimers(QObject *) const override { return {}; }
    int remainingTime(int) override { return -1; }

#ifdef Q_OS_WIN
    bool registerEventNotifier(QWinEventNotifier *) override
    {
        return false;
    }
    void unregisterEventNotifier(QWinEventNotifier *) override {}
#endif

    void wakeUp() override {}
    void interrupt() override {}
    void flush() override {}
};
