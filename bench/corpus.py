# SPDX-License-Identifier: MIT
"""The documents that are measured: cut from manuals in Debian packages, or made here.

Nothing of them is committed. They are made once and kept below build/bench-corpus.
"""

import gzip
import shutil
import subprocess
from dataclasses import dataclass
from pathlib import Path

import pictures
import vector_pages


@dataclass(frozen=True)
class Document:
    name: str
    title: str
    path: Path
    pages: int


# Debian package and the manual in it; all A4.
SOURCES = {
    "pari-users": ("pari-doc", "usr/share/pari/doc/users.pdf"),
    "pari-library": ("pari-doc", "usr/share/pari/doc/libpari.pdf"),
    "gap": ("gap-doc", "usr/share/gap/doc/ref/manual.pdf"),
    "zsh": ("zsh-doc", "usr/share/doc/zsh-common/zsh.pdf"),
}

# Page counts of a full run and of a quick one.
TEXT_BOOK = (350, 70)
MANUAL = (400, 80)
SCAN = (60, 12)
PHOTOS = (40, 8)
MANY = (1000, 200)
VERY_MANY = (5000, 1000)
REWRITE = (500, 100)
SERVED = (300, 60)


class Corpus:
    def __init__(self, folder, quick):
        self.folder = Path(folder)
        self.quick = quick
        self.folder.mkdir(parents=True, exist_ok=True)

    def measured(self):
        return [
            self.cut("text-book", "Text book", [("pari-users", 1, self.count(TEXT_BOOK))]),
            self.cut("manual", "Technical manual with colour", [("gap", 1, self.count(MANUAL))]),
            self.scan(),
            self.photos(),
        ]

    def many_pages(self):
        """Two documents of the same mixture of books, the second five times as long."""
        return [self.mixture("many-pages", self.count(MANY)),
                self.mixture("very-many-pages", self.count(VERY_MANY))]

    def rewrite(self):
        return self.cut("rewrite", "Book written twice", [("pari-users", 1, self.count(REWRITE))])

    def served(self):
        return self.cut("served", "Book behind the preview server",
                        [("pari-users", 1, self.count(SERVED))])

    def mixture(self, name, pages):
        books = [("zsh", 480), ("pari-users", 675), ("pari-library", 427), ("gap", 1418)]
        share = min(1.0, pages / sum(length for _, length in books))
        parts, left = [], pages
        while left > 0:
            for book, length in books:
                taken = min(left, round(length * share))
                parts += [(book, 1, taken)] if taken else []
                left -= taken
        return self.cut(name, "A4 pages", parts)

    def scan(self):
        pages = self.count(SCAN)
        source = self.cut("scan-source", "", [("pari-users", 401, 400 + pages)])
        return self.made("scan", "Scanned document", pages,
                         lambda path: pictures.make_scan(source.path, path))

    def photos(self):
        pages = self.count(PHOTOS)
        return self.made("photos", "Image-heavy document", pages,
                         lambda path: pictures.make_photos(pages, path))

    def page_kinds(self):
        """Eight A4 pages of different kinds, with their names, for the encoder report."""
        drawn = self.made("drawn-kinds", "", len(vector_pages.KINDS), vector_pages.write)
        taken = [("text", self.source("pari-users"), 120), ("coloured text", self.source("gap"), 120),
                 ("grey scan", self.scan().path, 1), ("photo", self.photos().path, 1)]
        names = [name for name, _ in vector_pages.KINDS] + [name for name, _, _ in taken]
        selection = [drawn.path, f"1-{drawn.pages}"]
        for _, path, page in taken:
            selection += [path, page]
        return names, self.made("page-kinds", "", len(names), lambda path: cut_pages(selection, path))

    def sample(self, document, step=10):
        """Every tenth page, for comparing sizes; with the numbers of those pages."""
        numbers = list(range(1, document.pages + 1, step))
        selection = [document.path, ",".join(map(str, numbers))]
        sample = self.made(f"{document.name}-sample", "", len(numbers),
                           lambda path: cut_pages(selection, path))
        return numbers, sample

    def count(self, full_and_quick):
        return full_and_quick[1 if self.quick else 0]

    def cut(self, name, title, parts):
        pages = sum(last - first + 1 for _, first, last in parts)
        selection = []
        for book, first, last in parts:
            selection += [self.source(book), f"{first}-{last}"]
        return self.made(name, title, pages, lambda path: cut_pages(selection, path))

    def made(self, name, title, pages, make):
        path = self.folder / f"{name}-{pages}.pdf"
        if not path.exists():
            unfinished = path.with_name(f".making-{path.name}")
            make(unfinished)
            unfinished.rename(path)
        return Document(name, title, path, pages)

    def source(self, book):
        package, inner = SOURCES[book]
        path = self.folder / f"{book}.pdf"
        if not path.exists():
            self.unpack(package, inner, path)
        return path

    def unpack(self, package, inner, path):
        work = self.folder / f"unpack-{package}"
        shutil.rmtree(work, ignore_errors=True)
        work.mkdir()
        subprocess.run(["apt-get", "-qq", "download", package], cwd=work, check=True)
        subprocess.run(["dpkg", "-x", next(work.glob("*.deb")), work], check=True)
        packed = work / f"{inner}.gz"
        path.write_bytes(gzip.decompress(packed.read_bytes()) if packed.exists()
                         else (work / inner).read_bytes())
        shutil.rmtree(work)


def cut_pages(selection, path):
    subprocess.run(["qpdf", "--empty", "--pages", *map(str, selection), "--", str(path)], check=True)
