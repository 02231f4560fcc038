// SPDX-License-Identifier: MIT
#include "words/toolkit.h"

#include "words/language.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace words
{

// Of the menus of fields, texts and scroll bars.
static const std::array texts = {
    QT_TRANSLATE_NOOP("Words", "&Undo"),
    QT_TRANSLATE_NOOP("Words", "&Redo"),
    QT_TRANSLATE_NOOP("Words", "Cu&t"),
    QT_TRANSLATE_NOOP("Words", "&Copy"),
    QT_TRANSLATE_NOOP("Words", "Copy &Link Location"),
    QT_TRANSLATE_NOOP("Words", "&Paste"),
    QT_TRANSLATE_NOOP("Words", "Delete"),
    QT_TRANSLATE_NOOP("Words", "Select All"),
    QT_TRANSLATE_NOOP("Words", "&Select All"),
    QT_TRANSLATE_NOOP("Words", "&Step up"),
    QT_TRANSLATE_NOOP("Words", "Step &down"),
    QT_TRANSLATE_NOOP("Words", "Scroll here"),
    QT_TRANSLATE_NOOP("Words", "Top"),
    QT_TRANSLATE_NOOP("Words", "Bottom"),
    QT_TRANSLATE_NOOP("Words", "Left edge"),
    QT_TRANSLATE_NOOP("Words", "Right edge"),
    QT_TRANSLATE_NOOP("Words", "Page up"),
    QT_TRANSLATE_NOOP("Words", "Page down"),
    QT_TRANSLATE_NOOP("Words", "Page left"),
    QT_TRANSLATE_NOOP("Words", "Page right"),
    QT_TRANSLATE_NOOP("Words", "Scroll up"),
    QT_TRANSLATE_NOOP("Words", "Scroll down"),
    QT_TRANSLATE_NOOP("Words", "Scroll left"),
    QT_TRANSLATE_NOOP("Words", "Scroll right"),
};

QString ToolkitTexts::translate(const char * /*context*/, const char *text,
                                const char * /*comment*/, int /*number*/) const
{
    const bool isKnown = std::any_of(texts.begin(), texts.end(), [text](const char *known) {
        return std::strcmp(known, text) == 0;
    });
    return isKnown ? Words::tr(text) : QString();
}

} // namespace words
