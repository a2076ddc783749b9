// SPDX-License-Identifier: MIT
#include "display/monitor/edid.h"

#include <algorithm>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <iterator>

namespace {

// 3.3, 3.4, 3.5
constexpr unsigned char HEADER[] = {0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00};
constexpr int MANUFACTURER = 8;
constexpr int PRODUCT_CODE = 10;
constexpr int SERIAL_NUMBER = 12;
constexpr int WEEK = 16;
constexpr int YEAR = 17;
constexpr int FIRST_YEAR = 1990;
constexpr int VERSION = 18;
constexpr int REVISION = 19;

// 3.6
constexpr int VIDEO_INPUT = 20;
constexpr int WIDTH_CM = 21;
constexpr int HEIGHT_CM = 22;
constexpr int FEATURES = 24;

// 3.8, 3.9
constexpr int ESTABLISHED_TIMINGS = 35;
constexpr int STANDARD_TIMINGS = 38;
constexpr int STANDARD_TIMING_COUNT = 8;

// 3.10
constexpr int DESCRIPTORS = 54;
constexpr int DESCRIPTOR_SIZE = 18;
constexpr int DESCRIPTOR_COUNT = 4;
constexpr unsigned CLOCK_UNIT_HZ = 10000;

// 3.10.3, display descriptors
constexpr int TAG = 3;
constexpr int TAG_SERIAL_NUMBER = 0xFF;
constexpr int TAG_TEXT = 0xFE;
constexpr int TAG_RANGE_LIMITS = 0xFD;
constexpr int TAG_NAME = 0xFC;
constexpr int TEXT = 5;
constexpr int TEXT_SIZE = 13;
constexpr int MIN_VERTICAL_HZ = 5;
constexpr int MAX_VERTICAL_HZ = 6;
constexpr int MIN_HORIZONTAL_KHZ = 7;
constexpr int MAX_HORIZONTAL_KHZ = 8;
constexpr int MAX_CLOCK_10MHZ = 9;

// Bit 7 of the first byte first. The last two have no unit: see docs/compatibility.md.
constexpr const char *ESTABLISHED_TIMING_LINES[] = {
    "\t720x400\t\t70 Hz (VGA 640x400, IBM)\n",
    "\t720x400\t\t88 Hz (XGA2)\n",
    "\t640x480\t\t60 Hz (VGA)\n",
    "\t640x480\t\t67 Hz (Mac II, Apple)\n",
    "\t640x480\t\t72 Hz (VESA)\n",
    "\t640x480\t\t75 Hz (VESA)\n",
    "\t800x600\t\t56 Hz (VESA)\n",
    "\t800x600\t\t60 Hz (VESA)\n",
    "\t800x600\t\t72 Hz (VESA)\n",
    "\t800x600\t\t75 Hz (VESA)\n",
    "\t832x624\t\t75 Hz (Mac II)\n",
    "\t1024x768\t87 Hz Interlaced (8514A)\n",
    "\t1024x768\t60 Hz (VESA)\n",
    "\t1024x768\t70 Hz (VESA)\n",
    "\t1024x768\t75 Hz (VESA)\n",
    "\t1280x1024\t75 (VESA)\n",
    "\t1152x870\t75 (Mac II)\n",
};

// Height in ten-thousandths of the width, by the aspect code of a standard timing (3.9).
constexpr unsigned ASPECT_RATIOS[] = {6250, 7500, 8000, 5625};

constexpr std::uint32_t NO_SERIAL_NUMBER = 0xFFFFFFFF;

// A detailed timing (3.10.2), sizes in pixels and lines.
struct DetailedTiming
{
    unsigned clock; // in CLOCK_UNIT_HZ
    unsigned width;
    unsigned height;
    unsigned totalWidth;
    unsigned totalHeight;
};

const unsigned char *descriptor(const unsigned char *edid, std::size_t index)
{
    return edid + DESCRIPTORS + index * DESCRIPTOR_SIZE;
}

unsigned littleEndian16(const unsigned char *bytes)
{
    return bytes[0] | unsigned(bytes[1]) << 8;
}

bool isDetailedTiming(const unsigned char *bytes)
{
    return littleEndian16(bytes) != 0;
}

DetailedTiming detailedTiming(const unsigned char *bytes)
{
    DetailedTiming timing{};
    timing.clock = littleEndian16(bytes);
    timing.width = bytes[2] | (bytes[4] & 0xF0U) << 4;
    timing.totalWidth = timing.width + (bytes[3] | (bytes[4] & 0x0FU) << 8);
    timing.height = bytes[5] | (bytes[7] & 0xF0U) << 4;
    timing.totalHeight = timing.height + (bytes[6] | (bytes[7] & 0x0FU) << 8);
    return timing;
}

// A line of the dump; the longest, with every part of the video input, has 131 characters.
__attribute__((format(printf, 1, 2))) std::string line(const char *format, ...)
{
    char text[160];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    return text;
}

std::string manufacturerOf(const unsigned char *edid)
{
    const unsigned letters = unsigned(edid[MANUFACTURER]) << 8 | edid[MANUFACTURER + 1];
    return {char('@' + (letters >> 10 & 0x1F)), char('@' + (letters >> 5 & 0x1F)),
            char('@' + (letters & 0x1F))};
}

std::uint32_t serialNumberOf(const unsigned char *edid, const std::string &manufacturer)
{
    const std::uint32_t serialNumber =
        littleEndian16(edid + SERIAL_NUMBER) | littleEndian16(edid + SERIAL_NUMBER + 2) << 16;
    if (serialNumber == NO_SERIAL_NUMBER)
        return serialNumber;
    // Three makers count from a number of their own. A smaller one wraps.
    if (manufacturer == "MAG")
        return serialNumber - 117440512;
    if (manufacturer == "OQI")
        return serialNumber - 456150000;
    if (manufacturer == "VSC")
        return serialNumber - 640000000;
    return serialNumber;
}

std::string identityText(const unsigned char *edid)
{
    const std::string manufacturer = manufacturerOf(edid);
    return line("EDID version: %d.%d\n", edid[VERSION], edid[REVISION]) +
           line("Product ID code: %04x\n", littleEndian16(edid + PRODUCT_CODE)) +
           line("Manufacturer: %s\n", manufacturer.c_str()) +
           line("Serial number: %08x\n", serialNumberOf(edid, manufacturer)) +
           line("Manufactured in week: %d year: %d\n", edid[WEEK], edid[YEAR] + FIRST_YEAR);
}

std::string displayText(const unsigned char *edid)
{
    // The low five bits mean this for analogue inputs only; a digital input's are worded the same.
    const int input = edid[VIDEO_INPUT];
    const int features = edid[FEATURES];
    return line("Video input definition: %svoltage level %d%s%s%s%s%s\n",
                (input & 0x80) != 0 ? "digital signal, " : "analog signal, ", input >> 5 & 0x03,
                (input & 0x10) != 0 ? ", blank to black" : "",
                (input & 0x08) != 0 ? ", separate sync" : "",
                (input & 0x04) != 0 ? ", composite sync" : "",
                (input & 0x02) != 0 ? ", sync on green" : "",
                (input & 0x01) != 0 ? ", serration v" : "") +
           line("Monitor is %s\n", (features & 0x04) != 0 ? "RGB" : "non-RGB") +
           line("Maximum visible display size: %d cm x %d cm\n", edid[WIDTH_CM], edid[HEIGHT_CM]) +
           line("Power management features: %sactive off, %ssuspend, %sstandby\n",
                (features & 0x20) != 0 ? "" : "no ", (features & 0x40) != 0 ? "" : "no ",
                (features & 0x80) != 0 ? "" : "no ");
}

std::string establishedTimingsText(const unsigned char *edid)
{
    std::string text = "Estabilished timings:\n"; // so spelt: docs/compatibility.md
    int index = 0;
    for (const char *timing : ESTABLISHED_TIMING_LINES) {
        if ((edid[ESTABLISHED_TIMINGS + index / 8] & 0x80 >> index % 8) != 0)
            text += timing;
        ++index;
    }
    return text;
}

// Keeps the refresh rates of one dump in a column.
char separator(unsigned width)
{
    return width > 1000 ? ' ' : '\t';
}

std::string standardTimingsText(const unsigned char *edid)
{
    std::string text;
    for (std::size_t index = 0; index < STANDARD_TIMING_COUNT; ++index) {
        const unsigned char *timing = edid + STANDARD_TIMINGS + 2 * index;
        const int rate = timing[1] & 0x3F;
        // 01 01 marks an entry as unused, and 00 00 is taken for the same.
        if (timing[0] <= 1 && timing[0] == rate)
            continue;
        const unsigned width = (timing[0] + 31U) * 8;
        const unsigned height = width * ASPECT_RATIOS[timing[1] >> 6] / 10000;
        text += line("\t%ux%u%c\t%d Hz\n", width, height, separator(width), rate + 60);
    }
    return text;
}

std::string detailedTimingText(const unsigned char *bytes)
{
    const DetailedTiming timing = detailedTiming(bytes);
    const unsigned total = timing.totalWidth * timing.totalHeight;
    const unsigned refresh = total == 0 ? 1 : timing.clock * CLOCK_UNIT_HZ / total;
    return line("\t%ux%u%c\t%u Hz (detailed)\n", timing.width, timing.height,
                separator(timing.width), refresh);
}

std::string displayDescriptorText(const unsigned char *bytes)
{
    char text[TEXT_SIZE + 1] = {};
    std::memcpy(text, bytes + TEXT, TEXT_SIZE);
    trimTrailingSpace(text);

    switch (bytes[TAG]) {
    case TAG_SERIAL_NUMBER:
        return line("Monitor serial number: %s\n", text);
    case TAG_TEXT:
        return line("Monitor ID: %s\n", text);
    case TAG_NAME:
        return line("Monitor name: %s\n", text);
    case TAG_RANGE_LIMITS:
        return line("Monitor range limits, horizontal sync: %d-%d kHz, vertical refresh: %d-%d Hz, "
                    "max pixel clock: %d MHz\n",
                    bytes[MIN_HORIZONTAL_KHZ], bytes[MAX_HORIZONTAL_KHZ], bytes[MIN_VERTICAL_HZ],
                    bytes[MAX_VERTICAL_HZ], bytes[MAX_CLOCK_10MHZ] * 10);
    default:
        return {};
    }
}

} // namespace

