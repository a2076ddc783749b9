#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Fails when a catalogue lacks a text, has one too many, translates what has to stay, is English or
another's copy, or when the desktop's entry or the store's has no words in its language.

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

PACKAGING = Path(__file__).resolve().parent.parent / 'packaging'
STORE = 'invalid.orvex.moniconf.metainfo.xml.in'
WORDS = (('moniconf.desktop', 'Name[{}]='), ('moniconf.desktop', 'Comment[{}]='),
         ('moniconf.desktop', 'Keywords[{}]='), (STORE, '<name xml:lang="{}">'),
         (STORE, '<summary xml:lang="{}">'))


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


def translated(root):
    """The translations that differ from their texts."""
    return {(key, message.findtext('translation')) for key, message in messages(root).items()
            if message.findtext('translation') != message.findtext('source')}


end = sys.argv.index('--')
found, others = [], {}
with tempfile.TemporaryDirectory() as directory:
    for file in map(Path, sys.argv[1:end]):
        copy = Path(shutil.copy(file, directory))
        subprocess.run([*sys.argv[end + 1:], copy], check=True)
        found += [f'{file.name}: {fault}' for fault in check(file, copy)]
        root = ET.parse(file).getroot()
        own = translated(root)
        found += [f'{file.name}: is a copy of {other}' for other, texts in others.items()
                  if len(own & texts) > len(own) / 4]
        if len(own) < len(messages(root)) / 2:
            found.append(f'{file.name}: most of it is English')
        others[file.name] = own
        found += [f'{entry}: lacks {mark.format(root.get("language"))}' for entry, mark in WORDS
                  if mark.format(root.get('language')) not in (PACKAGING / entry).read_text('utf-8')]
print('\n'.join(found) or 'all catalogues are complete')
sys.exit(1 if found else 0)
