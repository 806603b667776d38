#!/usr/bin/env python3
"""Runs the program on a demonstration database and a small web server, and takes the pictures of the docs.

    take_screenshots.py PROGRAM_FOLDER SCHEMA PICTURES_FOLDER
"""

from __future__ import annotations

import datetime
import http.server
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import threading
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "tests" / "support"))
from desktop_session import DesktopSession, missing_tools, wait_until  # noqa: E402

PORT = 8080  # shows in the pictures; any free one is taken when another program has it

# Path, interval, active, checks found well and not well so far, whether the page has changed since.
SITES = (
    ("/", 10, 1, 1274, 3, False),
    ("/news/", 5, 1, 2519, 0, False),
    ("/shop/prices.txt", 15, 1, 840, 12, True),
    ("/api/health", 1, 1, 12602, 7, False),
    ("/intranet/login", 30, 1, 421, 1, False),
    ("/archive/2019/", 120, 0, 88, 0, False),
)

# The first one whose page has changed, by its number.
CHANGED_SITE = 3
# What it had in place of what it has now: one of these is no change.
BEFORE = ((b"<p>Seen at 09:14:05 by visitor 18,377.</p>", b"<p>Seen at 04:10:12 by visitor 18,204.</p>"),
          (b"All services are running", b"All services were running"))
# The site that is asked with POST, by its number, and what is posted.
FORM_SITE = 5
FORM = (("user", "monitor"), ("action", "sign in"), ("remember", "no"))


class Pages(http.server.BaseHTTPRequestHandler):
    def do_GET(self):  # noqa: N802 - the name is the library's
        page = page_of(self.path)
        self.send_response(200)
        self.send_header("Content-Length", str(len(page)))
        self.end_headers()
        self.wfile.write(page)

    def do_POST(self):  # noqa: N802
        self.rfile.read(int(self.headers.get("Content-Length", 0)))
        self.do_GET()

    def log_message(self, *_):
        pass


def page_of(path: str) -> bytes:
    seen = ["<p>Seen at 09:14:05 by visitor 18,377.</p>"] if path == SITES[CHANGED_SITE - 1][0] else []
    lines = ["<!DOCTYPE html>", "<html>", "<head><title>A page</title></head>", "<body>",
             f"<h1>The page {path}</h1>", *seen, "<p>All services are running.</p>", "</body>", "</html>", ""]
    return "\r\n".join(lines).encode()


def page_before(path: str) -> bytes:
    page = page_of(path)
    for now, before in BEFORE:
        page = page.replace(now, before)
    return page


def start_server() -> http.server.ThreadingHTTPServer:
    try:
        server = http.server.ThreadingHTTPServer(("127.0.0.1", PORT), Pages)
    except OSError:
        server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Pages)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    return server


def make_database(file: Path, schema: Path, address: str) -> None:
    connection = sqlite3.connect(file)
    with connection:
        connection.executescript(schema.read_text(encoding="utf-8"))
    with connection:
        for number, (path, interval, active, success, failure, changed) in enumerate(SITES, 1):
            baseline = page_before(path) if changed else page_of(path)
            connection.execute(
                "insert into sites (idSite, url, method, active, tInterval, lastChecked, status, success, failure,"
                " content_compare) values (?, ?, 'GET', ?, ?, '2026-03-31 09:12:44', 1, ?, ?, cast(? as text))",
                (number, address + path, active, interval, success, failure, baseline))
        connection.execute("update sites set method = 'POST', sUserName = 'monitor', sPassWord = 'not shown',"
                           " alertEmail = 1, email = 'admin@example.org' where idSite = ?", (FORM_SITE,))
        make_history(connection)
        connection.executemany("insert into postVars (idSite, pname, pvalue) values (?, ?, ?)",
                               [(FORM_SITE, name, value) for name, value in FORM])
    connection.close()


