// SPDX-License-Identifier: MIT
#include "window/worker.h"

#include "delivery/worker.h"
#include "job/idledispatcher.h"
#include "survey/survey.h"

#include <QCoreApplication>
#include <QTextCodec>

#include <clocale>
#include <csignal>
#include <cstring>

namespace window
{

void preparePlatform()
{
#ifdef Q_OS_UNIX
    // Names of files are UTF-8, whatever the locale is.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    // A file that may not grow is a failure to write it, and no end of the process.
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

void prepareApplication()
{
#ifdef Q_OS_UNIX
    // What the system says is put into words by its English text.
    std::setlocale(LC_MESSAGES, "C");
#endif
}

bool isWorker(int argc, char **argv)
{
    return argc > 1 && std::strcmp(argv[1], delivery::workerArgument) == 0;
}

int beWorker(int argc, char **argv)
{
    QCoreApplication::setEventDispatcher(new IdleDispatcher); // which the application owns
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
    const QCoreApplication application(argc, argv);
    prepareApplication();
    return delivery::work({survey::check, survey::convert});
}

} // namespace window
