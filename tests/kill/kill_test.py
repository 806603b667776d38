#!/usr/bin/env python3
"""Kills a working program at random instants and looks for what is lost.

    kill_test.py SUBJECT SCHEMA [KILLS]

SUBJECT is the built kill_subject, SCHEMA the file that makes a fresh database. Each kill starts the program on the folder
that the last one left behind. Prints how many kills fell into what the program was doing, and what was lost; exit status
1 when anything was.
"""

from __future__ import annotations

import http.server
import itertools
import random
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import threading
import time
from collections import Counter
from pathlib import Path

# What the program does, and how long at most it is let do it before it is killed.
PHASES = {"start": 0.02, "pass": 0.04, "edit": 0.006, "clear": 0.03, "compact": 0.03}
PATIENCE_SECONDS = 60
SERIALS_OF_A_START = 1_000_000
SOURCES = ("/stable", "/changing", "/failing", "/silent", "/late")
EXPECTED_FILES = {"tarnwick.mdb", "tarnwick.mdb-reserve", "backup.mdb", "temp.mdb"}


class Pages(http.server.BaseHTTPRequestHandler):
    """Sites that stay, change, fail, hang up and dawdle."""

    protocol_version = "HTTP/1.1"
    count = itertools.count()

    def do_GET(self):  # noqa: N802 - the name is the library's
        number = next(self.count)
        if self.path == "/silent":
            self.close_connection = True
            return
        if self.path == "/late":
            time.sleep(0.02)
        body = b"a page that stays " * 1000 if self.path != "/changing" else b"page number %d " % number * 1500
        self.send_response(503 if self.path == "/failing" and number % 2 else 200)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *arguments):
        pass


class Server(http.server.ThreadingHTTPServer):
    def handle_error(self, request, client_address):
        """Those who asked were killed; that is the point."""


class Expected:
    """What must be in the database, as far as the program has said; what it was about to do may be there or not."""

    def __init__(self):
        self.sites: dict[int, set[str]] = {}
        self.settings: set[str] = set()
        self.variables: set[str] = set()
        self.may_be_variables: set[str] = set()
        self.counts: Counter[tuple[int, str]] = Counter()
        self.log_rows = 0
        self.most_log_rows = 0

    def told(self, line: str) -> None:
        words = line.split()
        if words[0] in ("editing", "edited"):
            self.edit(words[0] == "edited", *words[1:])
        elif words[0] == "recorded":
            self.counts[int(words[1]), words[2]] += 1
            self.log_rows += 1
            self.most_log_rows += 1
        elif words[0] == "filling":
            self.most_log_rows += int(words[1])
        elif words[0] == "filled":
            self.log_rows += int(words[1])
        elif words[0] == "clearing":
            self.log_rows = 0
        elif words[0] == "cleared":
            self.most_log_rows = self.log_rows = 0

    def edit(self, done: bool, kind: str, name: str, value: str) -> None:
        if kind == "variable":
            (self.variables if done else self.may_be_variables).add(value)
            return
        values = self.settings if kind == "setting" else self.sites.setdefault(int(name), set())
        if done:
            values.clear()
        values.add(value)


