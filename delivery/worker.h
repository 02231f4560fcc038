// SPDX-License-Identifier: MIT
//
// The worker: a process of the program that takes one source after the other for its batch.
#pragma once

#include "survey/survey.h"

#include <functional>

namespace delivery
{

/// What the batch starts the program with; no user does.
constexpr const char *workerArgument = "--worker-of-a-batch";

/// What a worker can do: survey::check() and survey::convert().
struct Craft {
    std::function<survey::Survey(const survey::Request &request)> check;
    std::function<survey::Conversion(const survey::Request &request, const QString &newFile)>
        convert;
};

/// Takes orders until there are no more. What comes back is the exit code of the process.
int work(const Craft &craft);

} // namespace delivery
