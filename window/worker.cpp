// SPDX-License-Identifier: MIT
#include "window/worker.h"

#include "delivery/worker.h"
#include "job/idledispatcher.h"
#include "survey/survey.h"

#include <QCoreApplication>

#include <cstring>

namespace window
{

bool isWorker(int argc, char **argv)
{
    return argc > 1 && std::strcmp(argv[1], delivery::workerArgument) == 0;
}

int beWorker(int argc, char **argv)
{
    QCoreApplication::setEventDispatcher(new IdleDispatcher); // which the application owns
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
    const QCoreApplication application(argc, argv);
    return delivery::work({survey::check, survey::convert});
}

} // namespace window
