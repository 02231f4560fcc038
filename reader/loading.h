// SPDX-License-Identifier: MIT
//
// For programs that tell people how a load went: what they ask for, and what they are told.
#pragma once

#include <QString>
#include <QVector>

#include <functional>

/// A line and a column of a source, both from 1, in characters; 0 where there is none to tell.
struct SourcePosition {
    int line = 0;
    int column = 0;

    bool operator<(const SourcePosition &other) const
    {
        return line != other.line ? line < other.line : column < other.column;
    }
};

/// Why a source was not loaded.
enum class LoadFailure {
    None,
    NotOpened,
    NotRead, ///< the file was opened, but the system could not read all of it
    NotWellFormed,
    TooDeep,           ///< elements within elements; this and the next ones: beyond a limit
    TooManyAttributes, ///< of one element
    TooManyBrackets,   ///< ahead of the root
    TooManyEntities,   ///< that have a value, or too much text in these
    ParameterEntity,   ///< with a value
    TooMuchExpansion,  ///< of entities
    OutOfMemory,
    Stopped, ///< by Loading::goesOn
};

/// A load, as somebody follows it. What is not asked for costs nothing.
struct Loading {
    /// Asked after each 64 kB, with the bytes that have been read; the load stops where it returns
    /// false. A source that is not plain is read a second time, from its beginning.
    std::function<bool(qint64 bytes)> goesOn;

    bool wantsPositions = false;

    /// Those of all elements, in document order, if they are wanted.
    QVector<SourcePosition> positions;

    /// They are not those of the "<", but of the end of each start tag: of its ">", or "/>".
    /// Columns count a character beyond U+FFFF as two then.
    bool positionsAreEnds = false;

    LoadFailure failure = LoadFailure::None;

    /// Where the source stopped being well-formed, or went beyond a limit of elements or entities.
    SourcePosition failedAt;

    /// What the parser, in English, or the system says of the failure; null if nothing.
    QString message;

    /// Forgets what it was told of an earlier load.
    void startOver()
    {
        positions.clear();
        positionsAreEnds = false;
        failure = LoadFailure::None;
        failedAt = {};
        message = QString();
    }
};
