#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Times programs from exec to a painted window, and their memory then.

    simbox/simbox exec simbox/startup.py ROUNDS PROGRAM...

The programs take turns, once more than is counted. A window counts as painted once the middle of
the screen shows several colours, that is, text on a ground; it is looked at each millisecond, which
leaves the X server and the processors to the program.
"""

import ctypes
import statistics
import subprocess
import sys
import time

from driver import PATIENCE, wait_for

SIDE = 100          # pixels, of the square in the middle of the screen that is looked at
SEVERAL = 8         # colours


class XImage(ctypes.Structure):
    """The head of the library's structure of that name: size, offset and format; the pixels."""
    _fields_ = [('form', ctypes.c_int * 4), ('data', ctypes.c_void_p)]


class Screen:
    def __init__(self):
        self.x = ctypes.CDLL('libX11.so.6')
        for name in ('XOpenDisplay', 'XDefaultRootWindow', 'XGetImage'):
            getattr(self.x, name).restype = ctypes.c_void_p
        self.display = ctypes.c_void_p(self.x.XOpenDisplay(None))
        self.root = ctypes.c_void_p(self.x.XDefaultRootWindow(self.display))
        self.left = (self.x.XDisplayWidth(self.display, 0) - SIDE) // 2
        self.top = (self.x.XDisplayHeight(self.display, 0) - SIDE) // 2

    def colours(self):
        address = self.x.XGetImage(self.display, self.root, self.left, self.top, SIDE, SIDE,
                                   ctypes.c_ulong(0xffffffff), 2)
        pixels = ctypes.string_at(XImage.from_address(address).data, 4 * SIDE * SIDE)
        self.x.XDestroyImage(ctypes.c_void_p(address))
        return len(set(memoryview(pixels).cast('I')))

    def wait(self, wanted):
        wait_for(lambda: wanted(self.colours()), 'change of the screen', pause=0.001)


def memory(pid):
    """Resident and proportional size in MB."""
    with open(f'/proc/{pid}/smaps_rollup', encoding='ascii') as rollup:
        sizes = dict(line.split(':', 1) for line in rollup.read().splitlines()[1:])
    return [int(sizes[name].split()[0]) / 1024 for name in ('Rss', 'Pss')]


def measure(screen, program):
    start = time.monotonic()
    process = subprocess.Popen(program.split(), stderr=subprocess.DEVNULL)
    screen.wait(lambda colours: colours >= SEVERAL)
    painted = (time.monotonic() - start) * 1000
    time.sleep(0.5)
    figures = [painted, *memory(process.pid)]
    # Ended as a user would: a killed program leaves the next one something to clear away.
    subprocess.run(['xdotool', 'key', 'Escape'], check=True)
    process.wait(timeout=PATIENCE)
    screen.wait(lambda colours: colours < SEVERAL)
    time.sleep(0.2)
    return figures


def main():
    count, *programs = sys.argv[1:]
    screen = Screen()
    rounds = [[measure(screen, program) for program in programs]
              for _ in range(int(count) + 1)][1:]
    print('painted ms (min median max)   resident MB   proportional MB   program')
    for figures, program in zip(zip(*rounds), programs):
        painted, resident, proportional = zip(*figures)
        print(f'{min(painted):8.0f} {statistics.median(painted):8.0f} {max(painted):8.0f}'
              f'{statistics.median(resident):14.1f} {statistics.median(proportional):17.1f}'
              f'     {program}')


main()
