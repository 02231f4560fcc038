// SPDX-License-Identifier: MIT
//
// What an exchange file holds, and whether it is whole.
#pragma once

#include "survey/survey.h"

#include <QString>

namespace delivery
{

enum class Damage {
    None,        ///< nothing shows that it is cut
    NoHeader,    ///< its first line is another one
    CutLine,     ///< it ends in the middle of a line
    OpenBlock,   ///< it ends inside a block
    OpenOrder,   ///< it ends ahead of an order's closing line
    StrayLine,   ///< a line is in no block, or its block may not stand there
    BrokenBytes, ///< a line has a byte 0, which no writer writes
};

struct ExchangeFile {
    QString message; ///< of the system, where it can't be read; null otherwise
    Damage damage = Damage::None;
    int line = 0; ///< that shows the damage, or where what is open begins

    /// What it holds, in the terms of a survey. Goods and offers look the same there: all are
    /// goods.
    survey::Counts counts;

    bool isWhole() const { return message.isNull() && damage == Damage::None; }
};

/// Reads a file of any size, piece by piece.
ExchangeFile readExchangeFile(const QString &path);

} // namespace delivery