class Folder:
    """The program folder, and a copy to look into: looking must not mend what the next start has to mend."""

    def __init__(self, root: Path, schema: Path, base: str):
        self.path = root / "program"
        self.copy = root / "copy"
        self.path.mkdir()
        with sqlite3.connect(self.path / "tarnwick.mdb") as database:
            database.executescript(schema.read_text(encoding="utf-8"))
            for number, source in enumerate(SOURCES, 1):
                database.execute("insert into sites (idSite,url,method,active,tInterval) values (?,?,'get',1,10)",
                                 (number, base + source))
        database.close()

    def look(self, expected: Expected, name: str = "tarnwick.mdb") -> list[str]:
        """What is wrong; `expected` is brought to what is stored."""
        shutil.rmtree(self.copy, ignore_errors=True)
        self.copy.mkdir()
        for ending in ("", "-wal", "-journal"):
            file = self.path / (name + ending)
            if file.exists():
                shutil.copy2(file, self.copy)
        if not (self.copy / name).exists():
            return [f"{name} is missing"]
        database = sqlite3.connect(self.copy / name)
        try:
            findings = [row[0] for row in database.execute("pragma integrity_check") if row[0] != "ok"]
            return findings or self.compare(database, expected)
        except sqlite3.Error as error:
            return [f"{name}: {error}"]
        finally:
            database.close()

    @staticmethod
    def compare(database: sqlite3.Connection, expected: Expected) -> list[str]:
        findings = []
        rows = list(database.execute("select idSite, email, success, failure from sites order by 1"))
        if [row[0] for row in rows] != list(range(1, len(SOURCES) + 1)):
            findings.append(f"the sites are {rows}")
        unsaid = 0
        for site, email, success, failure in rows:
            values = expected.sites.setdefault(site, {email or ""})
            if (email or "") not in values:
                findings.append(f"site {site}: {email!r} is stored, {values} was confirmed")
            expected.sites[site] = {email or ""}
            for column, count in (("up", success or 0), ("down", failure or 0)):
                more = count - expected.counts[site, column]
                if more < 0:
                    findings.append(f"site {site}: {-more} confirmed results ({column}) are not counted")
                unsaid += more
                expected.counts[site, column] = count
        if unsaid > 1:
            findings.append(f"{unsaid} results are counted of which nothing was said")

        settings = set(database.execute("select email, smtp from control").fetchall())
        values = {value for pair in settings for value in pair}
        if len(values) != 1 or (expected.settings and not values <= expected.settings):
            findings.append(f"the settings are {settings}, {expected.settings} was confirmed")
        expected.settings = values

        variables = [row[0] for row in database.execute("select pvalue from postVars")]
        lost = expected.variables - set(variables)
        foreign = set(variables) - expected.variables - expected.may_be_variables
        if lost or foreign or len(variables) != len(set(variables)):
            findings.append(f"variables: {len(lost)} lost, {len(foreign)} unknown, {len(variables)} stored")
        expected.variables = set(variables)
        expected.may_be_variables = set()

        stored = database.execute("select count(*) from log").fetchone()[0]
        if not expected.log_rows <= stored <= expected.most_log_rows + 1:
            findings.append(f"the log has {stored} rows; {expected.log_rows} to {expected.most_log_rows + 1} are due")
        expected.log_rows = expected.most_log_rows = stored
        return findings


class Subject:
    """The program at work, with a thread that takes down what it says."""

    def __init__(self, command: list[str], errors):
        self.process = subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=errors, text=True)
        self.lines: list[str] = []
        self.news = threading.Condition()
        self.ended = False
        self.reader = threading.Thread(target=self.read, daemon=True)
        self.reader.start()

    def read(self) -> None:
        for line in self.process.stdout:
            with self.news:
                # What is cut off by the kill was not said.
                if line.endswith("\n"):
                    self.lines.append(line.strip())
                self.news.notify_all()
        with self.news:
            self.ended = True
            self.news.notify_all()

    def go_on(self, rounds: int) -> None:
        """Lets it work for so many rounds, every third of which clears and compacts."""
        try:
            self.process.stdin.write("".join("all\n" if number % 3 == 2 else "some\n" for number in range(rounds)))
            self.process.stdin.flush()
        except BrokenPipeError:
            pass

    def wait_for(self, line: str, times: int) -> None:
        with self.news:
            self.news.wait_for(lambda: self.ended or self.lines.count(line) >= times, PATIENCE_SECONDS)

    def kill(self) -> list[str]:
        self.process.kill()
        self.process.wait()
        self.reader.join()
        self.process.stdin.close()
        self.process.stdout.close()
        return self.lines


