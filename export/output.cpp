// SPDX-License-Identifier: MIT
#include "reader/commxmlreader.h"

using namespace exchange;

void CommXmlReader::writeLine(QLatin1String key, const QString &value)
{
    // None is sent behind one that could not be written.
    if (!outputEnabled || outputStream.status() != QTextStream::Ok)
        return;
    // Until all of it is written, also where memory runs out on the way.
    outputStream.setStatus(QTextStream::WriteFailed);
    // Past the stream, which would keep what could not be written for the next file. Each line at
    // once: a file must be readable up to its last line whatever ends the run.
    const QByteArray line = (key + value + QLatin1Char('\n')).toUtf8();
    if (outputFile.write(line) == line.size())
        outputStream.resetStatus();
}

void CommXmlReader::writeFields(const FieldValues &values)
{
    for (const FieldValue &value : values) {
        if (!value.target.key.isEmpty())
            writeLine(value.target.key, value.lineText);
    }
}

void CommXmlReader::writeText(const QString &text)
{
    if (text.isEmpty())
        return;
    writeLine(freeText.begin);
    writeLine({}, text);
    writeLine(freeText.end);
}

void CommXmlReader::writeGoods(const QString &code, const FieldValues &values,
                               const QString &description)
{
    writeLine(goodsBlock.begin);
    writeLine(codeKey, code);
    writeFields(values);
    writeText(description);
    writeLine(goodsBlock.end);
}

void CommXmlReader::exportGoods(const QString &code, const FieldValues &values,
                                const QString &description, const GoodsOptions &options)
{
    writeGoods(code, values, description);

    appendGoodsRow(goodsRows, goodsRow(code, options.prefixRows, values), description,
                   options.htmlMark);
}
