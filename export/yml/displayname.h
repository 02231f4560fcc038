// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace yml
{

/// The name to show for an offer. A part in square brackets that opens the name is dropped where
/// the rest repeats it, in any case of letters: "[Brand] Brand Drill" becomes "Brand Drill".
/// Brackets that then open the name are removed, "[Brand] Drill" becomes "Brand Drill", and all
/// others become parentheses. Tabs become blanks.
QString displayName(const QString &name);

} // namespace yml
