// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The name to show for an offer. A name that opens with a part in square brackets loses that part
/// where the rest repeats it, in any case of letters, and its brackets otherwise: "[Brand] Brand
/// Drill" becomes "Brand Drill", and "[Brand] Drill" too. Brackets that stay become parentheses,
/// tabs become blanks.
QString displayName(const QString &name);
