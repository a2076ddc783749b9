// SPDX-License-Identifier: MIT
// The languages that the window offers. Build, tests and the simulated box read this table as well.
#pragma once

#include <string_view>

struct Language
{
    const char *item; // in the language box, whatever the window's own language
    std::string_view localeLine;
};

// In the order of the language box, which starts on the first.
inline constexpr Language LANGUAGES[] = {
    {"Chinese", "export LANG=zh_CN.UTF-8"},
    {"English", "export LANG=en_US.UTF-8"},
};

// The language that counts when the box shows anything that is no item of the table.
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
