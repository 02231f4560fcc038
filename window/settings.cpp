// SPDX-License-Identifier: MIT
#include "window/settings.h"

#include <QFile>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMainWindow>
#include <QRegularExpression>
#include <QScreen>
#include <QSet>
#include <QSettings>
#include <QSplitter>
#include <QStyle>
#include <QTableView>

#include <algorithm>

namespace window
{

namespace
{

/// No column and no part of a window is larger.
constexpr int largest = 1 << 14;

// Of what has more than one setting.
const QLatin1String maximized("Maximized");
const QLatin1String widthsOfColumns("Widths"); // 0: hidden
const QLatin1String sortedBy("Sorting");       // column and order

void saveNumbers(QSettings &settings, const QString &name, const QVector<int> &numbers)
{
    QStringList texts;
    for (const int number : numbers)
        texts.append(QString::number(std::min(number, largest)));
    settings.setValue(name, texts);
}

/// The numbers of this setting; none if there are not so many, or any is out of range.
QVector<int> savedNumbers(const QSettings &settings, const QString &name, int count, int least,
                          int most = largest)
{
    const QStringList texts = settings.value(name).toStringList();
    if (texts.size() != count)
        return {};
    QVector<int> numbers;
    for (const QString &text : texts) {
        bool isNumber = false;
        numbers.append(text.toInt(&isNumber));
        if (!isNumber || numbers.last() < least || numbers.last() > most)
            return {};
    }
    return numbers;
}

bool hasAny(const QVector<int> &sizes)
{
    return std::any_of(sizes.cbegin(), sizes.cend(), [](int size) { return size > 0; });
}

/// Whether the toolkit would make objects of its own of values, for which it may take any amount of
/// memory and time. What begins with an escape might become one of them.
bool holdsObjects(const QByteArray &ini)
{
    // Quoted texts may be paths; how they begin is enough.
    static const QRegularExpression quoted(
        QStringLiteral(R"re(^\s*;[^\r\n]*|"(@[@\w(]*+|(?:[^"\\]|\\.)?+)(?:[^"\\]|\\.)*+")re"),
        QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression object(
        QStringLiteral(R"re([=,][\s"]*(?:\\|@(?!@|Invalid\(|ByteArray\()))re"));
    // With its size, or else it would end at a zero.
    return QString::fromLatin1(ini.constData(), ini.size())
        .replace(quoted, QStringLiteral("\\1"))
        .contains(object);
}

} // namespace

QSettings &readSettings(QSettings &settings)
{
    QFile file(settings.fileName());
    if (file.open(QIODevice::ReadOnly) && holdsObjects(file.readAll())) {
        file.remove();
        settings.sync();
    }
    return settings;
}

void save(QSettings &settings, const QString &name, const QMainWindow &window)
{
    const QRect place = window.normalGeometry();
    saveNumbers(settings, name, {place.x(), place.y(), place.width(), place.height()});
    settings.setValue(name + maximized, window.isMaximized());
}

void save(QSettings &settings, const QString &name, const QSplitter &splitter)
{
    if (!splitter.testAttribute(Qt::WA_Resized))
        return; // its page was never shown
    saveNumbers(settings, name, QVector<int>::fromList(splitter.sizes()));
}

void save(QSettings &settings, const QString &name, const QTableView &table)
{
    QHeaderView &header = *table.horizontalHeader();
    QVector<int> order;
    QVector<int> widths;
    header.setStretchLastSection(false); // or else the last one would tell what is left for it
    for (int place = 0; place < header.count(); ++place) {
        order.append(header.logicalIndex(place));
        widths.append(header.sectionSize(place));
    }
    header.setStretchLastSection(true);
    saveNumbers(settings, name, order);
    saveNumbers(settings, name + widthsOfColumns, widths);
    if (header.isSortIndicatorShown())
        saveNumbers(settings, name + sortedBy,
                    {header.sortIndicatorSection(), int(header.sortIndicatorOrder())});
}

void restore(const QSettings &settings, const QString &name, QMainWindow &window,
             const QSize &atFirst)
{
    const QVector<int> saved = savedNumbers(settings, name, 4, -largest);
    QRect place(QPoint(), atFirst);
    if (!saved.isEmpty())
        place = QRect(saved.at(0), saved.at(1), saved.at(2), saved.at(3));
    const QScreen *screen = QGuiApplication::screenAt(place.center());
    if (screen == nullptr)
        screen = QGuiApplication::primaryScreen();
    // Nobody knows yet how large its frame is.
    const QStyle &style = *window.style();
    const int title = style.pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    const int frame = style.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, &window);
    const QRect room = screen->availableGeometry().adjusted(frame, title, -frame, -frame);
    place.setSize(place.size().expandedTo(window.minimumSizeHint()).boundedTo(room.size()));
    place.moveRight(std::min(place.right(), room.right()));
    place.moveBottom(std::min(place.bottom(), room.bottom()));
    place.moveLeft(std::max(place.left(), room.left()));
    place.moveTop(std::max(place.top(), room.top()));
    if (saved.isEmpty())
        window.resize(place.size()); // where it comes is up to the desktop
    else
        window.setGeometry(place);
    if (settings.value(name + maximized).toBool())
        window.setWindowState(Qt::WindowMaximized);
}

void restore(const QSettings &settings, const QString &name, QSplitter &splitter)
{
    const QVector<int> sizes = savedNumbers(settings, name, splitter.count(), 0);
    if (hasAny(sizes))
        splitter.setSizes(sizes.toList());
}

void restore(const QSettings &settings, const QString &name, QTableView &table)
{
    QHeaderView &header = *table.horizontalHeader();
    const int count = header.count();
    const QVector<int> order = savedNumbers(settings, name, count, 0, count - 1);
    const QVector<int> widths = savedNumbers(settings, name + widthsOfColumns, count, 0);
    if (QSet<int>(order.cbegin(), order.cend()).size() == count && hasAny(widths)) {
        for (int place = 0; place < count; ++place) {
            const int column = order.at(place);
            const int width = widths.at(column);
            header.moveSection(header.visualIndex(column), place);
            header.setSectionHidden(column, width == 0);
            if (width > 0)
                header.resizeSection(column, width);
        }
    }
    const QVector<int> sorting = savedNumbers(settings, name + sortedBy, 2, -1, count - 1);
    if (header.isSortIndicatorShown() && !sorting.isEmpty())
        header.setSortIndicator(sorting.at(0),
                                sorting.at(1) == 1 ? Qt::DescendingOrder : Qt::AscendingOrder);
}

} // namespace window
