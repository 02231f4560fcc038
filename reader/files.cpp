// SPDX-License-Identifier: MIT
#include "job/console.h"
#include "reader/commxmlreader.h"
#include "reader/sourceparser.h"

#include <QCoreApplication>

CommXmlReader::~CommXmlReader()
{
    outputFile.close();
}

void CommXmlReader::logMessage(const QString &text)
{
    // The debug stream would escape some characters, and drop the blank at the end.
    qt_message_output(QtDebugMsg, QMessageLogContext(),
                      QLatin1Char('"') + text + QLatin1String("\" "));
}

static void tell(Loading *loading, LoadFailure failure, const QFile &file)
{
    if (loading != nullptr) {
        loading->startOver();
        loading->failure = failure;
        loading->message = file.errorString();
    }
}

bool CommXmlReader::loadSource(const QString &path)
{
    rootElement.clear();
    document.clear();
    sourceFile.setFileName(path);
    logMessage(QStringLiteral("Reading file: %1 ... ").arg(path));
    QCoreApplication::processEvents(QEventLoop::AllEvents);

    if (!sourceFile.open(QIODevice::ReadOnly)) {
        tell(loading, LoadFailure::NotOpened, sourceFile);
        logMessage(QStringLiteral("Error open in file: %1 ").arg(path));
        return false;
    }
    const bool parsed = parseSource(sourceFile, document, loading);
    if (!parsed && sourceFile.error() == QFileDevice::ReadError)
        tell(loading, LoadFailure::NotRead, sourceFile);
    sourceFile.close();
    if (!parsed) {
        logMessage(QStringLiteral("Error parce XML file: %1 ").arg(path));
        return false;
    }
    rootElement = document.documentElement();
    return true;
}

bool CommXmlReader::openOutput()
{
    goodsRows.clear();
    if (!outputEnabled)
        return true;

    outputStream.setDevice(nullptr);
    outputFile.close();
    if (outputFileName.isEmpty()) {
        outputEnabled = false;
        return false;
    }
    outputFile.setFileName(outputFileName);
    if (!outputFile.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        outputEnabled = false;
        printMessage(QObject::tr("Error opening output text file!"), false);
        printMessage(outputFileName, true);
        return false;
    }
    outputStream.setDevice(&outputFile);
    useUtf8(outputStream);
    writer.begin();
    return true;
}

void CommXmlReader::closeOutput()
{
    goodsRows.clear();
    outputFile.close();
    outputFileName = QString();
    outputEnabled = false;
}
