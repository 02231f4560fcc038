// SPDX-License-Identifier: MIT
#include "exchange/writer.h"

#include <QCryptographicHash>
#include <QFileDevice>

namespace exchange
{

void Writer::begin()
{
    failed = false;
    written = 0;
    constexpr int usualLine = 1'000;
    line.reserve(usualLine);
    writeLine(fileHeader);
}

void Writer::writeLine(QLatin1String key, const QString &value)
{
    if (file == nullptr || !*enabled || !file->isOpen() || failed)
        return;
    failed = true; // until all of the line is in the file, also where memory runs out on the way
    line.resize(0);
    line.append(key.data(), key.size());
    line.append(value.toUtf8());
    line.append('\n');
    if (file->write(line) != line.size())
        return;
    failed = false;
    written += line.size();
    if (digest != nullptr)
        digest->addData(line);
}

} // namespace exchange
