#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Fails when a source file includes what its layer may not; see docs/architecture.md."""

import pathlib
import re
import sys

# The most specific place first. A place may always include itself.
LAYERS = {
    'libOxUtils/': [],
    'display/monitor/': [],
    'display/edidtool/': ['display/monitor/'],
    'display/': ['display/monitor/', 'libOxUtils/'],
    'maintenance/identity/': ['libOxUtils/'],
    'app/globalvars': ['maintenance/identity/', 'libOxUtils/'],
    'maintenance/': ['maintenance/identity/', 'app/globalvars', 'libOxUtils/'],
    'app/guards/': ['libOxUtils/'],
    'app/': ['app/guards/', 'app/globalvars', 'display/', 'display/monitor/', 'maintenance/',
             'maintenance/identity/', 'libOxUtils/'],
}


def place_of(path):
    return next((place for place in LAYERS if path.startswith(place)), None)


def breaches():
    root = pathlib.Path(__file__).resolve().parent.parent
    for source in sorted(root.glob('*/**/*')):
        name = source.relative_to(root).as_posix()
        place = place_of(name)
        if place is None or source.suffix not in ('.h', '.cpp'):
            continue
        for included in re.findall(r'^\s*#\s*include\s+["<]([^">]+)', source.read_text(), re.M):
            if place_of(included) not in (None, place, *LAYERS[place]):
                yield f'{name}: may not include {included}'


sys.exit('\n'.join(breaches()) or None)
