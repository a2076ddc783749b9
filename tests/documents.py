#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Fails when a page lacks what the code has, or names what is not there."""

import re
import sys
import xml.etree.ElementTree as ET
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / 'simbox'))
from files import FILES, SETTINGS, SHOWN  # noqa: E402
from tables import CONNECTORS, LANGUAGES, MENU  # noqa: E402

TEXTS = {path.relative_to(ROOT).as_posix(): path.read_text(encoding='utf-8', errors='replace')
         for top in ROOT.iterdir() if top.name not in ('.git', 'build')
         for path in (top, *top.rglob('*')) if path.is_file()}
PAGES = {name: text for name, text in TEXTS.items() if name.endswith('.md')}
PRODUCT = {name: text for name, text in TEXTS.items() if name.startswith(('app/', 'display/', 'maintenance/'))}
SOURCE = '\n'.join(PRODUCT.values())
MANUALS = 'docs/manual.md', 'docs/manual.zh_CN.md'
COMPATIBILITY, INTEGRATION, PICTURES = 'docs/compatibility.md', 'docs/integration.md', 'docs/screenshots.py'
MAN_PAGE, EDID_PAGE = 'packaging/moniconf.1.in', 'packaging/moniconf-edid.1.in'
SILENT = '### Where nothing appears', '### 不会出现提示的情况'


def lacking(what, *places, times=1):
    """A place is a page or, named by a colon and its beginning, a section or line of one."""
    for place in places:
        page, _, beginning = place.partition(': ')
        text = TEXTS[page].replace(r'\-', '-')
        if beginning:
            text = text.partition('\n' + beginning)[2].partition('\n#' if beginning[0] == '#' else '\n')[0]
        if text.count(what) < times:
            yield f'{place} lacks {what}' + f', {times} times' * (times > 1)


def wanted():
    """What the code has, with the places that have to name it."""
    dialogs = {Path(name).stem: form for name, form in PRODUCT.items() if re.match(r'maintenance/.*\.ui', name)}
    # A dialog's picture is called by the first word of its class.
    forms = {re.search('<class>Dialog([A-Z][a-z]+)', form)[1].lower(): form for form in dialogs.values()}
    for names, *places in (
            ([name.upper() for name, *_ in CONNECTORS] + [item for item, _ in LANGUAGES], *MANUALS, COMPATIBILITY),
            ([switch for *_, switch in CONNECTORS if switch], EDID_PAGE, 'display/edidtool/moniconf-edid.cpp'),
            ([f'`{line}`' for _, line in LANGUAGES], INTEGRATION),
            ([f'--{name}' for name in re.findall(r'{"(\w+)", \w+_argument', SOURCE)], EDID_PAGE, 'README.md'),
            (re.findall(r'"(/(?:dev|etc|home|sys|usr)/[\w./-]+)"', SOURCE), INTEGRATION),
            ([part for name in (*SETTINGS, 'etc/xdg/autostart/') for part in name.rsplit('/', 1)], INTEGRATION, MAN_PAGE),
            ([name.replace('opt/moniconf/', '') for name in SHOWN if not name.startswith('run/')], MAN_PAGE,
             f'{INTEGRATION}: | Files written |', f'{INTEGRATION}: ## When the power fails'),
            ([f'"{entry}"' for entry in MENU], 'tests/maintenance/tst_maintenancedialogs.cpp'),
            (re.findall(r'<class>(\w+)</class>\n <widget', SOURCE), 'tests/app/tst_windows.cpp'),
            (dialogs, COMPATIBILITY, 'docs/architecture.md: | `maintenance/`'),
            ([f"'{name}'" for name in forms], PICTURES),
            (forms, f'{PICTURES}: ON_PAGES'),
            ([name for name in forms if re.search('(Edit|SpinBox)"', forms[name])], f'{PICTURES}: BLINKING'),
            ([f'/{name}.png)' for name in forms], *MANUALS)):
        for name in names:
            yield from lacking(name, *places)
    settings = {name for code in PRODUCT.values() if re.search(r'\b(ConfFile|QSettings) \w+\(', code)
                for name in re.findall(r'"/(\w[\w./-]+)"', code)}
    yield from (f'simbox/files.py lacks {name} in FILES or SHOWN' for name in settings - (FILES.keys() & SHOWN))


