"""What a process costs."""

import os
import statistics
import subprocess
import sys
import time
from dataclasses import dataclass


@dataclass(frozen=True)
class Cost:
    cpu: float   # seconds, user and system, all threads
    wall: float  # seconds
    peak: float  # resident memory at its highest, MB


def run(command):
    """Runs a command to its end and returns its cost; its failure ends the benchmark."""
    start = time.monotonic()
    child = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                             stderr=subprocess.PIPE)
    complaint = child.stderr.read()
    _, status, usage = os.wait4(child.pid, 0)
    wall = time.monotonic() - start
    child.returncode = os.waitstatus_to_exitcode(status)  # so that Popen does not wait again
    child.stderr.close()
    if child.returncode != 0:
        sys.exit(f"{command[0]} failed: {complaint.decode(errors='replace').strip()}")
    return Cost(usage.ru_utime + usage.ru_stime, wall, usage.ru_maxrss / 1024)


def typical(costs):
    """The medians; of the peaks the highest."""
    return Cost(statistics.median(c.cpu for c in costs), statistics.median(c.wall for c in costs),
                max(c.peak for c in costs))
