#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""One instance at a time, and no lock that keeps the next from starting."""

import os
import signal
import unittest
from pathlib import Path

import driver
from driver import wait_for, wait_for_window, wait_until_gone

TITLE = 'Display Settings'


class SingleInstance(unittest.TestCase):
    def setUp(self):
        self.started = []
        self.addCleanup(lambda: [tool.stop() for tool in self.started])

    def start(self, *arguments):
        self.started.append(driver.Tool(*arguments, log=f'/tmp/log{len(self.started)}'))
        return self.started[-1]

    def test_second_start_ends(self):
        first = self.start()
        wait_for_window(TITLE)
        self.assertEqual(self.start().wait_for_end(), 0)
        self.assertEqual(self.start('--other').wait_for_end(), 0)
        self.assertEqual(len(driver.find_windows(TITLE)), 1)
        self.assertRegex(driver.output(driver.PROGRAM, '-v'), r'^moniconf 1\.2\.\d{3,4}\.\d{5,6}$')
        self.assertIsNone(first.process.poll())

    def test_twenty_starts(self):
        for _ in range(20):
            self.start()
        wait_for_window(TITLE)
        wait_for(lambda: sum(tool.process.poll() == 0 for tool in self.started) == 19, '19 ends')
        self.assertEqual(len(driver.find_windows(TITLE)), 1)

    def test_leftovers(self):
        def killed(tool):
            tool.stop()

        def killed_and_cleaned(tool):
            tool.stop()
            for file in Path('/tmp').glob('moniconf*'):
                file.unlink()

        def power_cut(tool):
            tool.stop()
            lock = Path('/tmp/moniconf-0.lock')
            lock.write_bytes(b'')
            os.utime(lock, (60, 60))    # no clock battery either

        for leave in (killed, killed_and_cleaned, power_cut):
            with self.subTest(leave.__name__):
                tool = self.start()
                wait_for_window(TITLE)
                leave(tool)
                wait_until_gone(TITLE)
                tool = self.start()
                wait_for_window(TITLE)
                self.assertEqual(self.start().wait_for_end(), 0)
                tool.stop()
                wait_until_gone(TITLE)

    def test_something_else_under_the_lock(self):
        lock = Path('/tmp/moniconf-0.lock')
        for make in (lambda: os.mkfifo(lock), lambda: lock.symlink_to('/dev/zero')):
            lock.unlink(missing_ok=True)
            make()
            tool = self.start()
            wait_for_window(TITLE)
            self.assertTrue(tool.messages('running without a lock'))
            tool.stop()
            wait_until_gone(TITLE)
        lock.unlink()

    def test_stopped_instance(self):
        first = self.start()
        wait_for_window(TITLE)
        first.process.send_signal(signal.SIGSTOP)
        self.start()
        wait_for(lambda: len(driver.find_windows(TITLE)) == 2, 'a window of its own')


if __name__ == '__main__':
    unittest.main()
