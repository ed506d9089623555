# SPDX-License-Identifier: MIT
"""What the compression factor does to several kinds of page: bytes, and whether white stays white."""

import subprocess
from dataclasses import dataclass, field

from PIL import Image

from contenders import SCALE
from service import Worker

SHOWN_FACTORS = (0.0, 0.25, 0.45, 0.5, 0.75, 1.0)


@dataclass
class Kind:
    name: str
    bytes_by_factor: dict = field(default_factory=dict)
    falls: list = field(default_factory=list)  # factors at which the file got smaller, and by what percentage
    off_white: list = field(default_factory=list)  # factors at which paper white is not 255


def settings(program):
    """One line a distinct setting, as our own code makes them: factor, quality, chroma."""
    lines = subprocess.run([program], capture_output=True, text=True, check=True).stdout.splitlines()
    return [(float(factor), int(quality), chroma) for factor, quality, chroma in map(str.split, lines)]


def kinds(worker_program, settings_program, names, document, folder):
    folder.mkdir(parents=True, exist_ok=True)
    steps = settings(settings_program)
    with Worker(worker_program) as worker:
        worker.open(document.path)
        return [encode(worker, page, name, steps, folder / "kind.jpg")
                for page, name in enumerate(names)]


def encode(worker, page, name, steps, path):
    kind = Kind(name)
    previous = 0
    for factor, quality, chroma in steps:
        size = worker.render(page, path, SCALE, quality, chroma)["bytes"]
        kind.bytes_by_factor[factor] = size
        if size < previous:
            kind.falls.append((factor, 100 * (1 - size / previous)))
        if paper_is_off_white(path):
            kind.off_white.append(factor)
        previous = size
    path.unlink()
    return kind


def paper_is_off_white(path):
    """A page whose brightest colour is almost, but not quite, white had white paper."""
    with Image.open(path) as picture:
        histogram = picture.convert("L").histogram()
    paper = sum(histogram[250:])
    return paper > 0.05 * sum(histogram) and histogram[255] < 0.5 * paper


def nearest(kind, factor):
    return kind.bytes_by_factor[min(kind.bytes_by_factor, key=lambda known: abs(known - factor))]
