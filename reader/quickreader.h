// SPDX-License-Identifier: MIT
#pragma once

#include "reader/loading.h"

#include <QDomDocument>
#include <QIODevice>

/// Reads the XML of `device`, open for reading, into `document`, which is empty, where it is as
/// plain as what trade applications export: elements, attributes, texts, CDATA sections, comments,
/// instructions, references to characters and to entities that nobody has declared, an XML
/// declaration, and a document type declaration without an internal subset.
///
/// False where it is anything else, is not well-formed, goes beyond a limit or is stopped. Only of
/// the latter two can `loading` tell: another reader has to say what the source is.
bool readQuickly(QIODevice &device, QDomDocument &document, Loading &loading);
