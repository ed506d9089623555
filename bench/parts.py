# SPDX-License-Identifier: MIT
"""The parts of the benchmark. Each prints its figures and returns them, with the targets it knows."""

import dataclasses
import json
import sys

import contenders
import desktop
import documents
import encoder
import latency
import measure
import preview
import report
import targets


def measure_documents(place, corpus, options):
    return documents.measure_documents(place, corpus, options.rounds)


def measure_memory(place, corpus, _options):
    report.heading("Long documents, quality 1, two jobs")
    contender = contenders.own(place.leafcast, 1, 2)
    peaks = []
    for document in corpus.many_pages():
        result = contenders.once(contender, document, place.scratch / "long", sample_memory=True)
        peaks.append(result.run.peak_bytes)
        print(f"  {document.pages} pages: peak {result.run.peak_bytes / targets.MEBIBYTE:.0f} MiB,"
              f" {result.run.seconds:.1f} s, {result.import_seconds:.1f} s of it import")
    return peaks, targets.memory(*peaks)


def measure_rewrite(place, corpus, _options):
    report.heading("A book written twice by one program, one setting changed")
    document = corpus.rewrite()
    run = measure.run([place.bench_program("second_publish"), document.path, place.clean_scratch()])
    if run.status != 0:
        sys.exit(f"second_publish failed with status {run.status}: {run.output}")
    times = json.loads(run.output)
    print(f"  {document.pages} pages: first {times['first'] * 1000:.0f} ms,"
          f" second {times['second'] * 1000:.1f} ms")
    return times, targets.rewrite(times["first"], times["second"])


def measure_latency(place, corpus, _options):
    report.heading("Latency, median of several runs")
    document = corpus.many_pages()[0]
    scratch = place.clean_scratch()
    version = latency.version_seconds(place.leafcast)
    alone = latency.first_page_of_worker(place.service, document, scratch)
    imported = latency.first_page_of_import(place.leafcast, document, scratch / "book")
    print(f"  leafcast --version: {version * 1000:.1f} ms")
    print(f"  first page of {document.pages}: {alone * 1000:.0f} ms by one leafcast-pdf,"
          f" {imported * 1000:.0f} ms by leafcast publish")
    figures = {"version": version, "first_page_worker": alone, "first_page_import": imported}
    return figures, targets.latency(version, imported)


def measure_encoder(place, corpus, _options):
    names, document = corpus.page_kinds()
    kinds = encoder.kinds(place.service, place.bench_program("encoder_settings"), names, document,
                          place.clean_scratch())
    report.encoder(kinds, encoder.SHOWN_FACTORS, encoder.nearest)
    return [dataclasses.asdict(kind) for kind in kinds], []


def measure_preview(place, corpus, options):
    report.heading(f"Preview server: {preview.CONNECTIONS} connections beside {preview.IDLE} idle and"
                   f" {preview.SLOW} slow clients")
    document = corpus.served()
    book = place.clean_scratch() / "served"
    done = measure.run([place.leafcast, "publish", document.path, book, "--quiet"])
    if done.status != 0:
        sys.exit(f"publish failed with status {done.status}: {done.output}")
    rounds = [(preview.measure_load(preview.PreviewServer(place.preview_server, book), document.pages),
               preview.measure_load(preview.Nginx(book), document.pages))
              for _ in range(options.rounds)]
    ours, peers = map(preview.best_of, zip(*rounds))
    for name, load in (("iPadPreview", ours), ("nginx", peers)):
        print(f"  {name:12} {load.pages_per_second:8.0f} pages/s, {load.failures} failed,"
              f" {load.peak_bytes / targets.MEBIBYTE:.1f} MiB, {load.crowd_failures} of the others refused")
    return {"ours": dataclasses.asdict(ours), "nginx": dataclasses.asdict(peers)}, \
        targets.preview(ours, peers)


def measure_desktop(place, corpus, _options):
    document = corpus.rewrite()
    report.heading(f"Desktop application with a book of {document.pages} pages")
    figures = desktop.measure_desktop(place, document)
    print(f"  start to the sample book visible: {figures.start_seconds:.2f} s")
    print(f"  longest silence of the window: {figures.import_silence:.0f} ms during the import,"
          f" {figures.preview_silence:.0f} ms during the preview after it,"
          f" {figures.publish_silence:.0f} ms during publishing")
    print(f"  one change applied: book written after {figures.apply_written_seconds:.2f} s,"
          f" seen after {figures.apply_seen_seconds:.2f} s")
    return dataclasses.asdict(figures), targets.desktop(figures)


ALL = {
    "documents": measure_documents,
    "memory": measure_memory,
    "rewrite": measure_rewrite,
    "latency": measure_latency,
    "encoder": measure_encoder,
    "preview": measure_preview,
    "desktop": measure_desktop,
}
