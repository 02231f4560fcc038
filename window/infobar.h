// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

#include <functional>

class QLabel;
class QPushButton;

namespace window
{

/// A message in the window that stays until it is closed, or another one comes.
class InfoBar : public QFrame
{
public:
    InfoBar();

    void tell(const QString &text);

    /// With a button for what can be done about it.
    void offer(const QString &text, const QString &button, std::function<void()> accepted);

    QString text() const;

private:
    QLabel *label;
    QPushButton *button;
    std::function<void()> accept;
};

} // namespace window
