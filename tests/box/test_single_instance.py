#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""One instance at a time, and no lock that keeps the next from starting."""

import os
import signal
import socket
import subprocess
import time
import unittest
from pathlib import Path

import driver
from driver import wait_for, wait_for_window, wait_until_gone

TITLE = 'Display Settings'
SOCKET = '/tmp/moniconf-0.socket'


class SingleInstance(unittest.TestCase):
    def setUp(self):
        self.started = []
        self.addCleanup(lambda: [tool.stop() for tool in self.started])

    def start(self, *arguments):
        self.started.append(driver.Tool(*arguments, log=driver.RUN / f'tool{len(self.started)}.log'))
        return self.started[-1]

    def test_second_start_ends(self):
        first = self.start()
        wait_for_window(TITLE)
        self.assertEqual(self.start().wait_for_end(), 0)
        self.assertEqual(self.start('--other').wait_for_end(), 0)
        self.assertEqual(len(driver.find_windows(TITLE)), 1)
        for option in ('-v', '--version'):      # without a display, too
            version = subprocess.run([driver.PROGRAM, option], env={}, stdout=subprocess.PIPE,
                                     check=True)
            self.assertRegex(version.stdout, rb'^moniconf 1\.2\.\d{3,4}\.\d{5,6}\n\Z')
        self.assertIsNone(first.process.poll())

    def test_start_after_a_crash(self):
        first = self.start()
        wait_for_window(TITLE)
        first.stop()
        wait_until_gone(TITLE)
        self.start()
        wait_for_window(TITLE)
        self.assertEqual(self.start().wait_for_end(), 0)

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
        start = time.monotonic()
        self.start()
        wait_for(lambda: len(driver.find_windows(TITLE)) == 2, 'a window of its own')
        self.assertGreater(time.monotonic() - start, 4.9)

        # In place of the one that is stopped.
        with socket.socket(socket.AF_UNIX) as server:
            Path(SOCKET).unlink()
            server.bind(SOCKET)
            server.listen()
            server.settimeout(driver.PATIENCE)
            third = self.start()
            with server.accept()[0] as peer:
                self.assertEqual(peer.recv(100), b'Wake up!\0')
                peer.send(b'\x06')
                self.assertEqual(third.wait_for_end(), 0)


if __name__ == '__main__':
    driver.main()
