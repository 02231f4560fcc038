// SPDX-License-Identifier: MIT
#include "window/textview.h"

#include "window/harmless.h"

namespace window
{

TextView::TextView(QWidget *parent) : QTextBrowser(parent)
{
    setOpenLinks(false);
    setTabChangesFocus(true);
    document()->setDefaultStyleSheet(QStringLiteral("td, th { padding: 1px 4px }"));
}

void TextView::showText(const QString &text)
{
    if (text == shown)
        return;
    shown = text;
    const auto html = Qt::mightBeRichText(text) ? harmlessHtml(text) : std::nullopt;
    if (html)
        setHtml(*html);
    else
        setPlainText(harmlessText(text));
}

} // namespace window
