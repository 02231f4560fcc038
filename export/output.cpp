// SPDX-License-Identifier: MIT
#include "reader/commxmlreader.h"

#include <new>

using namespace exchange;

void CommXmlReader::writeLine(QLatin1String key, const QString &value)
{
    // Flushed each time: a file must be readable up to its last line whatever ends the run.
    if (!outputEnabled)
        return;
    try {
        outputStream << key << value << Qt::endl;
    } catch (const std::bad_alloc &) {
        outputStream.setStatus(QTextStream::WriteFailed); // keeps the rest of the line back
        throw;
    }
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
