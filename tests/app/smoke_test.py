#!/usr/bin/env python3
"""Starts the real program on a display, as a user would, and looks at what it does.

    smoke_test.py CASE PROGRAM_FOLDER SCHEMA

CASE is the name of one of the functions in CASES below. The program folder is copied first and gets a fresh database.
Exit status 0: passed, 1: failed, 77: the machine lacks the tools for it.
"""

from __future__ import annotations

import http.server
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import threading
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "support"))
from desktop_session import DesktopSession, missing_tools, output_of, wait_until  # noqa: E402

SKIPPED = 77
ENDS_WITHIN_SECONDS = 15
TITLE = "Tarnwick"
PAGE = b"<html>A page\r\nthat stays.</html>"


class ProgramFolder:
    """A copy of the built program folder with a fresh database."""

    def __init__(self, built: Path, schema: Path, folder: Path):
        self.path = folder / "program folder"  # a blank in the path must not matter
        shutil.copytree(built, self.path, ignore=shutil.ignore_patterns("*.mdb*", "report.html"))
        self.database = self.path / "tarnwick.mdb"
        with sqlite3.connect(self.database) as connection:
            connection.executescript(schema.read_text(encoding="utf-8"))
        connection.close()

    def execute(self, sql: str, *values) -> list[tuple]:
        connection = sqlite3.connect(self.database, timeout=5)
        try:
            with connection:
                return connection.execute(sql, values).fetchall()
        finally:
            connection.close()

    def files(self) -> set[str]:
        return {path.relative_to(self.path).as_posix() for path in self.path.rglob("*")}


class Site(http.server.BaseHTTPRequestHandler):
    """One page that is always the same."""

    def do_GET(self):  # noqa: N802 - the name is the library's
        self.send_response(200)
        self.send_header("Content-Length", str(len(PAGE)))
        self.end_headers()
        self.wfile.write(PAGE)

    def log_message(self, *_):
        pass


def expect(condition: bool, what: str) -> None:
    if not condition:
        raise AssertionError(what)


def expect_end(process, status: int) -> None:
    wait_until(lambda: process.poll() is not None, "the program to end", ENDS_WITHIN_SECONDS)
    expect(process.returncode == status, f"the program ended with status {process.returncode}, not {status}")


def expect_silence(errors: Path) -> None:
    said = errors.read_text(encoding="utf-8", errors="replace")
    expect(said == "", f"the program printed:\n{said}")


def expect_sound_database(folder: ProgramFolder) -> None:
    expect(not list(folder.path.glob("tarnwick.mdb-*")), "the database was not closed: side files are left")
    expect(folder.execute("pragma integrity_check") == [("ok",)], "the database is damaged")


def is_ready(folder: ProgramFolder) -> bool:
    """The last that the start does to the database, right before it says "Ready ...", is to renumber variables."""
    return bool(folder.execute("select 1 from sqlite_master where lower(name) = 'temppostvars'"))


def start_ready(folder: ProgramFolder, session: DesktopSession, errors: Path):
    """Starts the program and waits until it is ready; its process and its window."""
    process = session.start(folder.path / "tarnwick", errors)
    window = session.window(TITLE, process)
    wait_until(lambda: is_ready(folder), "the program to be ready")
    return process, window


def opens_and_closes(folder: ProgramFolder, session: DesktopSession, errors: Path) -> None:
    process, window = start_ready(folder, session, errors)
    session.close(window)
    expect_end(process, 0)
    expect_silence(errors)
    expect_sound_database(folder)


def checks_a_site_and_closes_while_running(folder: ProgramFolder, session: DesktopSession, errors: Path) -> None:
    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Site)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    try:
        folder.execute("insert into sites (idSite, url, method, active, tInterval) values (1, ?, 'GET', 1, 10)",
                       f"http://127.0.0.1:{server.server_port}/page")
        process = session.start(folder.path / "tarnwick", errors)
        window = session.window(TITLE, process)
        wait_until(lambda: is_ready(folder), "the program to be ready")
        expect(folder.execute("select lastChecked from sites") == [(None,)], "a run started by itself")
        session.press(window, "F5")
        wait_until(lambda: folder.execute("select success from sites") == [(1,)], "the site to be checked")
        expect(folder.execute("select cast(content_compare as blob) from sites")
               == [(PAGE,)], "the first page did not become the baseline as it was sent")
        session.close(window)
        expect_end(process, 0)
    finally:
        server.shutdown()
        server.server_close()
    expect_silence(errors)
    expect_sound_database(folder)


def says_that_the_database_is_missing(folder: ProgramFolder, session: DesktopSession, errors: Path) -> None:
    folder.database.unlink()
    before = folder.files()
    process = session.start(folder.path / "tarnwick", errors)
    box = session.window(TITLE, process)
    session.press(box, "Return")
    expect_end(process, 1)
    expect_silence(errors)
    expect(folder.files() == before, f"the program made {sorted(folder.files() - before)}")


def add_site(folder: ProgramFolder) -> None:
    folder.execute("insert into sites (idSite, url, method, active, tInterval) values (1, 'http://127.0.0.1:9/', 'GET', 1, 1)")


