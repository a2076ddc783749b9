# SPDX-License-Identifier: MIT
"""What only the board can show, where a real kernel is behind the tool's device files."""

import re
import time
import unittest
from pathlib import Path

import driver
import test_display
from driver import RUN, choose, click, click_row, keys, output, wait_for, wait_for_window
from tables import CONNECTORS, MODES

TRACING = Path('/sys/kernel/tracing')


class Board(unittest.TestCase):
    def setUp(self):
        (TRACING / 'set_event').write_text('gpio:gpio_value i2c:i2c_result')
        (TRACING / 'trace').write_text('')
        self.tool = driver.Tool()
        self.addCleanup(self.tool.stop)

    # The kernel's own record: the LED lit before the first transfer, dark after the last.
    def test_monitors(self):
        steps = ['set 1']
        for name, bus, _ in CONNECTORS:
            found = (RUN / name).read_text() != 'none\n'
            steps += [f'{bus[-1]} n=2 ret=2'] if found else [f'{bus[-1]} n=2 ret=-110'] * 3
            if found:
                break
        window = wait_for_window('Display Settings' if found else 'Error')
        trace = (TRACING / 'trace').read_text()
        led = re.search(r'gpio_value: (\d+) set', trace)[1]
        seen = re.findall(rf'(?:gpio_value: {led} |i2c_result: i2c-)(set \d|\d n=.+)', trace)
        self.assertEqual(seen, [*steps, 'set 0'])
        if not found:
            return
        # Whether it was stored before the power was cut or after, it is the current mode.
        self.assertEqual(self.tool.messages('@60')[-1].text, driver.stored_mode().replace('M', ''))
        offered = output('moniconf-edid', '--bus', bus, '--modes').replace(' ', '').split('\n')
        click_row(window, 0)
        keys(*['Down'] * len(MODES))
        wait_for(lambda: [message.text[:-3] for message in self.tool.messages('@60')[-len(offered):]]
                 == offered, f'list of {offered}')

    # Another version in the box's files, another picture. Debian's framebuffer driver knows no gamma ioctl.
    def test_about_and_gamma(self):
        pictures = []
        for version in '2.0.1\n', '2.0.1\n', '2.0.2\n':
            Path('/etc/orvex/version').write_text(version)
            wait_for_window('Display Settings')
            keys('F1')
            pictures.append(output('import', '-window', wait_for_window('About...'), 'txt:-'))
            keys('Return')
        self.assertEqual([pictures.count(picture) for picture in pictures], [2, 2, 1])
        wait_for_window('Display Settings')
        keys('F10')
        wait_for_window('Dialog')
        keys('Return')
        wait_for(lambda: self.tool.messages('Inappropriate ioctl'), 'the refusal')

    def test_clock(self):
        click(wait_for_window('Display Settings'), *driver.CLOCK, times=2)
        wait_for_window('Setting Date Time')
        keys('2', '0', '3', '1', 'Return')
        wait_for(lambda: output('i2cget', '-f', '-y', '0', '0x68', '6') == '0x31', 'year in the chip')


# Keeps modes, saves thresholds, writes the language; says what comes before each, and "done" after.
def write():
    def write_by(announced, until, *names):
        print(announced, flush=True)
        keys(*names)
        wait_for(until, announced)
        time.sleep(0.5)
        print('done', flush=True)

    for row, mode, degrees, up, language in [(0, '800x600', '80', 'Up', 'zh_CN'),
                                             (1, '1024x768', '70', 'Down', 'en_US')] * 3:
        with driver.Tool() as tool:
            test_display.Display.apply(row)
            write_by(f'mode {mode}', lambda: mode in driver.stored_mode(), 'Tab', 'space')
            choose(wait_for_window('Display Settings'), 'Fan Setting')
            wait_for_window('Parameter Input Dialog')
            keys('ctrl+a', *degrees, 'Tab', 'ctrl+a', '9', '0')
            write_by(f'thresholds {degrees}', lambda: driver.find_windows('Information'), 'Return')
            keys('Return')
            click_row(wait_for_window('Display Settings'), row)
            write_by(f'language {language}', lambda: tool.process.poll() == 0, 'Tab', 'Tab', up, 'Tab', 'space')
