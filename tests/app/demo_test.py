#!/usr/bin/env python3
"""Starts scripts/run.sh as a user would, on programs that are built already, and looks at what it starts.

    demo_test.py CASE PROGRAM_FOLDER

CASE is the name of one of the functions in CASES below. The programs are taken from the program folder and put into one
of the test's own, with a fresh database. Exit status 0: passed, 1: failed, 77: the machine lacks the tools for it.
"""

from __future__ import annotations

import json
import os
import queue
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "tests" / "support"))
from desktop_session import wait_until  # noqa: E402

SKIPPED = 77
TOOLS = ("bash", "cmake", "sqlite3", "flock", "python3")
FIRST_PASS_WITHIN_SECONDS = 30
ENDS_WITHIN_SECONDS = 15

# What the demo's first pass finds; the page /archive is not active. The refused address has no page.
FOUND = {"/steady": True, "/news": True, "/slow": True, "/login": True, "/prices": False, "/shop": False, "/": False}

# Stands in for the program with the window: says what it was started as.
WINDOW = """#!/bin/bash
echo "window in $(dirname "$0") with $*"
"$(dirname "$0")/tarnwickctl" sites --json
"""


def expect(condition: bool, what: str) -> None:
    if not condition:
        raise AssertionError(what)


class Built:
    """What a build leaves: a folder with the program folder in it."""

    def __init__(self, programs: Path, work: Path):
        self.path = work / "a build"  # a blank in the path must not matter
        self.folder = self.path / "tarnwick"
        self.folder.mkdir(parents=True)
        subprocess.run(["cmake", f"-DFOLDER={self.folder}", f"-DASSETS={ROOT / 'assets'}",
                        f"-DSQLITE3={shutil.which('sqlite3')}", "-P", str(ROOT / "cmake" / "LayProgramFolder.cmake")],
                       check=True, stdout=subprocess.DEVNULL)
        shutil.copy2(programs / "tarnwickctl", self.folder)
        window = self.folder / "tarnwick"
        window.write_text(WINDOW, encoding="utf-8")
        window.chmod(0o755)


class Script:
    """scripts/run.sh in a session of its own, so that all that it started can be found again."""

    def __init__(self, *arguments: str, display: str | None = None):
        env = {key: value for key, value in os.environ.items()
               if key not in ("DISPLAY", "WAYLAND_DISPLAY", "no_proxy", "NO_PROXY")}
        env["LC_ALL"] = "C.UTF-8"
        env["http_proxy"] = "http://127.0.0.1:9"  # pages of this machine are no proxy's affair
        if display is not None:
            env["DISPLAY"] = display
        self.process = subprocess.Popen(["bash", str(ROOT / "scripts" / "run.sh"), *arguments], env=env,
                                        stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                                        text=True, cwd="/", start_new_session=True)
        self.lines: list[str] = []
        self.said: list[str] = []
        self._unread: queue.Queue[str | None] = queue.Queue()
        self._readers = [threading.Thread(target=self._read_output, daemon=True),
                         threading.Thread(target=lambda: self.said.extend(self.process.stderr), daemon=True)]
        for reader in self._readers:
            reader.start()

    def __enter__(self) -> Script:
        return self

    def __exit__(self, *_) -> None:
        for pid in self.left_behind():
            os.kill(pid, signal.SIGKILL)
        self.process.wait()

    def _read_output(self) -> None:
        for line in self.process.stdout:
            self.lines.append(line.rstrip("\n"))
            self._unread.put(self.lines[-1])
        self._unread.put(None)

    def wait_for_line(self, wanted, what: str, seconds: float) -> str:
        """The next line of standard output for which `wanted(line)` holds."""

        def look():
            try:
                line = self._unread.get_nowait()
            except queue.Empty:
                return None
            if line is None:
                raise AssertionError(f"it ended before {what}, with status {self.process.wait()}")
            return line if wanted(line) else None

        return wait_until(look, what, seconds)

    def end(self, wish: signal.Signals | None = None) -> int:
        """Sends the signal to the script's process alone, and returns the status that everything ended with."""
        if wish is not None:
            self.process.send_signal(wish)
        wait_until(lambda: self.process.poll() is not None, "it to end", ENDS_WITHIN_SECONDS)
        wait_until(lambda: not self.left_behind(), "what it had started to end", ENDS_WITHIN_SECONDS)
        for reader in self._readers:
            reader.join(ENDS_WITHIN_SECONDS)
        return self.process.returncode

    def left_behind(self) -> list[int]:
        """The living processes of the session."""
        found = []
        for stat in Path("/proc").glob("[0-9]*/stat"):
            try:
                state, _, _, session = stat.read_text(encoding="utf-8", errors="replace").rpartition(")")[2].split()[:4]
            except OSError:
                continue  # it has ended meanwhile
            if int(session) == self.process.pid and state != "Z":
                found.append(int(stat.parent.name))
        return found

    def errors(self) -> str:
        return "".join(self.said)


def is_event(name: str):
    return lambda line: json.loads(line)["event"] == name


def page_of(url: str) -> str:
    return "/" + url.split("/", 3)[3]


