# SPDX-License-Identifier: MIT
"""What we set out to reach. Printed as met or not met; the run never fails over it."""

from dataclasses import dataclass

MEBIBYTE = 1 << 20


@dataclass(frozen=True)
class Target:
    text: str
    value: float
    limit: float
    unit: str
    at_least: bool = False
    note: str = ""

    @property
    def met(self):
        return self.value >= self.limit if self.at_least else self.value < self.limit


def speed(peer, one_job, two_jobs):
    """The rows of the text book: pdftoppm's, and ours at quality 0."""
    def faster(own):
        return own["import_pages_per_second"] / peer["import_pages_per_second"]

    # Processor time hardly suffers from what else the machine does.
    note = f"the whole publish takes {one_job['figures'][1] / peer['figures'][1]:.2f} of its processor time"
    return [Target("Text book, quality 0, two jobs: import against pdftoppm",
                   faster(two_jobs), 4, "times", at_least=True),
            Target("Text book, quality 0, one job: import against pdftoppm",
                   faster(one_job), 2, "times", at_least=True, note=note)]


def memory(many, very_many):
    """Peak bytes of publishing many and five times as many pages."""
    note = f"{very_many / many:.2f} times that of many"
    return [Target("Peak memory of many pages", many / MEBIBYTE, 250, "MiB"),
            Target("Peak memory of five times as many", very_many / MEBIBYTE, 250, "MiB", note=note)]


def rewrite(first_seconds, second_seconds):
    return [Target("Second book-writing with one setting changed, against the first",
                   second_seconds / first_seconds, 0.1, "times")]


def latency(version_seconds, first_page_seconds):
    return [Target("leafcast --version", version_seconds * 1000, 30, "ms"),
            Target("First page drawn of a long document", first_page_seconds * 1000, 150, "ms")]


def desktop(figures):
    def silence(when, milliseconds):
        return Target(f"Desktop: longest silence of the window during {when}", milliseconds, 50, "ms")

    note = f"seen after {figures.apply_seen_seconds:.2f} s"
    return [Target("Desktop: start to the sample book visible", figures.start_seconds, 2, "s"),
            silence("an import", figures.import_silence),
            silence("the preview of a long book", figures.preview_silence),
            silence("publishing", figures.publish_silence),
            Target("Desktop: one change applied, before the web view loads the book",
                   figures.apply_written_seconds, 0.5, "s", note=note)]


def preview(ours, peers):
    """Loads of the preview server and of nginx with the same folder and clients."""
    return [Target("Preview server under load: pages per second against nginx",
                   ours.pages_per_second / peers.pages_per_second, 0.8, "times", at_least=True),
            Target("Preview server under load: requests that failed", ours.failures, 1, "requests"),
            Target("Preview server under load: memory", ours.peak_bytes / MEBIBYTE, 30, "MiB")]
