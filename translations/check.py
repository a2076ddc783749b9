#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Fails when a catalogue lacks a text, has one too many, or translates what has to stay.

    check.py CATALOGUE... -- LUPDATE...

LUPDATE, completed by the name of a catalogue's copy, updates that.
"""

import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET
from pathlib import Path


def faults(message):
    source, translation = message.findtext('source'), message.find('translation')
    text = translation.text or ''
    if translation.get('type'):
        yield translation.get('type')
        return
    stays = re.search('stays as it is', message.findtext('extracomment', ''), re.IGNORECASE)
    if stays and text != source:
        yield f'has to stay, and is "{text}"'
    if not text or sorted(re.findall(r'%\d', text)) != sorted(re.findall(r'%\d', source)):
        yield f'is empty or has other placeholders: "{text}"'


def messages(root):
    """The messages by what the source says of each; their order is not looked at."""
    return {(context.findtext('name'), message.findtext('source'),
             message.findtext('extracomment')): message
            for context in root.iter('context') for message in context.iter('message')}


def check(catalogue, updated):
    root = ET.parse(updated).getroot()
    if catalogue.stem != f'moniconf_{root.get("language")}':
        yield f'is in the language {root.get("language")} by its first lines'
    if messages(root).keys() != messages(ET.parse(catalogue).getroot()).keys():
        yield 'texts or comments in the source have changed: build update-translations'
    for (context, source, _), message in messages(root).items():
        for fault in faults(message):
            yield f'{context}: "{source}" {fault}'


end = sys.argv.index('--')
found = []
with tempfile.TemporaryDirectory() as directory:
    for file in map(Path, sys.argv[1:end]):
        copy = Path(shutil.copy(file, directory))
        subprocess.run([*sys.argv[end + 1:], copy], check=True)
        found += [f'{file.name}: {fault}' for fault in check(file, copy)]
print('\n'.join(found) or 'all catalogues are complete')
sys.exit(1 if found else 0)
