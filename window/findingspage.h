// SPDX-License-Identifier: MIT
#pragma once

#include "window/tables.h"

#include <QWidget>

#include <functional>

class QSettings;
class QSplitter;
class QTableView;

namespace window
{

/// The findings of the check, by their kinds.
class FindingsPage : public QWidget
{
public:
    FindingsPage();

    /// Told of a finding that was clicked, or at which Enter was pressed.
    std::function<void(const survey::Finding &finding)> activated;

    void show(const SourcePointer &newSource);

    void save(QSettings &settings) const;
    void restore(const QSettings &settings);

private:
    SourcePointer source = std::make_shared<Source>();
    KindsModel kinds;
    FindingsModel findings;
    QTableView *kindsView;
    QTableView *findingsView;
    QSplitter *rows;
};

} // namespace window
