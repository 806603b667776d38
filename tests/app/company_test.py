#!/usr/bin/env python3
"""Many programs on one list: what people do with it, two at a time, over and over, the real tool and real files.

    company_test.py TARNWICKCTL SCHEMA [--rounds N] [--pair NAME NAME]

Every pair of ROLES works side by side on a list of its own, `--rounds` times. Whoever ends with another status than 0,
writes a complaint, or finds that something it stored is not there, fails the test; so does a list that is not sound.
"""

from __future__ import annotations

import argparse
import contextlib
import http.server
import itertools
import json
import sqlite3
import subprocess
import sys
import tempfile
import threading
from pathlib import Path

LIMIT = 60.0
SITES = 3


class Pages(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        self.send_response(200)
        self.send_header("Content-Length", "6")
        self.end_headers()
        with contextlib.suppress(OSError):  # a run that was stopped waits for no answer
            self.wfile.write(b"steady")

    def log_message(self, *_):
        pass


class Tool:
    """The terminal tool on one folder; `complaints` holds all that did not go well."""

    def __init__(self, path: str, place: str, beside_run: bool = False):
        self.path = path
        self.place = place
        self.beside_run = beside_run
        self.complaints: list[str] = []

    def __call__(self, *arguments: str) -> str:
        ended = subprocess.run([self.path, "--folder", self.place, *arguments], capture_output=True, text=True,
                               timeout=LIMIT, stdin=subprocess.DEVNULL, check=False)
        # A run has the list open for as long as it is on, which on a busy machine is longer than a compaction waits.
        if self.beside_run and arguments == ("compact",) and "is in use by another program" in ended.stderr:
            return ended.stdout
        # Between two runs none is on, and `sites` says so.
        if self.beside_run and ended.returncode == 0 and "since no run is on" in ended.stderr:
            return ended.stdout
        if ended.returncode != 0 or ended.stderr:
            self.expect(False, f"{' '.join(arguments)} ended with {ended.returncode}: {ended.stderr.strip()}")
        return ended.stdout

    def expect(self, holds: bool, what: str) -> None:
        if not holds:
            self.complaints.append(what)


# Each role does its work once; `number` tells its rounds, `side` the two of a pair apart.
def start(tool: Tool, number: int, side: int) -> None:
    tool.expect(f"/{1 + side}" in tool("sites"), "a site is not listed")


def write(tool: Tool, number: int, side: int) -> None:
    interval = 1 + number % 1000
    tool("set", str(1 + side), f"--interval={interval}")
    stored = json.loads(tool("site", str(1 + side), "--json") or "{}")
    tool.expect(str(stored.get("tInterval")) == str(interval),
                f"the interval {interval} was stored, {stored.get('tInterval')} is there")


def add(tool: Tool, number: int, side: int) -> None:
    added = json.loads(tool("add", f"http://127.0.0.1:9/added/{side}/{number}", "--inactive", "--json") or "{}")
    if "idSite" in added:
        tool("delete", str(added["idSite"]), "--yes")


def check(tool: Tool, number: int, side: int) -> None:
    tool("check", str(1 + side))


def export(tool: Tool, number: int, side: int) -> None:
    sites = json.loads(tool("export", "-", "--format", "json") or "{}").get("sites", [])
    tool.expect(len(sites) >= SITES, f"{len(sites)} sites were exported")


def compact(tool: Tool, number: int, side: int) -> None:
    tool("compact")


def watch(tool: Tool, number: int, side: int) -> None:
    with subprocess.Popen([tool.path, "--folder", tool.place, "run"], text=True, stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE) as run:
        first = run.stdout.readline()
        run.terminate()
        _, said = run.communicate(timeout=LIMIT)
    tool.expect("Run started" in first and run.returncode == 0 and not said,
                f"run ended with {run.returncode}: {first}{said.strip()}")


ROLES = {"start": start, "write": write, "add": add, "check": check, "export": export, "compact": compact,
         "watch": watch}
# A second run on the same list is refused, and says so.
NOT_TOGETHER = {("watch", "watch")}


@contextlib.contextmanager
def web():
    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Pages)
    server.daemon_threads = True
    thread = threading.Thread(target=server.serve_forever, kwargs={"poll_interval": 0.05})
    thread.start()
    try:
        yield f"http://127.0.0.1:{server.server_port}"
    finally:
        server.shutdown()
        thread.join()
        server.server_close()


def make_list(place: str, schema: str, address: str) -> None:
    with contextlib.closing(sqlite3.connect(Path(place, "tarnwick.mdb"))) as database:
        database.executescript(Path(schema).read_text(encoding="utf-8"))
        for number in range(1, SITES + 1):
            database.execute("insert into sites (idSite, url, method, active, tInterval) values (?, ?, 'get', 1, 1)",
                             (number, f"{address}/{number}"))
        database.commit()


def look_at(place: str, tool: Tool, checks: int | None) -> None:
    """`checks` is how many results must be there; nothing where a run adds some of its own."""
    with contextlib.closing(sqlite3.connect(Path(place, "tarnwick.mdb"))) as database:
        sound = database.execute("pragma integrity_check").fetchone()[0]
        tool.expect(sound == "ok", f"the list is damaged: {sound}")
        counted = database.execute("select sum(success) from sites").fetchone()[0] or 0
        logged = database.execute("select count(*) from log").fetchone()[0]
        tool.expect(counted == logged and checks in (None, logged),
                    f"{checks} checks, {counted} counted, {logged} logged")
    left = [each.name for each in Path(place).iterdir() if each.name.endswith((".new", ".old", "-journal"))]
    tool.expect(not left, f"left behind: {left}")


def side_by_side(tool: Tool, roles: tuple[str, str], rounds: int) -> None:
    gate = threading.Barrier(2)

    def work(side: int) -> None:
        for number in range(rounds):
            gate.wait(LIMIT * 2)
            try:
                ROLES[roles[side]](tool, number, side)
            except (OSError, ValueError, subprocess.SubprocessError) as error:
                tool.expect(False, f"{roles[side]}: {error}")

    workers = [threading.Thread(target=work, args=(side,)) for side in range(2)]
    for worker in workers:
        worker.start()
    for worker in workers:
        worker.join()


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("tool")
    parser.add_argument("schema")
    parser.add_argument("--rounds", type=int, default=100)
    parser.add_argument("--pair", nargs=2, choices=ROLES)
    parsed = parser.parse_args()
    every = itertools.combinations_with_replacement(ROLES, 2)
    pairs = [tuple(parsed.pair)] if parsed.pair else [pair for pair in every if pair not in NOT_TOGETHER]
    failed = 0
    with web() as address:
        for roles in pairs:
            with tempfile.TemporaryDirectory(prefix="tarnwick-company-") as place:
                make_list(place, parsed.schema, address)
                tool = Tool(parsed.tool, place, "watch" in roles)
                side_by_side(tool, roles, parsed.rounds)
                look_at(place, tool, None if "watch" in roles else parsed.rounds * roles.count("check"))
                failed += len(tool.complaints)
                print(f"{roles[0]} beside {roles[1]}: {parsed.rounds} rounds, {len(tool.complaints)} complaints",
                      *sorted(set(tool.complaints))[:5], sep="\n    ", flush=True)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
