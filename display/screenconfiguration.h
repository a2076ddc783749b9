// SPDX-License-Identifier: MIT
// The net below the command that takes a rejected mode back: what the X server's RandR extension
// says that the screen shows, and the way back to that without a command.
#pragma once

#include "display/monitor/displaymode.h"

#include <cstdint>
#include <optional>

// What the screen shows, in the terms of RandR's requests GetScreenInfo and SetScreenConfig, which
// know one output, as xrandr -s does.
struct ScreenConfiguration
{
    std::uint16_t width; // of the unrotated screen, in pixels, as height
    std::uint16_t height;
    std::uint16_t rotation; // a bit mask of the RandR standard, 1 for none
    std::uint16_t rate;     // Hz
};

bool operator==(const ScreenConfiguration &a, const ScreenConfiguration &b);

// What the screen shows now; none without an X server that has RandR.
std::optional<ScreenConfiguration> shownConfiguration();

// Whether a rejected mode is still on the screen, given what it shows now, what it showed before
// the mode came, and the mode that the command was to bring back.
bool isRejectedModeLeft(const ScreenConfiguration &now, const ScreenConfiguration &before,
                        const DisplayMode &wanted);

// To be called after that command: when it has left a rejected mode on the screen, sets the
// configuration that was shown before, over RandR, and logs that and whether it could. Returns when
// the toolkit knows the new size or after half a second without it. Nothing happens when the
// command has worked, nor where before is none.
void restoreIfRejectedModeLeft(const std::optional<ScreenConfiguration> &before,
                               const DisplayMode &wanted);
