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
    auto *const close = new QPushButton(Words::tr("Close message"));
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
    offer(text, QString(), {});
}

void InfoBar::offer(const QString &text, const QString &buttonText, std::function<void()> accepted)
{
    label->setText(text);
    label->setAccessibleName(text);
    label->setToolTip(text);
    button->setText(buttonText);
    button->setVisible(!buttonText.isEmpty());
    accept = std::move(accepted);
    show();
    QAccessibleEvent told(label, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
}

QString InfoBar::text() const
{
    return isHidden() ? QString() : label->text();
}

} // namespace window
