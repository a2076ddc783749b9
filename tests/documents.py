#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Fails when a page lacks what the code has, or names what is not there."""

import re
import sys
import xml.etree.ElementTree as ET
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / 'simbox'))
from files import SETTINGS, SHOWN  # noqa: E402
from tables import CONNECTORS, LANGUAGES, MENU  # noqa: E402

TEXTS = {path.relative_to(ROOT).as_posix(): path.read_text(encoding='utf-8', errors='replace')
         for top in ROOT.iterdir() if top.name not in ('.git', 'build')
         for path in (top, *top.rglob('*')) if path.is_file()}
PAGES = {name: text for name, text in TEXTS.items() if name.endswith('.md')}
INTEGRATION, MAN_PAGE = 'docs/integration.md', 'packaging/moniconf.1.in'
EDID_PROGRAM = 'display/edidtool/moniconf-edid.cpp'


def lacking(what, *pages):
    return [f'{page} lacks {what}' for page in pages
            if what not in TEXTS[page].replace(r'\-', '-')]


def messages():
    """Whole sentences and the menu's entries, but for those of About, which are no messages."""
    for context in ET.fromstring(TEXTS['translations/moniconf_zh_CN.ts']).iter('context'):
        for message in context.iter('message'):
            english = message.findtext('source')
            if english in MENU or english[-1] in '.!?' and context[0].text != 'DialogAbout':
                for text in (english, message.findtext('translation')):
                    yield from lacking(f'| {text} |' if english in MENU else text,
                                       'docs/manual.md', 'docs/manual.zh_CN.md')


def log_messages():
    rows = dict(re.findall(r'^\| (\w+:\d+) \| (\w+ \| .*?) \|', TEXTS[INTEGRATION], re.M))
    for name, source in TEXTS.items():
        variables = dict(re.findall(r'(\w+) =\s+QStringLiteral\("(.*?)"', source))
        written = {site: f'{level} | {text or variables.get(variable, "")}'
                   for level, site, text, variable in re.findall(
                       r'oxlog::(\w+)\(\s*OX_LOG_AT\((\w+)\),\s*'
                       r'(?:QStringLiteral\("(.*?)"|(\w+))', source)}
        for site, line in re.findall(r'^ +position\((\w+), (\d+)\)', source, re.M):
            row = rows.pop(f'{Path(name).stem}:{line}', '')
            text = re.escape(written.get(site, '')).replace('%1', '.*')
            if not row or not re.match(text, row):
                yield f'{INTEGRATION} has not for {name}:{line}: {written.get(site)}'
        for text in re.findall(r'oxlog::critical\([^;]*?QStringLiteral\(\s*"(.*?)"', source):
            for part in re.split(r'%\d', text):
                yield from lacking(part.strip(), INTEGRATION)
    yield from (f'{INTEGRATION} has {position}, which is no position' for position in rows)


def product():
    """What the program's sources name: files of the box, and windows, whose texts a test looks at."""
    for name, source in TEXTS.items():
        if name.startswith(('app/', 'display/', 'maintenance/')):
            for path in re.findall(r'"(/(?:dev|etc|home|sys|usr)/[\w./-]+)"', source):
                yield from lacking(path, INTEGRATION)
            for window in re.findall(r'<class>(\w+)</class>\n <widget', source):
                yield from lacking(f'{window} ', 'tests/app/tst_windows.cpp')


def tables():
    for name, _, switch in CONNECTORS:
        yield from lacking(name.upper(), 'docs/manual.md', 'docs/manual.zh_CN.md', 'docs/compatibility.md')
        yield from lacking(switch or '', 'packaging/moniconf-edid.1.in', EDID_PROGRAM)
    for item, line in LANGUAGES:
        yield from lacking(item, 'docs/manual.md', 'docs/manual.zh_CN.md', 'docs/compatibility.md')
        yield from lacking(f'`{line}`', INTEGRATION)


def files_and_options():
    shown = re.findall(r"'((?:etc|opt|usr)/.*?)'", str(SHOWN))
    for name in (*SETTINGS, *shown, 'etc/xdg/autostart'):
        for part in name.rsplit('/', 1) if name.endswith('.ini') else [name]:
            yield from lacking(part, INTEGRATION, MAN_PAGE)
    for option in re.findall(r'{"(\w+)", \w+_argument', TEXTS[EDID_PROGRAM]):
        yield from lacking(f'--{option}', 'packaging/moniconf-edid.1.in', 'README.md')


def anchors(text):
    """What a page's headings are called in links."""
    return [re.sub(r'[^\w -]', '', title.lower()).replace(' ', '-')
            for title in re.findall(r'^#+ (.*)', text, re.M)]


def links():
    for page, text in PAGES.items():
        for link in re.findall(r'\]\(([^)]+)\)', text):
            file, _, anchor = link.partition('#')
            target = (ROOT / page).parent / file if file else ROOT / page
            if not target.exists() or anchor and anchor not in anchors(target.read_text('utf-8')):
                yield f'{page}: {link} is not there'
    yield from (f'no page shows {picture}' for picture in TEXTS if picture.startswith('docs/images')
                and picture.partition('/')[2] not in ' '.join(PAGES.values()))
    yield from (f'{name}: {page} is not there' for name, text in TEXTS.items()
                for page in re.findall(r'\bdocs/[\w.]+\.md\b', text) if page not in PAGES)


def names():
    """Paths and targets in backticks and lines of code; file and other names in backticks."""
    tops = {name.split('/')[0] for name in TEXTS if '/' in name}
    known = {Path(name).name for name in TEXTS}.union(
        *(re.findall(r'[\w-]+', text) for name, text in TEXTS.items() if name not in PAGES))
    targets = ' '.join(re.findall(r'^([\w -]+):', TEXTS['Makefile'], re.M)).split()
    for page, text in PAGES.items():
        code = '\n'.join(map(''.join, re.findall(r'`([^`\n]+)`|^    (.*)', text, re.M)))
        wrong = set(re.findall(r'\bmake ([a-z][\w-]*)', code)).difference(targets)
        wrong.update(word for word in code.split() if '/' in word and word.split('/')[0] in tops
                     and not [*ROOT.glob(word), *ROOT.glob(word + '.*')])
        wrong.update({*re.findall(
            r'`(\w[\w-]*(?:\.(?:cpp|h|md|py|sh|ts|txt|ui))?)[` ]', text)} - known)
        yield from (f'{page}: {word} is not there' for word in wrong)


found = [fault for check in (messages, log_messages, product, tables, files_and_options, links, names)
         for fault in check()]
print('\n'.join(found) or 'the documents agree with the code')
sys.exit(1 if found else 0)
