// SPDX-License-Identifier: MIT
//
// What the user reads on the console.
#pragma once

#include <QString>
#include <QTextStream>

/// The one stream on standard output. It has the toolkit's codec until the job sets one.
QTextStream &consoleOut();

/// Prints `text` as a line, and where `pause` goes on with pauseForKey().
void printMessage(const QString &text, bool pause);

/// Asks for a key press in a line of its own, and waits for one key.
void pauseForKey();
