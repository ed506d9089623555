# SPDX-License-Identifier: MIT
"""Runs a command and tells its wall time, its processor time and the peak memory of its processes."""

import ctypes
import os
import resource
import subprocess
import threading
import time
from dataclasses import dataclass
from pathlib import Path

SAMPLE_SECONDS = 0.02
PR_SET_CHILD_SUBREAPER = 36  # linux/prctl.h


@dataclass
class Run:
    seconds: float
    cpu_seconds: float  # user and system, of the command and of every process it started
    status: int
    output: str
    peak_bytes: int = 0  # 0: not sampled


def adopt_orphans():
    """A worker whose parent ends first becomes our child, so its time and memory are counted too."""
    ctypes.CDLL(None).prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)


class TreeMemory(threading.Thread):
    """Samples the proportional set size of all descendants of this process and keeps the largest sum.

    PSS counts a page of memory that n processes share as 1/n in each, so the sum over a tree of
    processes is what the tree really occupies.
    """

    def __init__(self):
        super().__init__(daemon=True)
        self.peak_bytes = 0
        self.done = threading.Event()
        self.parents = {}

    def run(self):
        while not self.done.wait(SAMPLE_SECONDS):
            self.peak_bytes = max(self.peak_bytes, sum(map(pss_bytes, self.descendants())))

    def stop(self):
        self.done.set()
        self.join()
        return self.peak_bytes

    def descendants(self):
        processes = {int(name) for name in os.listdir("/proc") if name.isdigit()}
        own = os.getpid()
        # A parent changes only when it ends, so that looking again then is enough.
        self.parents = {pid: known if (known := self.parents.get(pid)) in processes else parent_of(pid)
                        for pid in processes}
        return [pid for pid in processes if pid != own and self.leads_to(pid, own)]

    def leads_to(self, pid, ancestor):
        while pid in self.parents and pid != ancestor:
            pid = self.parents[pid]
        return pid == ancestor


def parent_of(pid):
    try:
        status = Path(f"/proc/{pid}/stat").read_text(errors="replace")
    except OSError:
        return 0
    return int(status.rpartition(")")[2].split()[1])


def pss_bytes(pid):
    try:
        rollup = Path(f"/proc/{pid}/smaps_rollup").read_text()
    except OSError:  # ended meanwhile
        return 0
    for line in rollup.splitlines():
        if line.startswith("Pss:"):
            return int(line.split()[1]) * 1024
    return 0


def run(command, sample_memory=False, environment=None):
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    memory = TreeMemory() if sample_memory else None
    if memory:
        memory.start()
    start = time.perf_counter()
    process = subprocess.Popen(
        [str(word) for word in command], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
        stderr=subprocess.PIPE, env={**os.environ, **(environment or {})})
    output, errors = process.communicate()
    seconds = time.perf_counter() - start
    reap_orphans()
    peak = memory.stop() if memory else 0
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    cpu = after.ru_utime - before.ru_utime + after.ru_stime - before.ru_stime
    text = output.decode(errors="replace")
    if process.returncode != 0:
        text += errors.decode(errors="replace")
    return Run(seconds, cpu, process.returncode, text, peak)


def reap_orphans(patience_seconds=20.0):
    deadline = time.perf_counter() + patience_seconds
    while time.perf_counter() < deadline:
        try:
            if os.waitpid(-1, os.WNOHANG)[0] == 0:
                time.sleep(0.005)
        except ChildProcessError:
            return


def best(runs):
    """The quickest run, with the peak memory of the run that was sampled."""
    quickest = min(runs, key=lambda each: each.seconds)
    quickest.cpu_seconds = min(each.cpu_seconds for each in runs)
    quickest.peak_bytes = max(each.peak_bytes for each in runs)
    return quickest