int checkEdidHeader(const unsigned char *edid)
{
    if (edid == nullptr || edid[VERSION] == 0)
        return -1;
    if (!std::equal(std::begin(HEADER), std::end(HEADER), edid))
        return -1;
    // A bus that floats high after the header still reads as ones here.
    return edid[VERSION] < 0xFF || edid[REVISION] < 0xFF ? 0 : -1;
}

int getNativeTiming(const unsigned char *edid, T_NativeTiming &out)
{
    for (std::size_t index = 0; index < DESCRIPTOR_COUNT; ++index) {
        const unsigned char *bytes = descriptor(edid, index);
        if (!isDetailedTiming(bytes))
            continue;
        const DetailedTiming timing = detailedTiming(bytes);
        if (timing.totalWidth != 0 && timing.totalHeight != 0) {
            out = {timing.width, timing.height, timing.clock * CLOCK_UNIT_HZ};
            return 0;
        }
    }
    return -1;
}

int getRangeLimits(const unsigned char *edid, unsigned &minHorizontalKHz,
                   unsigned &maxHorizontalKHz, unsigned &minVerticalHz, unsigned &maxVerticalHz)
{
    minHorizontalKHz = maxHorizontalKHz = minVerticalHz = maxVerticalHz = 0;
    if (checkEdidHeader(edid) != 0)
        return -1;

    for (std::size_t index = 0; index < DESCRIPTOR_COUNT; ++index) {
        const unsigned char *bytes = descriptor(edid, index);
        if (!isDetailedTiming(bytes) && bytes[TAG] == TAG_RANGE_LIMITS) {
            minHorizontalKHz = bytes[MIN_HORIZONTAL_KHZ];
            maxHorizontalKHz = bytes[MAX_HORIZONTAL_KHZ];
            minVerticalHz = bytes[MIN_VERTICAL_HZ];
            maxVerticalHz = bytes[MAX_VERTICAL_HZ];
            return 0;
        }
    }
    return -1;
}

std::string edidText(const unsigned char *edid)
{
    if (checkEdidHeader(edid) != 0)
        return "Not a valid EDID\n";

    const std::string standardTimings = standardTimingsText(edid);
    std::string text = identityText(edid) + displayText(edid) + establishedTimingsText(edid) +
                       "Standard timings:\n" + standardTimings;
    bool hasTiming = !standardTimings.empty();
    for (std::size_t index = 0; index < DESCRIPTOR_COUNT; ++index) {
        const unsigned char *bytes = descriptor(edid, index);
        if (isDetailedTiming(bytes)) {
            text += detailedTimingText(bytes);
            hasTiming = true;
        } else {
            text += displayDescriptorText(bytes);
        }
    }
    if (!hasTiming)
        text += "\tNone\n";
    return text;
}

void printEdid(const unsigned char *edid)
{
    std::fputs(edidText(edid).c_str(), stdout);
}

char *trimTrailingSpace(char *s)
{
    for (char *end = s + std::strlen(s); end != s && std::strchr(" \t\n\v\f\r", end[-1]); --end)
        end[-1] = '\0';
    return s;
}
