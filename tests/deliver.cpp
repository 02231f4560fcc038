// SPDX-License-Identifier: MIT
//
// deliver [--keep N] [--wait SECONDS] SOURCE DESTINATION...: a batch whose workers copy each SOURCE
// to its DESTINATION, two at a time. Prints what became of each; the exit code is 4 if one was not
// put in place.
//
// The first word of a source tells a worker what to do: "slow", to take 100 ms over a copy, and
// what stands in carryOut() below. So does the name of a source that is only checked.
#include "delivery/interrupts.h"
#include "delivery/replacement.h"
#include "delivery/worker.h"
#include "delivery/workers.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QFile>
#include <QThread>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <map>
#include <new>

using namespace delivery;

namespace
{

survey::Survey carryOut(const QByteArray &word, const survey::Request &request)
{
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

survey::Conversion copy(const survey::Request &request, const QString &newFile)
{
    QFile source(request.source);
    QFile copied(newFile);
    if (!source.open(QIODevice::ReadOnly) ||
        !copied.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return {};
    const QByteArray bytes = source.readAll();
    const QByteArray word = bytes.left(bytes.indexOf(' '));
    survey::Conversion conversion;
    conversion.survey = carryOut(word, request);
    conversion.isWritten = true;
    const int pieces = 20;
    for (int piece = 0; piece < pieces; ++piece) {
        const qint64 begin = bytes.size() * piece / pieces;
        const qint64 size = bytes.size() * (piece + 1) / pieces - begin;
        conversion.isWritten &= copied.write(bytes.constData() + begin, size) == size;
        if (word == "slow")
            QThread::msleep(100 / pieces);
    }
    conversion.size = bytes.size();
    conversion.digest =
        QCryptographicHash::hash(word == "cut" ? bytes + "." : bytes, QCryptographicHash::Sha256);
    return conversion;
}

const char *nameOf(Replacement::Hindrance hindrance)
{
    static const char *const names[] = {"None",        "NoFolder",     "NotRegular",   "IsSource",
                                        "NotWritable", "HasMoreNames", "OwnerNotKept", "Held",
                                        "NotCreated",  "NotWhole",     "NotFlushed",   "OldNotKept",
                                        "NotRenamed"};
    return names[int(hindrance)];
}

const char *nameOf(Replacement::Outcome outcome)
{
    static const char *const names[] = {"created", "replaced", "kept"};
    return names[int(outcome)];
}

int option(QStringList &arguments, const QString &name)
{
    const auto place = arguments.indexOf(name);
    if (place < 0)
        return 0;
    const int value = arguments.value(place + 1).toInt();
    arguments.removeAt(place);
    arguments.removeAt(place);
    return value;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.value(0) == workerArgument)
        return work({[](const survey::Request &request) {
                         return carryOut(request.source.section('/', -1).toLatin1(), request);
                     },
                     copy});

    const int keep = option(arguments, "--keep");
    const QDeadlineTimer deadline(qint64(1000) * option(arguments, "--wait"));
    std::map<int, Replacement> replacements;
    int next = 0;
    int exitCode = 0;
    const auto fail = [&](int id, const char *why) {
        std::cout << qPrintable(arguments.at(2 * id + 1)) << ": " << why << std::endl;
        exitCode = 4;
    };

    Workers workers({QCoreApplication::applicationFilePath(), {workerArgument}, 2, {}});
    QTimer retry;
    retry.setSingleShot(true);
    retry.setInterval(50);
    QObject::connect(&retry, &QTimer::timeout, [&] { workers.work(); });
    const delivery::Interrupts interrupts([&] {
        workers.stop();
        QCoreApplication::exit(delivery::Interrupts::exitCode());
    });
    workers.next = [&]() -> std::optional<Order> {
        for (; next < arguments.size() / 2; ++next) {
            const QString &source = arguments.at(2 * next);
            Replacement &replacement =
                replacements.try_emplace(next, arguments.at(2 * next + 1)).first->second;
            if (replacement.prepare(source)) {
                survey::Request request;
                request.source = source;
                return Order{next++, request, replacement.newFile()};
            }
            if (replacement.hindrance() == Replacement::Hindrance::Held && !deadline.hasExpired()) {
                retry.start();
                return {};
            }
            fail(next, nameOf(replacement.hindrance()));
        }
        if (workers.areIdle())
            QCoreApplication::exit(exitCode);
        return {};
    };
    workers.ended = [&](int id, const Ending &ending) {
        Replacement &replacement = replacements.at(id);
        Replacement::Outcome outcome = {};
        if (ending.kind != Ending::Kind::Answered)
            fail(id, "no answer");
        else if (!ending.answer.isWritten)
            fail(id, "not written");
        else if (!replacement.commit(ending.answer.size, ending.answer.digest, keep, outcome))
            fail(id, nameOf(replacement.hindrance()));
        else
            std::cout << qPrintable(arguments.at(2 * id + 1)) << ": " << nameOf(outcome)
                      << std::endl;
        replacements.erase(id);
    };
    workers.work();
    return QCoreApplication::exec();
}
