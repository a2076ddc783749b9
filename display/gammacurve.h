// SPDX-License-Identifier: MIT
// The framebuffer's gamma curve. Plain arithmetic, the same on every machine.
#pragma once

#include <cstdint>

constexpr int GAMMA_SEGMENTS = 16;

// What the i.MX framebuffer driver takes, its struct mxcfb_gamma: a curve of straight segments.
struct GammaCurve
{
    std::int32_t enable;                 // 1: apply the curve
    std::int32_t constk[GAMMA_SEGMENTS]; // offset of each segment, 9 bits
    std::int32_t slopek[GAMMA_SEGMENTS]; // slope of each segment
};
static_assert(sizeof(GammaCurve) == 132, "the driver's structure");

// The curve for a gamma. Every float has one, 0, negative values, infinities and NaN included:
// what does not fit an integer step saturates, what is no number counts as 0, and the integer
// steps wrap in 32 bits, as on the box's core.
GammaCurve gammaCurve(float gamma);
