// SPDX-License-Identifier: MIT
#include "window/infobar.h"

#include "words/language.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <utility>

using words::Words;

namespace window
{

InfoBar::InfoBar() : label(new QLabel), button(new QPushButton)
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    label->setForegroundRole(QPalette::ToolTipText);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a path may have no blanks
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto *const close = new QPushButton(Words::tr("Close &message"));
    auto *const layout = new QHBoxLayout(this);
    layout->addWidget(label, 1);
    layout->addWidget(button);
    layout->addWidget(close);
    connect(close, &QPushButton::clicked, this, &QWidget::hide);
    connect(button, &QPushButton::clicked, this, [this] {
        hide();
        if (accept)
            accept();
    });
    hide();
}

void InfoBar::tell(const QString &text)
{
    message = text;
    showMessages();
}

void InfoBar::tellToo(const QString &text)
{
    tell(isHidden() || message.isEmpty() ? text : message + u'\n' + text);
}

void InfoBar::remind(const QString &text, const QString &buttonText, std::function<void()> accepted)
{
    if (isHidden())
        message.clear();
    reminder = text;
    button->setText(buttonText);
    accept = std::move(accepted);
    showMessages();
}

void InfoBar::forgetReminder()
{
    reminder.clear();
}

void InfoBar::showMessages()
{
    QStringList texts = {message, reminder};
    texts.removeAll(QString());
    const QString text = texts.join(u'\n');
    label->setText(text);
    label->setAccessibleName(text);
    label->setToolTip(text);
    button->setVisible(!reminder.isEmpty());
    show();
    QAccessibleEvent told(label, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
}

QString InfoBar::text() const
{
    return isHidden() ? QString() : label->text();
}

} // namespace window
