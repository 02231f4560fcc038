// SPDX-License-Identifier: MIT
//
// How the window and its parts are arranged, from one time to the next.
#pragma once

class QMainWindow;
class QSettings;
class QSize;
class QSplitter;
class QString;
class QTableView;

namespace window
{

/// The same settings; where their file would have the toolkit make more than texts, it is removed.
QSettings &readSettings(QSettings &settings);

// The arrangement of a window, by the name of each part. Settings may hold anything: what does not
// fit is left as it is, and the toolkit is handed none of it, since it trusts what it once saved.
void save(QSettings &settings, const QString &name, const QMainWindow &window);
void save(QSettings &settings, const QString &name, const QSplitter &splitter);
void save(QSettings &settings, const QString &name, const QTableView &table);
void restore(const QSettings &settings, const QString &name, QSplitter &splitter);
void restore(const QSettings &settings, const QString &name, QTableView &table);

/// Within a screen, whatever was saved there, and `atFirst` where nothing was.
void restore(const QSettings &settings, const QString &name, QMainWindow &window,
             const QSize &atFirst);

} // namespace window
