#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Takes a picture of every dialog and message box, in the simulated box.

    docs/screenshots.py BUILD DIRECTORY

BUILD holds the program; DIRECTORY takes the pictures, a folder for each language and density.
Those that README and manuals show go to docs/images as well, and change only when a window does:
the box's clock stands still, and BUILD is one of a fixed time.
"""

import os
import re
import subprocess
import sys
import tarfile
import time
from pathlib import Path

DOCS = Path(__file__).resolve().parent
sys.dont_write_bytecode = True
sys.path.append(str(DOCS.parent / 'simbox'))
import driver  # noqa: E402
import tables  # noqa: E402
from driver import keys, output, wait_for  # noqa: E402

DENSITIES = (96, 192)
# What README and manuals show.
ON_PAGES = 'main question menu clock fan preference about gamma'.split()
IMAGES = {f'{place}{name}.png': f'{locale}-96/{name}.png'
          for place, locale in (('', 'en_US'), ('zh_CN/', 'zh_CN')) for name in ON_PAGES}
PICTURES = Path('/tmp/pictures')
SETTLED = 0.4       # seconds that a window takes to be painted, and to be painted again
BLINKING = 'clock fan gamma'.split()    # of those, what has a text cursor
# For the tool, whose timers run on.
STOPPED_CLOCK = ('TZ=CST-8', 'FAKETIME=2026-01-15 09:41:27', 'FAKETIME_DONT_FAKE_MONOTONIC=1')


def geometry(window):
    """Left, top, right and bottom of a window with its frame, in pixels of the screen."""
    while True:
        text = output('xwininfo', '-stats', '-children', '-id', window)
        parent = re.search(r'Parent window id: (\S+)', text)[1]
        if parent == re.search(r'Root window id: (\S+)', text)[1]:
            break
        window = parent
    left, top, width, height = (int(re.search(rf'{name}: +(-?\d+)', text)[1]) for name in (
        'Absolute upper-left X', 'Absolute upper-left Y', 'Width', 'Height'))
    return left, top, left + width, top + height


def take(name, windows):
    """Saves the part of the screen that the windows take up."""
    time.sleep(SETTLED)
    lefts, tops, rights, bottoms = zip(*map(geometry, windows))
    left, top = max(min(lefts), 0), max(min(tops), 0)
    part = f'{max(rights) - left}x{max(bottoms) - top}+{left}+{top}'
    shots = []
    for _ in range(3 if name in BLINKING else 1):
        if shots:
            time.sleep(SETTLED)
        shots.append(subprocess.run(
            ['import', '-window', 'root', '-crop', part, '+repage', 'ppm:-'],
            stdout=subprocess.PIPE, check=True).stdout)
    # Three pictures catch the text cursor in both its states; which is kept must not be chance.
    subprocess.run(['convert', 'ppm:-', PICTURES / f'{name}.png'], input=min(shots), check=True)


class Walk:
    """The way through the tool's windows: the last of the list has the keyboard."""

    def __init__(self):
        self.windows = []
        self.seen = set()

    def open(self, name, action=lambda: None):
        """Does what opens a window, waits for it, and takes its picture."""
        action()
        window = wait_for(lambda: focus() not in self.seen and focus(), name)
        self.windows.append(window)
        self.seen.add(window)
        take(name, [window])
        return window

    def popup(self, name):
        """Takes a picture of the window with what has popped up over it."""
        def popups():
            visible = output('xdotool', 'search', '--onlyvisible', '--class', 'moniconf').split()
            return [window for window in visible if window not in self.seen and
                    'Override Redirect State: yes' in output('xwininfo', '-all', '-id', window)]
        take(name, [self.windows[-1], *wait_for(popups, name)])

    def close(self, *names):
        """Presses keys that end the window."""
        keys(*names)
        self.windows.pop()
        if self.windows:
            wait_for(lambda: focus() == self.windows[-1], 'the window before')
            time.sleep(SETTLED)

    def replace(self, name, *names):
        """Presses keys that end the window and open another."""
        self.windows.pop()
        return self.open(name, lambda: keys(*names))

    def menu(self, name, entry):
        """Opens the window behind an entry of the main window's menu, by its English text."""
        keys('Menu')
        time.sleep(SETTLED)
        self.open(name, lambda: keys(*['Down'] * (tables.MENU.index(entry) + 1), 'Return'))


def focus():
    """The window that has the keyboard; it changes for a moment to none of the tool's."""
    found = subprocess.run(['xdotool', 'getwindowfocus', 'getwindowpid'], capture_output=True,
                           text=True, check=False)
    return found.returncode == 0 and output('xdotool', 'getwindowfocus')


def away(*where):
    """Moves the pointer; without a place, to where it changes no window's looks."""
    output('xdotool', 'mousemove', *map(str, where or (0, 0)))


