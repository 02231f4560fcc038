// SPDX-License-Identifier: MIT
#include "window/menus.h"

#include "window/goodspage.h"
#include "words/language.h"

#include <QAction>
#include <QDir>
#include <QHeaderView>
#include <QKeySequence>
#include <QSettings>
#include <QTableView>

using words::Words;

namespace window
{

static const QString recentKey = QStringLiteral("recent");
constexpr int mostRecent = 9;

QAction *addEntry(QMenu &menu, const QString &name, const QString &text, const QKeySequence &key,
                  const std::function<void()> &triggered)
{
    QAction *const action = menu.addAction(text);
    action->setObjectName(name);
    action->setShortcut(key);
    QObject::connect(action, &QAction::triggered, &menu, [triggered] { triggered(); });
    return action;
}

RecentMenu::RecentMenu(QSettings &settings, QWidget *parent)
    : QMenu(Words::tr("Open &recent"), parent), settings(settings)
{
    for (int number = 1; number <= mostRecent; ++number) {
        const int place = number - 1;
        places.append(addEntry(*this, QStringLiteral("recent%1").arg(number), QString(),
                               QStringLiteral("Alt+%1").arg(number), [this, place] {
                                   if (chosen)
                                       chosen(places.at(place)->data().toString());
                               }));
    }
    showPaths();
}

void RecentMenu::add(const QString &path)
{
    QStringList paths = settings.value(recentKey).toStringList();
    paths.removeAll(path);
    paths.prepend(path);
    settings.setValue(recentKey, QStringList(paths.mid(0, mostRecent)));
    showPaths();
}

QString RecentMenu::latest() const
{
    return settings.value(recentKey).toStringList().value(0);
}

void RecentMenu::showPaths()
{
    const QStringList paths = settings.value(recentKey).toStringList().mid(0, mostRecent);
    setEnabled(!paths.isEmpty());
    for (int place = 0; place < places.size(); ++place) {
        QAction *const action = places.at(place);
        QString text = QDir::toNativeSeparators(paths.value(place));
        text.replace(u'&', QLatin1String("&&"));
        action->setText(QStringLiteral("&%1 ").arg(place + 1) + text);
        action->setData(paths.value(place));
        action->setVisible(place < paths.size());
    }
}

ColumnsMenu::ColumnsMenu(GoodsPage &goods, QWidget *parent)
    : QMenu(Words::tr("&Columns of goods"), parent), goods(goods)
{
    add(QStringLiteral("hideColumn"), Words::tr("&Hide the current column"), Qt::Key_F7,
        [this] { this->goods.hideCurrentColumn(); });
    add(QStringLiteral("showColumns"), Words::tr("Show &all columns"), QStringLiteral("Shift+F7"),
        [this] { this->goods.showAllColumns(); });
    add(QStringLiteral("columnLeft"), Words::tr("Move the current column to the &left"),
        QStringLiteral("Alt+Left"), [this] { this->goods.moveCurrentColumn(-1); });
    add(QStringLiteral("columnRight"), Words::tr("Move the current column to the &right"),
        QStringLiteral("Alt+Right"), [this] { this->goods.moveCurrentColumn(1); });
    addSeparator();
    const QAbstractItemModel *const model = goods.table().model();
    for (int column = 0; column < model->columnCount(); ++column) {
        columns.append(add(QStringLiteral("column%1").arg(column + 1),
                           model->headerData(column, Qt::Horizontal).toString(),
                           QStringLiteral("Ctrl+F%1").arg(column + 1), [this, column] {
                               this->goods.isColumnShown(column) ? this->goods.hideColumn(column)
                                                                 : this->goods.showColumn(column);
                           }));
        columns.last()->setCheckable(true);
    }
    QHeaderView *const header = goods.table().horizontalHeader();
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this,
            [this, header](const QPoint &at) { popup(header->mapToGlobal(at)); });
    showColumns();
}

QAction *ColumnsMenu::add(const QString &name, const QString &text, const QKeySequence &key,
                          const std::function<void()> &change)
{
    return addEntry(*this, name, text, key, [this, change] {
        if (changing)
            changing();
        change();
        showColumns();
    });
}

void ColumnsMenu::showColumns()
{
    for (int column = 0; column < columns.size(); ++column)
        columns.at(column)->setChecked(goods.isColumnShown(column));
}

} // namespace window
