# SPDX-License-Identifier: MIT
"""Clients of a web server that only burden it, each with an address of its own from 127.1.0.1 on."""

import asyncio

SECONDS_A_BYTE = 1
PAUSE_AFTER_REFUSAL = 1


class Crowd:
    """Idle clients ask once and keep the connection; half of the slow ones send their request, the
    others take the answer, one byte a second. Whoever is disconnected comes again."""

    def __init__(self, port, path, idle, slow):
        self.port = port
        self.request = f"GET {path} HTTP/1.1\r\nHost: 127.0.0.1:{port}\r\n\r\n".encode()
        kinds = [self.idle] * idle + [self.slow_sender, self.slow_reader] * (slow // 2)
        self.clients = [(address(index), kind) for index, kind in enumerate(kinds)]
        self.tasks = []
        self.connected = 0
        self.failures = 0

    async def __aenter__(self):
        self.tasks = [asyncio.create_task(self.keep_coming(*client)) for client in self.clients]
        while self.connected < len(self.clients):
            await asyncio.sleep(0.05)
        return self

    async def __aexit__(self, *_):
        for task in self.tasks:
            task.cancel()
        await asyncio.gather(*self.tasks, return_exceptions=True)

    async def keep_coming(self, own_address, kind):
        while True:
            try:
                # A small window, so that not the kernel takes a slow reader's answer for it.
                reader, writer = await asyncio.open_connection(
                    "127.0.0.1", self.port, local_addr=(own_address, 0), limit=1024)
            except OSError:
                self.failures += 1
                await asyncio.sleep(PAUSE_AFTER_REFUSAL)
                continue
            self.connected += 1
            try:
                await kind(reader, writer)
            except (OSError, EOFError):
                pass  # a server may end a client that is too slow
            finally:
                self.connected -= 1
                writer.close()

    async def idle(self, reader, writer):
        writer.write(self.request.replace(b"GET", b"HEAD"))
        while await reader.readline():
            pass

    async def slow_sender(self, _reader, writer):
        for byte in self.request:
            writer.write(bytes([byte]))
            await writer.drain()
            await asyncio.sleep(SECONDS_A_BYTE)

    async def slow_reader(self, reader, writer):
        writer.write(self.request)
        while await reader.read(1):
            await asyncio.sleep(SECONDS_A_BYTE)


def address(index):
    return f"127.1.{index // 250}.{index % 250 + 1}"
