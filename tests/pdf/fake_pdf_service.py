#!/usr/bin/python3 -IS
# SPDX-License-Identifier: MIT
# Speaks the protocol of the PDF service and misbehaves on demand, in ways that the real one can't
# be brought to. The "document" is a JSON object that tells for some pages, from "0", or for
# "open", what happens to a request about it: "crash", "hang", "slow", "refuse", "memory",
# "garbage", "long" (a line without an end).
import json
import os
import signal
import sys
import time

document = {}


def misbehave(behaviour):
    if behaviour == "crash":
        os.kill(os.getpid(), signal.SIGKILL)
    if behaviour == "slow":
        time.sleep(0.2)
    if behaviour == "garbage":
        print("Segmentation fault? No: just chatting.", flush=True)
    while behaviour == "long":
        print("x" * (1 << 20), end="")
    while behaviour == "hang":
        time.sleep(3600)


# In two steps, so that a worker that is killed leaves something half written beside the path.
def render(request, page, behaviour):
    half = request["path"] + ".half"
    with open(half, "w") as picture:
        picture.write(f"picture of page {page}")
    misbehave(behaviour)
    os.rename(half, request["path"])
    return {"width": 10, "height": 20, "bytes": 17, "scale": request["scale"]}


def answer(request):
    operation = request["op"]
    if operation == "open":
        with open(request["path"]) as file:
            document.update(json.load(file))
    page = request.get("page", request.get("first", 0))
    behaviour = document.get("open" if operation == "open" else str(page))
    if behaviour in ("memory", "refuse"):
        return {"error": behaviour.replace("refuse", "page"), "message": "it is refused"}
    if operation == "render":
        return render(request, page, behaviour)
    misbehave(behaviour)
    if operation == "pages":
        return {"pages": [{"label": str(page + i)} for i in range(request["count"])]}
    return {"lines": [{"text": f"text of page {page}"}]} if operation == "text" else document


for line in sys.stdin:
    request = json.loads(line)
    print(json.dumps({**answer(request), "id": request["id"]}), flush=True)
