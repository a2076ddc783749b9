# SPDX-License-Identifier: MIT
"""A web page that shows a screen."""

import atexit
import os
import signal
import socket
import subprocess


def serve(*target):
    """Shows a VNC server's screen on a free loopback port; TARGET names it as websockify takes it.

    Gives the page's address; it ends with this program."""
    with socket.create_server(('127.0.0.1', 0)) as listener:
        process = subprocess.Popen(
            ['setpriv', '--pdeathsig', 'KILL', 'websockify', '--web', '/usr/share/novnc', '--inetd',
             *target], stdin=listener, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            start_new_session=True)
        port = listener.getsockname()[1]
    # With all that it has started for those who look at it.
    atexit.register(os.killpg, process.pid, signal.SIGKILL)
    return f'http://127.0.0.1:{port}/vnc.html?autoconnect=1&resize=scale'