def messages():
    """The menu's entries, and whole sentences, but for those of About, which are no messages."""
    for context in ET.fromstring(TEXTS['translations/moniconf_zh_CN.ts']).iter('context'):
        for message in context.iter('message'):
            english, chinese = message.findtext('source'), message.findtext('translation')
            for text, manual, silent in zip((english, chinese), MANUALS, SILENT):
                if english in MENU:
                    yield from lacking(f'| {text} |', *MANUALS)
                    yield from lacking(text, f'{manual}: {silent}')
                elif english[-1] in '.!?' and context[0].text != 'DialogAbout':
                    yield from lacking(text, *MANUALS, times=SOURCE.count(f'"{english}"') or 1)


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
            text = re.escape(written.get(site, 'never written')).replace('%1', '.*')
            if not row or not re.match(text, row):
                yield f'{INTEGRATION} has not for {name}:{line}: {written.get(site)}'
        for text in re.findall(r'oxlog::critical\([^;]*?QStringLiteral\(\s*"(.*?)"', source):
            for part in re.split(r'%\d', text):
                yield from lacking(part.strip(), INTEGRATION)
    yield from (f'{INTEGRATION} has {position}, which is no position' for position in rows)


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
    yield from (f'{name}: {page} is not there' for name, text in TEXTS.items()
                for page in re.findall(r'\bdocs/[\w.]+\.md\b', text) if page not in PAGES)


def names():
    """Paths, targets and options in backticks and lines of code; other names in backticks; tests."""
    tops = {name.split('/')[0] for name in TEXTS if '/' in name}
    known = {Path(name).name for name in TEXTS}.union(
        *(re.findall(r'[\w-]+', text) for name, text in TEXTS.items() if name not in PAGES))
    targets = ' '.join(re.findall(r'^([\w -]+):', TEXTS['Makefile'], re.M)).split()
    options = {*re.findall(r'--[a-z-]+', TEXTS['simbox/simbox'] + SOURCE), *(f'--{row[0]}' for row in CONNECTORS)}
    tests = re.findall(r'\w+', TEXTS['tests/CMakeLists.txt'] + TEXTS['translations/CMakeLists.txt'])
    for page, text in PAGES.items():
        code = '\n'.join(map(''.join, re.findall(r'`([^`\n]+)`|^    (.*)', text, re.M)))
        wrong = set(re.findall(r'\bmake ([a-z][\w-]*)', code)).difference(targets)
        wrong.update(word for word in code.split() if '/' in word and word.split('/')[0] in tops
                     and not [*ROOT.glob(word), *ROOT.glob(word + '.*')])
        wrong.update({*re.findall(r'`(\w[\w-]*(?:\.(?:cpp|h|md|py|sh|ts|txt|ui))?)[` ]', text)} - known)
        own = ' '.join(re.findall(r'^(?:simbox/|moniconf|--).*', code, re.M))
        wrong.update({*re.findall(r'--[a-z-]+', own)} - options,
                     {*re.findall(r'\b[Tt]ests? `(\w+)`', text)}.difference(tests))
        for test, function, name, file in re.findall(
                r'\b(tst_\w+|test_\w+\.py) ([\w.]+)|`(\w+)` in\s+`([\w/.]+)`', text):
            source = ''.join(TEXTS[path] for path in TEXTS if Path(path).stem == Path(test or file).stem)
            wrong.update(word for word in (function or name).split('.')
                         if not re.search(rf'\b{word}(\(|\[| =)', source))
        yield from (f'{page}: {word} is not there' for word in wrong)


found = [fault for check in (wanted, messages, log_messages, links, names) for fault in check()]
sys.exit('\n'.join(found) or None)
