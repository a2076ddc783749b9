# SPDX-License-Identifier: MIT
"""The box's device nodes, answered as its drivers and the monitors on its connectors would.

A file in /run/simbox named for each connector, such as vga, holds what is plugged in there (see
monitors.py); writing to it exchanges the monitor. Each transfer, each value of a switch and each
gamma table is a line of /run/simbox/calls.
"""

import errno
import os
import re
import select
import struct
import sys
import threading
from pathlib import Path

import gi
gi.require_version('UMockdev', '1.0')
from gi.repository import UMockdev  # noqa: E402

import monitors  # noqa: E402
from tables import CONNECTORS  # noqa: E402

RUN = Path('/run/simbox')
I2C_RDWR, I2C_M_RD, DDC_ADDRESS = 0x0707, 1, 0x50           # linux/i2c-dev.h, linux/i2c.h
FBIOGET_VSCREENINFO, MXCFB_SET_GAMMA = 0x4600, 0x40844628   # linux/fb.h, linux/mxcfb.h
NODE = 'P: /devices/{0}\nN: {0}\nE: DEVNAME=/dev/{0}\nE: SUBSYSTEM=box\n\n'
LED = 'P: /devices/leds/{}\nE: SUBSYSTEM=leds\nA: brightness=0\n\n'


LEDS = []
calls = os.open(RUN / 'calls', os.O_WRONLY | os.O_APPEND | os.O_CREAT)


def record(line):
    os.write(calls, f'{line}\n'.encode())


class Led:
    """The switch of a connector's lines: a pipe, so that each value written counts, as in sysfs."""

    def __init__(self, connector, path):
        self.connector = connector
        os.unlink(path)
        os.mkfifo(path)
        self.pipe = os.open(path, os.O_RDWR | os.O_NONBLOCK)
        self.lit = False
        self.lock = threading.Lock()
        LEDS.append(self)
        threading.Thread(target=self.watch, daemon=True).start()

    def watch(self):
        while select.select([self.pipe], [], []):
            self.is_lit()

    def is_lit(self):
        with self.lock:
            if select.select([self.pipe], [], [], 0)[0]:
                for value in re.findall(rb'\d', os.read(self.pipe, 4096)):
                    record(f'{self.connector} switched {value.decode()}')
                    self.lit = value != b'0'
            return self.lit


class Bus:
    """An I2C adapter and the monitor on it; their lines are connected, or switched by an LED."""

    def __init__(self, name, led):
        self.name = name
        self.file = RUN / name
        self.led = led
        self.plugged = self.failures = self.block = None

    def ioctl(self, request, argument):
        if request != I2C_RDWR:
            return -1, errno.ENOTTY
        for led in LEDS:        # what was switched before is recorded before
            led.is_lit()
        status = os.stat(self.file)
        plugged = status.st_mtime_ns, status.st_ino
        if plugged != self.plugged:
            self.plugged = plugged
            what = self.file.read_text(encoding='utf-8').strip()
            self.failures, monitor = monitors.split(what)
            self.block = monitors.block(monitor)
        answers = (not self.led or self.led.is_lit()) and self.block is not None
        if answers and self.failures > 0:
            self.failures -= 1
            answers = False
        record(f"i2c {self.name} {'answered' if answers else 'failed'}")
        return self.transfer(argument) if answers else (-1, errno.ETIMEDOUT)

    def transfer(self, argument):
        request = argument.resolve(0, 16)
        count = struct.unpack('=8xI4x', bytes(request.retrieve()))[0]
        messages = request.resolve(0, count * 16)
        offset = 0
        for place in range(0, count * 16, 16):
            head = bytes(messages.retrieve())[place:place + 6]
            address, flags, length = struct.unpack('=HHH', head)
            if address != DDC_ADDRESS or length != (128 if flags & I2C_M_RD else 1):
                return -1, errno.ENXIO
            data = messages.resolve(place + 8, length)
            if flags & I2C_M_RD:
                data.update(0, (self.block * 2)[offset:][:length])
            else:
                offset = bytes(data.retrieve())[0] % 128
        return count, 0


class Framebuffer:
    def __init__(self, size):
        self.size = size

    def ioctl(self, request, argument):
        if request == FBIOGET_VSCREENINFO:
            info = struct.pack('=8I', *self.size, *self.size, 0, 0, 32, 0)
            argument.resolve(0, 160).update(0, info)
        elif request == MXCFB_SET_GAMMA:
            tables = struct.unpack('=33i', bytes(argument.resolve(0, 132).retrieve()))
            record('gamma ' + ' '.join(map(str, tables)))
        else:
            return -1, errno.ENOTTY
        return 0, 0


def handle(_, client, device):
    try:
        client.complete(*device.ioctl(client.get_request(), client.get_arg()))
    except Exception as error:          # the caller must get an answer, and the log the reason
        print(f'{client.get_devnode()}: {error!r}', file=sys.stderr, flush=True)
        client.complete(-1, errno.EIO)
    return True


def serve(size):
    """Answers from now on; gives what the environment of a program needs to see the devices.

    The first of the two values has to be kept: with it the devices go.
    """
    os.environ['TMPDIR'] = str(RUN)
    testbed = UMockdev.Testbed.new()
    del os.environ['TMPDIR']
    nodes = [Path(bus).name for _, bus, _ in CONNECTORS] + ['fb0']
    leds = [Path(switch).parent.name for *_, switch in CONNECTORS if switch]
    testbed.add_from_string(''.join([*map(NODE.format, nodes), *map(LED.format, leds)]))
    devices = {'/dev/fb0': Framebuffer(size)}
    for name, bus, switch in CONNECTORS:
        devices[bus] = Bus(name, switch and Led(name, testbed.get_root_dir() + switch))
    for node, device in devices.items():
        handler = UMockdev.IoctlBase()
        handler.connect('handle-ioctl', handle, device)
        testbed.attach_ioctl(node, handler)
    return testbed, {'LD_PRELOAD': 'libumockdev-preload.so.0',
                     'UMOCKDEV_DIR': testbed.get_root_dir()}
