#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The installed package: there, started from its desktop entry, used, upgraded and removed.

Its file is the argument.
"""

import subprocess
import sys
import unittest
from pathlib import Path

import gi
gi.require_version('Gio', '2.0')
from gi.repository import Gio, GLib  # noqa: E402

import driver  # noqa: E402
import tables  # noqa: E402
from driver import keys, wait_for_window, wait_until_gone  # noqa: E402

HOME = Path('/opt/moniconf')
LOG = Path('/tmp/entry.log')


def launch(entry):
    """Starts the program of a desktop entry as a desktop does."""
    with open(LOG, 'wb') as log:
        return Gio.DesktopAppInfo.new_from_filename(entry).launch_uris_as_manager_with_fds(
            [], None, GLib.SpawnFlags.SEARCH_PATH, None, None, None, None,
            -1, log.fileno(), log.fileno())


class Package(unittest.TestCase):
    def test_use_and_removal(self):
        files = [Path(name) for name in driver.output('dpkg', '--listfiles', 'moniconf').split('\n')
                 if not Path(name).is_dir()]
        self.assertEqual([file for file in files if not file.exists()], [])
        self.assertEqual({file.name for file in files if file.parent == HOME},
                         {'moniconf', 'moniconf-edid',
                          *(f'moniconf_{locale}.qm' for locale in tables.LOCALES)})
        self.assertEqual(list(Path('/var/lib/dpkg/info').glob('moniconf.*inst')), [])
        self.assertRegex(driver.output('/usr/bin/moniconf', '-v'), r'^moniconf 1\.2\.')
        # Without a search path the tool gets the usual one, and not the current directory.
        with driver.Tool('PATH=', '/usr/bin/moniconf', program='env') as tool:
            wait_for_window('Display Settings')
            path = Path(f'/proc/{tool.process.pid}/environ').read_text()
        self.assertRegex(path, r'(?m)\0PATH=/usr/libexec/moniconf(:/[\w/]+)+:/usr/bin[\w:/]*\0')
        wait_until_gone('Display Settings')

        # As on Debian, where sh cannot run the script behind Preference.
        subprocess.run(['ln', '-sf', '/usr/bin/dash', '/usr/local/bin/sh'], check=True)

        entry = next(str(file) for file in files if file.suffix == '.desktop')
        self.assertTrue(launch(entry))
        window = wait_for_window('Display Settings')
        driver.choose(window, 'Preference')
        wait_for_window('Preference')
        keys('Right', 'Return')
        wait_until_gone('Preference')
        wait_for_window('Display Settings')
        keys('Escape')
        wait_until_gone('Display Settings')
        self.assertIn('debug main:37 main: ', LOG.read_text())
        self.assertNotIn('moniconf_en_US.qm failed', LOG.read_text())

        settings = HOME / 'ui.ini'
        for step in ('--install', sys.argv[1]), ('--remove', 'moniconf'):
            driver.output('dpkg', *step)
            self.assertEqual(settings.read_text(), '[Preference]\nAutoStartApp=1\n')
        self.assertEqual(list(HOME.iterdir()), [settings])
        driver.output('dpkg', '--purge', 'moniconf')
        self.assertEqual([file for file in files if file.exists() or file.is_symlink()], [])
        self.assertFalse(HOME.exists())


if __name__ == '__main__':
    driver.main(argv=sys.argv[:1])
