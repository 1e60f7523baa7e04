"""An Xfce session of a test's own on this display, to be logged in to and out of.

Needs the Debian package xfce4-session, and a display without a window manager: the session starts
one, which it does not do where it finds one.
"""

import os
import subprocess
from pathlib import Path

from accessible import wait_for

CHANNEL = ["xfconf-query", "--channel", "xfce4-session", "--create"]
# What a session consists of that has not been saved: a window manager, and no agents, which would
# outlive it.
LEAST = (
    ("/general/FailsafeSessionName", "string", "Least"),
    ("/sessions/Least/IsFailsafe", "bool", "true"),
    ("/sessions/Least/Count", "int", "1"),
    ("/startup/ssh-agent/enabled", "bool", "false"),
    ("/startup/gpg-agent/enabled", "bool", "false"),
)


def has_window_manager():
    told = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], check=True,
                          capture_output=True, text=True).stdout
    return "window id" in told


class Session:
    """A session of a user with this home folder. One at a time on a bus."""

    def __init__(self, home, **environment):
        for name, kind, value in LEAST:
            subprocess.run([*CHANNEL, "--property", name, "--type", kind, "--set", value],
                           check=True)
        subprocess.run([*CHANNEL, "--property", "/sessions/Least/Client0_Command", "--force-array",
                        "--type", "string", "--set", "openbox"], check=True)
        self.environment = {**os.environ, "HOME": str(home), **environment}
        self.process = None

    def log_in(self):
        """Starts the session; its address for programs that take part in it."""
        self.process = subprocess.Popen(["xfce4-session"], env=self.environment,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for(has_window_manager, "the session's window manager")
        # While it starts programs it takes no other orders.
        wait_for(self._is_idle, "the session to be there")
        return wait_for(self._address, "the session's address")

    @staticmethod
    def _is_idle():
        told = subprocess.run(
            ["gdbus", "call", "--session", "--dest", "org.xfce.SessionManager", "--object-path",
             "/org/xfce/SessionManager", "--method", "org.xfce.Session.Manager.GetState"],
            capture_output=True, text=True, check=False).stdout
        return told.strip() == "(uint32 1,)"

    def _address(self):
        """As the session tells it to the programs that it starts."""
        children = Path(f"/proc/{self.process.pid}/task/{self.process.pid}/children")
        for child in children.read_text().split():
            for line in Path(f"/proc/{child}/environ").read_bytes().split(b"\0"):
                if line.startswith(b"SESSION_MANAGER="):
                    return line.decode().partition("=")[2]
        return None

    def log_out(self, saving):
        """Ends the session as its menu does, and waits for that.

        When it is saved, the next log-in starts again what ran.
        """
        subprocess.run(["xfce4-session-logout", "--logout", *([] if saving else ["--fast"])],
                       check=True, timeout=60, env=self.environment, stderr=subprocess.DEVNULL)
        wait_for(lambda: self.process.poll() is not None, "the session to end", 60)

    def close(self):
        """Ends it, if it still runs."""
        if self.process and self.process.poll() is None:
            self.process.kill()
            self.process.wait()
