// SPDX-License-Identifier: MIT
// The board's display connectors. The simulated box reads this table as well.
#pragma once

struct Connector
{
    const char *name;
    const char *ddcBus; // the kernel's I2C adapter on the connector's DDC lines
    // The board's switch, a sysfs LED: "1" leads the DDC lines to the adapter, "0" away from it.
    // Null where they always lead there.
    const char *ddcSwitch;
};

// In order of preference: the monitor on the first row that answers is the one that counts.
inline constexpr Connector CONNECTORS[] = {
    {"vga", "/dev/i2c-2", "/sys/class/leds/vga-i2c-enb/brightness"},
    {"hdmi", "/dev/i2c-1", nullptr},
};
