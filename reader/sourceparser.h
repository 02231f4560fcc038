// SPDX-License-Identifier: MIT
#pragma once

#include "reader/loading.h"

#include <QDomDocument>
#include <QIODevice>

/// Parses the XML of `device`, open for reading, into `document`, in the encoding that the XML
/// declares. The document is the one that QDomDocument::setContent() makes, but without its
/// document type and what that declares, and without the nodes that stand for entities; and in a
/// plain document, a numeric reference beyond U+FFFF is the character that it names.
///
/// False if the source is not well-formed, goes beyond a limit of reader/limits.h, if memory runs
/// out all the same, or if whoever follows the load stops it: `document` is empty then, and
/// `loading` tells which.
bool parseSource(QIODevice &device, QDomDocument &document, Loading *loading = nullptr);
