// SPDX-License-Identifier: MIT
#include "reader/commxmlreader.h"

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

/// One line of the toolkit's debug output, with a blank behind each piece.
static void printPieces(const QStringList &pieces)
{
    const QLatin1Char blank(' ');
    qt_message_output(QtDebugMsg, QMessageLogContext(), pieces.join(blank) + blank);
}

void CommXmlReader::copyRowsToClipboard()
{
    QString text;
    for (const QString &row : std::as_const(goodsRows))
        text += row + QLatin1Char('\n');
    QGuiApplication::clipboard()->setText(text, QClipboard::Clipboard);
}

void CommXmlReader::runDiagnostics()
{
    collectSections(rootElement);

    const bool orphaned = groups.isEmpty() || groups.first().parentNode().isNull();
    printPieces({QStringLiteral("Katalogs: "), QString::number(katalogs.size())});
    printPieces({QStringLiteral("Groups: "), QString::number(groups.size()), QStringLiteral(" "),
                 orphaned ? QStringLiteral("true") : QStringLiteral("false")});
    printPieces({QStringLiteral("Docs: "), QString::number(docs.size())});
    printPieces({QStringLiteral("Prices: "), QString::number(prices.size())});

    goodsRows.clear();
    exportKatalogs(false, true, true);
    exportPrices(false, true, true, true, false, 1.0);
    copyRowsToClipboard();
}
