// SPDX-License-Identifier: MIT
#pragma once

#include "display/i2cdevice.h"

// Leads the VGA connector's DDC lines to the I2C bus for as long as it lives. Without the switch
// file nothing is written. Neither write is checked: what counts is whether a block can be read.
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
