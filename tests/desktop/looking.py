"""Looks at the windows of the display without waiting for any of them to be there."""

import subprocess
import time

from accessible import GLib


def shown(*criteria):
    """The windows on the screen that these options of xdotool's search find."""
    # Finding none counts as a failure.
    command = ["xdotool", "search", "--onlyvisible", *criteria]
    return set(subprocess.run(command, capture_output=True, text=True, check=False).stdout.split())


def active():
    """The window with the keyboard; none while the window manager passes it on."""
    command = ["xdotool", "getactivewindow"]
    return subprocess.run(command, capture_output=True, text=True, check=False).stdout.strip()


def is_tooltip(window):
    """Tooltips go by themselves, after ten seconds."""
    command = ["xprop", "-id", window, "_NET_WM_WINDOW_TYPE"]
    told = subprocess.run(command, capture_output=True, text=True, check=False).stdout
    return "_TOOLTIP" in told


def within(seconds, condition):
    """The first true result of condition() within the seconds; the last one without."""
    end = time.monotonic() + seconds
    while True:
        try:
            result = condition()
        except GLib.Error:  # a node that went away while it was read
            result = None
        if result or time.monotonic() > end:
            return result
        time.sleep(0.05)
