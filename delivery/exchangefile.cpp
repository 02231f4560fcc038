// SPDX-License-Identifier: MIT
#include "delivery/exchangefile.h"

#include "exchange/format.h"
#include "survey/loadfailure.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <utility>

namespace delivery
{

namespace
{

using exchange::Block;

/// Where in the file a line stands.
enum class Place {
    Goods,     ///< behind goods, or nothing
    Documents, ///< behind a partner alone, or a whole document
    Partner,   ///< behind a partner: an order of his, or the next one
    Order,     ///< behind an order, or a line of it
    Line,      ///< behind the goods of an order line
};

struct BlockInfo {
    Block markers;
    QLatin1String firstKey; ///< that it begins with; empty: any
    int survey::Counts::*count;
    Place from;
    Place to;
};

/// Which blocks may stand where, and what stands behind them.
const std::array<BlockInfo, 7> blocks = {{
    {exchange::goodsBlock, exchange::codeKey, &survey::Counts::goods, Place::Goods, Place::Goods},
    {exchange::partnerBlock, exchange::codeKey, &survey::Counts::partners, Place::Goods,
     Place::Partner},
    {exchange::partnerBlock, exchange::codeKey, &survey::Counts::partners, Place::Documents,
     Place::Partner},
    {exchange::partnerBlock, exchange::codeKey, &survey::Counts::partners, Place::Partner,
     Place::Partner},
    {exchange::orderBlock, QLatin1String("number:"), &survey::Counts::documents, Place::Partner,
     Place::Order},
    {exchange::goodsBlock, exchange::codeKey, &survey::Counts::lines, Place::Order, Place::Line},
    {exchange::itemBlock, {}, nullptr, Place::Line, Place::Order},
}};

bool isLine(const QByteArray &line, QLatin1String text)
{
    return line == text.data();
}

bool isMarker(const QByteArray &line)
{
    return std::any_of(blocks.cbegin(), blocks.cend(),
                       [&](const BlockInfo &block) {
                           return isLine(line, block.markers.begin) ||
                                  isLine(line, block.markers.end);
                       }) ||
           isLine(line, exchange::closeOrder);
}

/// Reads the lines of an exchange file one by one. Of several damages it tells the first, and
/// counts on.
class Examiner
{
public:
    /// A line without its end.
    void take(const QByteArray &line)
    {
        ++number;
        if (number == 1) {
            if (!isLine(line, exchange::fileHeader))
                note(Damage::NoHeader, number);
        } else if (block == nullptr) {
            takeBetween(line);
        } else {
            takeInside(line);
        }
    }

    /// The file is over; `rest` is a line without an end.
    void finish(const QByteArray &rest)
    {
        if (!rest.isEmpty() && number > 0)
            note(Damage::CutLine, number + 1);
        else if (number == 0)
            note(Damage::NoHeader, 1);
        else if (block != nullptr)
            note(Damage::OpenBlock, blockLine);
        else if (place == Place::Order || place == Place::Line)
            note(Damage::OpenOrder, orderLine);
    }

    void noteBrokenBytes() { note(Damage::BrokenBytes, number + 1); }

    ExchangeFile file;

private:
    void note(Damage damage, int line)
    {
        if (file.damage != Damage::None)
            return;
        file.damage = damage;
        file.line = line;
    }

    /// The block that begins with this line; nullptr if none does.
    const BlockInfo *findBlock(const QByteArray &line)
    {
        const BlockInfo *found = nullptr;
        for (const BlockInfo &info : blocks) {
            if (!isLine(line, info.markers.begin))
                continue;
            if (info.from == place)
                return &info;
            if (found == nullptr)
                found = &info;
        }
        note(Damage::StrayLine, number);
        return found;
    }

    void takeBetween(const QByteArray &line)
    {
        if (place == Place::Order && isLine(line, exchange::closeOrder)) {
            place = Place::Documents;
            return;
        }
        block = findBlock(line);
        if (block == nullptr)
            return;
        blockLine = number;
        if (block->from == Place::Partner && block->to == Place::Order)
            orderLine = number;
        isInText = false;
    }

    void takeInside(const QByteArray &line)
    {
        const bool isFirst = number == blockLine + 1;
        const bool wasEndOfText =
            std::exchange(isEndOfText, isInText && isLine(line, exchange::freeText.end));
        if (isFirst && !line.startsWith(QByteArray(block->firstKey.data(), block->firstKey.size())))
            note(Damage::StrayLine, number);
        if (isLine(line, block->markers.end) && (!isInText || wasEndOfText)) {
            if (block->count != nullptr)
                ++(file.counts.*block->count);
            place = block->to;
            block = nullptr;
            return;
        }
        // A text may have any lines; between keys a marker is one.
        if (!isInText && isMarker(line))
            note(Damage::StrayLine, number);
        isInText = isInText || isLine(line, exchange::freeText.begin);
    }

    int number = 0; ///< of the latest line, from 1
    Place place = Place::Goods;
    const BlockInfo *block = nullptr; ///< that is open
    int blockLine = 0;
    int orderLine = 0;
    bool isInText = false;
    bool isEndOfText = false; ///< if the latest line was, the text ends with it
};

} // namespace

ExchangeFile readExchangeFile(const QString &path)
{
    Examiner examiner;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        examiner.file.message = survey::whyUnreadable(path, file.errorString());
        return examiner.file;
    }
    // Of a longer line the beginning tells enough.
    constexpr qint64 longest = 1 << 16;
    QByteArray line;
    for (QByteArray piece = file.readLine(longest); !piece.isEmpty();
         piece = file.readLine(longest)) {
        if (piece.contains('\0')) {
            // A hole that a crash has left, or a device without an end.
            examiner.noteBrokenBytes();
            return examiner.file;
        }
        line += piece.left(int(longest - line.size()));
        if (!piece.endsWith('\n'))
            continue;
        if (line.endsWith('\n'))
            line.chop(1);
        examiner.take(line);
        line.clear();
    }
    examiner.finish(line);
    if (file.error() != QFileDevice::NoError)
        examiner.file.message = file.errorString();
    return examiner.file;
}

} // namespace delivery
