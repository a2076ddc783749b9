// SPDX-License-Identifier: MIT
#include "display/monitor/modes.h"

#include <algorithm>
#include <iterator>

namespace {

std::uint64_t pixelCount(std::uint32_t width, std::uint32_t height)
{
    return std::uint64_t(width) * height;
}

// 4:3 and 5:4 in ten-thousandths, cut off: above 2500 pixels of width a size a line off can pass.
// A width of 0, which a detailed timing may hold, has no aspect.
bool isNormalAspect(std::uint32_t width, std::uint32_t height)
{
    const std::uint64_t aspect = width == 0 ? 0 : std::uint64_t(10000) * height / width;
    return aspect == 7500 || aspect == 8000;
}

} // namespace

T_MonitorModes monitorModes(std::uint32_t nativeWidth, std::uint32_t nativeHeight)
{
    const bool isNormal = isNormalAspect(nativeWidth, nativeHeight);
    const auto *begin = isNormal ? std::begin(NORMAL_RESOLUTIONS) : std::begin(WIDE_RESOLUTIONS);
    const auto *end = isNormal ? std::end(NORMAL_RESOLUTIONS) : std::end(WIDE_RESOLUTIONS);
    const auto *stop = std::find_if(begin, end, [=](const T_ResolutionEntry &entry) {
        return pixelCount(entry.width, entry.height) > pixelCount(nativeWidth, nativeHeight);
    });
    return {isNormal, {begin, stop}, stop == end ? nullptr : stop};
}

std::vector<T_ResolutionEntry> monitorResolutions(std::uint32_t nativeWidth,
                                                  std::uint32_t nativeHeight)
{
    return monitorModes(nativeWidth, nativeHeight).entries;
}

std::string modeItemText(unsigned width, unsigned height)
{
    return std::to_string(width) + " x " + std::to_string(height);
}
