// SPDX-License-Identifier: MIT
#pragma once

#include "display/basedevice.h"

// A monitor's DDC lines, or a file that belongs to them. The paths are those of CONNECTORS.
class I2CDevice : public BaseDevice
{
public:
    // The kernel's adapter on the VGA connector's DDC lines.
    static const QString VGA_I2C_FILE_NAME;
    // The same on the HDMI connector.
    static const QString HDMI_I2C_FILE_NAME;
    // The board's switch of the VGA connector's DDC lines.
    static const QString VGA_I2C_SWITCH_ENABLE_FILE_NAME;
};
