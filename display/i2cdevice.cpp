// SPDX-License-Identifier: MIT
#include "display/i2cdevice.h"

#include "display/connectors.h"

#include <string_view>

namespace {

// The compiler stops where it would have to throw: for a name that the table lacks.
constexpr const Connector &connectorNamed(std::string_view name)
{
    for (const Connector &connector : CONNECTORS) {
        if (name == connector.name)
            return connector;
    }
    throw "no such connector";
}

constexpr const Connector &VGA = connectorNamed("vga");
constexpr const Connector &HDMI = connectorNamed("hdmi");

} // namespace

const QString I2CDevice::VGA_I2C_FILE_NAME = QLatin1String(VGA.ddcBus);
const QString I2CDevice::HDMI_I2C_FILE_NAME = QLatin1String(HDMI.ddcBus);
const QString I2CDevice::VGA_I2C_SWITCH_ENABLE_FILE_NAME = QLatin1String(VGA.ddcSwitch);
