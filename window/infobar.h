// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

#include <functional>

class QLabel;
class QPushButton;

namespace window
{

/// Messages in the window. They stay until they are closed, or another one comes.
class InfoBar : public QFrame
{
public:
    InfoBar();

    void tell(const QString &text);

    /// Behind what it tells already.
    void tellToo(const QString &text);

    /// Tells this behind each message from now on, with a button for what can be done about it.
    void remind(const QString &text, const QString &button, std::function<void()> accepted);
    void forgetReminder();

    /// All that it tells; empty if it is closed.
    QString text() const;

private:
    void showMessages();

    QString message;
    QString reminder; ///< null where there is none
    std::function<void()> accept;
    QLabel *label;
    QPushButton *button;
};

} // namespace window
