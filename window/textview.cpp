// SPDX-License-Identifier: MIT
#include "window/textview.h"

namespace window
{

TextView::TextView(QWidget *parent) : QTextBrowser(parent)
{
    setOpenLinks(false);
    setTabChangesFocus(true);
}

/// Whether it is laid out in no time. Tables within tables take many times longer with each level.
static bool isSmallHtml(const QString &text)
{
    constexpr int longest = 100000;
    constexpr int mostTables = 10;
    return text.size() <= longest && Qt::mightBeRichText(text) &&
           text.count(QLatin1String("<table"), Qt::CaseInsensitive) <= mostTables;
}

void TextView::showText(const QString &text)
{
    constexpr int longest = 200000;
    if (isSmallHtml(text))
        setHtml(text);
    else
        setPlainText(text.left(longest));
}

} // namespace window
