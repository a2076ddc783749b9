#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Start-up: one instance at a time, and the languages that it can be in."""

import os
import signal
import socket
import time
import unittest
from pathlib import Path

import driver
from driver import keys, wait_for, wait_for_window, wait_until_gone

HOME = Path('/opt/moniconf')
LOCK = Path('/tmp/moniconf-0.lock')
SOCKET = Path('/tmp/moniconf-0.socket')
TITLE = 'Display Settings'


class Startup(unittest.TestCase):
    def setUp(self):
        self.started = []
        self.addCleanup(lambda: [tool.stop() for tool in self.started])
        self.addCleanup(os.environ.update, LANG=os.environ['LANG'])

    def start(self, *arguments):
        self.started.append(driver.Tool(*arguments, log=driver.RUN / f'tool{len(self.started)}.log'))
        return self.started[-1]

    def start_shown(self, *arguments, title=TITLE):
        tool = self.start(*arguments)
        return tool, wait_for_window(title)

    def stop(self, tool, title=TITLE):
        tool.stop()
        wait_until_gone(title)

    def test_second_start_ends(self):
        first, _ = self.start_shown()
        self.assertEqual(self.start('--other').wait_for_end(), 0)
        self.assertEqual(len(driver.find_windows(TITLE)), 1)
        for option in ('-v', '--version'):      # without a display, too
            version = driver.output('env', '-i', driver.PROGRAM, option)
            self.assertRegex(version, r'^moniconf 1\.2\.\d{3,4}\.\d{5,6}$')
        # Nor does one that has crashed keep the next from starting and being the first.
        self.stop(first)
        next_first, _ = self.start_shown()
        self.assertEqual(self.start().wait_for_end(), 0)
        # Nor does something else under the lock's name.
        self.stop(next_first)
        LOCK.unlink()
        os.mkfifo(LOCK)
        self.addCleanup(LOCK.unlink)
        self.assertTrue(self.start_shown()[0].messages('running without a lock'))

    def test_stopped_instance(self):
        self.start_shown()[0].process.send_signal(signal.SIGSTOP)
        start = time.monotonic()
        self.start()
        wait_for(lambda: len(driver.find_windows(TITLE)) == 2, 'a window of its own')
        self.assertGreater(time.monotonic() - start, 4.9)

        # In place of the one that is stopped.
        with socket.socket(socket.AF_UNIX) as server:
            SOCKET.unlink()
            server.bind(str(SOCKET))
            server.listen()
            server.settimeout(driver.PATIENCE)
            third = self.start()
            with server.accept()[0] as peer:
                self.assertEqual(peer.recv(100), b'Wake up!\0')
                peer.send(b'\x06')
                self.assertEqual(third.wait_for_end(), 0)

    def test_chinese(self):
        pictures = []
        english = HOME / 'moniconf_en_US.qm'
        self.addCleanup(english.write_bytes, english.read_bytes())
        # The second time the program's own texts are Chinese and the toolkit's are not.
        for language in ('zh_CN', 'en_US'):
            os.environ['LANG'] = f'{language}.UTF-8'
            tool, window = self.start_shown(title='显示设置')
            self.assertEqual(tool.messages(type='critical'), [])
            self.assertTrue(tool.messages('WenQuanYi Micro Hei', type='debug', file='main',
                                          line='37', function='main', category='default'))
            driver.choose(window, 'Factory Reset')
            question = wait_for_window('确认')
            pictures.append(driver.output('import', '-window', question, 'txt:-'))
            self.stop(tool, '显示设置')
            english.write_bytes((HOME / 'moniconf_zh_CN.qm').read_bytes())
        self.assertNotEqual(*pictures)

    def test_no_catalogues(self):
        os.environ['LANG'] = 'zu_ZA.UTF-8'
        tool, window = self.start_shown('-v', 'more')
        self.assertEqual([message[2:] for message in tool.messages(type='critical')], [
            (line, 'main', 'default', f'Loading {name}_zu_ZA.qm failed.')
            for line, name in (('43', 'qt'), ('49', 'moniconf'))])
        driver.choose(window, 'Preference')
        wait_for_window('Preference')
        keys('Right', 'Return')
        wait_for_window(TITLE)
        self.assertEqual((HOME / 'ui.ini').read_text(), '[Preference]\nAutoStartApp=1\n')


if __name__ == '__main__':
    driver.main()