def make_history(connection: sqlite3.Connection) -> None:
    """A year in which the sites were up, but for half an hour now and then."""
    hour, day, outage = 3600, 86400, 1800
    now = datetime.datetime.now().replace(minute=0, second=0, microsecond=0)
    answers = (bytes((54, 40, 3, 60, 4, 40, 9, 4)), 144, 150 * 144, 700)  # buckets, checks, ms in all, the slowest
    for number in range(1, len(SITES) + 1):
        down_days = [ago for ago in range(1, 365) if ago * number * 7919 % 61 < 2]
        for ago in range(1, 365):
            began = int((now.replace(hour=0) - datetime.timedelta(days=ago)).timestamp())
            down = outage if ago in down_days else 0
            connection.execute("insert into days values (?, ?, ?, ?, ?, 0, ?, ?, ?)",
                               (number, began, day, answers[1], day - down, *answers[2:], answers[0]))
            if down:
                connection.execute("insert into outages values (?, ?, ?, 3, 'The request took longer than 60 seconds.')",
                                   (number, began + 12 * hour, began + 12 * hour + outage))
        for ago in range(1, 8 * 24):
            began = int((now - datetime.timedelta(hours=ago)).timestamp())
            connection.execute("insert into hours values (?, ?, 6, ?, 0, 900, 700, ?)",
                               (number, began, hour - (outage if ago == 5 * number else 0), bytes((54, 3, 3, 3))))
        at = int(now.timestamp())
        connection.execute("insert into latestChecks (idSite, at, up, until) values (?, ?, 1, ?)", (number, at, at))


def checked(file: Path) -> bool:
    """True when the pass over all active sites has been recorded."""
    connection = sqlite3.connect(file, timeout=5)
    try:
        due = connection.execute(
            "select count(*) from sites where active <> 0 and lastChecked = '2026-03-31 09:12:44'").fetchone()
        return due == (0,)
    finally:
        connection.close()


def take(session: DesktopSession, window: str, file: Path) -> None:
    subprocess.run(["import", "-frame", "-window", window, str(file)], env=session.env, check=True)
    subprocess.run(["mogrify", "-strip", str(file)], check=True)


def press_all(session: DesktopSession, window: str, keys: str) -> None:
    for key in keys.split():
        session.press(window, key)


def take_first_start(session: DesktopSession, folder: Path, errors: Path, address: str, pictures: Path) -> None:
    """Starts on an empty list and adds the first site."""
    process = session.start(folder / "tarnwick", errors)
    window = session.window("Tarnwick", process)
    settle()
    take(session, window, pictures / "first-start.png")
    session.press(window, "ctrl+n")
    editor = session.window("Site", process)
    settle()
    subprocess.run(["xdotool", "type", "--delay", "30", address + "/news/"], env=session.env, check=True)
    settle()
    take(session, editor, pictures / "new-site.png")
    session.press(editor, "Escape")
    session.close(window)
    process.wait(timeout=15)


def take_change(session: DesktopSession, process: subprocess.Popen, window: str, pictures: Path) -> None:
    """Loads the page of the site that has changed, and leaves its baseline as it was."""
    press_all(session, window, "ctrl+Home" + " Down" * (CHANGED_SITE - 1) + " Return")
    editor = session.window("Site", process)
    session.press(editor, "alt+c")
    dialog = session.window("Content", process)
    session.press(dialog, "alt+l")
    settle()
    take(session, dialog, pictures / "content-loaded.png")
    session.press(dialog, "Escape")
    session.press(editor, "Escape")


def take_proposals(session: DesktopSession, process: subprocess.Popen, window: str, pictures: Path) -> None:
    """Asks what of the change may be none, and stores nothing."""
    press_all(session, window, "ctrl+Home" + " Down" * (CHANGED_SITE - 1) + " ctrl+shift+v")
    dialog = session.window("Content", process)
    settle()
    take(session, dialog, pictures / "holes.png")
    session.press(dialog, "Escape")


def take_details(session: DesktopSession, process: subprocess.Popen, window: str, pictures: Path) -> None:
    """Shows below the list what has changed and how the site has been, and how all have been."""
    press_all(session, window, "ctrl+Home" + " Down" * (CHANGED_SITE - 1) + " F4")
    settle()
    take(session, window, pictures / "details.png")
    session.press(window, "ctrl+2")
    settle()
    take(session, window, pictures / "history.png")
    session.press(window, "ctrl+h")
    all_of_them = session.window("History of All Sites", process)
    settle()
    take(session, all_of_them, pictures / "history-all.png")
    session.press(all_of_them, "Escape")
    press_all(session, window, "ctrl+1 F4")


