// SPDX-License-Identifier: MIT
#pragma once

#include <QDomDocument>
#include <QIODevice>

/// Parses the XML of `device`, open for reading, into `document`, in the encoding that the XML
/// declares. The document is the one that QDomDocument::setContent() makes, but without what a
/// DTD declares and without the nodes that stand for entities; and in a plain document, a numeric
/// reference beyond U+FFFF is the character that it names.
///
/// False if the source is not well-formed, goes beyond the limits in sourceparser.cpp that keep it
/// from exhausting the stack, the memory or the time, or if memory runs out all the same;
/// `document` is empty then.
bool parseSource(QIODevice &device, QDomDocument &document);
