// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractEventDispatcher>

/// The event dispatcher of an application that has no source of events. The reader looks for events
/// at every node of a document; asking the system each time costs about as much as the parsing.
class IdleDispatcher : public QAbstractEventDispatcher
{
public:
    bool processEvents(QEventLoop::ProcessEventsFlags) override { return false; }

    void registerSocketNotifier(QSocketNotifier *) override {}
    void unregisterSocketNotifier(QSocketNotifier *) override {}

    bool unregisterTimer(int) override { return false; }
    bool unregisterTimers(QObject *) override { return false; }
    QList<TimerInfo> registeredTimers(QObject *) const override { return {}; }
    int remainingTime(int) override { return -1; }

    void wakeUp() override {}
    void interrupt() override {}

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    void registerTimer(int, int, Qt::TimerType, QObject *) override {}
    bool hasPendingEvents() override
    {
        return false;
    }
    void flush() override {}
#ifdef Q_OS_WIN
    bool registerEventNotifier(QWinEventNotifier *) override
    {
        return false;
    }
    void unregisterEventNotifier(QWinEventNotifier *) override {}
#endif
#else
    void registerTimer(int, qint64, Qt::TimerType, QObject *) override {}
#endif
};
