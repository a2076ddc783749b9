#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Hasty ways to the maintenance functions, through the real window."""

import unittest

import driver
from driver import calls, choose, click, click_row, keys, wait_for, wait_for_window


class Maintenance(unittest.TestCase):
    def setUp(self):
        (driver.RUN / 'calls').write_text('')
        self.tool = driver.Tool()
        self.addCleanup(self.tool.stop)
        self.window = wait_for_window('Display Settings')

    def test_held_keys(self):
        driver.hold('F12')
        wait_for(lambda: calls('upgrader') == ['upgrader app moniconf moniconf'], 'one upgrade')
        keys('F1')
        wait_for_window('About...')
        driver.hold('Escape')
        wait_for_window('Display Settings')
        # Opened by Enter, a message stays to be read.
        keys('ctrl+e')
        wait_for_window('Please Input Instruction')
        keys('a')
        driver.hold('Return')
        wait_for_window('Error')
        keys('Return')
        # What moves in the list goes on moving.
        wait_for_window('Display Settings')
        driver.hold('Up')
        click(self.window, *driver.APPLY)
        wait_for_window('Information')
        self.assertEqual(driver.screen_size(), '800x600')
        keys('Return')
        wait_for_window('Display Settings')

    @unittest.skipIf(driver.BOARD, 'the pauses between clicks cannot be kept there')
    def test_bursts(self):
        for delay in (80, 160, 200, 250, 300):
            with self.subTest(delay):
                click(self.window, *driver.CLOCK, times=3, delay=delay)
                wait_for_window('Setting Date Time', patience=5)
                keys('Escape')
                wait_for_window('Display Settings')

    def test_first_answer(self):
        """Only the first of the answers that pile up while the tool is busy is taken."""
        for title, opening, from_right, next_from_right in (
                ('Parameter Input Dialog', lambda: choose(self.window, 'Fan Setting'), 40, 130),
                ('Query', lambda: choose(self.window, 'Factory Reset'), 40, 130),
                ('Dialog', lambda: keys('F10'), 40, 130),
                ('Information', lambda: click(self.window, *driver.APPLY), 270, 90)):
            click_row(self.window, 0)
            opening()
            dialog = wait_for_window(title)
            _, _, width, height = driver.place(dialog)
            with self.tool.busy():
                click(dialog, width - from_right, height - 20)
                click(dialog, width - next_from_right, height - 20)
            wait_for_window('Display Settings')
        with self.tool.busy():
            keys('Escape', 'F12')
        self.assertEqual(self.tool.wait_for_end(), 0)
        self.assertFalse(calls('gamma') + calls('upgrader') + calls('fw_setenv'))


if __name__ == '__main__':
    driver.main()
