// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// What a typed maintenance instruction sets the key "NoDisplay" of the terminal's desktop entry
// to: "false" shows the launcher, "true" hides it. A null string for any other text; neither case
// nor blanks are forgiven.
QString noDisplayForInstruction(const QString &typed);
