// SPDX-License-Identifier: MIT
#include "display/i2cdevice.h"

const QString I2CDevice::VGA_I2C_FILE_NAME = QStringLiteral("/dev/i2c-2");
const QString I2CDevice::HDMI_I2C_FILE_NAME = QStringLiteral("/dev/i2c-1");
const QString I2CDevice::VGA_I2C_SWITCH_ENABLE_FILE_NAME =
    QStringLiteral("/sys/class/leds/vga-i2c-enb/brightness");
