# SPDX-License-Identifier: MIT
"""Speaks to one worker of the PDF service (docs/pdf-service.md)."""

import json
import subprocess

MAX_BITMAP_BYTES = 512 << 20


class Worker:
    def __init__(self, program):
        self.process = subprocess.Popen([program], stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.requests = 0

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.stdin.close()
        self.process.wait()
        self.process.stdout.close()

    def ask(self, operation, **fields):
        self.requests += 1
        request = {"id": self.requests, "op": operation, **fields}
        self.process.stdin.write(json.dumps(request).encode() + b"\n")
        self.process.stdin.flush()
        answer = json.loads(self.process.stdout.readline())
        if "error" in answer:
            raise RuntimeError(f"leafcast-pdf, {operation}: {answer['error']}, {answer['message']}")
        return answer

    def open(self, path):
        return self.ask("open", path=str(path), password="")

    def render(self, page, path, scale, quality, chroma):
        return self.ask("render", page=page, scale=scale, path=str(path), quality=quality,
                        chroma=chroma, maxBytes=MAX_BITMAP_BYTES)
