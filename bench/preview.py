# SPDX-License-Identifier: MIT
"""The preview server beside nginx: a book pulled by wrk while idle and slow clients hang on."""

import asyncio
import json
import re
import shutil
import socket
import subprocess
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path

from web_clients import Crowd

CONNECTIONS = 64
IDLE = 500
SLOW = 200
SECONDS = 8

NGINX = """daemon off; master_process on; worker_processes auto; pid {folder}/pid;
error_log {folder}/error.log;
events {{ worker_connections 4096; }}
http {{
  access_log off; sendfile on; tcp_nopush on; include /etc/nginx/mime.types;
  client_body_temp_path {folder}/a; proxy_temp_path {folder}/b; fastcgi_temp_path {folder}/c;
  uwsgi_temp_path {folder}/d; scgi_temp_path {folder}/e;
  server {{ listen 127.0.0.1:{port}; root {book}; }}
}}
"""

# Each thread walks through the pages from a place of its own.
WRK_SCRIPT = """local page = 0
local offset = 0
function setup(thread) offset = offset + 97; thread:set("page", offset) end
function request()
  page = page % {pages} + 1
  return wrk.format("GET", "/files/page/" .. page .. ".jpg")
end
"""


@dataclass
class Load:
    pages_per_second: float
    failures: int  # of wrk's requests: no answer, a broken one, or another status than 200
    peak_bytes: int
    crowd_failures: int


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


class PreviewServer:
    name = "iPadPreview"

    def __init__(self, program, book):
        self.process = subprocess.Popen([program, "--quiet"], cwd=book, stdout=subprocess.PIPE)
        announced = json.loads(self.process.stdout.readline())
        self.port = announced["port"]
        self.address = announced["addresses"][0]  # the one that a tablet would take

    def processes(self):
        return [self.process.pid]

    def stop(self):
        self.process.terminate()
        self.process.wait()


class Nginx:
    name = "nginx"

    def __init__(self, book):
        self.folder = Path(tempfile.mkdtemp())
        # Its workers are another user, who must reach the book below our build folder.
        self.port = free_port()
        self.address = f"http://127.0.0.1:{self.port}/"
        configuration = self.folder / "nginx.conf"
        user = "user root;\n"
        configuration.write_text(user + NGINX.format(folder=self.folder, port=self.port, book=book))
        self.process = subprocess.Popen(["/usr/sbin/nginx", "-c", configuration, "-p", self.folder],
                                        stderr=subprocess.DEVNULL)
        while not answers(self.port):
            time.sleep(0.05)

    def processes(self):
        children = Path(f"/proc/{self.process.pid}/task/{self.process.pid}/children").read_text()
        return [self.process.pid, *map(int, children.split())]

    def stop(self):
        self.process.terminate()
        self.process.wait()
        shutil.rmtree(self.folder)


def answers(port):
    with socket.socket() as probe:
        return probe.connect_ex(("127.0.0.1", port)) == 0


def peak_bytes(pid):
    status = Path(f"/proc/{pid}/status").read_text()
    return int(re.search(r"VmHWM:\s+(\d+)", status)[1]) * 1024


def measure_load(server, pages):
    try:
        return asyncio.run(under_load(server, pages))
    finally:
        server.stop()


async def under_load(server, pages):
    async with Crowd(server.port, "/files/page/1.jpg", IDLE, SLOW) as crowd:
        with tempfile.NamedTemporaryFile("w", suffix=".lua") as script:
            script.write(WRK_SCRIPT.format(pages=pages))
            script.flush()
            wrk = await asyncio.create_subprocess_exec(
                "wrk", "-t2", f"-c{CONNECTIONS}", f"-d{SECONDS}", "-s", script.name,
                server.address, stdout=subprocess.PIPE)
            output = (await wrk.communicate())[0].decode()
        memory = sum(map(peak_bytes, server.processes()))
        return Load(float(re.search(r"Requests/sec:\s+([\d.]+)", output)[1]), wrk_failures(output),
                    memory, crowd.failures)


def wrk_failures(output):
    lines = re.findall(r"^\s*(?:Socket errors|Non-2xx).*$", output, re.MULTILINE)
    return sum(int(number) for line in lines for number in re.findall(r"\b\d+\b", line.partition(":")[2]))


def best_of(loads):
    quickest = max(loads, key=lambda load: load.pages_per_second)
    return Load(quickest.pages_per_second, sum(load.failures for load in loads),
                max(load.peak_bytes for load in loads), sum(load.crowd_failures for load in loads))
