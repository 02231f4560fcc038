// SPDX-License-Identifier: MIT
//
// What differs between the platforms; each has a file that implements this.
#pragma once

#include <QByteArray>
#include <QList>

/// Called once, ahead of everything else.
void preparePlatform();

/// The arguments behind the program's name, each as the cp1251 bytes that the job decodes.
/// `argc` and `argv` are those that main() got, after the application object has seen them.
QList<QByteArray> jobArguments(int argc, char **argv);

/// Waits for one key, without echo and without Enter, and drops it. Where standard input is no
/// console, one byte of it counts as a key, and so does its end.
void readKey();
