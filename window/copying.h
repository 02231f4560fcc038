// SPDX-License-Identifier: MIT
#pragma once

#include "window/copyoptions.h"
#include "window/desk.h"

class QWidget;

namespace window
{

class InfoBar;

/// Puts rows of what is on the desk on the clipboard.
class Copying
{
public:
    Copying(Desk &desk, InfoBar &infoBar) : desk(desk), infoBar(infoBar) {}

    /// Told when rows are being collected, and when they are there.
    std::function<void()> changed;

    /// Asks for the options, in a dialog of this window.
    void askHow(QWidget *window);

    void copyAllGoods();

    /// By their places in Source::goods, rising.
    void copyGoods(const QVector<int> &chosen);

    /// By its place in Source::orders.
    void copyOrder(int order, bool withGoods);

    void save(QSettings &settings) const { window::save(settings, options); }
    void restore(const QSettings &settings) { options = restoredCopyOptions(settings); }

private:
    void copy(const std::function<void(SourceReader &reader)> &collect);
    void putOnClipboard(SourceReader &reader);

    Desk &desk;
    InfoBar &infoBar;
    CopyOptions options;
};

} // namespace window
