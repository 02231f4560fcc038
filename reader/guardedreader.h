// SPDX-License-Identifier: MIT
#pragma once

#include "reader/loading.h"

#include <QDomDocument>
#include <QIODevice>

/// Reads any XML of `device`, open for reading, into `document`, which is empty, by the parser of
/// the toolkit. False where that fails or a limit is reached, which `loading` tells.
bool readGuarded(QIODevice &device, QDomDocument &document, Loading &loading);
