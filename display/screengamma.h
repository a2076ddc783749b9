// SPDX-License-Identifier: MIT
#pragma once

// Gives the box's framebuffer the curve for a gamma, any float. False when it does not take it; the
// log then says why.
bool setScreenGamma(float gamma);
