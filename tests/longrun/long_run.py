#!/usr/bin/env python3
"""Watches one process check sites that are steady, change and fail, and measures it from outside.

    long_run.py LONG_RUN SCHEMA CHECKS [--tolerance PERCENT] [--only-ending]

Prints memory and open descriptors as the checks go on. Exit status 1 when at the end the memory is more than PERCENT
(5) above what it was after the first 2,000 checks, when a descriptor more is open, or when the process ended badly.
With --only-ending the two figures are printed and not judged: a process that looks for leaks itself needs memory for
that.
"""

from __future__ import annotations

import argparse
import asyncio
import contextlib
import os
import sqlite3
import subprocess
import sys
import tempfile
import threading
import time
from pathlib import Path

SITES = 200
WARMED_UP = 2000
PAGE = b"".join(b"line %d of a page that stays as it is\n" % i for i in range(250))


class Answers(asyncio.Protocol):
    """By the path: /steady, /changing (every time another page), /cut (half a page), /error (a page with status 500),
    /redirect (to /steady), /drop (nothing)."""

    served = 0

    def connection_made(self, transport):
        self.transport = transport
        self.request = b""

    def data_received(self, data):
        self.request += data
        if b"\r\n\r\n" not in self.request:
            return
        path = self.request.split(b" ", 2)[1]
        Answers.served += 1
        head, body, claimed = b"200 OK", PAGE, None
        if path.startswith(b"/changing"):
            body = b"%d\n" % Answers.served + PAGE
        elif path.startswith(b"/cut"):
            claimed = 2 * len(PAGE)
        elif path.startswith(b"/error"):
            head, body = b"500 Broken", b"%d: broken" % Answers.served
        elif path.startswith(b"/redirect"):
            head, body = b"302 Found\r\nLocation: /steady", b""
        if not path.startswith(b"/drop"):
            length = len(body) if claimed is None else claimed
            self.transport.write(b"HTTP/1.1 %s\r\nContent-Length: %d\r\nConnection: close\r\n\r\n" % (head, length) + body)
        self.transport.close()


@contextlib.contextmanager
def web():
    loop = asyncio.new_event_loop()
    server = loop.run_until_complete(loop.create_server(Answers, "127.0.0.1", 0))
    thread = threading.Thread(target=loop.run_forever)
    thread.start()
    try:
        yield server.sockets[0].getsockname()[1]
    finally:
        loop.call_soon_threadsafe(loop.stop)
        thread.join()
        server.close()
        loop.close()


def lay_folder(place: str, schema: str, port: int):
    kinds = ("steady", "steady", "steady", "changing", "cut", "error", "redirect", "drop", "refused", "steady")
    with contextlib.closing(sqlite3.connect(Path(place, "tarnwick.mdb"))) as database:
        database.executescript(Path(schema).read_text(encoding="utf-8"))
        for number in range(1, SITES + 1):
            kind = kinds[number % len(kinds)]
            url = "http://127.0.0.1:1/" if kind == "refused" else f"http://127.0.0.1:{port}/{kind}/{number}"
            database.execute("insert into sites (idSite, url, method, active, tInterval, content_compare) "
                             "values (?, ?, 'get', 1, 1, ?)", (number, url, PAGE))
        database.commit()


def look_at(process) -> tuple[int, int]:
    """The resident memory in KiB and the open descriptors."""
    status = Path(f"/proc/{process.pid}/status").read_text(encoding="ascii")
    memory = next(int(line.split()[1]) for line in status.splitlines() if line.startswith("VmRSS:"))
    return memory, len(os.listdir(f"/proc/{process.pid}/fd"))


def keep_small(place: str):
    """The log would fill the disk of a machine that checks so often."""
    with contextlib.closing(sqlite3.connect(Path(place, "tarnwick.mdb"), timeout=10)) as database:
        database.execute("delete from log")
        database.commit()


def main() -> int:
    options = argparse.ArgumentParser()
    options.add_argument("program")
    options.add_argument("schema")
    options.add_argument("checks", type=int)
    options.add_argument("--tolerance", type=float, default=5.0)
    options.add_argument("--only-ending", action="store_true")
    given = options.parse_args()

    with tempfile.TemporaryDirectory(prefix="tarnwick-long-") as place, web() as port:
        lay_folder(place, given.schema, port)
        process = subprocess.Popen([given.program, place, str(given.checks)], stdin=subprocess.PIPE,
                                   stdout=subprocess.PIPE, text=True)
        begun = time.monotonic()
        early = late = None
        step = max(given.checks // 10, SITES)
        printed = 0
        for line in process.stdout:
            checks, up, down = map(int, line.split())
            late = look_at(process)
            if early is None and checks >= min(WARMED_UP, given.checks // 2):
                early = late
                print(f"{checks:8} checks ({up} up, {down} down): {late[0]} KiB, {late[1]} descriptors", flush=True)
            elif checks - printed >= step:
                printed = checks
                print(f"{checks:8} checks ({up} up, {down} down): {late[0]} KiB, {late[1]} descriptors", flush=True)
                keep_small(place)
            process.stdin.write("\n")
            process.stdin.flush()
        status = process.wait()
        seconds = time.monotonic() - begun

    if early is None or late is None:
        print("The process made no check.", file=sys.stderr)
        return 1
    growth = 100.0 * (late[0] - early[0]) / early[0]
    print(f"{given.checks} checks in {seconds:.0f} s: memory {growth:+.1f} %, descriptors {late[1] - early[1]:+d}, "
          f"exit status {status}")
    if given.only_ending:
        return 1 if status else 0
    return 1 if status or growth > given.tolerance or late[1] > early[1] else 0


if __name__ == "__main__":
    sys.exit(main())
