# SPDX-License-Identifier: MIT
"""EDID blocks of made-up monitors: base blocks by the VESA E-EDID standard, version 1.3."""

import math
import re
import struct
from pathlib import Path

WHAT = 'none, WIDTHxHEIGHT, no-timing, garbage or a file with an EDID block'


def timing(width, height):
    """A detailed timing at 60 Hz with the short blanking of an LCD monitor."""
    if not (1 <= width <= 4095 and 1 <= height <= 2400):
        raise ValueError(f'no EDID block can describe {width}x{height} at 60 Hz')
    blank_width = 160
    line = (1e6 / 60 - 460) / height        # us; the vertical blanking takes at least 460 us
    blank_height = int(460 / line) + 1
    clock = math.ceil(60 * (width + blank_width) * (height + blank_height) / 10000)

    def pair(first, second):
        """Two numbers of 12 bits, in three bytes."""
        return bytes((first & 255, second & 255, first >> 8 << 4 | second >> 8))

    return (struct.pack('<H', clock) + pair(width, blank_width) + pair(height, blank_height) +
            bytes((48, 32, 0x35, 0)) + pair(width // 4, height // 4) + bytes((0, 0, 0x1a)))


def text(tag, words):
    """A descriptor that holds up to 13 characters."""
    return bytes((0, 0, 0, tag, 0)) + (words + '\n').ljust(13)[:13].encode()


def generated(width, height):
    """The block of a well-behaved monitor of that native size."""
    block = bytes.fromhex('00ffffffffffff00')
    block += struct.pack('>H', 15 << 10 | 18 << 5 | 22) + struct.pack('<HI', 0x1234, 20140001)
    block += bytes((24, 2014 - 1990, 1, 3, 0x80, width // 40, height // 40, 120, 0x0e))
    block += bytes.fromhex('ee91a3544c99260f5054')      # colours as of sRGB
    block += bytes.fromhex('210800') + b'\1\1' * 8      # 640x480, 800x600 and 1024x768 at 60 Hz
    block += timing(width, height) + text(0xfc, f'Sim {width}x{height}')
    block += bytes.fromhex('000000fd00384c1e5311000a202020202020') + text(0xff, '20140001')
    return block + bytes(2)


def split(what):
    """The number of transfers that fail before the monitor answers, and the monitor."""
    failures, monitor = re.fullmatch(r'(?:fail(\d+):)?(.*)', what, re.DOTALL).groups()
    return int(failures or 0), monitor


def block(what):
    """The 128 bytes that the monitor WHAT answers; None for no monitor."""
    if what == 'none':
        return None
    if what == 'garbage':
        return b'\xff' * 128                # a bus that nothing drives
    if Path(what).is_file():
        data = Path(what).read_bytes()[:128]
        if len(data) < 128:
            raise ValueError(f'{what} holds less than the 128 bytes of an EDID block')
        return data
    size = re.fullmatch(r'(\d{1,4})x(\d{1,4})', '1280x1024' if what == 'no-timing' else what)
    if not size:
        raise ValueError(f'no monitor is called {what}: give {WHAT}')
    data = bytearray(generated(*map(int, size.groups())))
    if what == 'no-timing':
        data[54:56] = bytes(2)              # the pixel clock of the first timing
    data[127] = -sum(data) % 256            # makes the sum of all bytes 0
    return bytes(data)
