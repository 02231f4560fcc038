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
    const char *firstKey; ///< that it begins with; empty: any
    int ExchangeFile::*count;
    Place from;
    Place to;
};

/// Which blocks may stand where, and what stands behind them.
const std::array<BlockInfo, 7> blocks = {{
    {exchange::goodsBlock, "code:", &ExchangeFile::goods, Place::Goods, Place::Goods},
    {exchange::partnerBlock, "code:", &ExchangeFile::partners, Place::Goods, Place::Partner},
    {exchange::partnerBlock, "code:", &ExchangeFile::partners, Place::Documents, Place::Partner},
    {exchange::partnerBlock, "code:", &ExchangeFile::partners, Place::Partner, Place::Partner},
    {exchange::orderBlock, "number:", &ExchangeFile::documents, Place::Partner, Place::Order},
    {exchange::goodsBlock, "code:", &ExchangeFile::lines, Place::Order, Place::Line},
    {exchange::itemBlock, "", nullptr, Place::Line, Place::Order},
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

/// Reads the lines of an exchange file one by one.
class Examiner
{
public:
    /// A line without its end. False: it shows damage.
    bool take(const QByteArray &line, bool hasZero)
    {
        ++number;
        if (hasZero)
            return fail(Damage::BrokenBytes, number);
        if (number == 1)
            return isLine(line, exchange::fileHeader) || fail(Damage::NoHeader, number);
        return block == nullptr ? takeBetween(line) : takeInside(line);
    }

    /// The file is over; `rest` is a line without an end.
    void finish(const QByteArray &rest)
    {
        if (!rest.isEmpty() && number > 0)
            fail(Damage::CutLine, number + 1);
        else if (number == 0)
            fail(Damage::NoHeader, 1);
        else if (block != nullptr)
            fail(Damage::OpenBlock, blockLine);
        else if (place == Place::Order || place == Place::Line)
            fail(Damage::OpenOrder, orderLine);
    }

    ExchangeFile file;

private:
    bool fail(Damage damage, int line)
    {
        file.damage = damage;
        file.line = line;
        return false;
    }

    bool takeBetween(const QByteArray &line)
    {
        if (place == Place::Order && isLine(line, exchange::closeOrder)) {
            place = Place::Documents;
            return true;
        }
        const auto found = std::find_if(blocks.cbegin(), blocks.cend(), [&](const BlockInfo &info) {
            return info.from == place && isLine(line, info.markers.begin);
        });
        if (found == blocks.cend())
            return fail(Damage::StrayLine, number);
        block = found;
        blockLine = number;
        if (found->to == Place::Order && found->from == Place::Partner)
            orderLine = number;
        isInText = false;
        return true;
    }

    bool takeInside(const QByteArray &line)
    {
        const bool isFirst = number == blockLine + 1;
        const bool wasEndOfText =
            std::exchange(isEndOfText, isInText && isLine(line, exchange::freeText.end));
        if (isFirst && !line.startsWith(block->firstKey))
            return fail(Damage::StrayLine, number);
        if (isLine(line, block->markers.end) && (!isInText || wasEndOfText)) {
            if (block->count != nullptr)
                ++(file.*block->count);
            place = block->to;
            block = nullptr;
            return true;
        }
        // A text may have any lines; between keys a marker is one.
        if (!isInText && isMarker(line))
            return fail(Damage::StrayLine, number);
        isInText = isInText || isLine(line, exchange::freeText.begin);
        return true;
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
    bool hasZero = false;
    for (QByteArray piece = file.readLine(longest); !piece.isEmpty();
         piece = file.readLine(longest)) {
        hasZero = hasZero || piece.contains('\0');
        line += piece.left(int(longest - line.size()));
        if (!piece.endsWith('\n'))
            continue;
        if (line.endsWith('\n'))
            line.chop(1);
        if (!examiner.take(line, hasZero))
            return examiner.file;
        line.clear();
    }
    examiner.finish(line);
    if (file.error() != QFileDevice::NoError)
        examiner.file.message = file.errorString();
    return examiner.file;
}

} // namespace delivery
