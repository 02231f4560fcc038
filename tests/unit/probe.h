// SPDX-License-Identifier: MIT
#pragma once

#include "reader/commxmlreader.h"

#include <QtTest>

/// The text of a file of data/.
inline QString source(const char *name)
{
    QFile file(QStringLiteral(DATA "/") + QLatin1String(name));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no file %s", name);
    return QString::fromUtf8(file.readAll());
}

/// A reader whose document is given as text, and whose fields a test can look at.
class Probe : public CommXmlReader
{
public:
    using CommXmlReader::document;
    using CommXmlReader::goodsRows;
    using CommXmlReader::groups;
    using CommXmlReader::katalogs;
    using CommXmlReader::outputFile;
    using CommXmlReader::outputStream;
    using CommXmlReader::pathBuffer;
    using CommXmlReader::rootElement;
    using CommXmlReader::sourceFile;
    using CommXmlReader::writer;

    Probe() = default;
    explicit Probe(const QString &xml)
    {
        if (!document.setContent(xml))
            qFatal("no XML: %s", qPrintable(xml));
        rootElement = document.documentElement();
        readStructure();
    }

    void logMessage(const QString &text) override { log << text; }

    QStringList log;
};
