// SPDX-License-Identifier: MIT
#pragma once

#include "reader/source.h"

#include <QIODevice>
#include <QLatin1String>
#include <QString>

#include <array>

/// Walks over the text of an XML source, in the encoding that it declares. Only a part of the text
/// is there at a time.
class Scanner
{
public:
    /// `device` is open for reading. Both outlive the scanner.
    Scanner(QIODevice &device, Loading &loading);

    /// Behind the end of the source; a source can hold it as well.
    static constexpr QChar endOfSource = QChar(0);

    /// The character that many ahead.
    QChar at(int ahead)
    {
        const int index = position + ahead;
        return index < text.size() || fetch(index) ? text.at(index) : endOfSource;
    }

    /// Whether all of the source has been passed.
    bool isAtEnd();

    /// Passes that many characters that at() has told.
    void pass(int count) { position += count; }
    QString take(int count);

    /// Whether this word comes; if so, passes it.
    bool skip(QLatin1String word);

    /// Whether there were blanks to pass.
    bool skipBlanks();

    /// Whether there are only blanks, if anything, up to `end`; if so, passes them.
    bool skipBlanksTo(QChar end);

    /// Passes what is plain text and none of these characters, and adds it to `value`.
    void takePlain(QString &value, QChar end, QChar otherEnd, QChar thirdEnd);

    /// Passes everything up to and with `end`, and adds what comes before it to `value`. False if
    /// something comes that is not plain text.
    bool takeUpTo(QLatin1String end, QString &value);

    /// Passes a name; those that are the same share their text. False if there is none, or not one
    /// of the letters that exports are made of, or far too long a one.
    bool takeName(QString &name);

    /// Whether just this name comes; if so, passes it.
    bool skipName(const QString &name);

    /// Passes what comes behind a "&", and adds the character to `value`, or tells the name of an
    /// entity that is none of the five that all documents have. False if it names no character.
    bool takeReference(QString &value, QString &entity);

    /// Whether a name can go on with it.
    static bool continuesName(QChar character);

    /// To be told at the root element.
    void leaveProlog() { source.leaveProlog(); }

    /// Where the next character stands; only if whoever follows the load wants positions.
    SourcePosition place();

private:
    bool fetch(int index);
    void drop();

    Source source;
    QString text;
    int position = 0;
    const bool countsPlaces;
    SourcePosition counted{1, 1}; // where the character at countedPosition stands
    int countedPosition = 0;
    QChar lastCounted;
    std::array<QString, 256> names;
};
