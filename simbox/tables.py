# SPDX-License-Identifier: MIT
"""The product's tables, read from its source, so that each is kept in one place."""

import re
from pathlib import Path

REPOSITORY = Path(__file__).resolve().parent.parent


def rows(file, table):
    """The literals of each row of a table: its texts, and None for a null pointer."""
    source = (REPOSITORY / file).read_text(encoding='utf-8')
    body = re.search(rf'\b{table}\[\] = {{\n(.*?)\n}};', source, re.DOTALL)[1]
    return [[text or None for text in re.findall(r'"([^"]*)"|\bnullptr\b', row)]
            for row in re.findall(r'{([^{}]*)}', body)]


CONNECTORS = rows('display/connectors.h', 'CONNECTORS')     # name, bus, switch or None
MODES = [text.split('@')[0] for text, in rows('display/monitor/modes.h', 'ALL_RESOLUTIONS')]
LANGUAGES = [row[-2:] for row in rows('app/languages.h', 'LANGUAGES')]      # item, locale line
LOCALES = [line.split('=')[1].split('.')[0] for _, line in LANGUAGES]
MENU = [text for text, in rows('app/dialogmain.cpp', 'DialogMain::MENU')]
