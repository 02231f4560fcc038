// SPDX-License-Identifier: MIT
//
// The menus that follow what is there, and what all menus are made with.
#pragma once

#include <QMenu>
#include <QVector>

#include <functional>

class QKeySequence;
class QSettings;

namespace window
{

class GoodsPage;

/// Adds an action, of which `name` is the objectName.
QAction *addEntry(QMenu &menu, const QString &name, const QString &text, const QKeySequence &key,
                  const std::function<void()> &triggered);

/// The sources that were opened last, the latest first. They are kept in the settings.
class RecentMenu : public QMenu
{
public:
    RecentMenu(QSettings &settings, QWidget *parent);

    /// Told of the source that is to be opened again.
    std::function<void(const QString &path)> chosen;

    void add(const QString &path);

    /// Empty if there is none.
    QString latest() const;

private:
    void showPaths();

    QSettings &settings;
    QVector<QAction *> places;
};

/// Which columns of the goods are shown, and where.
class ColumnsMenu : public QMenu
{
public:
    /// Also the menu of the heading.
    ColumnsMenu(GoodsPage &goods, QWidget *parent);

    /// Told ahead of each change.
    std::function<void()> changing;

    /// Brings the menu up to date with the page.
    void showColumns();

private:
    QAction *add(const QString &name, const QString &text, const QKeySequence &key,
                 const std::function<void()> &change);

    GoodsPage &goods;
    QVector<QAction *> columns;
};

} // namespace window
