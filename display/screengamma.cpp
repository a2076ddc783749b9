// SPDX-License-Identifier: MIT
#include "display/screengamma.h"

#include "display/fbdevice.h"

bool setScreenGamma(float gamma)
{
    FbDevice *const framebuffer = FbDevice::Instance();
    // Not checked: without an open device the next step fails.
    framebuffer->OpenDevice(FbDevice::DEV_NAME);
    const bool isSet = framebuffer->SetGamma(gamma);
    framebuffer->CloseDevice();
    return isSet;
}
