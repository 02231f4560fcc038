// SPDX-License-Identifier: MIT
//
// copy-rows SOURCE: puts the rows of the goods and offers of a source on the clipboard.
#include "reader/commxmlreader.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const QClipboard *clipboard = QGuiApplication::clipboard();

    // Its outputEnabled stays false: no exchange file is opened, and nothing waits for a key.
    CommXmlReader reader;
    if (!reader.loadSource(QGuiApplication::arguments().value(1)) || !reader.readStructure())
        return 1; // why is on standard error
    reader.exportKatalogs(/*prefixRows=*/false, /*withDescription=*/true, /*markHtml=*/true);
    reader.exportPrices(/*prefixRows=*/false, /*withDescription=*/true, /*markHtml=*/true,
                        /*extendedOffers=*/true, /*applyFactor=*/false, /*priceFactor=*/1.0);
    reader.copyRowsToClipboard();
    QTextStream(stdout) << clipboard->text();

    // Where what is copied stays with its program, this one waits until another one copies.
    QObject::connect(clipboard, &QClipboard::dataChanged, [clipboard] {
        if (!clipboard->ownsClipboard())
            QGuiApplication::quit();
    });
    return QGuiApplication::exec();
}
