"""X servers of a test's own, beside the display that it runs on."""

import os
import select
import subprocess

PATIENCE = 30  # seconds


class Server:
    """An X server with these options, until it is stopped."""

    def __init__(self, *options):
        read, write = os.pipe()
        self.process = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-noreset", "-nolisten", "tcp", *options],
            pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as told:
            if not select.select([told], [], [], PATIENCE)[0]:
                self.stop()
                raise AssertionError(f"waited {PATIENCE} s for an X server")
            self.display = ":" + told.readline().strip()

    def stop(self):
        """Takes it away as a crash does."""
        self.process.kill()
        self.process.wait()
