// SPDX-License-Identifier: MIT
//
// Why a source was not loaded, as a finding.
#pragma once

#include "survey/finding.h"

namespace survey
{

/// Why a file can't be opened: `systemSays`, or where that is likely to be in the language of the
/// system, and the file tells as much, the same in English.
QString whyUnreadable(const QString &path, const QString &systemSays);

/// Of a load that has failed, but not since it was stopped.
Finding failureFinding(const Loading &loading, bool beginsAsHtml);

} // namespace survey
