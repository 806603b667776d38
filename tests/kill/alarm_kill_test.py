#!/usr/bin/env python3
"""Kills checks at random instants and looks whether somebody was told of each outage and of its end.

    alarm_kill_test.py TARNWICKCTL SCHEMA [OUTAGES]

A site goes down and comes up again. In each of both a few checks are killed, and a last one is not. Whatever was killed
when, the outage is told, and so is its end; and each once, or once more for each kill.
"""

from __future__ import annotations

import http.server
import random
import sqlite3
import subprocess
import sys
import tempfile
import threading
import time
from pathlib import Path

KILLS_A_PHASE = 3
LONGEST_LIFE_SECONDS = 0.15


class Page(http.server.BaseHTTPRequestHandler):
    body = b"good"

    def do_GET(self):  # noqa: N802 - the name is the library's
        self.send_response(200)
        self.send_header("Content-Length", str(len(Page.body)))
        self.end_headers()
        self.wfile.write(Page.body)

    def log_message(self, *arguments):
        pass


class Server(http.server.ThreadingHTTPServer):
    def handle_error(self, request, client_address):
        """Those who asked were killed; that is the point."""


class Subject:
    def __init__(self, tool: str, schema: str, folder: Path, address: str):
        self.tool, self.folder, self.told = tool, folder, folder / "told.txt"
        self.told.touch()
        database = sqlite3.connect(folder / "tarnwick.mdb")
        database.executescript(Path(schema).read_text(encoding="utf-8"))
        database.close()
        (folder / "email.txt").write_text("", encoding="utf-8")
        self.run("add", address)
        self.run("option", "all", "remind=never", "recovery=on")
        self.run("settings", "program", f"/bin/sh -c \"echo ~event~ >> '{self.told}'\"")
        self.run("settings", "cprogram", "on")

    def run(self, *arguments: str) -> None:
        subprocess.run([self.tool, "--folder", self.folder, *arguments], stdout=subprocess.DEVNULL, check=False)

    def check_and_kill(self, life: float) -> None:
        check = subprocess.Popen([self.tool, "--folder", self.folder, "check", "1"], stdout=subprocess.DEVNULL,
                                 stderr=subprocess.DEVNULL)
        time.sleep(life)
        check.kill()
        check.wait()

    def events(self) -> list[str]:
        """What was told, once what was started for it has ended."""
        before = None
        while before != (now := self.told.read_text(encoding="utf-8").split()):
            before = now
            time.sleep(0.05)
        self.told.write_text("", encoding="utf-8")
        return now


def main() -> int:
    tool, schema = sys.argv[1:3]
    outages = int(sys.argv[3]) if len(sys.argv) > 3 else 10
    seed = random.randrange(1 << 32)
    chance = random.Random(seed)
    server = Server(("127.0.0.1", 0), Page)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    doubled = 0
    with tempfile.TemporaryDirectory() as folder:
        subject = Subject(tool, schema, Path(folder), f"http://127.0.0.1:{server.server_port}/")
        subject.run("check", "1")
        for outage in range(outages):
            for event, Page.body in (("down", b"bad"), ("up", b"good")):
                for _ in range(KILLS_A_PHASE):
                    subject.check_and_kill(chance.uniform(0, LONGEST_LIFE_SECONDS))
                subject.run("check", "1")
                told = subject.events()
                if not 1 <= told.count(event) <= 1 + KILLS_A_PHASE or set(told) - {event}:
                    print(f"seed {seed}, outage {outage}: wanted {event}, was told: {told}")
                    return 1
                doubled += len(told) - 1
    server.shutdown()
    print(f"{outages} outages and their ends, {2 * outages * KILLS_A_PHASE} kills: each was told, {doubled} once more.")
    return 0


if __name__ == "__main__":
    sys.exit(main())