def demo_finds_ups_and_downs_in_the_terminal(built: Built) -> None:
    database = built.folder / "tarnwick.mdb"
    shutil.copy(built.folder / "fresh" / "tarnwick.mdb", database)
    before = database.read_bytes()
    with Script("--built", str(built.path), "--demo", "--", "--json") as demo:
        done = json.loads(demo.wait_for_line(is_event("pass"), "the end of the first pass", FIRST_PASS_WITHIN_SECONDS))
        expect((done["up"], done["down"]) == (4, 3), f"the first pass ended with {done}")
        events = [json.loads(line) for line in demo.lines]
        found = {page_of(event["url"]): event["status"] for event in events if event["event"] == "result"}
        expect(found == FOUND, f"the first pass found {found}")
        status = demo.end(signal.SIGINT)
        expect(status == 0, f"the demo ended with status {status}")
        expect(is_event("stopped")(demo.lines[-1]), f"the last line is {demo.lines[-1]}")
        expect(len(demo.said) == 1 and "no display" in demo.said[0] and "Demo:" in demo.said[0],
               f"it said:\n{demo.errors()}")
    expect(database.read_bytes() == before, "the demo has changed the user's own list")


def demo_leaves_nothing_behind_when_killed(built: Built) -> None:
    with Script("--built", str(built.path), "--demo", "--", "--json") as demo:
        demo.wait_for_line(is_event("started"), "the run to start", FIRST_PASS_WITHIN_SECONDS)
        expect(len(demo.left_behind()) == 2, f"the monitor and its pages are {demo.left_behind()}")
        expect(demo.end(signal.SIGKILL) == -signal.SIGKILL, "it was not killed")


def demo_is_one_at_a_time(built: Built) -> None:
    with Script("--built", str(built.path), "--demo", "--", "--json") as demo:
        demo.wait_for_line(is_event("started"), "the run to start", FIRST_PASS_WITHIN_SECONDS)
        with Script("--built", str(built.path), "--demo") as second:
            expect(second.end() == 1, "a second demo was started")
            expect("running already" in second.errors(), f"the second one said:\n{second.errors()}")
        expect((built.path / "demo" / "tarnwick.mdb").exists(), "the second one swept the first one's folder away")
        expect(demo.end(signal.SIGTERM) == 0, "the first one did not end well")
    with Script("--built", str(built.path), "--demo", "--", "--json") as again:
        again.wait_for_line(is_event("started"), "the run to start", FIRST_PASS_WITHIN_SECONDS)
        expect(again.end(signal.SIGINT) == 0, "it did not end well")


def demo_opens_the_window_on_a_list_of_its_own(built: Built) -> None:
    with Script("--built", str(built.path), "--demo", display=":77") as demo:
        status = demo.end()
        expect(status == 0, f"it ended with status {status} and said:\n{demo.errors()}")
        expect(demo.lines[0] == f"window in {built.path / 'demo'} with ", f"it started: {demo.lines[0]}")
        sites = json.loads("\n".join(demo.lines[1:]))
        active = {page_of(site["url"]) for site in sites if site["active"]}
        expect(active == set(FOUND) and len(sites) == len(FOUND) + 1, f"its list is {sites}")
        expect("Press Start" in demo.errors(), f"it said:\n{demo.errors()}")


def starts_the_tool_where_there_is_no_display(built: Built) -> None:
    with Script("--built", str(built.path), "--", "--json") as script:
        started = json.loads(script.wait_for_line(is_event("started"), "the run to start", FIRST_PASS_WITHIN_SECONDS))
        expect(started["folder"] == str(built.folder), f"the run is on {started['folder']}")
        expect(script.end(signal.SIGINT) == 0, "it did not end well")
        expect("no display" in script.errors(), f"it said:\n{script.errors()}")
        expect(f"{built.folder}/tarnwickctl" in script.errors(), f"it said:\n{script.errors()}")
        expect(script.errors().count("add URL") == 1, f"it said:\n{script.errors()}")


def starts_the_window_where_there_is_a_display(built: Built) -> None:
    with Script("--built", str(built.path), "--", "one argument", "-x", display=":77") as script:
        expect(script.end() == 0, f"it said:\n{script.errors()}")
        expect(script.lines[0] == f"window in {built.folder} with one argument -x", f"it started: {script.lines[0]}")
    with Script("--built", str(built.path), "--terminal", "--", "--json", display=":77") as script:
        script.wait_for_line(is_event("started"), "the run to start", FIRST_PASS_WITHIN_SECONDS)
        expect(script.end(signal.SIGINT) == 0, "it did not end well")


def says_what_it_does_not_know(built: Built) -> None:
    (built.path / "empty").mkdir()
    for arguments, status, piece in ((("--dmeo",), 2, '"--dmeo"'), (("--built",), 2, "needs a folder"),
                                     (("--built", str(built.path / "empty")), 1, "Nothing is built")):
        with Script(*arguments) as script:
            ended = script.end()
            expect(ended == status and piece in script.errors(), f"{arguments}: {ended}, {script.errors()}")
            expect(script.lines == [], f"{arguments}: {script.lines} on standard output")


CASES = {case.__name__: case for case in
         (demo_finds_ups_and_downs_in_the_terminal, demo_leaves_nothing_behind_when_killed, demo_is_one_at_a_time,
          demo_opens_the_window_on_a_list_of_its_own, starts_the_tool_where_there_is_no_display,
          starts_the_window_where_there_is_a_display, says_what_it_does_not_know)}


def main() -> int:
    if len(sys.argv) != 3 or sys.argv[1] not in CASES:
        print(__doc__ + "\nCases: " + ", ".join(CASES), file=sys.stderr)
        return 2
    missing = [tool for tool in TOOLS if shutil.which(tool) is None]
    if missing:
        print(f"skipped: {', '.join(missing)} not installed (scripts/test.sh installs them)")
        return SKIPPED
    with tempfile.TemporaryDirectory(prefix="tarnwick-demo-") as name:
        try:
            CASES[sys.argv[1]](Built(Path(sys.argv[2]), Path(name)))
        except (AssertionError, TimeoutError) as failure:
            print(f"{sys.argv[1]}: {failure}", file=sys.stderr)
            return 1
    return 0


sys.exit(main())
