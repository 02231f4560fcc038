// SPDX-License-Identifier: MIT
#pragma once

#include <QTextBrowser>

namespace window
{

/// Shows a text of a source, be it plain or HTML. It fetches nothing, opens no file and leads
/// nowhere.
class TextView : public QTextBrowser
{
public:
    explicit TextView(QWidget *parent = nullptr);

    /// What would take long to lay out comes as it is written.
    void showText(const QString &text);

private:
    QString shown;
};

} // namespace window
