// SPDX-License-Identifier: MIT
#include "delivery/worker.h"

#include "delivery/platform.h"
#include "delivery/protocol.h"

#include <QElapsedTimer>

#include <cstring>
#include <new>

namespace delivery
{

/// The next line of `file`, with its end; what is there if that is missing.
static QByteArray readLine(std::FILE *file)
{
    QByteArray line;
    char piece[4096];
    while (!line.endsWith('\n') && std::fgets(piece, sizeof piece, file) != nullptr)
        line.append(piece, int(std::strlen(piece)));
    return line;
}

static bool writeLine(std::FILE *file, const QByteArray &line)
{
    return std::fwrite(line.constData(), 1, std::size_t(line.size()), file) ==
               std::size_t(line.size()) &&
           std::fflush(file) == 0;
}

static survey::Conversion carryOut(const Order &order, const Craft &craft)
{
    survey::Conversion answer;
    try {
        if (order.newFile.isNull())
            answer.survey = craft.check(order.request);
        else
            answer = craft.convert(order.request, order.newFile);
    } catch (const std::bad_alloc &) {
        answer = {};
        answer.survey.outOfMemory = true;
    }
    return answer;
}

int work(const Craft &craft)
{
    const WorkerPipes pipes = becomeWorker();
    if (pipes.orders == nullptr || pipes.answers == nullptr)
        return 1;
    for (QByteArray line = readLine(pipes.orders); !line.isEmpty(); line = readLine(pipes.orders)) {
        std::optional<Order> order = orderFrom(line);
        if (!order)
            return 1;
        QElapsedTimer sinceProgress;
        sinceProgress.start();
        order->request.goesOn = [&](qint64 done, qint64 total) {
            // Not so often that it would cost anything, but the batch must know when all is loaded.
            constexpr qint64 pause = 100;
            if (sinceProgress.elapsed() < pause && done != total)
                return true;
            sinceProgress.restart();
            return writeLine(pipes.answers, toLine(Progress{done, total}));
        };
        if (!writeLine(pipes.answers, toLine(carryOut(*order, craft))))
            return 1;
    }
    return 0;
}

} // namespace delivery
