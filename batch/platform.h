// SPDX-License-Identifier: MIT
//
// What differs between the platforms; each has a file that implements this.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <cstdio>

namespace batch
{

/// Called once, ahead of everything that is written: lines end as they do elsewhere.
void prepareStreams();

/// The arguments behind the program's name, whole. Where one is no text, that is `notText`, as far
/// as it can be shown.
QStringList arguments(int argc, char **argv, QString &notText);

/// Whether somebody sees what is written there.
bool isTerminal(std::FILE *stream);

/// How many characters fit into a line of a terminal.
int columnsOf(std::FILE *terminal);

/// Writes a text at once, so that it is seen. False if it could not be.
bool write(std::FILE *stream, const QString &text);

struct FolderEntry {
    QString name;
    bool isText; ///< false: the name is none, and nobody can open it by this
};

/// All of a folder, in no order, hidden ones among them. False if it can't be read, with what the
/// system says.
bool listFolder(const QString &folder, QVector<FolderEntry> &entries, QString &message);

/// Whether the system hides a file.
bool isHidden(const QString &path);

/// A descriptor of a file whose writes all go to its end, whoever else writes to it; -1 if there is
/// none to be had. A new one is created.
int openToAppend(const QString &path);

} // namespace batch
