#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Modes, through the real window: chosen, kept, taken back."""

import os
import signal
import subprocess
import time
import unittest
from pathlib import Path

import driver
from driver import (APPLY, click, click_row, keys, screen_size, stored_mode, wait_for,
                    wait_for_window, wait_until_gone)


class Display(unittest.TestCase):
    def setUp(self):
        subprocess.run(['xrandr', '-s', '1920x1080', '-r', '60'], check=True)
        subprocess.run(['fw_setenv', 'display', '1920x1080M@60'], check=True)
        driver.plug('hdmi', '1920x1080')
        self.tool = driver.Tool()
        self.addCleanup(self.tool.stop)

    @staticmethod
    def apply(row, times=1):
        window = wait_for_window('Display Settings')
        click_row(window, row)
        _, _, width, height = driver.place(window)
        click(window, width - 50, height - 106, times=times, delay=120)
        return wait_for_window('Information')

    def test_keep(self):
        question = self.apply(0)
        self.assertEqual(screen_size(), '800x600')
        main = driver.find_windows('Display Settings')[0]
        left, top, width, height = driver.place(question)
        self.assertAlmostEqual(left + width / 2, 400, delta=2)
        # It makes way for a pointer that would lie on its buttons.
        self.assertAlmostEqual(top + height / 2, 300, delta=height)

        def is_on_screen():
            left, top, width, height = driver.place(main)
            return 0 <= left <= 800 - width and 0 <= top <= 600 - height

        wait_for(is_on_screen, 'main window on the screen')
        keys('Tab', 'space')
        wait_until_gone('Information')
        wait_for(lambda: stored_mode() == '800x600@60', 'stored mode')
        # It is the current mode now: OK ends without a question, and writes the language.
        Path('/etc/profile').write_text('export LANG=en_US.UTF-8\n')
        wait_for_window('Display Settings')
        # The list has the keyboard, so Enter does nothing; nor does the wheel over the language.
        keys('Return')
        click(main, *driver.LANGUAGE, button=5, times=2)
        self.assertIsNone(self.tool.process.poll())
        keys('Tab', 'Tab', 'Tab', 'space')
        self.assertEqual(self.tool.wait_for_end(), 0)
        self.assertIn('export LANG=zh_CN.UTF-8\n', Path('/etc/profile').read_text())

    def test_restore_by_enter(self):
        window = wait_for_window('Display Settings')
        # Too large for the next mode, whatever its place.
        driver.output('xdotool', 'windowsize', '--sync', window, '600', '700')
        before = driver.place(window)
        self.assertEqual(before[2:], (600, 700))
        # A double click, whose second click must not keep the keyboard from the question.
        self.apply(0, times=2)
        self.assertEqual(screen_size(), '800x600')
        keys('Return')
        wait_for(lambda: screen_size() == '1920x1080', 'the mode before')
        wait_for(lambda: driver.place(window) == before, 'the main window as it was')
        self.assertEqual(stored_mode(), '1920x1080M@60')

    def test_no_answer(self):
        self.apply(2)
        start = time.monotonic()
        self.assertEqual(screen_size(), '1280x720')
        wait_for(lambda: screen_size() == '1920x1080', 'the mode before', 30 + driver.PATIENCE / 2)
        self.assertGreater(time.monotonic() - start, 27)
        self.assertEqual(stored_mode(), '1920x1080M@60')

    def ends(self, number, *left):
        end = self.tool.wait_for_end()
        self.doCleanups()
        found = [stored_mode(), screen_size()]
        self.setUp()
        self.assertEqual((end, found), (-number, list(left)))

    def test_signals(self):
        """What arrives during the question counts as Restore."""
        for number in signal.SIGHUP, signal.SIGINT, signal.SIGQUIT:
            with self.subTest(number):
                self.apply(0)
                self.tool.process.send_signal(number)
                self.ends(number, '1920x1080M@60', '1920x1080')

    def test_ignored_signals(self):
        """Neither a terminal that goes, as under nohup, nor a log without a reader ends the tool."""
        self.tool.stop()
        reader, log = os.pipe()
        self.tool = driver.Tool('-c', f"trap '' HUP; exec {driver.PROGRAM}", program='sh',
                                log=f'/proc/self/fd/{log}')
        os.close(reader)
        self.apply(0)
        self.tool.process.send_signal(signal.SIGHUP)
        keys('Tab', 'space')
        wait_for(lambda: stored_mode() == '800x600@60', 'stored mode')
        wait_for_window('Display Settings')
        keys('Escape')
        self.assertEqual(self.tool.wait_for_end(), 0)

    def test_signals_in_commands(self):
        """So does Ctrl+C in the terminal during a command, unless Keep came first; the command goes on."""
        for command, end, *left in (('xrandr', 'true', '1920x1080M@60', '1920x1080'),
                                    ('fw_setenv', 'true', '800x600@60', '800x600'),
                                    ('fw_setenv', 'exit 1', '1920x1080M@60', '800x600')):
            with self.subTest(command, end=end):
                script = Path('/usr/local/bin', command)
                self.addCleanup(script.write_text, script.read_text())
                script.write_text(script.read_text().replace(
                    '\n', f'\nkill -INT -{self.tool.process.pid} 2>/dev/null; {end}\n', 1))
                if command == 'fw_setenv':
                    self.apply(0)
                    keys('Tab', 'space')
                else:
                    click_row(wait_for_window('Display Settings'), 0)
                    click(driver.find_windows('Display Settings')[0], *APPLY)
                self.ends(signal.SIGINT, *left)


if __name__ == '__main__':
    driver.main()
