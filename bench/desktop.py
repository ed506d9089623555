# SPDX-License-Identifier: MIT
"""The desktop application, driven on a screen of its own: its start, its silences, its answer to a change."""

import json
import os
import shutil
import statistics
import subprocess
import time
from dataclasses import dataclass

STARTS = 5

# Two frames after the first page is drawn, it has been seen. What is marked as old still answers for
# a moment when the next book is on its way.
BOOK_IS_SEEN = """(() => {
  const isDrawn = !window.isOld && document.querySelector('.side:not([hidden])[data-drawn="1"]');
  if (isDrawn && !window.seenAfter) {
    window.seenAfter = 'frames';
    requestAnimationFrame(() => requestAnimationFrame(() => { window.seenAfter = 'seen'; }));
  }
  return window.seenAfter === 'seen';
})()"""


@dataclass
class Figures:
    start_seconds: float
    import_silence: float  # milliseconds, as the next two
    preview_silence: float
    publish_silence: float
    apply_written_seconds: float  # until the web view begins to load
    apply_seen_seconds: float


class Screen:
    """A display without a monitor."""

    def __enter__(self):
        reader, writer = os.pipe()
        self.process = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", "1280x800x24", "-nolisten", "tcp"],
            pass_fds=[writer], stderr=subprocess.DEVNULL)
        os.close(writer)
        with os.fdopen(reader) as announced:
            self.name = f":{announced.readline().strip()}"
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()


class Desktop:
    """One run of the program, with the plugin of tests/driver that takes commands."""

    def __init__(self, place, screen, *files):
        self.home = place.clean_scratch() / "desktop"
        self.started = time.perf_counter()
        self.process = subprocess.Popen(
            [place.build / "bin/leafcast-desktop", *files], env=environment(place, screen, self.home),
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.stdin.close()  # which ends it
        self.process.wait()
        shutil.rmtree(self.home)

    def act(self, what, **details):
        self.process.stdin.write(json.dumps({"do": what, **details}).encode() + b"\n")
        self.process.stdin.flush()
        answer = json.loads(self.process.stdout.readline() or '{"error": "the program ended"}')
        if "error" in answer:
            raise RuntimeError(f"{what} {details}: {answer['error']}")
        return answer

    def see_book(self):
        self.act("script", code=BOOK_IS_SEEN)

    def expect_another_book(self):
        self.act("script", code="window.isOld = true")

    def silence(self):
        """The longest since the last call, in milliseconds."""
        return self.act("heartbeat")["worstMilliseconds"]


def environment(place, screen, home):
    folders = {"XDG_DATA_HOME": "data", "XDG_CONFIG_HOME": "config", "XDG_CACHE_HOME": "cache",
               "TMPDIR": "tmp"}
    for name in folders.values():
        (home / name).mkdir(parents=True)
    shared = os.environ.get("XDG_DATA_DIRS") or "/usr/local/share:/usr/share"
    # Chromium's sandbox is not for the root of a container.
    sandbox = {"QTWEBENGINE_DISABLE_SANDBOX": "1"} if os.getuid() == 0 else {}
    return {**os.environ, **{variable: str(home / name) for variable, name in folders.items()},
            "XDG_DATA_DIRS": f"{home / 'shared'}:{shared}", "DISPLAY": screen.name,
            "LC_ALL": "C.UTF-8", "LANGUAGE": "", "QT_QPA_PLATFORM": "xcb", "QT_QPA_GENERIC_PLUGINS": "leafcast-driver",
            "QT_PLUGIN_PATH": str(place.build / "tests/plugins"),
            "QTWEBENGINE_CHROMIUM_FLAGS": "--disable-gpu", **sandbox}


def measure_desktop(place, document):
    with Screen() as screen:
        start_seconds(place, screen)  # which warms everything
        start = statistics.median(start_seconds(place, screen) for _ in range(STARTS))
        with Desktop(place, screen, document.path) as desktop:
            silences = [*import_silences(desktop), publish_silence(desktop)]
            return Figures(start, *silences, *apply_seconds(desktop))


def start_seconds(place, screen):
    with Desktop(place, screen) as desktop:
        desktop.see_book()
        return time.perf_counter() - desktop.started


def import_silences(desktop):
    """The second import has the book of the first to put away."""
    desktop.see_book()
    first = import_once(desktop)
    desktop.act("click", name="OnImportPDF")
    return map(max, zip(first, import_once(desktop)))


def import_once(desktop):
    desktop.expect_another_book()
    desktop.silence()
    desktop.act("click", name="btnOK")
    desktop.act("wait", name="btnOK", property="visible", value=False)
    imported = desktop.silence()
    desktop.see_book()
    return imported, desktop.silence()


def publish_silence(desktop):
    desktop.act("click", name="OnExportFlipBook")
    desktop.act("type", name="txtOutputFolder", text=str(desktop.home / "published"))
    desktop.act("type", name="txtOutputName", text="index")
    desktop.silence()
    desktop.act("click", name="btnPublish")
    desktop.act("wait", name="openQuestion", property="visible", value=True)
    longest = desktop.silence()
    desktop.act("click", name="openQuestion", button="No")
    return longest


def apply_seconds(desktop):
    """Of one change: until the book is written, and until it is seen."""
    loads = desktop.act("loads", count=0)["count"]
    desktop.expect_another_book()
    desktop.act("edit", row="Background/Colour", text="#2f6f4f")
    start = time.perf_counter()
    desktop.act("click", name="toolBarItemApplyChange")
    desktop.act("loads", count=loads + 1)
    written = time.perf_counter() - start
    desktop.see_book()
    return written, time.perf_counter() - start
