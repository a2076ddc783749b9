// SPDX-License-Identifier: MIT
// Decodes the base block of a monitor's EDID. Any 128 bytes whatever give a defined answer.
//
// Offsets, bits and units are those of the VESA E-EDID standard, Release A Revision 1 (EDID
// structure 1.3); the comments name its sections. The checksum and the count of extensions are
// never read: a wrong checksum is no reason to refuse a monitor's list.
#pragma once

#include <cstdint>
#include <string>

// Bytes in the base block (3.1), and in each block given to the functions below.
constexpr unsigned short EDID_BLOCK_SIZE = 128;

struct T_NativeTiming
{
    std::uint32_t width = 0;      // pixels, at most 4095
    std::uint32_t height = 0;     // lines, at most 4095
    std::uint32_t pixelClock = 0; // Hz
};

// Whether edid is a usable block: 0 if its header and version are, -1 if not or if edid is null.
[[nodiscard]] int checkEdidHeader(const unsigned char *edid);

// The first detailed timing with a pixel clock and with non-zero totals, which is the preferred
// one under EDID 1.3. The header is not looked at. 0, or -1 when there is none; out then keeps
// what it held. The width or the height can be 0 where the blanking is not.
[[nodiscard]] int getNativeTiming(const unsigned char *edid, T_NativeTiming &out);

// The rates of the first range limits descriptor, in kHz and Hz. 0, or -1 when edid is null or not
// a usable block or has no such descriptor; all four are 0 then.
[[nodiscard]] int getRangeLimits(const unsigned char *edid, unsigned &minHorizontalKHz,
                                 unsigned &maxHorizontalKHz, unsigned &minVerticalHz,
                                 unsigned &maxVerticalHz);

// The whole block for a human reader, or "Not a valid EDID" when edid is null or not usable. Each
// line ends in a line feed. Texts are the monitor's own bytes, whatever their encoding.
std::string edidText(const unsigned char *edid);

// Writes edidText to standard output. Errors are left in the stream for the caller.
void printEdid(const unsigned char *edid);

// Cuts the white space at the end of a NUL-terminated string, in place, whatever the locale.
// Returns s.
char *trimTrailingSpace(char *s);
