#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The first program in the box: brings up its screen and devices, then runs the session.

    inside.py MODE tool              the tool, again whenever it is closed
    inside.py MODE exec COMMAND...   COMMAND, whose exit status it returns
"""

import os
import re
import select
import subprocess
import sys
import time

from driver import BOARD, PATIENCE, RUN, output, picture
from tables import MODES

SCREEN = ['Xvnc', ':0', '-displayfd', '1', '-depth', '24',
          '-rfbport', '5900' if BOARD else '-1', '-rfbunixpath', f'{RUN}/rfb',
          '-SecurityTypes', 'None', '-noreset', '-AlwaysShared', '-AcceptSetDesktopSize=0',
          '-desktop', 'simulated box']
PATTERN = '%{time hh:mm:ss} %{type} %{file}:%{line} %{message}'
TOOL = ['env', f'QT_MESSAGE_PATTERN={PATTERN}',
        'sh', '-c', '. /etc/profile && exec /opt/moniconf/moniconf']


def start(*command):
    """Starts a part of the box; what it has to say goes to a log of its own."""
    with open(RUN / f'{command[0]}.log', 'wb') as log:
        return subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=log)


def wait_for(part, is_up):
    deadline = time.monotonic() + PATIENCE
    while not is_up():
        if part.poll() is not None or time.monotonic() > deadline:
            log = (RUN / f'{part.args[0]}.log').read_text(errors='replace')
            raise RuntimeError(f'{part.args[0]} does not come up:\n{log}')
        time.sleep(0.01)


def offer_modes():
    """Adds the modes of the product's list that the server does not offer by itself."""
    screens = output('xrandr')
    connector = re.search(r'(\S+) connected', screens)[1]
    for mode in set(MODES) - set(re.findall(r'^ +(\d+x\d+) ', screens, re.MULTILINE)):
        width, height = map(int, mode.split('x'))
        clock = 60 * (width + 160) * (height + 30) / 1e6
        output('xrandr', '--newmode', mode, str(clock), str(width), str(width + 48),
               str(width + 80), str(width + 160), str(height), str(height + 3), str(height + 8),
               str(height + 30))
        output('xrandr', '--addmode', connector, mode)


def desktop(mode):
    """The screen, in the mode of that name, and its window manager."""
    server = start(*SCREEN)
    # The server says its number when it is ready for programs.
    wait_for(server, lambda: select.select([server.stdout], [], [], 0)[0])
    offer_modes()
    switch = subprocess.run(['xrandr', '-s', mode, '-r', '60'], capture_output=True, text=True,
                            check=False)
    if switch.returncode != 0:
        raise RuntimeError(f'the screen cannot show {mode}: {switch.stderr.strip()}')
    subprocess.run(['xsetroot', '-solid', '#2f4858'], check=True)
    # Whatever the mode: programs would take the density from a picture tube of one size.
    subprocess.run(['xrdb', '-nocpp', '-merge'], input=b'Xft.dpi: 96\n', check=True)
    wait_for(start('matchbox-window-manager'), lambda: b'window id' in subprocess.run(
        ['xprop', '-root', '_NET_SUPPORTING_WM_CHECK'], stdout=subprocess.PIPE,
        check=False).stdout)


def main():
    mode, session, *command = sys.argv[1:]
    os.environ.update(HOME='/home/root', USER='root', DISPLAY=':0',
                      XDG_RUNTIME_DIR='/run/user/0')
    try:
        desktop(mode)
        if not BOARD:       # which has devices of its own, and not the library behind these
            import devices
            testbed, environment = devices.serve(tuple(map(int, mode.split('x'))))
            os.environ.update(environment)
    except RuntimeError as failure:
        print(f'simbox: {failure}', file=sys.stderr)
        return 2
    (RUN / 'calls').write_text('')      # from now on they are the tool's
    (RUN / 'up').touch()
    while session == 'tool':
        with open(RUN / 'tool.log', 'ab') as log:
            status = subprocess.call(TOOL, stderr=log)
        print(f'The tool has ended with status {status}; starting it again.', flush=True)
        time.sleep(1)
    try:
        status = subprocess.call(command)
    except OSError as error:
        print(f'simbox: {command[0]}: {error.strerror}', file=sys.stderr)
        return 127
    if status != 0:
        picture(RUN / 'end.png')
    return status if status >= 0 else 128 - status


if __name__ == '__main__':
    sys.exit(main())
