// SPDX-License-Identifier: MIT
//
// The lines of the exchange file, on their way into it.
#pragma once

#include "exchange/format.h"

#include <QByteArray>
#include <QString>

class QCryptographicHash;
class QFileDevice;

namespace exchange
{

/// Writes an exchange file, in UTF-8. Each line is written at once, unless it gathers them: the
/// file is readable up to its last line whatever ends the run.
///
/// Once a line could not be written, or memory ran out on the way, nothing is sent behind it.
class Writer
{
public:
    /// A writer whose lines go nowhere.
    Writer() = default;

    /// Lines go to `file` where that is open and `enabled` is true. Both outlive the writer.
    Writer(QFileDevice &file, const bool &enabled) : file(&file), enabled(&enabled) {}

    /// Writes the header of a file that has just been opened.
    void begin();

    /// A line of `key` and `value`.
    void writeLine(QLatin1String key, const QString &value = QString());

    /// Writes the lines that were gathered.
    void finish();

    /// Whether a line since begin() is not, or not whole, in the file.
    bool hasFailed() const { return failed; }

    /// The bytes of all lines since begin() that are in the file.
    qint64 size() const { return written; }

    /// Lines wait until there are many, or for finish(): for a file that nobody reads before that.
    bool gathers = false;

    QCryptographicHash *digest = nullptr; ///< if a host sets one, it gets the bytes of each line

private:
    void send();

    QFileDevice *file = nullptr;
    const bool *enabled = nullptr;
    bool failed = false;
    qint64 written = 0;
    QByteArray lines; // that are not in the file yet; keeps its room
};

} // namespace exchange
