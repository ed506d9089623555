# SPDX-License-Identifier: MIT
"""Where things lie: the build that is measured, and what the benchmark leaves below build/."""

import os
import shutil
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
CORPUS = ROOT / "build/bench-corpus"
RESULTS = ROOT / "build/bench/results.json"


@dataclass(frozen=True)
class Place:
    build: Path
    scratch: Path = ROOT / "build/bench-output"

    @property
    def leafcast(self):
        return self.build / "bin/leafcast"

    @property
    def service(self):
        return self.build / "bin/leafcast-pdf"

    @property
    def preview_server(self):
        return self.build / "share/leafcast/Lib/iPadPreview"

    def bench_program(self, name):
        return self.build / "bench" / name

    def clean_scratch(self):
        shutil.rmtree(self.scratch, ignore_errors=True)
        self.scratch.mkdir(parents=True)
        return self.scratch

    def use(self):
        """The user's own settings are neither read nor written."""
        os.environ["XDG_CONFIG_HOME"] = str(self.clean_scratch() / "config")
        os.environ["LEAFCAST_RESOURCES"] = str(self.build / "share/leafcast")
        os.environ["LEAFCAST_PDF_SERVICE"] = str(self.service)
