// SPDX-License-Identifier: MIT
//
// The command line of xml2ryk-batch.
#pragma once

#include "delivery/run.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace batch
{

enum class Command { Check = 1, Convert = 2, Verify = 4 };

struct Options {
    std::optional<Command> command;
    bool isForHelp = false;
    bool isForVersion = false;

    QStringList files;   ///< sources, or exchange files; folders among them
    QString destination; ///< null: there is none, or a folder
    QString into;        ///< the folder for exchange files; null: there is none

    delivery::RunOptions run;
    bool json = false;
    QString source; ///< that an exchange file is compared with; null: there is none
    QString log;    ///< null: there is none
};

/// What the arguments behind the program's name ask for. Where they can't be had, `refusal` is a
/// line that says why.
std::optional<Options> parseArguments(const QStringList &arguments, QString &refusal);

/// What --help prints: about one command, or all of the program.
QString help(std::optional<Command> command);

} // namespace batch
