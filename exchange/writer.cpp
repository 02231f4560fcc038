// SPDX-License-Identifier: MIT
#include "exchange/writer.h"

#include <QCryptographicHash>
#include <QFileDevice>

namespace exchange
{

constexpr int manyBytes = 1 << 16;

void Writer::begin()
{
    failed = false;
    written = 0;
    constexpr int usualLine = 1'000;
    lines.resize(0);
    lines.reserve(gathers ? manyBytes + usualLine : usualLine);
    writeLine(fileHeader);
}

void Writer::writeLine(QLatin1String key, const QString &value)
{
    if (file == nullptr || !*enabled || !file->isOpen() || failed)
        return;
    failed = true; // until all of the line is in the file, also where memory runs out on the way
    lines.append(key.data(), key.size());
    lines.append(value.toUtf8());
    lines.append('\n');
    if (gathers && lines.size() < manyBytes)
        failed = false;
    else
        send();
}

void Writer::finish()
{
    if (!failed && !lines.isEmpty())
        send();
}

void Writer::send()
{
    failed = file->write(lines) != lines.size();
    if (failed)
        return;
    written += lines.size();
    if (digest != nullptr)
        digest->addData(lines);
    lines.resize(0);
}

} // namespace exchange
