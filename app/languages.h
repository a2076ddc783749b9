// SPDX-License-Identifier: MIT
// The languages that the window offers. Build, tests and the simulated box read this table as well.
#pragma once

#include <QtGlobal>

#include <string_view>

struct Language
{
    const char *item; // in the language box, translatable in "DialogMain"
    std::string_view localeLine;
};

// In the order of the language box, which starts on the first.
inline constexpr Language LANGUAGES[] = {
    //: Stays as it is in every language: the choice is compared with this very word.
    {QT_TRANSLATE_NOOP("DialogMain", "Chinese"), "export LANG=zh_CN.UTF-8"},
    //: Stays as it is in every language: the choice is compared with this very word.
    {QT_TRANSLATE_NOOP("DialogMain", "English"), "export LANG=en_US.UTF-8"},
};

// The language that counts when the box shows anything else, a translation of an item included.
inline constexpr const Language &FALLBACK_LANGUAGE = LANGUAGES[1];
static_assert(std::string_view(FALLBACK_LANGUAGE.item) == "English");

constexpr bool areLocaleLinesOfOneLength()
{
    for (const Language &language : LANGUAGES) {
        if (language.localeLine.size() != FALLBACK_LANGUAGE.localeLine.size())
            return false;
    }
    return true;
}
// They replace each other in place in the profile.
static_assert(areLocaleLinesOfOneLength());