def take_dialogs(session: DesktopSession, process: subprocess.Popen, window: str, pictures: Path) -> None:
    """Opens the dialogs of a site as a person with a keyboard does, and takes their pictures."""
    press_all(session, window, "ctrl+Home" + " Down" * (FORM_SITE - 1) + " Return")
    editor = session.window("Site", process)
    settle()
    take(session, editor, pictures / "site-editor.png")
    session.press(editor, "ctrl+2")
    settle()
    take(session, editor, pictures / "alarm.png")
    session.press(editor, "ctrl+1")
    for keys, title, picture in (("alt+c", "Content", "content.png"), ("alt+t", "counters", "counters.png")):
        session.press(editor, keys)
        dialog = session.window(title, process)
        settle()
        take(session, dialog, pictures / picture)
        session.press(dialog, "Escape")
    # From the pager's mark over its text on to the list of variables.
    press_all(session, editor, "alt+r Tab Tab ctrl+Home Return")
    dialog = session.window("Add / Edit Post Variable", process)
    settle()
    take(session, dialog, pictures / "post-variable.png")
    session.press(dialog, "Escape")
    session.press(editor, "Escape")


def take_settings(session: DesktopSession, process: subprocess.Popen, window: str, pictures: Path, database: Path) -> None:
    """Takes the pictures of the settings with mail switched on, while no check can send one."""
    session.press(window, "shift+F5")
    connection = sqlite3.connect(database, timeout=5)
    with connection:
        connection.execute("update control set email = 'watch@tarnwick.example', smtp = 'localhost',"
                           " audio = '/home/me/sounds/alarm.wav', program = '/home/me/bin/tell.sh \"~date~\" ~3~',"
                           " creports = 1, cemail = 1, caudio = 1")
    connection.close()
    session.press(window, "alt+u")
    dialog = session.window("Settings", process)
    settle()
    take(session, dialog, pictures / "settings.png")
    session.press(dialog, "ctrl+4")
    settle()
    take(session, dialog, pictures / "pause.png")
    session.press(dialog, "Escape")


def settle() -> None:
    threading.Event().wait(1)  # the window manager draws the frame of a new window in its own time


def main() -> int:
    built, schema, pictures = (Path(argument).resolve() for argument in sys.argv[1:4])
    if missing_tools():
        sys.exit(f"not installed: {', '.join(missing_tools())}")
    server = start_server()
    with tempfile.TemporaryDirectory(prefix="tarnwick-pictures-") as name:
        work = Path(name)
        folder = work / "tarnwick"
        shutil.copytree(built, folder, ignore=shutil.ignore_patterns("*.mdb*", "report.html"))
        database = folder / "tarnwick.mdb"
        address = f"http://127.0.0.1:{server.server_port}"
        with DesktopSession(work) as session:
            shutil.copy(built / "fresh" / "tarnwick.mdb", database)
            take_first_start(session, folder, work / "errors.txt", address, pictures)
            for file in folder.glob("tarnwick.mdb*"):
                file.unlink()
            make_database(database, schema, address)
            process = session.start(folder / "tarnwick", work / "errors.txt")
            window = session.window("Tarnwick", process)
            session.press(window, "F5")
            wait_until(lambda: checked(database), "the sites to be checked")
            threading.Event().wait(4)  # the countdown and the run clock get going
            take(session, window, pictures / "main-window.png")
            take_details(session, process, window, pictures)
            take_change(session, process, window, pictures)
            take_proposals(session, process, window, pictures)
            take_dialogs(session, process, window, pictures)
            take_settings(session, process, window, pictures, database)
            session.close(window)
            process.wait(timeout=15)
    server.shutdown()
    print(f"The pictures in {pictures} are made.")
    return 0


sys.exit(main())
