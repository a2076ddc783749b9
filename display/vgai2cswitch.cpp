// SPDX-License-Identifier: MIT
#include "display/vgai2cswitch.h"

VgaI2cSwitch::VgaI2cSwitch()
    : m_isOpen(m_file.OpenDevice(I2CDevice::VGA_I2C_SWITCH_ENABLE_FILE_NAME))
{
    if (m_isOpen)
        m_file.WriteString(QStringLiteral("1"));
}

VgaI2cSwitch::~VgaI2cSwitch()
{
    if (!m_isOpen)
        return;
    m_file.WriteString(QStringLiteral("0"));
    m_file.CloseDevice();
}
