#!/usr/bin/env python3
"""Runs the command blocks of the documentation, one after the other as a reader would, and compares what they print.

    docs_commands_test.py FOLDER ASSETS TOOL             the sources, and the built terminal tool; status 1 with the differences
    docs_commands_test.py FOLDER ASSETS TOOL --update    writes what they print into the documentation instead

A command is a line that begins with "$ " in a block. The sites are those of the demo. Ports, the folder, times, sizes of
the database file and the order in which a pass answers are not compared; nor are commands that need the Internet. Of `run`
the lines of its first pass are compared.
Exit status 77: the machine lacks something for it.
"""

from __future__ import annotations

import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT, ASSETS, TOOL = (Path(argument).resolve() for argument in sys.argv[1:4])
UPDATE = "--update" in sys.argv
SKIPPED = 77
SITE, REFUSED, HOME = "localhost:8080", "localhost:8081", "/home/me"
# Each in a world of its own, in which something has been done before.
DOCUMENTS = {"docs/tarnwickctl.md": "", "README.md": "", "docs/guide/baselines.md": "tarnwickctl check",
             "docs/guide/import.md": ""}
# The page is one of the Internet, or the folder one of root's.
ELSEWHERE = re.compile(r"https://(www\.|intranet\.)?example\.org/(news|status)")
PASS_ENDS = re.compile(r'Checked \d+ sites|"event":"pass"')


class World:
    """The program folder, the pages of the demo, and a shell between them."""

    def __init__(self, home: Path):
        self.home = home
        self.folder = home / "tarnwick"
        shutil.copytree(ASSETS, self.folder / "fresh")
        shutil.copy2(TOOL, self.folder)
        self.server = subprocess.Popen([sys.executable, ROOT / "scripts/lib/demo_server.py"], stdin=subprocess.PIPE,
                                       stdout=subprocess.PIPE, text=True)
        site, refused = self.server.stdout.readline().replace("127.0.0.1", "localhost").split()
        self.names = ((SITE, site.removeprefix("http://")), (REFUSED, refused.removeprefix("http://")),
                      ("localhost port 8081", "localhost port " + refused.rsplit(":", 1)[1]),
                      (HOME + "/tarnwick", str(self.folder)), ("/srv/", str(home) + "/srv/"))
        (home / "srv").mkdir()
        kept = {name: value for name, value in os.environ.items() if not name.startswith(("LC_", "LANG"))}
        self.env = {**kept, "HOME": str(home), "LC_ALL": "C.UTF-8", "no_proxy": "*", "NO_PROXY": "*",
                    "PATH": f"{self.folder}:{os.environ['PATH']}"}
        self.lay_out()

    def lay_out(self) -> None:
        for arguments in ("/steady", "/news", "/slow", "/login --method post --post user=monitor --post 'action=sign in'",
                          "/prices", "/shop"):
            self.shell(f"tarnwickctl add http://{SITE}{arguments} --interval 1")
        self.shell(f"tarnwickctl add http://{REFUSED}/ --interval 1")
        self.shell(f"tarnwickctl add http://{SITE}/archive --inactive")
        # Well while their baselines are taken, and never again.
        self.shell("tarnwickctl baseline 5 load; tarnwickctl baseline 6 load; echo a page | tarnwickctl baseline 7 set -")

    def real(self, text: str) -> str:
        for told, name in self.names:
            text = text.replace(told, name)
        return text

    def told(self, text: str) -> str:
        for told, name in self.names:
            text = text.replace(name, told)
        return text.replace("\r\n", "\n")

    def shell(self, command: str) -> str:
        ran = subprocess.run(["bash", "-c", self.real(command)], cwd=self.folder, env=self.env, stdin=subprocess.DEVNULL,
                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=60)
        return self.told(ran.stdout.decode("utf-8", "replace"))

    def run(self, command: str) -> str:
        """What a run prints until its first pass has ended."""
        process = subprocess.Popen(command.split(), cwd=self.folder, env=self.env, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        lines = []
        for line in process.stdout:
            lines.append(line)
            if PASS_ENDS.search(line):
                process.send_signal(signal.SIGINT)
        process.wait(timeout=30)
        return self.told("".join(lines))

    def happens_before(self, command: str) -> None:
        """What the text around a command tells of."""
        sites = self.folder / "sites.csv"
        if command == "tarnwickctl import sites.csv --dry-run":
            lines = [line for line in sites.read_text().splitlines() if not line.startswith("3,")]
            edited = [line.replace("True,1,", "True,2,") if line.startswith("1,") else line.replace("/news", "/headlines")
                      for line in lines]
            sites.write_text("\n".join(edited) + "\n")
        elif command.startswith("tarnwickctl import bookmarks.html"):
            (self.folder / "bookmarks.html").write_text(BOOKMARKS)

    def end(self) -> None:
        self.server.stdin.close()
        self.server.wait(timeout=10)


BOOKMARKS = """<!DOCTYPE NETSCAPE-Bookmark-file-1>
<TITLE>Bookmarks</TITLE>
<DL><p>
<DT><H3>News</H3><DL><p>
<DT><A HREF="https://www.example.org/">Example</A>
<DT><A HREF="javascript:void(0)">Script</A>
</DL><p>
</DL><p>
"""


def compared(command: str, output: str) -> list[str]:
    """The lines without what differs from time to time."""
    text = re.sub(r"\d{4}-\d\d-\d\d[ -]\d\d:?\d\d:?\d\d", "WHEN", output)
    text = re.sub(r"\d+ bytes (before|after)", r"N bytes \1", text)
    lines = text.splitlines()
    if is_run(command):
        end = next((at for at, line in enumerate(lines) if PASS_ENDS.search(line)), len(lines))
        lines = lines[:end + 1]
    return sorted(lines) if re.search(r"\b(check|run|log)\b", command) else lines


def is_run(command: str) -> bool:
    return re.fullmatch(r"tarnwickctl run( --json)?", command) is not None


def commands_of(block: str):
    """Each command of a block, with what the block says that it prints."""
    for piece in re.split(r"^\$ ", block, flags=re.MULTILINE)[1:]:
        command, _, output = piece.partition("\n")
        yield command, output


def follow(world: World, name: str) -> list[str]:
    path = ROOT / name
    text = path.read_text(encoding="utf-8")
    differences = []

    def lived(found: re.Match[str]) -> str:
        block = found.group(2)
        if not block.startswith("$ ") or ELSEWHERE.search(block):
            return found.group(0)
        new = []
        for command, output in commands_of(block):
            world.happens_before(command)
            printed = world.run(command) if is_run(command) else world.shell(command)
            if compared(command, printed) != compared(command, output):
                differences.append(f"{name}: $ {command}\n  it prints:\n{printed}  and not:\n{output}")
                output = printed
            new.append(f"$ {command}\n{output}")
        return found.group(1) + "".join(new) + found.group(3)

    lived_text = re.sub(r"(^```\w*\n)(.*?)(^```$)", lived, text, flags=re.MULTILINE | re.DOTALL)
    if UPDATE and lived_text != text:
        path.write_text(lived_text, encoding="utf-8")
    return differences


def main() -> int:
    if shutil.which("jq") is None:
        print("jq is not installed.")
        return SKIPPED
    differences = []
    for name, before in DOCUMENTS.items():
        with tempfile.TemporaryDirectory() as home:
            world = World(Path(home))
            try:
                world.shell(before)
                differences += follow(world, name)
            finally:
                world.end()
    print("\n".join(differences) if differences else "The commands of the documentation print what it says.")
    return 1 if differences and not UPDATE else 0


sys.exit(main())
