// SPDX-License-Identifier: MIT
#pragma once

#include "display/i2cdevice.h"

// Leads the VGA connector's DDC lines to the I2C bus for as long as it lives. A box without the
// switch file has the lines on the bus at all times: nothing is written then. Neither write is
// checked, since the read of the monitor's block that follows tells more.
class VgaI2cSwitch
{
public:
    VgaI2cSwitch();
    ~VgaI2cSwitch();
    VgaI2cSwitch(const VgaI2cSwitch &) = delete;
    VgaI2cSwitch &operator=(const VgaI2cSwitch &) = delete;

private:
    I2CDevice m_file;
    const bool m_isOpen;
};
