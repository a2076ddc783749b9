// SPDX-License-Identifier: MIT
// The mode that the box runs in: xrandr switches it, the boot loader's environment keeps it.
#pragma once

#include "display/monitor/displaymode.h"

#include <QString>

// Reads the mode's text from the boot loader's environment, trimmed. False when it cannot be read;
// error then is what the command said, empty if it did not start or did not end in time.
[[nodiscard]] bool readStoredMode(QString &text, QString &error);

// Switches the screen to a mode, and returns when the toolkit knows the new size or after half a
// second without it. Whether the screen shows the mode is for the user in front of it to say.
void switchScreen(const DisplayMode &mode);

// Stores a mode for the next start, on the storage before this returns: the box may be switched off
// right after. False when that fails; error then is what the command said, empty if it did not
// start or did not end in time.
[[nodiscard]] bool storeMode(const DisplayMode &mode, QString &error);
