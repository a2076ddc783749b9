// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

enum class [[nodiscard]] InstructionResult{
    None,     // the text is empty; the entry was not looked at
    NoEntry,  // the terminal's desktop entry cannot be read; the instruction was not looked at
    Unknown,  // the text is no instruction
    Followed, // the entry was changed; whether it could be saved is for the log to tell
};

// Follows a typed maintenance instruction, which shows or hides the terminal's launcher on the
// desktop by the key "NoDisplay" of its desktop entry. Neither case nor blanks are forgiven.
InstructionResult followInstruction(const QString &typed);
