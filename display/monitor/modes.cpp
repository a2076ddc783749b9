// SPDX-License-Identifier: MIT
#include "display/monitor/modes.h"

#include <algorithm>
#include <iterator>

namespace {

// 4:3 and 5:4 in ten-thousandths, cut off: above 2500 pixels of width a size a line off can pass.
// A width of 0, which a detailed timing may hold, has no aspect.
bool isNormalAspect(const T_NativeTiming &native)
{
    const std::uint64_t aspect =
        native.width == 0 ? 0 : std::uint64_t(10000) * native.height / native.width;
    return aspect == 7500 || aspect == 8000;
}

} // namespace

T_MonitorModes monitorModes(const T_NativeTiming &native)
{
    const bool isNormal = isNormalAspect(native);
    const auto *begin = isNormal ? std::begin(NORMAL_RESOLUTIONS) : std::begin(WIDE_RESOLUTIONS);
    const auto *end = isNormal ? std::end(NORMAL_RESOLUTIONS) : std::end(WIDE_RESOLUTIONS);
    const std::uint64_t nativePixels = std::uint64_t(native.width) * native.height;
    const auto *stop = std::find_if(begin, end, [=](const T_ResolutionEntry &entry) {
        return entry.pixelCount() > nativePixels;
    });
    return {isNormal, {begin, stop}, stop == end ? nullptr : stop};
}

std::string modeItemText(const DisplayMode &mode)
{
    return std::to_string(mode.width) + " x " + std::to_string(mode.height);
}
