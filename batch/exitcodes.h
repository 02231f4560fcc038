// SPDX-License-Identifier: MIT
//
// What xml2ryk-batch ends with.
#pragma once

#include <QVector>

namespace batch
{

struct ExitCodeInfo {
    const char *code;
    const char *meaning; ///< to be translated
};

/// All of them, for help.
const QVector<ExitCodeInfo> &exitCodes();

/// The graver one of two that are no bad usage.
int graver(int one, int other);

} // namespace batch
