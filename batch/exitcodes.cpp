// SPDX-License-Identifier: MIT
#include "batch/exitcodes.h"

#include <QCoreApplication>

#include <array>

namespace batch
{

const QVector<ExitCodeInfo> &exitCodes()
{
    static const QVector<ExitCodeInfo> table = {
        {"0", QT_TRANSLATE_NOOP("Words", "all of every source gets across; an exchange file is "
                                         "whole, as far as it shows")},
        {"1", QT_TRANSLATE_NOOP("Words", "wrong usage; nothing was done")},
        {"2", QT_TRANSLATE_NOOP("Words", "a file can't be read, or there is nothing to export; the "
                                         "old exchange file is kept")},
        {"3", QT_TRANSLATE_NOOP("Words", "something is left out; an exchange file is not whole")},
        {"4", QT_TRANSLATE_NOOP("Words", "an exchange file could not be written whole, or was held "
                                         "back, and the old one is kept; or the outcome could not "
                                         "be told")},
        {"130, 143", QT_TRANSLATE_NOOP("Words", "Ctrl-C or SIGTERM ended the run")},
    };
    return table;
}

int graver(int one, int other)
{
    constexpr std::array<int, 5> gravity = {0, 0, 2, 1, 3};
    return gravity.at(std::size_t(one)) > gravity.at(std::size_t(other)) ? one : other;
}

} // namespace batch
