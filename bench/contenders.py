# SPDX-License-Identifier: MIT
"""Who is measured: the command line of every program, all at 144 dpi and in the crop box."""

import json
import shutil
from dataclasses import dataclass, field
from typing import Callable

from PIL import Image

import measure

DPI = 144
SCALE = DPI / 72  # pixels a point
# libjpeg's scale; what our quality levels 0 (best) and 1 (high) are encoded with.
LIKE_OURS = {0: 95, 1: 30}


@dataclass(frozen=True)
class Contender:
    name: str
    command: Callable  # of the document's path and an empty folder to write into
    is_peer: bool = True  # False: ours, or drawing alone, which nobody is compared with
    quality_level: int | None = None  # of ours
    jobs: int = 0  # of ours


@dataclass
class Result:
    contender: Contender
    run: measure.Run
    page_bytes: dict = field(default_factory=dict)  # by page number
    report: dict = field(default_factory=dict)  # of ours
    encodings: dict = field(default_factory=dict)  # of ours: components, luma sampling by page number
    import_seconds: float = 0.0  # of ours: all but the writing of the book; of a peer: all


def pdftoppm(path, folder, quality=None):
    options = ["-jpegopt", f"quality={quality}"] if quality else []
    return ["pdftoppm", "-q", "-jpeg", *options, "-r", DPI, "-cropbox", path, folder / "page"]


def ghostscript(path, folder, quality=None):
    options = [f"-dJPEGQ={quality}"] if quality else []
    # Without the alpha bits it draws without anti-aliasing, which nobody would publish.
    return ["gs", "-q", "-dSAFER", "-dNOPAUSE", "-dBATCH", "-sDEVICE=jpeg", *options, f"-r{DPI}",
            "-dUseCropBox", "-dTextAlphaBits=4", "-dGraphicsAlphaBits=4",
            f"-sOutputFile={folder}/page-%d.jpg", path]


def mutool_png(path, folder):
    return ["mutool", "draw", "-q", "-r", DPI, "-F", "png", "-o", folder / "page-%d.png", path]


def mutool_drawing(path, _folder):
    return ["mutool", "draw", "-q", "-r", DPI, "-F", "pnm", "-o", "/dev/null", path]


PEERS = [
    Contender("pdftoppm -jpeg", pdftoppm),
    Contender("gs jpeg device", ghostscript),
    Contender("mutool draw, PNG", mutool_png),
    Contender("(mutool draw, no file)", mutool_drawing, is_peer=False),
]


def peers_at_quality(quality):
    """The peers that write JPEG, with another quality than their default."""
    return [Contender(name, lambda path, folder, command=command: command(path, folder, quality))
            for name, command in (("pdftoppm", pdftoppm), ("gs", ghostscript))]


def own_name(level, jobs):
    return f"leafcast -q {level} -j {jobs}"


def own(program, level, jobs):
    def command(path, folder):
        return [program, "publish", path, folder / "book", "--quality", level, "--jobs", jobs,
                "--quiet", "--json"]
    return Contender(own_name(level, jobs), command, is_peer=False, quality_level=level, jobs=jobs)


def ours(program):
    return [own(program, level, jobs) for level in LIKE_OURS for jobs in (1, 2)]


def once(contender, document, folder, sample_memory):
    """Runs into an empty folder that is removed again."""
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    run = measure.run(contender.command(document.path, folder), sample_memory)
    if run.status != 0:
        print(f"  {contender.name} ended with status {run.status} over {document.path.name}:"
              f" {run.output[-300:].strip()}")
    pictures = folder / "book/files/page" if contender.quality_level is not None else folder
    result = Result(contender, run, picture_bytes(pictures), import_seconds=run.seconds)
    if contender.quality_level is not None and run.status in (0, 1):
        result.report = json.loads(run.output)
        result.import_seconds -= result.report["seconds"]["write"]
        result.encodings = page_encodings(pictures)
    shutil.rmtree(folder)
    return result


def page_encodings(folder):
    encodings = {}
    for path in folder.glob("*.jpg"):
        with Image.open(path) as picture:
            encodings[int(path.stem)] = (picture.layers, picture.layer[0][1])
    return encodings


def picture_bytes(folder):
    """Size of every page picture in folder, by the number that its name ends in."""
    sizes = {}
    for path in folder.glob("*"):
        digits = path.stem.removeprefix("page-")
        if path.suffix in (".jpg", ".png") and digits.isdigit():
            sizes[int(digits)] = path.stat().st_size
    return sizes
