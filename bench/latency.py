# SPDX-License-Identifier: MIT
"""How soon something happens: the version printed, the first page of a long document drawn."""

import shutil
import statistics
import subprocess
import time
from pathlib import Path

import measure
from contenders import LIKE_OURS, SCALE
from service import Worker

WORK_FOLDERS = "/tmp/Leafcast"  # where an import draws its pages


def version_seconds(program, times=21):
    return statistics.median(measure.run([program, "--version"]).seconds for _ in range(times))


def first_page_of_worker(program, document, folder, times=5):
    """From the start of the PDF service to the answer that the first page is drawn and written."""
    def once():
        start = time.perf_counter()
        with Worker(program) as worker:
            worker.open(document.path)
            worker.render(0, folder / "first.jpg", SCALE, LIKE_OURS[0], "444")
            return time.perf_counter() - start
    return statistics.median(once() for _ in range(times))


def first_page_of_import(program, document, folder, times=5):
    """From the start of the command line to the first page lying drawn in its work folder."""
    return statistics.median(once_imported(program, document, folder) for _ in range(times))


def once_imported(program, document, folder):
    shutil.rmtree(folder, ignore_errors=True)
    known = set(drawn_first_pages())
    start = time.perf_counter()
    process = subprocess.Popen([program, "publish", document.path, folder, "--quality", "0", "--quiet"],
                               stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
    while process.poll() is None and not set(drawn_first_pages()) - known:
        time.sleep(0.001)
    seconds = time.perf_counter() - start
    drawn = process.returncode is None
    process.terminate()
    process.wait()
    measure.reap_orphans()
    shutil.rmtree(folder, ignore_errors=True)
    if not drawn:
        raise RuntimeError("publish ended before its first page was seen")
    return seconds


def drawn_first_pages():
    return Path(WORK_FOLDERS).glob("*/1.jpg")
