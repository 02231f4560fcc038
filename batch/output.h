// SPDX-License-Identifier: MIT
//
// What a run prints and logs.
#pragma once

#include "batch/exitcodes.h"
#include "batch/options.h"
#include "batch/report.h"

#include <QElapsedTimer>
#include <QFile>

namespace batch
{

class Output
{
public:
    explicit Output(const Options &options) : json(options.json) {}
    ~Output();
    Q_DISABLE_COPY(Output)

    /// False if there is no writing to that file.
    bool openLog(const QString &path);

    template <typename Result>
    void tell(const Result &result)
    {
        // With --all they can be as large as the source.
        tell(subjectOf(result), json && !log.isOpen() ? QStringList() : toLines(result),
             json ? toJson(result) : QJsonObject());
        exitCode = graver(exitCode, result.exitCode);
    }

    /// Draws a bar, where somebody sees it.
    void showProgress(double share, const QString &source);

    /// The gravest so far.
    int exitCode = delivery::Complete;

private:
    void tell(const QString &subject, const QStringList &lines, const QJsonObject &object);
    void failToTell(bool &isKnown, const QString &text);
    void clearProgress();

    const bool json;
    bool isBroken = false; ///< standard output is
    QFile log;
    QString logPath;
    bool isLogBroken = false;
    QElapsedTimer sinceProgress;
    int progressSize = 0; ///< so many characters stand there
};

/// Prints a line of the program about itself on standard error.
void printRefusal(const QString &text);

} // namespace batch
