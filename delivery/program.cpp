// SPDX-License-Identifier: MIT
#include "delivery/program.h"

#include "delivery/worker.h"
#include "job/idledispatcher.h"
#include "survey/survey.h"

#include <QCoreApplication>

#include <cstring>

namespace delivery
{

bool isWorker(int argc, char **argv)
{
    return argc > 1 && std::strcmp(argv[1], workerArgument) == 0;
}

int beWorker(int argc, char **argv)
{
    QCoreApplication::setEventDispatcher(new IdleDispatcher); // which the application owns
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
    const QCoreApplication application(argc, argv);
    prepareApplication();
    return work({survey::check, survey::convert});
}

} // namespace delivery
