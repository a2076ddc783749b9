#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Hasty ways to the maintenance functions, through the real window."""

import unittest

import driver
from driver import calls, click, keys, wait_for, wait_for_window


class Maintenance(unittest.TestCase):
    def setUp(self):
        (driver.RUN / 'calls').write_text('')
        self.addCleanup(driver.Tool().stop)
        self.window = wait_for_window('Display Settings')

    def test_held_keys(self):
        driver.hold('F12')
        wait_for(lambda: calls('upgrader') == ['upgrader app moniconf moniconf'], 'one upgrade')
        keys('F1')
        wait_for_window('About...')
        driver.hold('Escape')
        wait_for_window('Display Settings')

    @unittest.skipIf(driver.BOARD, 'the pauses between clicks cannot be kept there')
    def test_bursts(self):
        for delay in (80, 160, 200, 250, 300):
            with self.subTest(delay):
                click(self.window, *driver.CLOCK, times=3, delay=delay)
                wait_for_window('Setting Date Time', patience=5)
                keys('Escape')
                wait_for_window('Display Settings')


if __name__ == '__main__':
    driver.main()