class KillTest:
    def __init__(self, subject: str, root: Path, folder: Folder, seed: int):
        self.subject = subject
        self.folder = folder
        self.errors = root / "errors"
        self.expected = Expected()
        self.random = random.Random(seed)
        self.phases: Counter[str] = Counter()
        self.findings: list[str] = []
        self.records = 0
        self.edits = 0

    def start(self, number: int) -> Subject:
        serial = (number + 1) * SERIALS_OF_A_START
        with self.errors.open("w") as errors:
            return Subject([self.subject, str(self.folder.path), str(serial)], errors)

    def kill_once(self, number: int) -> None:
        phase = self.random.choice(list(PHASES))
        subject = self.start(number)
        if phase != "start":  # which is killed before it has said anything, too
            subject.go_on(30)
            subject.wait_for("phase " + phase, self.random.randint(1, 2))
        time.sleep(self.random.uniform(0, PHASES[phase]))
        lines = subject.kill()
        last = [line.removeprefix("phase ") for line in lines if line.startswith("phase ")]
        self.phases[last[-1] if last else "start"] += 1
        self.edits += sum(line.startswith("edited") for line in lines)
        self.records += sum(line.startswith("recorded") for line in lines)
        for line in lines:
            self.expected.told(line)
        self.found(number, self.folder.look(self.expected))
        said = self.errors.read_text(errors="replace").strip()
        # "-9" is ours; anything else ended it before.
        if subject.process.returncode != -9 or said:
            self.found(number, [f"it ended with {subject.process.returncode} and said {said!r}"])

    def found(self, number: int, findings: list[str]) -> None:
        for finding in findings:
            print(f"kill {number + 1}: {finding}", flush=True)
        self.findings += findings

    def close_in_order(self, number: int) -> None:
        """Nothing but the databases may be left after an orderly end; the backup is whole."""
        subject = self.start(number)
        subject.go_on(3)
        subject.wait_for("compacted", 1)
        subject.process.stdin.close()
        subject.process.wait(PATIENCE_SECONDS)
        subject.reader.join()
        for line in subject.lines:
            self.expected.told(line)
        self.found(number, self.folder.look(self.expected))
        left = {path.name for path in self.folder.path.iterdir()} - EXPECTED_FILES
        if left or subject.process.returncode != 0:
            self.found(number, [f"an orderly end gave {subject.process.returncode} and left {sorted(left)}"])
        for name in EXPECTED_FILES:
            file = self.folder.path / name
            database = sqlite3.connect(f"{file.as_uri()}?immutable=1", uri=True)
            self.found(number, [f"{name}: {row[0]}" for row in database.execute("pragma integrity_check")
                                if row[0] != "ok"])
            database.close()


def main() -> int:
    if len(sys.argv) not in (3, 4):
        print(__doc__, file=sys.stderr)
        return 2
    kills = int(sys.argv[3]) if len(sys.argv) == 4 else 25
    seed = random.SystemRandom().randrange(1_000_000)
    server = Server(("127.0.0.1", 0), Pages)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    with tempfile.TemporaryDirectory(prefix="tarnwick-kill-") as root:
        folder = Folder(Path(root), Path(sys.argv[2]), f"http://127.0.0.1:{server.server_port}")
        test = KillTest(sys.argv[1], Path(root), folder, seed)
        for number in range(kills):
            test.kill_once(number)
            if test.findings:
                break
            if number % 50 == 24:
                test.close_in_order(kills + number)
        else:
            test.close_in_order(2 * kills)
    server.shutdown()
    done = sum(test.phases.values())
    spread = ", ".join(f"{test.phases[phase]} in {phase}" for phase in PHASES)
    outcome = (f"{len(test.findings)} findings, seed {seed}" if test.findings else
               f"0 lost of {test.edits} confirmed edits and {test.records} confirmed results, every file whole")
    print(f"{done} kills ({spread}): {outcome}.")
    return 1 if test.findings else 0


sys.exit(main())
