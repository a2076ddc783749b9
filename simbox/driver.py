# SPDX-License-Identifier: MIT
"""What the box tests share: the tool under way, its windows, and the traces that it leaves.

A test runs in the simulated box: simbox/simbox exec python3 tests/box/NAME.py
On the emulated board the same tests run with more patience, except those that need other hardware.
"""

import collections
import contextlib
import os
import re
import shutil
import signal
import subprocess
import time
import unittest
from pathlib import Path

import tables

BOARD = 'BOARD' in os.environ
PATIENCE = int(os.environ.get('PATIENCE', 20))      # seconds, for what takes a fraction of them
PROGRAM = '/opt/moniconf/moniconf'
RUN = Path('/run/simbox')
# Pixels from the main window's top left corner, in the box's font at 96 dots an inch.
APPLY = (236, 217)
CLOCK = (143, 308)
BLANK = (240, 120)
FIRST_ROW = (60, 51)
ROW_HEIGHT = 15
LANGUAGE = (236, 45)
Message = collections.namedtuple('Message', 'type file line function category text')


def output(*command):
    """The standard output of a command that must succeed."""
    return subprocess.run(command, stdout=subprocess.PIPE, text=True, check=True).stdout.strip()


def wait_for(condition, what, patience=PATIENCE, pause=0.03):
    """Waits until the condition gives something true, and gives that."""
    deadline = time.monotonic() + patience
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise AssertionError(f'{what}: not within {patience} s')
        time.sleep(pause)


class Tool:
    """The running tool, and its log."""

    def __init__(self, *arguments, program=PROGRAM, log=RUN / 'tool.log'):
        self.log_file = Path(log)
        pattern = '|'.join(f'%{{{name}}}' for name in Message._fields[:-1]) + '|%{message}'
        with open(self.log_file, 'wb') as stream:
            self.process = subprocess.Popen(
                ['env', f'QT_MESSAGE_PATTERN={pattern}', program, *arguments], stderr=stream,
                start_new_session=True)

    def messages(self, text='', **fields):
        """The messages that hold the text and have the given fields, such as type='critical'."""
        lines = self.log_file.read_text(encoding='utf-8', errors='replace').splitlines()
        found = [Message(*line.split('|', 5)) for line in lines if line.count('|') >= 5]
        return [message for message in found if text in message.text and
                all(getattr(message, name) == value for name, value in fields.items())]

    @contextlib.contextmanager
    def busy(self):
        """Input piles up meanwhile; the tool gets it in one go."""
        self.process.send_signal(signal.SIGSTOP)
        try:
            yield
        finally:
            self.process.send_signal(signal.SIGCONT)

    def wait_for_end(self):
        """The exit status, once it has ended by itself."""
        return self.process.wait(timeout=PATIENCE)

    def stop(self):
        self.process.kill()
        self.process.wait()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.stop()


def find_windows(text, kind='--name'):
    """The shown windows of that title, or of that '--class'."""
    while True:
        found = subprocess.run(['xdotool', 'search', '--onlyvisible', kind, f'^{text}$'],
                               capture_output=True, text=True, check=False)
        if 'X Error' not in found.stderr:       # a window that went while it was looked at
            return found.stdout.split()


def has_keyboard(window):
    focus = subprocess.run(['xdotool', 'getwindowfocus'], stdout=subprocess.PIPE,
                           stderr=subprocess.DEVNULL, text=True, check=False)
    return focus.stdout.strip() == window


def wait_for_window(title, patience=PATIENCE):
    """The window of that title, once it is shown and has the keyboard."""
    return wait_for(lambda: next(filter(has_keyboard, find_windows(title)), None),
                    f'window "{title}" with the keyboard', patience)


def wait_until_gone(title, patience=PATIENCE):
    wait_for(lambda: not find_windows(title), f'end of window "{title}"', patience)


def place(window):
    """Left, top, width and height of a window without its frame, in pixels of the screen."""
    text = output('xwininfo', '-id', window)
    return tuple(int(re.search(rf'{name}: +(-?\d+)', text)[1]) for name in (
        'Absolute upper-left X', 'Absolute upper-left Y', 'Width', 'Height'))


def keys(*names):
    """Presses keys, such as 'Down' or 'ctrl+e', in the window that has the keyboard."""
    output('xdotool', 'key', '--delay', '30', *names)


def hold(key, seconds=1.5):
    """Holds a key for longer than it takes to repeat itself."""
    output('xdotool', 'keydown', key, 'sleep', str(seconds), 'keyup', key)


def click(window, x, y, button=1, times=1, delay=60):
    """Clicks at a place counted from the window's top left corner; the delay is in ms."""
    output('xdotool', 'mousemove', '--window', window, str(x), str(y),
           'click', '--repeat', str(times), '--delay', str(delay), str(button))


def click_row(window, row):
    """Chooses a row of the list of modes, counted from 0."""
    click(window, FIRST_ROW[0], FIRST_ROW[1] + row * ROW_HEIGHT)


def choose(window, entry, is_otp=True):
    """Chooses an entry of the main window's menu by its English text, on an OTP product or not."""
    click(window, *BLANK, button=3)
    wait_for(lambda: len(find_windows('moniconf', '--class')) == 2, 'the menu')
    entries = [text for text in tables.MENU if is_otp or text != 'Preference']
    keys(*['Down'] * (entries.index(entry) + 1), 'Return')


def screen_size():
    """The mode of the screen, such as '1280x1024'."""
    return 'x'.join(re.search(r'current (\d+) x (\d+)', output('xrandr')).groups())


def stored_mode():
    """The mode that the boot environment names."""
    return output('fw_printenv', '-n', 'display')


def plug(bus, what):
    """Exchanges the monitor on a connector, such as 'vga'; a board keeps what it starts with."""
    if not BOARD:
        (RUN / bus).write_text(what, encoding='utf-8')


def calls(first_words=''):
    """What stand-ins and devices have recorded, a line a call."""
    lines = (RUN / 'calls').read_text(encoding='utf-8').splitlines()
    return [line for line in lines if line.startswith(first_words)]


def picture(file):
    """Saves the screen, as far as there is one."""
    subprocess.run(['import', '-window', 'root', file], check=False)


class Result(unittest.TextTestResult):
    """Keeps the screen and the tool's logs of a failed test before its cleanup ends the tool."""

    def keep(self, test):
        name = test.id().rpartition('.')[2]
        picture(RUN / f'{name}.png')
        for log in RUN.glob('tool*.log'):
            shutil.copy(log, RUN / f'{name}.{log.name}')

    def addError(self, test, err):
        self.keep(test)
        super().addError(test, err)

    def addFailure(self, test, err):
        self.keep(test)
        super().addFailure(test, err)

    def addSubTest(self, test, subtest, err):
        if err:
            self.keep(test)
        super().addSubTest(test, subtest, err)


def main(**words):
    """Runs the tests of the program that calls it."""
    unittest.main(**words, testRunner=unittest.TextTestRunner(verbosity=2, resultclass=Result))


if __name__ == '__main__':
    main(module=None)       # the tests that the command line names
