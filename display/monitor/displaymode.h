// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

// A display mode: its size in pixels and its refresh rate in Hz.
struct DisplayMode
{
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t refreshRate = 0;
};

// Whether two modes have the same size. The list shows sizes alone and every mode in it is taken to
// be one of 60 Hz, so the refresh rates are not compared.
constexpr bool isSameSize(const DisplayMode &a, const DisplayMode &b)
{
    return a.width == b.width && a.height == b.height;
}