def windows(session: DesktopSession) -> list[str]:
    return output_of(["wmctrl", "-l"], session.env).splitlines()


def closes_over_a_question(folder: ProgramFolder, session: DesktopSession, errors: Path) -> None:
    add_site(folder)
    process, window = start_ready(folder, session, errors)
    session.press(window, "F5")
    wait_until(lambda: folder.execute("select count(*) from log") == [(1,)], "the site to be checked")
    session.press(window, "Return")
    editor = session.window("Site", process)
    session.press(editor, "alt+d")
    wait_until(lambda: len(windows(session)) == 3, "the question")
    folder.execute("update sites set lastChecked = '2020-01-01 00:00:00'")
    wait_until(lambda: folder.execute("select count(*) from log") == [(2,)], "the site to be checked behind the question",
               70)
    session.close(window)
    expect_end(process, 0)
    expect(folder.execute("select count(*) from sites") == [(1,)], "the site was deleted without an answer")
    expect_silence(errors)
    expect_sound_database(folder)


def open_chooser(session: DesktopSession, window: str, process: subprocess.Popen) -> tuple[str, str]:
    """The settings, and the chooser of the alert sound over them."""
    session.press(window, "alt+u")
    settings = session.window("Settings", process)
    session.press(settings, "alt+b")
    return settings, session.window("Open", process)


def chooses_a_file_by_the_beginning_of_its_name(folder: ProgramFolder, session: DesktopSession, errors: Path) -> None:
    (folder.path / "impatient.wav").write_bytes(b"RIFF")
    process, window = start_ready(folder, session, errors)
    settings, chooser = open_chooser(session, window, process)
    session.press(chooser, "BackSpace")
    subprocess.run(["xdotool", "type", "--delay", "40", "imp"], env=session.env, check=True)
    # The list that completes the name has the keyboard now.
    wait_until(lambda: len(output_of(["xdotool", "search", "--onlyvisible", "--pid", str(process.pid)],
                                     session.env).splitlines()) > 3, "the list of names")
    subprocess.run(["xdotool", "key", "Down", "Return"], env=session.env, check=True)
    wait_until(lambda: len(windows(session)) == 2, "the chooser to take the file")
    session.press(settings, "alt+k")
    wait_until(lambda: folder.execute("select audio from control") == [(str(folder.path / "impatient.wav"),)],
               "the file in the settings")
    _, chooser = open_chooser(session, window, process)
    session.press(chooser, "i")
    session.close(window)
    expect_end(process, 0)
    expect_silence(errors)
    expect_sound_database(folder)


def lives_on_when_a_page_is_closed_in_a_drag(folder: ProgramFolder, session: DesktopSession, errors: Path) -> None:
    add_site(folder)
    folder.execute("update sites set content_compare = ?", "some words of a page " * 500)
    process, window = start_ready(folder, session, errors)
    session.press(window, "Return")
    editor = session.window("Site", process)
    session.press(editor, "alt+c")
    content = session.window("Content", process)
    session.press(content, "ctrl+a")
    for deed in (["200", "150", "mousedown", "1"], ["300", "200"], ["310", "210"], ["320", "220"]):
        subprocess.run(["xdotool", "mousemove", "--window", content, *deed], env=session.env, check=True)
    session.close(content)
    wait_until(lambda: len(windows(session)) == 2, "the content window to close")
    subprocess.run(["xdotool", "mouseup", "1"], env=session.env, check=True)
    session.press(editor, "Escape")
    wait_until(lambda: len(windows(session)) == 1, "the editor to close")
    session.close(window)
    expect_end(process, 0)
    expect_silence(errors)
    expect_sound_database(folder)


CASES = {case.__name__: case for case in
         (opens_and_closes, checks_a_site_and_closes_while_running, says_that_the_database_is_missing,
          closes_over_a_question, chooses_a_file_by_the_beginning_of_its_name,
          lives_on_when_a_page_is_closed_in_a_drag)}


def main() -> int:
    if len(sys.argv) != 4 or sys.argv[1] not in CASES:
        print(__doc__ + "\nCases: " + ", ".join(CASES), file=sys.stderr)
        return 2
    missing = missing_tools()
    if missing:
        print(f"skipped: {', '.join(missing)} not installed (scripts/test.sh installs them)")
        return SKIPPED
    with tempfile.TemporaryDirectory(prefix="tarnwick-smoke-") as name:
        work = Path(name)
        folder = ProgramFolder(Path(sys.argv[2]), Path(sys.argv[3]), work)
        errors = work / "errors.txt"
        try:
            with DesktopSession(work) as session:
                CASES[sys.argv[1]](folder, session, errors)
        except (AssertionError, TimeoutError, RuntimeError) as failure:
            print(f"{sys.argv[1]}: {failure}", file=sys.stderr)
            if errors.exists():
                print(errors.read_text(encoding="utf-8", errors="replace"), file=sys.stderr)
            return 1
    return 0


sys.exit(main())
