// SPDX-License-Identifier: MIT
#include "display/gammacurve.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int POINTS = GAMMA_SEGMENTS + 1;

// The driver's input levels between the segments, on a scale of 384. The last is 383: see
// docs/compatibility.md.
constexpr int INPUTS[POINTS] = {0,   2,   4,   8,   16,  32,  64,  96, 128,
                                160, 192, 224, 256, 288, 320, 352, 383};

// Segments at the dark end, each shorter than the 32 steps of the others.
constexpr int SHORT_SEGMENTS = 5;

constexpr std::uint32_t OFFSET_MASK = 0x1ff;

// The conversion of the box's core, its VCVT instruction; the language leaves it open.
std::int32_t toInteger(double value)
{
    using Limits = std::numeric_limits<std::int32_t>;
    if (std::isnan(value))
        return 0;
    return static_cast<std::int32_t>(std::clamp<double>(value, Limits::min(), Limits::max()));
}

} // namespace

GammaCurve gammaCurve(float gamma)
{
    // The mixture of single and double precision decides the last bit of some entries.
    const double exponent = 1.0 / static_cast<double>(gamma);
    float weights[POINTS] = {};
    float outputs[POINTS] = {};
    for (int i = 0; i < POINTS; ++i) {
        const auto input = static_cast<float>(INPUTS[i]);
        weights[i] = std::atan((input - 32.0F) * 0.03125F) * 81.48739624F;
        const double base = static_cast<double>(input / 384.0F);
        outputs[i] = static_cast<float>(std::pow(base, exponent)) * 255.0F;
    }

    // Unsigned, since all that follows wraps.
    std::uint32_t levels[POINTS] = {};
    const float scale = 256.0F / (weights[POINTS - 1] - weights[0]);
    for (int i = 0; i < POINTS; ++i) {
        const float weight = (weights[i] - weights[0]) * scale;
        const double rounded = static_cast<double>(weight * outputs[i] / 256.0F) + 0.5;
        levels[i] = 2U * static_cast<std::uint32_t>(toInteger(rounded));
    }

    GammaCurve curve = {};
    curve.enable = 1;
    for (int i = 0; i < GAMMA_SEGMENTS; ++i) {
        const std::uint32_t step = levels[i + 1] - levels[i];
        const bool isShort = i < SHORT_SEGMENTS;
        const auto offset = static_cast<std::int32_t>(isShort ? levels[i] - step : levels[i]);
        curve.constk[i] =
            static_cast<std::int32_t>(static_cast<std::uint32_t>(offset / 2) & OFFSET_MASK);
        curve.slopek[i] =
            static_cast<std::int32_t>(isShort ? step << (SHORT_SEGMENTS - 1 - i) : step >> 1);
    }
    return curve;
}
