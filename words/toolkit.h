// SPDX-License-Identifier: MIT
#pragma once

#include <QTranslator>

namespace words
{

/// The texts of the toolkit's own menus in the language that is spoken, for where the toolkit has
/// no translations, as on Windows. All others stay as they are.
class ToolkitTexts : public QTranslator
{
public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *comment,
                      int number) const override;
};

} // namespace words
