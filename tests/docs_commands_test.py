#!/usr/bin/env python3
"""Runs the command blocks of README, guide and terminal tool, one after the other as a reader would, and compares.

    docs_commands_test.py FOLDER ASSETS TOOL             the sources, and the built terminal tool; status 1 with the differences
    docs_commands_test.py FOLDER ASSETS TOOL --update    writes what they print into the documentation instead

In a block, what stands behind "$ " is a command, and the lines below it what it prints. A block without any is commands
alone, which must succeed, or a line of a crontab, which is run as cron would. Every block is run, but for those that
NOT_RUN names with the reason. The sites are those of the demo. Ports, the folder, times, sizes of the database file, how
often a site was checked and the order in which a pass answers are not compared. Of `run` the lines of its first pass are.
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
import threading
import time
from pathlib import Path

ROOT, ASSETS, TOOL = (Path(argument).resolve() for argument in sys.argv[1:4])
UPDATE = "--update" in sys.argv
SKIPPED = 77
SITE, REFUSED, HOME = "localhost:8080", "localhost:8081", "/home/me"
# Each document in a world of its own, in some of which something has been done before; in these there is nothing yet.
DOCUMENTS = ("README.md", "docs/tarnwickctl.md", "docs/guide/*.md")
BEFORE = {"docs/guide/baselines.md": "tarnwickctl check"}
FRESH = ("docs/guide/first-start.md", "docs/guide/login.md")
ON_THE_INTERNET = "https://www.example.org/news"
# A block by its first line, and why it is not run here.
BUILDS = "builds and tests everything, this test among it"
AS_A_SERVICE = "needs the administrator: tests/package/bare_test.py runs it in a bare system"
NOT_RUN = {
    ("README.md", "scripts/run.sh"): BUILDS,
    ("README.md", "cmake --preset release"): BUILDS,
    ("README.md", "cmake --install build/release"): "tests/package/package_test.py installs by it",
    ("README.md", "/home/me/bin/page-is-down"): "the value of a setting",
    ("README.md", "Subject:"): "a mail",
    ("docs/tarnwickctl.md", "sudo systemctl enable --now tarnwick"): AS_A_SERVICE,
    ("docs/tarnwickctl.md", "sudo useradd"): AS_A_SERVICE,
    ("docs/tarnwickctl.md", "sudo -u tarnwick tarnwickctl"): AS_A_SERVICE,
}
CRON = re.compile(r"((\*|[\d,-]+)(/\d+)? +){5}(?P<command>\S.*)\n")
BLOCK = re.compile(r"(^```\w*\n)(.*?)(^```$)", re.MULTILINE | re.DOTALL)
PASS_ENDS = re.compile(r'Checked \d+ sites?:|"event":"pass"')


class World:
    """The program folder, the pages of the demo, and a shell between them."""

    def __init__(self, home: Path, fresh: bool):
        self.home = home
        self.folder = home / "tarnwick"
        shutil.copytree(ASSETS, self.folder / "fresh")
        shutil.copytree(ROOT / "assets/channels", self.folder / "channels")
        shutil.copy2(TOOL, self.folder)
        self.server = subprocess.Popen([sys.executable, ROOT / "scripts/lib/demo_server.py"], stdin=subprocess.PIPE,
                                       stdout=subprocess.PIPE, text=True)
        site, refused = self.server.stdout.readline().replace("127.0.0.1", "localhost").split()
        self.names = ((ON_THE_INTERNET, site + "/news"), (SITE, site.removeprefix("http://")),
                      (REFUSED, refused.removeprefix("http://")),
                      ("localhost port 8081", "localhost port " + refused.rsplit(":", 1)[1]),
                      ("/srv/", str(home) + "/srv/"), (HOME, str(home)))
        for name in ("srv", "backup", "reports"):
            (home / name).mkdir()
        kept = {name: value for name, value in os.environ.items() if not name.startswith(("LC_", "LANG", "XDG_"))}
        self.env = {**kept, "HOME": str(home), "LC_ALL": "C.UTF-8", "no_proxy": "*", "NO_PROXY": "*",
                    "PATH": f"{self.folder}:{self.desktop()}:{os.environ['PATH']}"}
        self.place = self.folder
        if fresh:
            # As from the packages: the list lies in the home.
            (self.folder / "shared-installation.txt").touch()
            self.place = home
        else:
            self.names = ((SITE, site.removeprefix("http://")), *self.names[2:])
            self.lay_out()

    def desktop(self) -> Path:
        """A folder with what a desktop's own tools would be; they write down what they are told."""
        tools = self.home / "desktop"
        tools.mkdir()
        notify = tools / "notify-send"
        notify.write_text(f"#!/bin/sh\necho \"$1\" >>'{self.home}/notified.txt'\n")
        notify.chmod(0o755)
        return tools

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
        ran = subprocess.run(["bash", "-c", self.real(command)], cwd=self.place, env=self.env, stdin=subprocess.DEVNULL,
                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=60)
        return self.told(ran.stdout.decode("utf-8", "replace"))

    def run(self, command: str) -> str:
        """What a run prints until its first pass has ended."""
        process = subprocess.Popen(command.split(), cwd=self.place, env=self.env, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        late = threading.Timer(60, process.kill)
        late.start()
        lines = []
        for line in process.stdout:
            lines.append(line)
            if PASS_ENDS.search(line):
                process.send_signal(signal.SIGINT)
        process.wait(timeout=30)
        late.cancel()
        return self.told("".join(lines))

    def succeeds(self, script: str) -> str:
        """Runs a block of commands that prints nothing worth showing; what is wrong with it."""
        ran = subprocess.run(["bash", "-eo", "pipefail", "-c", self.real(script)], cwd=self.place, env=self.env,
                             stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=60)
        return f"it ends with {ran.returncode}: {self.told(ran.stdout.decode())}" if ran.returncode else ""

    def succeeds_in_cron(self, command: str) -> str:
        """Runs a line of a crontab as cron does: by sh, in the home, with a path that is none of the user's."""
        ran = subprocess.run(["sh", "-c", self.real(command.replace("\\%", "%"))], cwd=self.home, stdin=subprocess.DEVNULL,
                             env={"HOME": str(self.home), "PATH": "/usr/bin:/bin", "no_proxy": "*"},
                             stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=60)
        return f"it ends with {ran.returncode}: {self.told(ran.stderr.decode())}" if ran.returncode or ran.stderr else ""

    def tells(self, script: str) -> str:
        """Runs a block that goes on until it is ended, as far as its first message on the desktop."""
        notified = self.home / "notified.txt"
        process = subprocess.Popen(["bash", "-c", self.real(script)], cwd=self.place, env=self.env, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, start_new_session=True)
        until = time.monotonic() + 30
        while process.poll() is None and not notified.exists() and time.monotonic() < until:
            time.sleep(0.05)
        if process.poll() is None:
            os.killpg(process.pid, signal.SIGINT)
        said = process.communicate(timeout=30)[0]
        return "" if notified.exists() else f"it tells nothing: {said}"

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
        elif "--password-file secret.txt" in command and not (self.place / "secret.txt").exists():
            (self.place / "secret.txt").write_text("secret\n")

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
    text = re.sub(r"^\d+ (?=http)", "N ", text, flags=re.MULTILINE)  # on a slow machine more sites were due by then
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


def reason_not_to_run(name: str, block: str) -> str | None:
    return next((reason for (document, beginning), reason in NOT_RUN.items()
                 if document == name and block.startswith(beginning)), None)


def problem_of(world: World, block: str) -> str:
    """What is wrong with a block of commands alone; nothing when it is well."""
    world.happens_before(block)
    if cron := CRON.fullmatch(block):
        return world.succeeds_in_cron(cron.group("command"))
    return world.tells(block) if block.startswith("tarnwickctl run") else world.succeeds(block)


def follow(world: World, name: str) -> list[str]:
    path = ROOT / name
    text = path.read_text(encoding="utf-8")
    differences = []

    def lived(found: re.Match[str]) -> str:
        block = found.group(2)
        if reason_not_to_run(name, block):
            return found.group(0)
        if not block.startswith("$ "):
            if problem := problem_of(world, block):
                differences.append(f"{name}:\n{block}  {problem}")
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

    lived_text = BLOCK.sub(lived, text)
    if UPDATE and lived_text != text:
        path.write_text(lived_text, encoding="utf-8")
    return differences


def stale_reasons(texts: dict[str, str]) -> list[str]:
    return [f'NOT_RUN names "{beginning}" of {name}, where no block begins with it: take it out.'
            for name, beginning in NOT_RUN
            if not any(found.group(2).startswith(beginning) for found in BLOCK.finditer(texts.get(name, "")))]


def main() -> int:
    if shutil.which("jq") is None:
        print("jq is not installed.")
        return SKIPPED
    texts = {path.relative_to(ROOT).as_posix(): path.read_text(encoding="utf-8")
             for pattern in DOCUMENTS for path in sorted(ROOT.glob(pattern))}
    differences = stale_reasons(texts)
    for name, text in texts.items():
        if all(reason_not_to_run(name, found.group(2)) for found in BLOCK.finditer(text)):
            continue
        with tempfile.TemporaryDirectory() as home:
            world = World(Path(home), name in FRESH)
            try:
                world.shell(BEFORE.get(name, ""))
                differences += follow(world, name)
            finally:
                world.end()
    print("\n".join(differences) if differences else "The commands of the documentation print what it says.")
    return 1 if differences and not UPDATE else 0


sys.exit(main())
