// SPDX-License-Identifier: MIT
//
// Why a source was not loaded, as a finding.
#pragma once

#include "survey/finding.h"

namespace survey
{

/// Of a load that has failed, but not since it was stopped.
Finding failureFinding(const Loading &loading, bool beginsAsHtml);

} // namespace survey
