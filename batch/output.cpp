// SPDX-License-Identifier: MIT
#include "batch/output.h"

#include "batch/platform.h"
#include "delivery/interrupts.h"
#include "words/language.h"

#include <QDateTime>
#include <QJsonDocument>

#include <algorithm>
#include <utility>

namespace batch
{

using words::Words;

/// Without what a terminal obeys, or what would break a line: names of files can hold anything.
static QString onOneLine(QString text)
{
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control)
            character = QChar::ReplacementCharacter;
    }
    return text;
}

Output::~Output()
{
    clearProgress();
}

bool Output::openLog(const QString &path)
{
    const int descriptor = openToAppend(path);
    logPath = path;
    // One write a line, so that those of several runs do not mix.
    return descriptor >= 0 && log.open(descriptor, QIODevice::WriteOnly | QIODevice::Unbuffered,
                                       QFileDevice::AutoCloseHandle);
}

void Output::tell(const QString &subject, const QStringList &lines, const QJsonObject &object)
{
    QString text;
    if (json) {
        text = QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) +
               QLatin1Char('\n');
    } else {
        for (const QString &line : lines)
            text += onOneLine(line) + QLatin1Char('\n');
    }
    clearProgress();
    if (!write(stdout, text))
        failToTell(isBroken, Words::tr("standard output can't be written"));
    if (!log.isOpen())
        return;
    const QString time = QDateTime::currentDateTime().toOffsetFromUtc(0).toString(Qt::ISODate);
    const QStringList columns = {time, onOneLine(subject), onOneLine(lines.first())};
    const QByteArray bytes = columns.join(QLatin1Char('\t')).toUtf8() + '\n';
    if (log.write(bytes) != bytes.size())
        failToTell(isLogBroken, Words::tr("the log %1 can't be written").arg(logPath));
}

/// Who reads it must not think that all is well.
void Output::failToTell(bool &isKnown, const QString &text)
{
    exitCode = delivery::NotWritten;
    if (!std::exchange(isKnown, true) && delivery::Interrupts::exitCode() == 0)
        printRefusal(text);
}

void Output::showProgress(double share, const QString &source)
{
    constexpr qint64 pause = 100;
    if (!isTerminal(stderr) || (sinceProgress.isValid() && sinceProgress.elapsed() < pause))
        return;
    sinceProgress.restart();
    constexpr int width = 30;
    constexpr int whole = 100;
    const int filled = std::clamp(int(share * width), 0, width);
    QString line =
        QStringLiteral("[%1%2] %3 % ")
            .arg(QString(filled, QLatin1Char('#')), QString(width - filled, QLatin1Char(' ')))
            .arg(int(share * whole), 3) +
        onOneLine(source);
    line.truncate(std::max(0, columnsOf(stderr) - 1));
    const int size = int(line.size());
    write(stderr, QLatin1Char('\r') + line.leftJustified(progressSize));
    progressSize = size;
}

void Output::clearProgress()
{
    if (progressSize == 0)
        return;
    write(stderr, QLatin1Char('\r') + QString(progressSize, QLatin1Char(' ')) + QLatin1Char('\r'));
    progressSize = 0;
}

void printRefusal(const QString &text)
{
    write(stderr, QStringLiteral("xml2ryk-batch: ") + onOneLine(text) + QLatin1Char('\n'));
}

} // namespace batch
