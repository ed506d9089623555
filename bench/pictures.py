# SPDX-License-Identifier: MIT
"""Documents made of pictures alone: a scanned book and a book of photographs."""

import random
import subprocess
import tempfile
from pathlib import Path

from PIL import Image, ImageChops, ImageDraw

SCAN_DPI = 300
PAPER = 236  # how bright a scanner shows paper
A4_AT_200_DPI = (1654, 2339)


def make_scan(source, path):
    """Two pages of three as grey JPEG, slightly askew and grainy; the third black and white."""
    with tempfile.TemporaryDirectory(dir=path.parent) as work:
        subprocess.run(["pdftoppm", "-gray", "-r", str(SCAN_DPI), source, f"{work}/page"], check=True)
        sheets = sorted(Path(work).iterdir())
        save_pages((scanned(sheet, number) for number, sheet in enumerate(sheets)), path, SCAN_DPI, 60)


def scanned(sheet, number):
    page = Image.open(sheet)
    skew = random.Random(number).uniform(-0.6, 0.6)
    page = page.rotate(skew, Image.Resampling.BICUBIC, fillcolor=255)
    if number % 3 == 2:
        return page.convert("1", dither=Image.Dither.NONE)
    paper = page.point(lambda level: 28 + level * (PAPER - 28) // 255)
    return ImageChops.add(paper, Image.effect_noise(page.size, 5), offset=-128)


def make_photos(pages, path):
    save_pages((photo(number) for number in range(pages)), path, 200, 88)


def photo(number):
    """A landscape of noise in octaves, as natural pictures have it, with a few sharp edges."""
    chance = random.Random(number)
    light = octaves(chance, 9)
    tints = [octaves(chance, 3).point(lambda level: 96 + level // 4) for _ in range(2)]
    picture = Image.merge("YCbCr", [light, *tints]).convert("RGB")
    draw = ImageDraw.Draw(picture)
    for _ in range(12):
        x, y, size = chance.randrange(1600), chance.randrange(2300), chance.randrange(40, 400)
        colour = tuple(chance.randrange(256) for _ in range(3))
        draw.ellipse((x, y, x + size, y + size), fill=colour)
    return picture


def octaves(chance, count):
    field = Image.new("L", A4_AT_200_DPI, 128)
    for octave in range(count):
        width, height = 3 << octave, 4 << octave
        noise = Image.frombytes("L", (width, height), chance.randbytes(width * height))
        noise = noise.resize(A4_AT_200_DPI, Image.Resampling.BICUBIC)
        strength = 0.7 ** octave
        field = ImageChops.add(field, noise.point(lambda level: round(128 + (level - 128) * strength)),
                               offset=-128)
    return field


def save_pages(pages, path, dpi, quality):
    """Colour and grey pages become DCT images, black and white ones CCITT group 4."""
    first, *rest = pages
    first.save(path, "PDF", save_all=True, append_images=rest, resolution=dpi, quality=quality)
