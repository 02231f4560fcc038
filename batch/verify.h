// SPDX-License-Identifier: MIT
#pragma once

#include "batch/options.h"
#include "batch/output.h"

namespace batch
{

/// Looks at the exchange files of the command line, and has `output` tell of each. What comes back
/// is the exit code.
int verify(const Options &options, Output &output);

} // namespace batch