def walk():
    way = Walk()
    away()
    driver.plug('hdmi', 'none')
    library, = Path('/usr/lib').glob('*/faketime/libfaketime.so.1')
    preload = f"LD_PRELOAD={os.environ['LD_PRELOAD']}:{library}"
    tool = driver.Tool(*STOPPED_CLOCK, preload, driver.PROGRAM, program='env')
    way.open('error-no-monitor')
    driver.plug('hdmi', '1920x1080')
    main = way.replace('main-empty', 'Return')
    keys('Tab', 'space', 'space', 'shift+Tab')
    take('main', [main])
    keys('Tab', 'Tab', 'alt+Down')
    way.popup('language')
    keys('Escape', 'shift+Tab')
    messages(way)
    left, top, right, bottom = geometry(main)
    away(left + 60, (top + bottom) // 2)
    keys('Menu')
    way.popup('menu')
    keys('Escape')
    away()
    dialogs(way)
    away((left + right) // 2, bottom - 18)
    keys('shift+Tab', 'shift+Tab')
    take('main-clock', [main])
    way.open('clock', lambda: output('xdotool', 'click', '--repeat', '2', '1'))
    left, top, right, bottom = geometry(way.windows[-1])
    away(right - 25, top + 50)
    output('xdotool', 'click', '1')
    away()
    way.popup('clock-calendar')
    keys('Escape')
    Path('/usr/local/bin/hwclock').write_text('#!/bin/sh\nexit 1\n')
    way.replace('error-clock', 'Return')
    way.close('Return')
    question(way)
    tool.stop()


def messages(way):
    """The message boxes about modes; the check box has the keyboard."""
    driver.plug('hdmi', 'no-timing')
    way.open('error-parse-edid', lambda: keys('space', 'space'))
    way.close('Return')
    driver.plug('hdmi', '1920x1080')
    config = Path('/etc/fw_env.config')
    text = config.read_text()
    config.unlink()
    way.open('error-current-mode', lambda: keys('space', 'space'))
    way.close('Return')
    config.write_text(text)
    keys('space')
    take('main-all', way.windows)
    keys('space')


def dialogs(way):
    way.open('about', lambda: keys('F1'))
    way.close('Escape')
    way.open('gamma', lambda: keys('F10'))
    keys('x')
    way.open('error-gamma', lambda: keys('Return'))
    way.windows.pop(-2)
    way.close('Return')
    way.open('instruction', lambda: keys('ctrl+e'))
    keys('x')
    way.replace('error-instruction', 'Return')
    way.close('Return')
    way.menu('upgrade-application', 'Upgrade Application')
    way.close('Escape')
    way.menu('preference', 'Preference')
    Path('/etc/xdg/autostart/vexastd.desktop').touch()
    way.open('error-preference', lambda: keys('Return'))
    way.windows.pop(-2)
    way.close('Return')
    way.menu('reset-question', 'Factory Reset')
    way.replace('reset-application', 'Left', 'Return')     # Yes, in every language
    way.close('Escape')
    way.menu('fan', 'Fan Setting')
    way.replace('fan-information', 'Return')
    way.close('Return')


def question(way):
    """The question after a switch to the smallest mode, and how it can go wrong."""
    keys('Tab', 'Home')
    way.open('question', lambda: keys('Return'))
    driver.picture(PICTURES / 'screen-800x600.png')
    Path('/etc/fw_env.config').unlink()
    way.replace('error-keep', 'Tab', 'space')
    way.close('Return')
    keys('Tab', 'space', 'Tab', 'Tab', 'Tab')
    way.open('error-no-mode', lambda: keys('space'))


def take_all(build, directory):
    simbox = DOCS.parent / 'simbox/simbox'
    for locale in tables.LOCALES:
        for density in DENSITIES:
            command = [simbox, '--program', build, '--locale', locale, '--otp', 'exec', __file__,
                       '--inside', str(density)]
            with subprocess.Popen(command, stdout=subprocess.PIPE) as box:
                with tarfile.open(fileobj=box.stdout, mode='r|') as pictures:
                    pictures.extractall(Path(directory) / f'{locale}-{density}')
            if box.returncode != 0:
                sys.exit(f'{locale} at {density} dpi: status {box.returncode}')
    for name, source in IMAGES.items():
        subprocess.run(['/usr/bin/convert', Path(directory) / source, '-strip', '+dither',
                        '-colors', '64', '-define', 'png:compression-level=9',
                        f'png8:{DOCS}/images/{name}'], check=True)


def take_inside(density):
    """What runs in the box, out of which the pictures leave as an archive on standard output."""
    PICTURES.mkdir()
    subprocess.run(['xrdb', '-merge', '-nocpp'], input=f'Xft.dpi: {density}\n', text=True,
                   check=True)
    try:
        walk()
    except Exception:
        driver.picture(PICTURES / 'failure.png')
        raise
    finally:
        with tarfile.open(fileobj=sys.stdout.buffer, mode='w|') as archive:
            archive.add(PICTURES, '.')


if __name__ == '__main__':
    if sys.argv[1:2] == ['--inside']:
        take_inside(sys.argv[2])
    elif len(sys.argv) == 3:
        take_all(*sys.argv[1:])
    else:
        sys.exit(__doc__)
