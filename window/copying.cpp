// SPDX-License-Identifier: MIT
#include "window/copying.h"

#include "window/copydialog.h"
#include "window/infobar.h"
#include "words/language.h"

#include <QClipboard>
#include <QGuiApplication>

#include <new>

using words::Words;

namespace window
{

void Copying::askHow(QWidget *window)
{
    CopyDialog dialog(options, window);
    if (dialog.exec() == QDialog::Accepted)
        options = dialog.options();
}

void Copying::copyAllGoods()
{
    copy([how = options](SourceReader &reader) { reader.collectRows(how); });
}

void Copying::copyGoods(const QVector<int> &chosen)
{
    copy([how = options, chosen](SourceReader &reader) { reader.collectRows(how, &chosen); });
}

void Copying::copyOrder(int order, bool withGoods)
{
    copy([order, withGoods](SourceReader &reader) { reader.collectOrderRows(order, withGoods); });
}

void Copying::copy(const std::function<void(SourceReader &reader)> &collect)
{
    desk.collect(collect, [this](SourceReader &reader) { putOnClipboard(reader); });
    changed();
}

void Copying::putOnClipboard(SourceReader &reader)
{
    const int count = reader.lineCount();
    bool isCopied = count > 0;
    try {
        if (isCopied)
            reader.copyRowsToClipboard();
    } catch (const std::bad_alloc &) {
        reader.forgetRows();
        desk.ranOut(/*isReaderLost=*/false);
        return;
    }
    // Elsewhere nobody can keep it open, and not each platform knows whose it is.
    if (QGuiApplication::platformName() == QLatin1String("windows"))
        isCopied = isCopied && QGuiApplication::clipboard()->ownsClipboard();
    infoBar.tell(isCopied    ? Words::tr("%n line(s) are on the clipboard.", nullptr, count)
                 : count > 0 ? Words::tr("Another program has the clipboard open.")
                             : Words::tr("There is nothing to copy."));
    reader.forgetRows();
    changed();
}

} // namespace window
