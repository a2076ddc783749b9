// SPDX-License-Identifier: MIT
// Text forms of a display mode, and the commands made of them.
#pragma once

#include <QString>

enum class ModeTextResult {
    Read,      // the deciding number is there
    LastIsBad, // width and height were reached, the deciding number is malformed
    NoWidth,   // no x, or no number before it
};

// Reads "1920x1080@60" and its relatives: a letter M anywhere (as in a kernel video mode) is passed
// over, X serves as x, and without an @ the refresh rate is 60 Hz. width and height are in
// pixels, refreshRate in Hz. What was read before a failure is set, a malformed number to 0, and
// the rest keeps what it held. The last number alone decides: a bad height before a good refresh
// rate passes as 0.
ModeTextResult parseModeText(const QString &text, quint32 &width, quint32 &height,
                             quint32 &refreshRate);

// The command line that switches the screen to a mode, in pixels and Hz.
QString switchScreenCommand(quint32 width, quint32 height, quint32 refreshRate);

// The command line that stores a mode, in pixels and Hz, in the boot loader's environment.
QString storeModeCommand(quint32 width, quint32 height, quint32 refreshRate);

// "1280 x 1024", the form in which the list of modes shows a size in pixels.
QString modeItem(quint32 width, quint32 height);
