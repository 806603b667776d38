#!/usr/bin/env python3
"""Lets a monkey at the real program: random clicks and keys in all its windows while the network, the mail server and
the database come and go and another program works on the same list. Then looks whether it lives, watches and has lost
nothing.

    monkey_test.py PROGRAM_FOLDER SCHEMA [--seconds N] [--seed N] [--keep]

The seed (default: the time) gives the same monkey again, though not the same moments. --keep leaves its folder behind.
Exit status 0: passed, 1: failed, 77: the machine lacks the tools for it.
"""

from __future__ import annotations

import argparse
import collections
import contextlib
import os
import random
import re
import subprocess
import sys
import tempfile
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "support"))
from desktop_session import DesktopSession, missing_tools, output_of, wait_until  # noqa: E402
from troubled_world import Folder, Troubles  # noqa: E402

SKIPPED = 77
TITLE = "Tarnwick"
ROUND_SECONDS = 8
DEEP_LOOK_EVERY = 6
ANSWERS_WITHIN_SECONDS = 40
RESULT_WITHIN_SECONDS = 120
ENDS_WITHIN_SECONDS = 15

FORMS = ("Site", "Settings", "Content", "counters", "Add / Edit Post Variable")
KEYS = ("Tab", "Tab", "shift+Tab", "Return", "Escape", "space", "Up", "Down", "Left", "Right", "Home", "End", "Next",
        "Prior", "Delete", "F1", "F5", "shift+F5", "ctrl+n", "ctrl+Tab", "ctrl+Next", "ctrl+a", "ctrl+c", "ctrl+v",
        "ctrl+x", "ctrl+z", "F2", "F4", "Menu", "shift+F10", "alt+Down")
# Of these no program is named, no folder above is reached, and no host outside is found.
LETTERS = "abcdefghijklmnopqrstuvwxyzABCXYZ0123456789 @:%&=?-_<>'\""
# What opens what, so that more than the surface is reached.
OPENERS = ("alt+c", "alt+d", "alt+t", "alt+u", "alt+n", "alt+l", "alt+s", "alt+o", "alt+k", "alt+v", "alt+b", "alt+a",
           "alt+y")
# Ways from the main window to what is far from it: the list of files, a question, the page, a variable, compacting.
WAYS = (("alt+u", "alt+b"), ("alt+u", "alt+b", "i", "m"), ("alt+u", "alt+c"), ("alt+u", "alt+d"),
        ("alt+u", "alt+d", "alt+y"), ("alt+u", "alt+v"), ("alt+u", "ctrl+Next"), ("Return", "alt+c"),
        ("Return", "alt+c", "alt+l"), ("Return", "alt+c", "Menu"), ("Return", "alt+d"), ("Return", "alt+t"),
        ("Return", "alt+s", "shift+Tab", "Return"), ("Return", "ctrl+Next"), ("ctrl+n", "alt+c"))

OPENER = """#!/bin/sh
echo "$1" >> "$OPENED_PAGES"
"""


class Fault(Exception):
    """What the monkey found."""


