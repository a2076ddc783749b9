#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Start-up in Chinese, and in a language without catalogues; what comes from beside the program."""

import os
import shutil
import unittest
from pathlib import Path

import driver
from driver import keys, wait_for_window, wait_until_gone

HOME = Path('/opt/moniconf')


class Chinese(unittest.TestCase):
    def start(self, language, *arguments):
        os.environ['LANG'] = f'{language}.UTF-8'
        tool = driver.Tool(*arguments)
        self.addCleanup(tool.stop)
        return tool

    def test_chinese(self):
        pictures = []
        # The second time the program's own texts are Chinese and the toolkit's are not.
        for language in ('zh_CN', 'en_US'):
            tool = self.start(language)
            window = wait_for_window('显示设置')
            self.assertEqual(tool.messages(type='critical'), [])
            self.assertTrue(tool.messages('WenQuanYi Micro Hei', type='debug', file='main',
                                          line='37', function='main', category='default'))
            keys('F1')
            wait_for_window('关于')
            keys('Return')
            wait_for_window('显示设置')
            driver.choose(window, 'Factory Reset')
            question = wait_for_window('确认')
            pictures.append(driver.output('import', '-window', question, 'txt:-'))
            tool.stop()
            wait_until_gone('显示设置')
            shutil.copy(HOME / 'moniconf_zh_CN.qm', HOME / 'moniconf_en_US.qm')
        self.assertNotEqual(*pictures)

    def test_no_catalogues(self):
        tool = self.start('zu_ZA', '-v', 'more')
        window = wait_for_window('Display Settings')
        self.assertEqual([message[2:] for message in tool.messages(type='critical')], [
            (line, 'main', 'default', f'Loading {name}_zu_ZA.qm failed.')
            for line, name in (('43', 'qt'), ('49', 'moniconf'))])
        driver.choose(window, 'Preference')
        wait_for_window('Preference')
        keys('Right', 'Return')
        wait_for_window('Display Settings')
        self.assertEqual((HOME / 'ui.ini').read_text(), '[Preference]\nAutoStartApp=1\n')
        keys('Escape')
        self.assertEqual(tool.wait_for_end(), 0)


if __name__ == '__main__':
    driver.main()
