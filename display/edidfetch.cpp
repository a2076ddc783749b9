// SPDX-License-Identifier: MIT
#include "display/edidfetch.h"

#include "display/monitor/edid.h"
#include "display/monitor/edidtransfer.h"

// No write is checked: whether the lines are switched shows in what is read over them.

DdcLines::DdcLines()
{
    for (std::size_t i = 0; i < std::size(CONNECTORS); ++i) {
        const char *const path = CONNECTORS[i].ddcSwitch;
        if (path && m_switches[i].OpenDevice(QLatin1String(path)))
            static_cast<void>(m_switches[i].WriteString(QStringLiteral("1")));
    }
}

DdcLines::~DdcLines()
{
    for (I2CDevice &line : m_switches) {
        if (line.Descriptor() >= 0)
            static_cast<void>(line.WriteString(QStringLiteral("0")));
    }
}

int fetchEdid(unsigned char *edid)
{
    I2CDevice device;
    for (const Connector &connector : CONNECTORS) {
        if (!device.OpenDevice(QLatin1String(connector.ddcBus)))
            continue;
        const bool isValid =
            readEdidBlock(device.Descriptor(), EDID_SLAVE_ADDRESS, edid, EDID_BLOCK_SIZE) == 0 &&
            checkEdidHeader(edid) == 0;
        // A failure is logged, and changes nothing about the block.
        static_cast<void>(device.CloseDevice());
        if (isValid)
            return 0;
    }
    return -1;
}
