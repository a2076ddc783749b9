// SPDX-License-Identifier: MIT
// Text forms of a display mode.
#pragma once

#include "display/monitor/modes.h"

#include <QStringList>

enum class [[nodiscard]] ModeTextResult{
    Read,      // the deciding number is there
    LastIsBad, // width and height were reached, the deciding number is malformed
    NoWidth,   // no x, or no number before it
};

// Reads "1920x1080@60" and its relatives: a letter M anywhere (as in a kernel video mode) is passed
// over, X serves as x, and without an @ the refresh rate is 60 Hz. What was read before a failure
// is set in mode, a malformed number to 0, and the rest keeps what it held. The last number alone
// decides: a bad height before a good refresh rate passes as 0.
ModeTextResult parseModeText(const QString &text, DisplayMode &mode);

// "1280 x 1024", the form in which the list of modes shows a mode's size.
QString modeItem(const DisplayMode &mode);

// The entries as the list shows them, in their order.
QStringList modeItems(const std::vector<T_ResolutionEntry> &entries);
