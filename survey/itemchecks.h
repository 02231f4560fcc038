// SPDX-License-Identifier: MIT
//
// What is odd about an item that is exported, beyond the doubts that the exporter itself has.
#pragma once

#include "export/observer.h"
#include "survey/finding.h"

#include <functional>

namespace survey
{

/// Tells `found` of each oddity. `isDoubted`: whether the exporter has reported a doubt of a kind.
void checkItem(const exporter::Item &item, const std::function<bool(Kind kind)> &isDoubted,
               const std::function<void(Kind kind, const QStringList &details)> &found);

} // namespace survey
