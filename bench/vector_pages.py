# SPDX-License-Identifier: MIT
"""A small PDF of drawn A4 pages that are hard on a JPEG encoder, each in its own way."""

import random

WIDTH, HEIGHT = 595, 842


def blank():
    return ""


def fine_colour():
    """Small coloured type: colour detail as fine as the letters, lost when colour is halved."""
    chance = random.Random(1)
    lines = []
    for row in range(70):
        red, green, blue = (chance.choice((0, 0.2, 0.9)) for _ in range(3))
        words = " ".join("".join(chance.choices("abdeghinorstu", k=6)) for _ in range(14))
        lines.append(f"BT {red} {green} {blue} rg /F1 8 Tf 40 {800 - 11 * row} Td ({words}) Tj ET")
    return "\n".join(lines)


def line_art():
    lines = ["0.4 w"]
    lines += [f"40 {40 + 4 * row} m {555 - row} {802 - 3 * row} l S" for row in range(180)]
    return "\n".join(lines)


def gradient():
    bands = [f"{band / 280} {0.2 + band / 560} {1 - band / 280} rg 0 {3 * band} {WIDTH} 3.1 re f"
             for band in range(281)]
    return "\n".join(bands)


KINDS = [("blank", blank), ("fine colour", fine_colour), ("line art", line_art), ("gradient", gradient)]


def write(path):
    contents = [make() for _, make in KINDS]
    kids = " ".join(f"{4 + 2 * index} 0 R" for index in range(len(contents)))
    objects = ["<< /Type /Catalog /Pages 2 0 R >>",
               f"<< /Type /Pages /Kids [{kids}] /Count {len(contents)} >>",
               "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>"]
    for index, content in enumerate(contents):
        objects.append(f"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 {WIDTH} {HEIGHT}]"
                       f" /Resources << /Font << /F1 3 0 R >> >> /Contents {5 + 2 * index} 0 R >>")
        objects.append(f"<< /Length {len(content)} >>\nstream\n{content}\nendstream")
    path.write_bytes(file_of(objects).encode("ascii"))


def file_of(objects):
    text, offsets = "%PDF-1.4\n", []
    for number, body in enumerate(objects, 1):
        offsets.append(len(text))
        text += f"{number} 0 obj\n{body}\nendobj\n"
    entries = "".join(f"{offset:010} 00000 n \n" for offset in offsets)
    return (f"{text}xref\n0 {len(objects) + 1}\n0000000000 65535 f \n{entries}"
            f"trailer\n<< /Size {len(objects) + 1} /Root 1 0 R >>\nstartxref\n{len(text)}\n%%EOF\n")
