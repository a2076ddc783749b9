// SPDX-License-Identifier: MIT
#include "display/monitor/edidtransfer.h"

#include <linux/i2c-dev.h>
#include <linux/i2c.h>
#include <sys/ioctl.h>

int readEdidBlock(int fd, unsigned short slaveAddress, unsigned char *buf, unsigned short len)
{
    constexpr int ATTEMPTS = 3;
    constexpr int MESSAGES = 2;

    unsigned char wordOffset = 0;
    i2c_msg messages[MESSAGES] = {
        {slaveAddress, 0, 1, &wordOffset},
        {slaveAddress, I2C_M_RD, len, buf},
    };
    i2c_rdwr_ioctl_data transfer = {messages, MESSAGES};

    for (int attempt = 0; attempt < ATTEMPTS; ++attempt) {
        if (ioctl(fd, I2C_RDWR, &transfer) == MESSAGES)
            return 0;
    }
    return -1;
}
