// SPDX-License-Identifier: MIT
#pragma once

#include <QSettings>

#include <array>
#include <optional>

namespace window
{

/// How goods get onto the clipboard.
struct CopyOptions {
    bool prefixRows = false;
    bool withDescription = true;
    bool markHtml = true;
    bool extendedOffers = true;
    std::optional<double> priceFactor = {};
};

/// An option that is on or off.
struct CopySwitch {
    bool CopyOptions::*option;
    const char *key;  ///< in the settings
    const char *text; ///< in the words of the code
};

extern const std::array<CopySwitch, 4> copySwitches;

// A factor is for the prices of one day, and is not kept.
void save(QSettings &settings, const CopyOptions &options);
CopyOptions restoredCopyOptions(const QSettings &settings);

} // namespace window
