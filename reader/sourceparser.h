// SPDX-License-Identifier: MIT
#pragma once

#include <QDomDocument>
#include <QIODevice>

/// Parses the XML of `device`, open for reading, into `document`, in the encoding that the XML
/// declares. The document is the one that QDomDocument::setContent() makes, except that a reference
/// to an undeclared entity leaves no node. False if the source is not well-formed; `document` then
/// has no defined content.
bool parseSource(QIODevice &device, QDomDocument &document);
