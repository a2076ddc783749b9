// SPDX-License-Identifier: MIT
// Builds EDID blocks for tests: a usable header of version 1.3, the rest empty until it is set.
#pragma once

#include "display/monitor/edid.h"

#include <QByteArray>

class EdidBlock : public QByteArray
{
public:
    EdidBlock()
        : QByteArray(EDID_BLOCK_SIZE, '\0')
    {
        set(0, "00ffffffffffff00").set(18, "0103");
    }

    EdidBlock &set(int offset, const QByteArray &hex)
    {
        const QByteArray bytes = QByteArray::fromHex(hex);
        replace(offset, bytes.size(), bytes);
        return *this;
    }

    // A detailed timing in one of the four slots; the clock is in 10 kHz.
    EdidBlock &timing(int slot, int clock, int width, int blankWidth, int height, int blankHeight)
    {
        char *out = data() + 54 + 18 * slot;
        const int wide = (width >> 8) << 4 | blankWidth >> 8;
        const int high = (height >> 8) << 4 | blankHeight >> 8;
        for (int byte : {clock, clock >> 8, width, blankWidth, wide, height, blankHeight, high})
            *out++ = char(byte);
        return *this;
    }
};
