// SPDX-License-Identifier: MIT
//
// What the user reads on the console.
#pragma once

#include <QString>
#include <QTextStream>

/// The one stream on standard output, in the encoding of the system until another one is set.
QTextStream &consoleOut();

/// Has standard output get another encoding, by a name that the toolkit knows.
void setConsoleCodec(const char *name);

/// Has a stream write UTF-8.
void useUtf8(QTextStream &stream);

/// Prints `text` as a line, and where `pause` goes on with pauseForKey().
void printMessage(const QString &text, bool pause);

/// Asks for a key press in a line of its own, and waits for one key.
void pauseForKey();
