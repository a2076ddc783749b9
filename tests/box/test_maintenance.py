#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Every maintenance function once, through the real window, on a box with both applications."""

import os
import unittest
from pathlib import Path

import driver
from driver import calls, click, keys, type_text, wait_for, wait_for_window, wait_until_gone

AUTOSTART = Path('/etc/xdg/autostart')
SHELL = Path('/usr/local/bin/sh')


def commands():
    return [call for call in calls() if call.split()[0] in ('date', 'hwclock', 'upgrader')]


class Maintenance(unittest.TestCase):
    def setUp(self):
        self.tool = driver.Tool()
        self.addCleanup(self.tool.stop)
        self.window = wait_for_window('Display Settings')
        self.already = len(commands())

    def new_calls(self, *expected):
        """What commands were called since the test began, once they are that many."""
        wait_for(lambda: len(commands()) >= self.already + len(expected), f'calls {expected}')
        self.assertEqual(commands()[self.already:], list(expected))
        self.already = len(commands())

    def choose(self, entry):
        driver.choose(self.window, entry)

    def assert_logged(self, line, function, text):
        wait_for(lambda: self.tool.messages(
            text, type='debug', file='dialogmain', line=str(line), category='default',
            function=f'DialogMain::{function}'), f'log line {line}')

    def test_about(self):
        keys('F1')
        wait_for_window('About...')
        driver.hold('Escape')
        wait_until_gone('About...')
        wait_for_window('Display Settings')

    def test_bursts(self):
        for delay in (80, 160, 200, 250, 300):
            with self.subTest(delay):
                click(self.window, *driver.CLOCK, times=3, delay=delay)
                wait_for_window('Setting Date Time', patience=5)
                keys('Escape')
                wait_for_window('Display Settings')

    def test_clock(self):
        Path('/tmp/calclock.sh').write_text('stale')
        click(self.window, *driver.CLOCK, times=2)
        wait_for_window('Setting Date Time')
        keys('2', '0', '3', '1', 'Return')
        wait_until_gone('Setting Date Time')
        date = wait_for(lambda: calls('date -s 2031-'), 'the new date')[0][len('date -s '):]
        self.assertRegex(date, r'^2031-\d\d-\d\d \d\d:\d\d:\d\d$')
        self.new_calls(f'date -s {date}', 'hwclock -w')
        wait_for(lambda: self.tool.messages('exitCode: 0 exitStatus: 0', file='libOxUtils/utils/utils'),
                 'the script\'s end')
        self.assertFalse(Path('/tmp/calclock.sh').exists())

        hardware_clock = Path('/usr/local/bin/hwclock')
        self.addCleanup(hardware_clock.write_text, hardware_clock.read_text())
        hardware_clock.write_text('#!/bin/sh\nexit 1\n')
        wait_for_window('Display Settings')
        click(self.window, *driver.CLOCK, times=2)
        wait_for_window('Setting Date Time')
        keys('Return')
        wait_for_window('Error')
        self.assertFalse(Path('/tmp/calclock.sh').exists())

    def test_gamma(self):
        keys('F10')
        wait_for_window('Dialog')
        type_text('2.25')
        keys('Return')
        wait_until_gone('Dialog')
        wait_for(lambda: self.tool.messages(
            '2.25', file='dialogmain', line='106',
            function='DialogMain::keyPressEvent'), 'log line 106')
        tables = wait_for(lambda: calls('gamma'), 'gamma tables')[-1].split()[1:]
        self.assertEqual(len(tables), 1 + 16 + 16)
        self.assertEqual(tables[0], '1')

    def test_fan(self):
        conf = Path('/etc/fand.conf')
        conf.write_text('# Degrees\ntemp_threshold_lower = 60\n\nother=1\n')
        self.choose('Fan Setting')
        wait_for_window('Parameter Input Dialog')
        keys('8', '0', 'Tab', '7', '0', 'Return')
        wait_for_window('Information')
        keys('Return')
        wait_until_gone('Information')
        self.assertEqual(conf.read_text(), '# Degrees\ntemp_threshold_lower=80\n\nother=1\n'
                                           'temp_threshold_upper=70')

    def test_upgrades(self):
        driver.hold('F12')
        self.new_calls('upgrader app moniconf moniconf')
        self.assert_logged(555, 'startUpgraderSelf', 'Starting upgrader self...')
        self.choose('Upgrade File System')
        self.new_calls('upgrader fs fs_patches tore7malvin2ek+')
        self.assert_logged(579, 'startUpgraderFs', 'Starting upgrader file system...')
        for choice, call, line, name in (
                ((), 'upgrader vexa_standard /home/root vexastd', 567, 'vexastd'),
                (('Down',), 'upgrader vexa_otp /home/root vxotp', 571, 'vxotp')):
            self.choose('Upgrade Application')
            wait_for_window('Upgrade Application')
            keys(*choice, 'Return')
            self.new_calls(call)
            self.assert_logged(line, 'startUpgraderApp', f'Starting upgrader {name}...')
            wait_for_window('Display Settings')

    def test_factory_reset(self):
        standard = list(Path('/home/root/vexa_standard').glob('*.ini'))
        otp = list(Path('/home/root/vexa_otp').glob('*.ini'))
        self.choose('Factory Reset')
        wait_for_window('Query')
        keys('Return')
        wait_for_window('Display Settings')
        self.choose('Factory Reset')
        wait_for_window('Query')
        self.assertTrue(all(file.exists() for file in standard + otp))
        keys('alt+y')
        wait_for_window('Factory Reset')
        keys('Down', 'Return')
        wait_for(lambda: not any(file.exists() for file in otp), 'end of the settings')
        self.assertTrue(all(file.exists() for file in standard))

    def test_preference(self):
        (AUTOSTART / 'vexastd.desktop').symlink_to('/usr/share/applications/vexastd.desktop')
        Path('/tmp/calclock.sh').touch()
        self.choose('Preference')
        wait_for_window('Preference')
        keys('Right', 'Return')
        wait_until_gone('Preference')
        wait_for_window('Display Settings')
        self.assertEqual(os.readlink(AUTOSTART / 'vxotp.desktop'),
                         '/usr/share/applications/vxotp.desktop')
        self.assertEqual(os.listdir(AUTOSTART), ['vxotp.desktop'])
        self.assertEqual(Path('/opt/moniconf/ui.ini').read_text(), '[Preference]\nAutoStartApp=1\n')
        self.assertTrue(Path('/tmp/autobootapp.sh').exists())
        self.assertFalse(Path('/tmp/calclock.sh').exists())

        # A shell without pushd: the failure is told, and the setting stays.
        self.addCleanup(SHELL.symlink_to, os.readlink(SHELL))
        self.addCleanup(SHELL.unlink)
        SHELL.unlink()
        SHELL.symlink_to('/usr/bin/dash')
        self.choose('Preference')
        wait_for_window('Preference')
        keys('Left', 'Return')
        wait_for_window('Error')
        keys('Return')
        wait_for_window('Display Settings')
        self.assertEqual(Path('/opt/moniconf/ui.ini').read_text(), '[Preference]\nAutoStartApp=1\n')


if __name__ == '__main__':
    unittest.main()
