// SPDX-License-Identifier: MIT
#include "window/copyoptions.h"

namespace window
{

const std::array<CopySwitch, 4> copySwitches = {{
    {&CopyOptions::prefixRows, "copy/prefix", QT_TRANSLATE_NOOP("Words", "Begin rows with &##")},
    {&CopyOptions::withDescription, "copy/description",
     QT_TRANSLATE_NOOP("Words", "With &descriptions")},
    {&CopyOptions::markHtml, "copy/html", QT_TRANSLATE_NOOP("Words", "Descriptions are &HTML")},
    {&CopyOptions::extendedOffers, "copy/extended",
     QT_TRANSLATE_NOOP("Words", "&Extended offers of shop feeds")},
}};

void save(QSettings &settings, const CopyOptions &options)
{
    for (const CopySwitch &one : copySwitches)
        settings.setValue(QLatin1String(one.key), options.*one.option);
}

CopyOptions restoredCopyOptions(const QSettings &settings)
{
    CopyOptions options;
    for (const CopySwitch &one : copySwitches)
        options.*one.option = settings.value(QLatin1String(one.key), options.*one.option).toBool();
    return options;
}

} // namespace window
