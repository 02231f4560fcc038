// SPDX-License-Identifier: MIT
//
// Looks at a source as xml2ryk would export it, and tells what people should know of it.
#pragma once

#include "reader/commxmlreader.h"
#include "survey/finding.h"

#include <QByteArray>
#include <QMap>
#include <QSet>
#include <QString>
#include <QVector>

#include <functional>
#include <unordered_map>

namespace survey
{

/// What is exported, but for sections and groups, which are what there is.
struct Counts {
    int sections = 0; ///< of all kinds, documents among them
    int groups = 0;   ///< or categories
    int goods = 0;    ///< of catalogues
    int offers = 0;
    int partners = 0; ///< one for each document, and for each of those without a number
    int documents = 0;
    int lines = 0; ///< of documents: each has a block of its good and one of its own
};

struct Survey {
    SourceDialect dialect = UndeterminedDialect;
    QString version; ///< of the format, as the source says; null if it does not
    QString date;    ///< of the export, the same
    Counts counts;
    QMap<Kind, int> found;     ///< how many of each kind, be they in findings or not
    QVector<Finding> findings; ///< those of the whole source first, then by position

    bool stopped = false; ///< by Request::goesOn: the rest says nothing

    /// Memory ran out. While the source was loaded, that is a finding, too, of the kind Limit;
    /// where there is none, it was later, and the rest says nothing.
    bool outOfMemory = false;
};

/// From the position of an element to that of the next one which is not within it.
struct Extent {
    SourcePosition begin;
    SourcePosition end;
};

/// By identityOf().
using Extents = std::unordered_map<const void *, Extent>;

/// What a survey has read, for who goes on with it.
struct Loaded {
    QDomDocument tree;
    Extents items;               ///< all that exports come to, be they left out or not
    QVector<QDomElement> groups; ///< or categories, in document order
};

struct Request {
    QString source;
    bool purchase = false;    ///< documents are purchases
    bool all = false;         ///< all findings, not the first ten of a kind
    bool allowEmpty = false;  ///< Kind::Empty is not found
    QSet<Kind> accepted = {}; ///< losses that are doubts
    bool keepsTree = false;   ///< never frees what it loads: for a process that ends soon

    /// Gets what is loaded; null: nobody wants it. Nothing else has the tree then.
    Loaded *loaded = nullptr;

    /// Asked every now and then, with the bytes of the source that have been read and those that
    /// there are, 0 if nobody knows. False stops it.
    std::function<bool(qint64 done, qint64 total)> goesOn = {};
};

/// Opens nothing but the source, and writes nothing.
Survey check(const Request &request);

struct Conversion {
    Survey survey;

    /// All that xml2ryk would have written is in the file, and it is closed. False also where the
    /// source was not loaded: the file is as it was then.
    bool isWritten = false;
    qint64 size = 0;   ///< of the file
    QByteArray digest; ///< of the file, SHA-256
};

/// Writes the very bytes of xml2ryk into `newFile`, which exists, in place of what is in it.
Conversion convert(const Request &request, const QString &newFile);

} // namespace survey