class Monkey:
    def __init__(self, session: DesktopSession, folder: Folder, troubles: Troubles, work: Path, seed: int):
        self._session = session
        self._folder = folder
        self._troubles = troubles
        self._random = random.Random(seed)
        self.done = collections.deque(maxlen=60)
        self.ends = 0
        self.actions = 0
        self.seen = collections.Counter()
        self.errors = work / "errors.txt"
        self.errors.touch()
        self._opened = work / "opened.txt"
        self._opened.touch()
        stubs = work / "stubs"
        stubs.mkdir()
        (stubs / "xdg-open").write_text(OPENER, encoding="utf-8")
        (stubs / "xdg-open").chmod(0o755)
        web = f"http://127.0.0.1:{troubles.web.port}"
        self._env = {**session.env, "PATH": str(stubs), "OPENED_PAGES": str(self._opened), "BROWSER": "xdg-open",
                     **{name: web for name in ("http_proxy", "https_proxy", "ftp_proxy", "all_proxy")}}
        for name in ("no_proxy", "NO_PROXY"):
            self._env.pop(name, None)
        self._start()

    def _start(self) -> None:
        with self._folder.trouble:
            self._process = self._session.start(self._folder.path / "tarnwick", self.errors, self._env)
            self._main = self._session.window(TITLE, self._process)
            wait_until(lambda: self._folder.rows("select 1 from sqlite_master where lower(name) = 'temppostvars'"),
                       "the program to be ready")
        self._session.press(self._main, "F5")

    # What the windows are.

    def _windows(self) -> dict[str, str]:
        """The windows of the program, those of menus and tooltips excepted: their titles by their ids."""
        windows = {}
        for line in output_of(["wmctrl", "-lp"], self._session.env).splitlines():
            window, _, pid, _, *title = line.split(None, 4)
            if pid == str(self._process.pid):
                windows[str(int(window, 16))] = title[0] if title else ""
        return windows

    def _size(self, window: str) -> tuple[int, int]:
        found = re.findall(r"(?:WIDTH|HEIGHT)=(\d+)",
                           output_of(["xdotool", "getwindowgeometry", "--shell", window], self._session.env))
        return (int(found[0]), int(found[1])) if len(found) == 2 else (0, 0)

    def _xdotool(self, *arguments) -> None:
        self.actions += 1
        self.done.append(" ".join(str(argument) for argument in arguments))
        # A window may go between the look and the deed.
        subprocess.run(["xdotool", *map(str, arguments)], env=self._session.env, check=False, timeout=60,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    # What it does.

    def act(self) -> None:
        if self._process.poll() is not None:
            raise Fault(f"the program ended by itself with status {self._process.returncode}")
        windows = self._windows()
        window = self._random.choice(list(windows) or [self._main])
        title = windows.get(window, "")
        self.seen[title] += 1
        chooser = title not in (*FORMS, TITLE)
        deeds = [(self._click, 12), (self._key, 6), (self._type, 4), (self._drag, 2), (self._wheel, 1)]
        if not chooser:
            deeds += [(self._letter, 5), (self._front, 3), (self._shape, 1), (self._click_row, 3), (self._go, 1)]
        if window != self._main:
            deeds += [(self._close_frame, 1)]
        elif self._random.random() < 0.01:
            self._close_main()
            return
        deed = self._random.choices([deed for deed, _ in deeds], [weight for _, weight in deeds])[0]
        deed(window, chooser)

    def _place(self, window: str, chooser: bool) -> tuple[int, int]:
        width, height = self._size(window)
        # Above and left of its list a chooser leads to other folders.
        left, top = (180, 70) if chooser else (0, 0)
        return self._random.randint(left, max(left, width - 1)), self._random.randint(top, max(top, height - 1))

    def _click(self, window: str, chooser: bool) -> None:
        x, y = self._place(window, chooser)
        button = self._random.choice([1, 1, 1, 1, 3])
        repeat = self._random.choice([1, 1, 1, 2])
        self._xdotool("mousemove", "--window", window, x, y, "click", "--repeat", repeat, button)

    def _click_row(self, window: str, _chooser: bool) -> None:
        self._xdotool("mousemove", "--window", self._main, 150, 140 + 20 * self._random.randrange(10), "click", 1)

    def _drag(self, window: str, chooser: bool) -> None:
        x, y = self._place(window, chooser)
        self._xdotool("mousemove", "--window", window, x, y, "mousedown", 1)
        x, y = self._place(window, chooser)
        self._xdotool("mousemove", "--window", window, x, y, "mouseup", 1)

    def _wheel(self, window: str, chooser: bool) -> None:
        x, y = self._place(window, chooser)
        self._xdotool("mousemove", "--window", window, x, y, "click", "--repeat", 5, self._random.choice([4, 5]))

    def _key(self, _window: str, chooser: bool) -> None:
        # By Alt and a menu a chooser leads to other folders too.
        self._xdotool("key", self._random.choice(KEYS[:15] if chooser else KEYS))

    def _letter(self, _window: str, _chooser: bool) -> None:
        self._xdotool("key", self._random.choice(OPENERS))

    def _go(self, _window: str, _chooser: bool) -> None:
        self._xdotool("windowactivate", self._main)
        for keys in self._random.choice(WAYS):
            self._xdotool("key", keys)
            time.sleep(0.15)  # sleeps because a person does, too

    def _type(self, _window: str, chooser: bool) -> None:
        text = "".join(self._random.choice(LETTERS) for _ in range(self._random.randint(1, 12)))
        if chooser:
            text = self._random.choice(["im", "images", "email", "ta", "x", "r"])
        elif self._random.random() < 0.3:
            text = self._random.choice([self._troubles.url(), "1", "25", "a@example.org"])
        self._xdotool("type", "--delay", 1, text)

    def _front(self, window: str, _chooser: bool) -> None:
        self._xdotool("windowactivate", window)

    def _shape(self, window: str, _chooser: bool) -> None:
        self._random.choice([
            lambda: self._xdotool("windowminimize", window),
            lambda: self._xdotool("windowmove", window, self._random.randrange(500), self._random.randrange(400)),
            lambda: self._xdotool("windowsize", window, self._random.randint(50, 1300), self._random.randint(50, 900)),
        ])()

    def _close_frame(self, window: str, _chooser: bool) -> None:
        self.done.append(f"close {window}")
        self._session.close(window, check=False)

    def _close_main(self) -> None:
        """Closes the main window by its frame; it asks when something is not stored."""
        with self._folder.trouble:
            before = set(self._windows())
            self.done.append("close the main window")
            self._session.close(self._main, check=False)

            def asks() -> set[str]:
                return {window for window, title in self._windows().items() if title == TITLE} - before

            yes = self._random.random() < 0.7

            def answered_or_ended() -> bool:
                for question in asks():
                    self.done.append("yes" if yes else "no")
                    self._xdotool("windowactivate", question)
                    self._xdotool("key", "alt+y" if yes else "alt+n")
                    if not yes:
                        return True
                return self._process.poll() is not None

            wait_until(answered_or_ended, "the main window to close or to ask", ENDS_WITHIN_SECONDS)
            with contextlib.suppress(TimeoutError):
                # What came up may have been a box about something else, and the program be on its way.
                wait_until(lambda: self._process.poll() is not None, "the end", 2)
            if not yes and self._process.poll() is None:
                return
            self.expect_end()
        self.ends += 1
        self._start()

    def expect_end(self) -> None:
        wait_until(lambda: self._process.poll() is not None, "the program to end", ENDS_WITHIN_SECONDS)
        if self._process.returncode != 0:
            raise Fault(f"the program ended with status {self._process.returncode}")

    # What it looks at.

    def restore(self) -> None:
        """Lays down again what a run needs, and what no typed text may name."""
        with self._folder.connection() as connection:
            connection.execute("update control set program = '', audio = '', timeout = 10, email = 'a@example.org', "
                               "smtp = ?, cemail = 1, cprogram = abs(random() % 2), caudio = 0",
                               (self._troubles.mail.address,))
            connection.execute("delete from siteOptions")
            connection.executemany("insert into siteOptions (idSite, name, value) values (0, ?, ?)",
                                   [("newSites", "at once"), ("adopt", "pages only"), ("mailLimit", "5")])
            alert = self._random.randrange(2)
            # The index of the list is taken over from the row, so nothing else of it is touched.
            connection.execute("insert into sites (idSite, url, method, active, tInterval, alertEmail, email) "
                               "select coalesce(max(idSite), 0) + 1, ?, 'GET', 1, 1, ?, 'a@example.org' from sites "
                               "having count(*) < 12", (self._troubles.url(), alert))
            connection.execute("update sites set active = 1, tInterval = 1 where idSite % 3 > 0")

    def expect_answer(self) -> None:
        """F1 opens the help page whatever stands open."""
        before = self._opened.stat().st_size
        end = time.monotonic() + ANSWERS_WITHIN_SECONDS
        while self._opened.stat().st_size == before:
            if time.monotonic() > end:
                raise Fault(f"F1 had no effect for {ANSWERS_WITHIN_SECONDS} s: it is frozen")
            if self._process.poll() is not None:
                raise Fault(f"the program ended by itself with status {self._process.returncode}")
            # A menu that is open takes the keys.
            self._xdotool("key", "Escape")
            self._xdotool("windowactivate", self._main)
            self._xdotool("key", "F1")
            opened = time.monotonic() + 2
            while self._opened.stat().st_size == before and time.monotonic() < opened:
                time.sleep(0.05)  # sleeps because the help page is on its way

    def expect_results(self) -> None:
        """A run records, whatever stands open."""
        before = self._folder.results()
        self._session.press(self._main, "F5")
        wait_until(lambda: self._folder.results() > before, "a run to record a result", RESULT_WITHIN_SECONDS)

    def play(self, seconds: float) -> None:
        end = time.monotonic() + seconds
        rounds = 0
        while time.monotonic() < end:
            self.restore()
            pause = min(end, time.monotonic() + ROUND_SECONDS)
            while time.monotonic() < pause:
                self.act()
            self.expect_answer()
            rounds += 1
            if rounds % DEEP_LOOK_EVERY == 0:
                self.expect_results()

    def close_boxes(self) -> None:
        """Closes all but the main window, as a user would."""

        def close_one() -> bool:
            others = [window for window in self._windows() if window != self._main]
            if others:
                window = self._random.choice(others)
                self._xdotool("windowactivate", window)
                self._xdotool("key", "Escape")
                self._session.close(window, check=False)
            return not others

        wait_until(close_one, "all boxes to close")

    def finish(self) -> None:
        """With all troubles over: it watches, counts, and ends."""
        self.close_boxes()
        self.restore()
        self.expect_answer()
        self.expect_results()
        self._session.press(self._main, "shift+F5")
        wait_until(lambda: not self._folder.lost_counts(), "each logged failure to be counted")
        self._session.close(self._main)
        self.expect_end()

    def picture(self, path: Path) -> None:
        """What is on the display, where the machine has the tool for it."""
        subprocess.run(["import", "-window", "root", str(path)], env=self._session.env, check=False, timeout=60)


def expect_nothing_lost(folder: Folder, errors: Path) -> None:
    said = errors.read_text(encoding="utf-8", errors="replace")
    if said:
        raise Fault(f"the program printed:\n{said}")
    left = [path.name for path in folder.path.glob("tarnwick.mdb-*")]
    if left:
        raise Fault(f"the database was not closed: {left}")
    if folder.rows("pragma integrity_check") != [("ok",)]:
        raise Fault("the database is damaged")
    if folder.lost_counts():
        raise Fault(f"failures were logged and not counted: {folder.lost_counts()}")


def run(arguments, work: Path) -> None:
    folder = Folder(arguments.folder, arguments.schema, work)
    troubles = Troubles(folder, arguments.seed)
    monkey = None
    try:
        with DesktopSession(work) as session:
            monkey = Monkey(session, folder, troubles, work, arguments.seed)
            try:
                troubles.start()
                monkey.play(arguments.seconds)
                troubles.stop()
                monkey.finish()
            except BaseException:
                if arguments.keep:
                    monkey.picture(work / "display.png")
                raise
        expect_nothing_lost(folder, monkey.errors)
        if troubles.broken:
            raise Fault("\n".join(troubles.broken))
        print(f"seed {arguments.seed}: {monkey.actions} actions in {arguments.seconds:g} s, "
              f"{folder.results()} results, {monkey.ends} times closed and started again; actions in each window:",
              dict(monkey.seen.most_common()))
    except BaseException:
        if monkey:
            print("last it did:", *monkey.done, "beside it:", *troubles.told[-20:], sep="\n  ", file=sys.stderr)
            print(monkey.errors.read_text(encoding="utf-8", errors="replace"), file=sys.stderr)
        raise
    finally:
        troubles.close()


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("folder", type=Path)
    parser.add_argument("schema", type=Path)
    parser.add_argument("--seconds", type=float, default=20)
    parser.add_argument("--seed", type=int, default=int(time.time()))
    parser.add_argument("--keep", action="store_true")
    arguments = parser.parse_args()
    missing = missing_tools()
    if missing:
        print(f"skipped: {', '.join(missing)} not installed (scripts/test.sh installs them)")
        return SKIPPED
    with tempfile.TemporaryDirectory(prefix="tarnwick-monkey-") as name:
        work = Path(name)
        try:
            run(arguments, work)
        except (Fault, AssertionError, TimeoutError, RuntimeError) as fault:
            print(f"seed {arguments.seed}: {fault}", file=sys.stderr)
            if arguments.keep:
                kept = Path(f"{name}-kept")
                os.rename(name, kept)
                work.mkdir()
                print(f"kept in {kept}", file=sys.stderr)
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
