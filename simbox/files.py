# SPDX-License-Identifier: MIT
"""The box's own files: made up before it starts, and looked at from outside."""

import os
import shutil
import struct
import zlib
from pathlib import Path

from tables import LOCALES

FONT = '/usr/share/fonts/truetype/wqy/wqy-microhei.ttc'
LOCALE = '/usr/lib/locale/C.utf8'
BOOT_ENVIRONMENT = 'var/lib/boot-environment'
APPLICATIONS = 'usr/share/applications'
TERMINAL = f'{APPLICATIONS}/matchbox-terminal.desktop'
# Writable in the box in place of the machine's own.
REPLACED = (APPLICATIONS, 'usr/share/fonts', 'usr/lib/locale', 'usr/local/bin')
# Writable too where a package is installed; the box's /usr/bin then leads to the machine's.
PACKAGED = ('usr/bin', 'usr/libexec', 'usr/share/doc', 'usr/share/icons', 'usr/share/lintian',
            'usr/share/man', 'usr/share/metainfo')
MACHINE = '/run/machine'
DIRECTORIES = ('tmp', 'var/lib', 'var/lock', 'var/cache', 'run/user/0', 'run/simbox',
               'etc/xdg/autostart', 'opt/moniconf')
SETTINGS = ('home/root/vexa_standard/vexaapp.ini', 'home/root/vexa_standard/usersensor.ini',
            'home/root/vexa_standard/filemanager.ini', 'home/root/vexa_otp/vxotp.ini',
            'home/root/vexa_otp/filemanager.ini')
ENTRY = '[Desktop Entry]\nType=Application\nName={}\nExec={}\n'
# Stand-ins for what must not reach the machine, or is a program of another maker. They say so when
# the tool's setting against OpenGL has been passed on to them.
RECORD = 'echo "${0##*/}${*:+ $*}${QT_XCB_GL_INTEGRATION+ without OpenGL}" >>/run/simbox/calls\n'
FILES = {
    'etc/passwd': 'root:x:0:0:root:/home/root:/bin/bash\n',
    'etc/group': 'root:x:0:\n',
    'etc/profile': '# Settings of every login shell\nexport LANG={locale}.UTF-8\numask 022\n',
    'etc/fand.conf': '# Degrees\ntemp_threshold_lower=60\ntemp_threshold_upper=75\n',
    'etc/fw_env.config': f'/{BOOT_ENVIRONMENT} 0x0 0x4000\n',
    'etc/orvex/barcode.txt': 'ORVEX\nTEST BOX\n{barcode}\n',
    'etc/orvex/version': '2.0.1\n',
    'etc/orvex/patches_version.txt': 'p1\np2\n',
    TERMINAL: ENTRY.format('Terminal', 'matchbox-terminal') + 'NoDisplay=true\n',
    f'{APPLICATIONS}/vexastd.desktop': ENTRY.format('Test', '/home/root/vexa_standard/vexastd'),
    f'{APPLICATIONS}/vxotp.desktop': ENTRY.format('OTP test', '/home/root/vexa_otp/vxotp'),
    f'{APPLICATIONS}/moniconf.desktop': ENTRY.format('Settings', '/opt/moniconf/moniconf'),
    **dict.fromkeys(SETTINGS, '[General]\nlanguage=1\n'),
    'usr/local/bin/hwclock': f'#!/bin/sh\n{RECORD}',
    'usr/local/bin/upgrader': f'#!/bin/sh\n{RECORD}',
    **{f'usr/local/bin/{name}': f'#!/bin/sh\n{RECORD}exec /usr/bin/{name} "$@"\n'
       for name in ('fw_printenv', 'fw_setenv', 'sync', 'xrandr')},
    # Setting the clock is recorded and fails for what is no date; everything else is real.
    'usr/local/bin/date': '#!/bin/sh\n[ "$1" = -s ] || exec /usr/bin/date "$@"\n'
                          f'{RECORD}exec /usr/bin/date -d "$2"\n',
    'run/simbox/calls': '',
}
SHOWN = ('etc/profile', 'etc/fand.conf', TERMINAL, 'opt/moniconf/ui.ini', 'run/simbox/calls')


def fill(root, mode, barcode, locale):
    """Makes the tree that the box sees as its root, except what it shares with the machine."""
    for name in DIRECTORIES + REPLACED:
        (root / name).mkdir(parents=True, exist_ok=True)
    (root / 'run/user/0').chmod(0o700)
    for name in ('bin', 'sbin', 'lib', 'lib32', 'lib64', 'libx32'):
        if Path('/', name).is_symlink():
            (root / name).symlink_to(os.readlink(Path('/', name)))
    for name, text in FILES.items():
        text = text.replace('{barcode}', barcode).replace('{locale}', locale)
        (root / name).parent.mkdir(parents=True, exist_ok=True)
        (root / name).write_text(text, encoding='utf-8')
        (root / name).chmod(0o755 if text.startswith('#!') else 0o644)
    (root / 'usr/local/bin/sh').symlink_to('/usr/bin/bash')
    (root / 'usr/share/fonts/ttf').mkdir()
    shutil.copy2(FONT, root / 'usr/share/fonts/ttf/msyh.ttf')
    shutil.copytree(LOCALE, root / 'usr/lib/locale/C.utf8')
    for name in LOCALES:
        (root / 'usr/lib/locale' / f'{name}.utf8').symlink_to('C.utf8')
    variables = f'display={mode}M@60\0'.encode().ljust(0x4000 - 4, b'\0')
    (root / BOOT_ENVIRONMENT).write_bytes(struct.pack('<I', zlib.crc32(variables)) + variables)


def install(root, build):
    """Copies the program and its catalogues out of the build tree; false if there is none."""
    for name in ('moniconf', 'moniconf-edid', '*.qm'):
        for file in filter(Path.is_file, build.glob(name)):
            shutil.copy(file, root / 'opt/moniconf')
    return (root / 'opt/moniconf/moniconf').is_file()


def welcome_package(root):
    """Lets dpkg install in the box, where it knows the machine's packages."""
    for name in PACKAGED + ('var/lib/dpkg/info', 'var/lib/dpkg/updates'):
        (root / name).mkdir(parents=True)
    for program in os.listdir('/usr/bin'):
        (root / 'usr/bin' / program).symlink_to(f'{MACHINE}/bin/{program}')
    shutil.copy('/var/lib/dpkg/status', root / 'var/lib/dpkg/status')
    # Or dpkg takes what the box is made of for the package's own directories.
    (root / 'var/lib/dpkg/info/base-files.list').write_text(
        ''.join(f'/{name}\n' for name in ('opt', 'usr', 'usr/share') + PACKAGED + REPLACED),
        encoding='ascii')


def show(root):
    """Prints everything that the tool can change."""
    variables = (root / BOOT_ENVIRONMENT).read_bytes()[4:].decode(errors='replace')
    print('boot environment:', *variables.strip('\0').split('\0'), sep='\n    ')
    print('/etc/xdg/autostart:', *(f'{link.name} -> {os.path.realpath(link)}'
                                   for link in (root / 'etc/xdg/autostart').iterdir()),
          sep='\n    ')
    print('settings of the test applications:',
          *(f'/{name}' for name in SETTINGS if (root / name).exists()), sep='\n    ')
    for file in (root / name for name in SHOWN):
        text = file.read_text(encoding='utf-8', errors='replace') if file.exists() else '(missing)'
        print(f'/{file.relative_to(root)}:', *text.splitlines(), sep='\n    ')
