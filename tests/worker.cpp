// SPDX-License-Identifier: MIT
//
// A worker for unit/workers.cpp: the name of a source that it is to check tells it what to do, as
// below. With a SOURCE as its argument, a batch whose worker holds that open, and never ends.
#include "delivery/worker.h"
#include "delivery/workers.h"

#include <QCoreApplication>
#include <QFile>
#include <QThread>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <new>

using namespace delivery;

static survey::Survey carryOut(const survey::Request &request)
{
    const QString word = request.source.section('/', -1);
    survey::Survey survey;
    // So that tests see which worker it was.
    survey.version = QString::number(QCoreApplication::applicationPid());
    if (word == "crash")
        std::abort();
    if (word == "leave")
        std::_Exit(3);
    if (word == "hang") {
        std::cerr << "hanging" << std::endl;
        QThread::sleep(1000);
    }
    if (word == "memory")
        throw std::bad_alloc();
    if (word == "progress") {
        survey.stopped = !request.goesOn(10, 100);
        QThread::msleep(150);
        survey.stopped |= !request.goesOn(20, 100) || !request.goesOn(100, 100);
    }
    if (word == "console") {
        std::cout << "this would be no line of the protocol" << std::endl;
        survey.date = std::getchar() == EOF ? "no key" : "a key";
    }
    return survey;
}

static survey::Conversion hold(const survey::Request &request, const QString & /*newFile*/)
{
    QFile source(request.source);
    if (source.open(QIODevice::ReadOnly)) {
        std::cerr << "open" << std::endl;
        QThread::sleep(1000);
    }
    return {};
}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QString argument = QCoreApplication::arguments().value(1);
    if (argument == workerArgument)
        return work({carryOut, hold});

    Workers workers({QCoreApplication::applicationFilePath(), {workerArgument}, 1, {}});
    workers.next = [&] {
        Order order;
        order.request.source = argument;
        order.newFile = "new";
        return std::optional(order);
    };
    workers.ended = [](int, const Ending &) { QCoreApplication::quit(); };
    workers.work();
    return QCoreApplication::exec();
}
