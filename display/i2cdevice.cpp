// SPDX-License-Identifier: MIT
#include "display/i2cdevice.h"

#include "display/connectors.h"

#include <string_view>

namespace {

constexpr const Connector &VGA = CONNECTORS[0];
static_assert(std::string_view(VGA.name) == "vga");
constexpr const Connector &HDMI = CONNECTORS[1];
static_assert(std::string_view(HDMI.name) == "hdmi");

} // namespace

const QString I2CDevice::VGA_I2C_FILE_NAME = QLatin1String(VGA.ddcBus);
const QString I2CDevice::HDMI_I2C_FILE_NAME = QLatin1String(HDMI.ddcBus);
const QString I2CDevice::VGA_I2C_SWITCH_ENABLE_FILE_NAME = QLatin1String(VGA.ddcSwitch);
