"""The keyboard of the display, as the server keeps it."""

import os
import subprocess


def keyboard_map():
    """All that its keys mean."""
    return subprocess.run(["xkbcomp", "-w0", "-xkb", os.environ["DISPLAY"], "-"], check=True,
                          capture_output=True).stdout
