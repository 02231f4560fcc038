// SPDX-License-Identifier: MIT
#include "window/textview.h"

#include <QImage>
#include <QTextDocument>

namespace window
{

TextView::TextView(QWidget *parent) : QTextBrowser(parent)
{
    setOpenLinks(false);
    setTabChangesFocus(true);
}

/// Whether it is laid out in no time. Elements within elements take the square of their number, and
/// tables within tables many times longer with each level.
static bool isSmallHtml(const QString &text)
{
    constexpr int longest = 100000;
    constexpr int mostTables = 10;
    constexpr int mostElements = 2000;
    return text.size() <= longest && Qt::mightBeRichText(text) &&
           text.count(QLatin1String("<table"), Qt::CaseInsensitive) <= mostTables &&
           text.count(u'<') - text.count(QLatin1String("</")) <= mostElements;
}

void TextView::showText(const QString &text)
{
    constexpr int longest = 200000;
    if (isSmallHtml(text))
        setHtml(text);
    else
        setPlainText(text.left(longest));
}

QVariant TextView::loadResource(int type, const QUrl & /*name*/)
{
    // For what is not there, the document would open the file of this name itself.
    if (type != QTextDocument::ImageResource)
        return QByteArray("");
    QImage nothing(1, 1, QImage::Format_ARGB32);
    nothing.fill(Qt::transparent);
    return nothing;
}

} // namespace window
