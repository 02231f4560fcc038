// SPDX-License-Identifier: MIT
//
// The language that people are told things in, and the texts in it.
#pragma once

#include <QString>
#include <QtGlobal>

namespace words
{

enum class Language { English, Russian };

/// That of the user: by LC_ALL, LC_MESSAGES or LANG, where LANGUAGE may name another one, and on
/// Windows, where none of them is set, by what the system shows its own texts in. What is not
/// Russian is English.
Language languageOfUser();

/// For as long as it lives, words come in this language; where there is none, in English. The
/// latest one counts. It is for the one thread that tells people things.
class Speaking
{
public:
    explicit Speaking(Language language);
    ~Speaking();
    Q_DISABLE_COPY(Speaking)

private:
    Language before;
};

class Words
{
public:
    /// A text in the language that is spoken. The catalogues know it by its English, and by a
    /// comment if it has one. In a text with a number, %n is replaced by that, and what stands
    /// around it agrees with it.
    static QString tr(const char *text, const char *comment = nullptr, int number = -1);
};

} // namespace words
