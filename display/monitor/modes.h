// SPDX-License-Identifier: MIT
// The display modes that the tool knows, and which of them fit a monitor.
#pragma once

#include "display/monitor/displaymode.h"
#include "display/monitor/edid.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// The refresh rate of every mode that does not name one, in Hz.
constexpr std::uint32_t STANDARD_REFRESH_HZ = 60;

// Sizes in pixels. The text is the mode as the boot loader's environment writes it.
struct T_ResolutionEntry
{
    const char *text;
    std::uint32_t width;
    std::uint32_t height;

    constexpr DisplayMode mode() const { return {width, height, STANDARD_REFRESH_HZ}; }
    constexpr std::uint64_t pixelCount() const { return std::uint64_t(width) * height; }
};

// In the order in which the full list shows them, which is not that of their pixel counts.
inline constexpr T_ResolutionEntry ALL_RESOLUTIONS[] = {
    {"800x600@60", 800, 600},     {"1024x768@60", 1024, 768}, {"1280x720@60", 1280, 720},
    {"1280x800@60", 1280, 800},   {"1280x960@60", 1280, 960}, {"1280x1024@60", 1280, 1024},
    {"1360x768@60", 1360, 768},   {"1440x900@60", 1440, 900}, {"1680x1050@60", 1680, 1050},
    {"1920x1080@60", 1920, 1080},
};

// For monitors that are neither 4:3 nor 5:4.
inline constexpr T_ResolutionEntry WIDE_RESOLUTIONS[] = {
    {"800x600@60", 800, 600},     {"1024x768@60", 1024, 768},   {"1280x720@60", 1280, 720},
    {"1280x800@60", 1280, 800},   {"1360x768@60", 1360, 768},   {"1440x900@60", 1440, 900},
    {"1680x1050@60", 1680, 1050}, {"1920x1080@60", 1920, 1080},
};

// For 4:3 and 5:4 monitors.
inline constexpr T_ResolutionEntry NORMAL_RESOLUTIONS[] = {
    {"800x600@60", 800, 600},
    {"1024x768@60", 1024, 768},
    {"1280x960@60", 1280, 960},
    {"1280x1024@60", 1280, 1024},
};

template<std::size_t count>
constexpr bool isByAscendingPixelCount(const T_ResolutionEntry (&table)[count])
{
    for (std::size_t i = 1; i < count; ++i) {
        if (table[i - 1].pixelCount() >= table[i].pixelCount())
            return false;
    }
    return true;
}
// The filter stops at the first row that is too large.
static_assert(isByAscendingPixelCount(WIDE_RESOLUTIONS));
static_assert(isByAscendingPixelCount(NORMAL_RESOLUTIONS));

// What a monitor is offered, and why no more.
struct T_MonitorModes
{
    bool isNormal;                          // from NORMAL_RESOLUTIONS, else from WIDE_RESOLUTIONS
    std::vector<T_ResolutionEntry> entries; // in table order
    const T_ResolutionEntry *tooLarge;      // the row that ended the walk, null at the table's end
};

// Filters by the monitor's native size, any two numbers. Only the pixel counts are compared, so a
// mode can be offered that is wider or higher than the monitor.
T_MonitorModes monitorModes(const T_NativeTiming &native);

// "1280 x 1024", the form in which the list shows a mode's size.
std::string modeItemText(const DisplayMode &mode);
