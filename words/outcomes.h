// SPDX-License-Identifier: MIT
//
// What became of a source or a destination, in words.
#pragma once

#include "delivery/outcome.h"

#include <QString>

namespace words
{

/// Why there is no outcome, or no new exchange file; empty for Reason::Kind::None.
QString sentence(const delivery::Reason &reason);

/// What the system says of a failure, in our words where it is a common one; else as it is.
QString systemWords(const QString &systemMessage);

} // namespace words
