# SPDX-License-Identifier: MIT
"""Every contender over every document: speed, processor time, memory and size."""

import sys

import contenders
import floor
import measure
import report
import targets

REPEAT_BELOW_SECONDS = 8.0  # a contender runs again until it has run that long in all


def measure_documents(place, corpus, rounds):
    everyone = contenders.PEERS + contenders.ours(place.leafcast)
    results, reached = {}, []
    for document in corpus.measured():
        measured = in_rounds(place, document, everyone, rounds)
        rows = [row(document, result) for result in measured]
        report.document(document.title, document.pages, rows)
        report.imports(rows)
        sizes = sizes_at_like_quality(place, corpus, document, measured)
        report.sizes(sizes)
        shares = library_shares(place, document, measured)
        report.shares(shares)
        results[document.name] = {
            "pages": document.pages, "rows": rows, "sizes": sizes, "shares": shares}
        if document.name == "text-book":
            reached = speed_targets(rows)
    return results, reached


def in_rounds(place, document, everyone, rounds):
    """In rounds over all contenders, so that a busy moment of the machine hits all alike."""
    results = {contender.name: [] for contender in everyone}
    for number in range(rounds):
        for contender in everyone:
            earlier = results[contender.name]
            if number > 0 and sum(each.run.seconds for each in earlier) > REPEAT_BELOW_SECONDS:
                continue
            progress(f"{document.title}, round {number + 1}: {contender.name}")
            earlier.append(contenders.once(contender, document, place.scratch / "document",
                                           sample_memory=number == 0))
    return [best(runs) for runs in results.values()]


def best(results):
    """The quickest of each figure; memory was sampled in the first run only."""
    kept = min(results, key=lambda each: each.run.seconds)
    kept.import_seconds = min(each.import_seconds for each in results)
    kept.run = measure.best([each.run for each in results])
    return kept


def row(document, result):
    return {
        "name": result.contender.name,
        "is_peer": result.contender.is_peer,
        "is_ours": result.contender.quality_level is not None,
        "figures": [document.pages / result.run.seconds, result.run.cpu_seconds,
                    result.run.peak_bytes / targets.MEBIBYTE,
                    mean_kibibytes(result.page_bytes.values())],
        "import_pages_per_second": document.pages / result.import_seconds,
    }


def sizes_at_like_quality(place, corpus, document, results):
    """Mean KiB of the same pages; a peer's quality is set for this alone."""
    numbers, sample = corpus.sample(document)
    sizes = []
    for level, quality in contenders.LIKE_OURS.items():
        own = next(result for result in results if result.contender.quality_level == level)
        by_program = {"leafcast": mean_kibibytes([own.page_bytes[number] for number in numbers])}
        for peer in contenders.peers_at_quality(quality):
            result = contenders.once(peer, sample, place.scratch / "sample", sample_memory=False)
            by_program[peer.name] = mean_kibibytes(result.page_bytes.values())
        sizes.append({"level": level, "quality": quality, "kibibytes": by_program})
    return sizes


def library_shares(place, document, results):
    return [{"name": result.contender.name, "cpu_seconds": result.run.cpu_seconds,
             "bare": floor.bare_seconds(place.bench_program("bare_probe"), document, result)}
            for result in results if result.contender.jobs == 1]


def speed_targets(rows):
    by_name = {each["name"]: each for each in rows}
    return targets.speed(by_name[contenders.PEERS[0].name],
                         by_name[contenders.own_name(0, 1)], by_name[contenders.own_name(0, 2)])


def mean_kibibytes(sizes):
    return sum(sizes) / len(sizes) / 1024 if sizes else 0


def progress(text):
    if sys.stderr.isatty():
        print(f"\033[K{text}", end="\r", file=sys.stderr)
