// SPDX-License-Identifier: MIT
// Reads the attached monitor's EDID block from the connectors' buses.
#pragma once

#include "display/connectors.h"
#include "display/i2cdevice.h"

#include <iterator>

// Leads all switched DDC lines to their buses for as long as it lives. Where a switch file is
// missing nothing is written. No write is checked: what counts is whether a block can be read.
class DdcLines
{
public:
    DdcLines();
    ~DdcLines();
    Q_DISABLE_COPY(DdcLines)

private:
    I2CDevice m_switches[std::size(CONNECTORS)];
};

// Reads the block, 128 bytes, of the first monitor in CONNECTORS that gives a usable one. 0, or -1
// when none does; edid then holds what the last attempt left there.
[[nodiscard]] int fetchEdid(unsigned char *edid);
