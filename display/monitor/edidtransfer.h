// SPDX-License-Identifier: MIT
// The transfer of a monitor's EDID over the display connector's DDC lines.
#pragma once

// The monitor's address on the bus: the 8-bit A0h of the VESA E-DDC standard, in the kernel's
// 7-bit form.
constexpr unsigned short EDID_SLAVE_ADDRESS = 0x50;

// Reads len bytes of EDID from its start into buf, through fd, an open Linux I2C adapter
// (/dev/i2c-N). A failed transfer is tried again at once, three attempts in all. 0, or -1 when none
// succeeded; errno is that of the last attempt if the adapter gave one, and buf may hold part of a
// transfer. Blocks for as long as the adapter takes.
[[nodiscard]] int readEdidBlock(int fd, unsigned short slaveAddress, unsigned char *buf,
                                unsigned short len);
