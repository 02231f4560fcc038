// SPDX-License-Identifier: MIT
//
// What a run is to do, and whether its files get in each other's way.
#pragma once

#include "batch/options.h"
#include "delivery/run.h"

#include <QString>

#include <vector>

namespace batch
{

/// Each source, and where its exchange file goes; for `verify` each exchange file, and the source.
/// Where that would lose a file, `refusal` is a line that says why.
std::vector<delivery::Job> planJobs(const Options &options, QString &refusal);

} // namespace batch
