// SPDX-License-Identifier: MIT
// The net below the command that takes a rejected mode back: what the X server's RandR extension
// says that the screen shows, and the way back to that without a command.
#pragma once

#include "display/monitor/displaymode.h"

#include <cstdint>
#include <memory>
#include <vector>

struct xcb_connection_t;

// A part of the screen that is shown, in the terms of RandR's requests GetCrtcInfo and
// SetCrtcConfig.
struct LitCrtc
{
    std::uint32_t id;
    std::int16_t x; // of its top left corner on the screen, in pixels, as y
    std::int16_t y;
    std::uint16_t width; // as it lies on the screen, in pixels, as height
    std::uint16_t height;
    std::uint32_t mode;                 // has size and rate
    std::uint16_t rotation;             // a bit mask of the RandR standard, 1 for none
    std::vector<std::uint32_t> outputs; // the connectors that show it
};

bool operator==(const LitCrtc &a, const LitCrtc &b);

// Whether the command that was to bring the wanted mode back has failed, given what is shown after
// it and what was shown before the rejected mode came: true when the two differ and the wanted mode
// is not shown, or fewer parts are. False where nothing is known of what was shown before.
bool isPictureLost(const std::vector<LitCrtc> &now, const std::vector<LitCrtc> &before,
                   const DisplayMode &wanted);

// What the screen shows when this is made; nothing without an X server that has RandR 1.3.
class ScreenConfiguration
{
public:
    ScreenConfiguration();

    // To be called after the command that takes a rejected mode back: when the picture is lost,
    // sets what was shown, over RandR, and logs that and whether it could.
    void restoreIfLost(const DisplayMode &wanted);

private:
    std::vector<LitCrtc> shown();

    // Of its own: the toolkit gives its connection away only through headers that are not public.
    const std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t *)> m_x;
    std::uint32_t m_configTime = 0;
    const std::vector<LitCrtc> m_before;
};
