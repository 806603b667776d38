#!/usr/bin/env python3
"""Tries the archive and the installer for Windows under Wine, in a prefix of their own: install, start, check a site,
upgrade, downgrade, remove, for one user and for all of the machine.

    installer_test.py FOLDER

FOLDER holds the archive, the installer and the `stage` that both were made of, as scripts/windows.sh leaves them.
Exit status 0: passed, 1: failed, 77: the machine lacks something for it.
"""

from __future__ import annotations

import json
import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "support"))
from desktop_session import DesktopSession, missing_tools, wait_until  # noqa: E402
from steady_page import web  # noqa: E402

SKIPPED = 77
SITES = 100
ROOT = Path(__file__).resolve().parent.parent.parent
UNINSTALL = r"Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarnwick"


def expect(condition: bool, what: str) -> None:
    if not condition:
        raise AssertionError(what)


class Windows:
    """A prefix of Wine's, with a display."""

    def __init__(self, prefix: Path, session: DesktopSession):
        self.session = session
        self.drive = prefix / "drive_c"
        self.log = prefix.parent / f"{prefix.name}.log"
        self.env = {**session.env, "WINEPREFIX": str(prefix), "WINEDEBUG": "-all", "WINEDLLOVERRIDES": "mscoree,mshtml="}
        self.env.pop("QT_QPA_PLATFORM", None)
        self.run("wineboot", "--init", program="wineboot")

    def run(self, *arguments, status: int | None = 0, program: str = "wine") -> str:
        """Runs a program of the prefix; what it prints. Wine leaves processes behind that would hold a pipe open."""
        command = [program, *map(str, arguments)] if program == "wine" else [program, *map(str, arguments[1:])]
        with self.log.open("w+b") as said:
            done = subprocess.run(command, env=self.env, stdin=subprocess.DEVNULL, stdout=said, stderr=subprocess.DEVNULL,
                                  cwd=self.log.parent, check=False, timeout=300)
            said.seek(0)
            text = said.read().decode("utf-8", "replace").replace("\r", "")
        expect(status is None or done.returncode == status, f"{arguments} ended with {done.returncode}: {text}")
        return text

    def path(self, *names: str) -> Path:
        """The one file or folder of the drive that a pattern names."""
        return next(self.drive.glob("/".join(names)), self.drive / "missing")

    def value(self, root: str, name: str) -> str:
        said = self.run("reg", "query", f"{root}\\{UNINSTALL}", "/v", name, status=None)
        return said.rpartition("REG_SZ")[2].strip() if "REG_SZ" in said else ""

    def end(self) -> None:
        subprocess.run(["wineserver", "-k"], env=self.env, check=False)


def watches(windows: Windows, tool: Path, url: str) -> set[str]:
    """A hundred sites, checked; their addresses."""
    wanted = {f"{url}?site={number}" for number in range(SITES)}
    (windows.drive / "addresses.txt").write_text("\n".join(sorted(wanted)) + "\n")
    windows.run(tool, "import", r"C:\addresses.txt")
    said = windows.run(tool, "check")
    expect(len([line for line in said.splitlines() if line.startswith("up ")]) == SITES, f"the check says: {said}")
    return wanted


def opens(windows: Windows, program: Path) -> None:
    process = subprocess.Popen(["wine", str(program)], env=windows.env, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL, cwd=windows.log.parent)
    try:
        window = windows.session.window("Tarnwick", process)
        wait_until(lambda: windows.session.close(window, check=False) or process.poll() is not None, "the window to close")
        expect(process.returncode == 0, f"the window ended with {process.returncode}")
    finally:
        if process.poll() is None:
            process.kill()
            process.wait()


def addresses(windows: Windows, tool: Path) -> set[str]:
    return {line.split()[-1] for line in windows.run(tool, "sites").splitlines()[1:]}


def try_archive(windows: Windows, folder: Path, url: str) -> None:
    archive = next(folder.glob("*.zip"))
    place = windows.drive / "an archive"
    unpack = ["unzip", "-qo", str(archive), "-d", str(place)]
    subprocess.run(unpack, check=True)
    expect(not (place / "tarnwick/tarnwick.mdb").exists(), "the archive brings a list")
    licences = [f"licenses/{name}.txt" for name in ("qt6-base", "curl", "sqlite3", "re2", "libxml2", "simdjson")]
    for name in ("LICENSE.txt", "README.txt", "tarnwick.spdx.json", *licences):
        expect((place / "tarnwick" / name).is_file(), f"the archive has no {name}")
    parts = json.loads((place / "tarnwick/tarnwick.spdx.json").read_text(encoding="utf-8"))["packages"]
    expect({"qt", "curl", "sqlite", "re2", "libxml2", "simdjson"} <= {part["name"] for part in parts}, f"it lists {parts}")
    unknown = [part["name"] for part in parts if part["licenseDeclared"] == "NOASSERTION"]
    expect(not unknown, f"the list names no licence of {unknown}")
    tool = place / "tarnwick/tarnwickctl.exe"
    wanted = watches(windows, tool, url)
    expect((place / "tarnwick/tarnwick.mdb").exists(), "the list does not lie in the folder")
    (place / "tarnwick/email.txt").write_text("my text")
    subprocess.run(unpack, check=True)
    expect(addresses(windows, tool) == wanted, "the list is another one behind the unpacking")
    expect((place / "tarnwick/email.txt").read_text() == "my text", "the template is another one")
    (place / "tarnwick/tarnwick.mdb").unlink()
    windows.run(tool, "sites", status=2)
    expect(not (place / "tarnwick/tarnwick.mdb").exists(), "an empty list came into the place of a lost one")


def try_installer(windows: Windows, installers: dict[str, Path], mode: str, place: str, url: str) -> None:
    """`place` is where it installs by itself, below the drive."""
    root = {"/CurrentUser": "HKCU", "/AllUsers": "HKLM"}[mode]
    older, newer = installers
    windows.run(installers[older], "/S", mode)
    program = windows.path(*place.split("/"), "tarnwick.exe")
    expect(program.exists(), f"nothing was installed in {place}")
    tool = program.with_name("tarnwickctl.exe")
    expect(windows.value(root, "DisplayVersion") == older, f"the version is {windows.value(root, 'DisplayVersion')}")
    wanted = watches(windows, tool, url)
    lists = windows.path("users", "*", "AppData", "Local", "tarnwick", "tarnwick.mdb")
    expect(lists.exists() and not program.with_name("tarnwick.mdb").exists(), "the list lies with the program")
    link = windows.path("**", "Start Menu", "Programs", "Tarnwick.lnk")
    expect(link.exists(), "there is no entry in the start menu")
    opens(windows, program)
    for version in (newer, older):
        windows.run(installers[version], "/S", mode)
        expect(windows.value(root, "DisplayVersion") == version, "another version is installed")
        expect(addresses(windows, tool) == wanted, f"the list is another one behind the installation of {version}")
    refused_while_running(windows, installers[newer], mode, tool)
    uninstall = program.with_name("uninstall.exe")
    windows.run(uninstall, "/S", mode)
    # It goes on in a copy of its own; the last that it takes away is its entry in the list of programs.
    wait_until(lambda: windows.value(root, "DisplayVersion") == "", "the program's entry to go")
    expect(not program.parent.exists() and not link.exists(), "something is left of the program")
    expect(lists.exists(), "the list went with the program")


def refused_while_running(windows: Windows, installer: Path, mode: str, tool: Path) -> None:
    process = subprocess.Popen(["wine", str(tool), "run"], env=windows.env, stdin=subprocess.DEVNULL,
                               stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    try:
        expect("Run started" in process.stdout.readline(), "no run has begun")
        windows.run(installer, "/S", mode, status=2)
        expect(process.poll() is None, "the run has ended under the installation")
    finally:
        process.kill()
        windows.run("taskkill", "/F", "/IM", "tarnwickctl.exe", status=None)
        process.wait()


def refuses_a_folder_with_a_list(windows: Windows, installer: Path) -> None:
    place = windows.drive / "with-a-list"
    place.mkdir()
    (place / "tarnwick.mdb").write_text("a list")
    windows.run(installer, "/S", "/CurrentUser", "/D=C:\\with-a-list", status=2)
    expect([path.name for path in place.iterdir()] == ["tarnwick.mdb"], "something was laid beside a list")


def newer_installer(folder: Path, work: Path) -> Path:
    made = work / "newer-setup.exe"
    order = f"""set -euo pipefail
source scripts/lib/packages.sh; source scripts/lib/build.sh; source scripts/lib/windows.sh
make_installer "$1/stage/tarnwick" 99.0.0 4000000000 "$2\""""
    subprocess.run(["bash", "-c", order, "bash", str(folder), str(made)], cwd=ROOT, check=True)
    return made


def main() -> int:
    folder = Path(sys.argv[1]).resolve()
    missing = [*missing_tools(), *(tool for tool in ("wine", "makensis", "unzip") if shutil.which(tool) is None)]
    if missing:
        print(f"skipped: {', '.join(missing)} not installed (scripts/windows.sh --test installs them)")
        return SKIPPED
    setup = next(folder.glob("*-setup.exe"))
    version = setup.name.split("-")[1]
    with tempfile.TemporaryDirectory(prefix="tarnwick-installer-") as name, web() as url:
        work = Path(name)
        installers = {version: setup, "99.0.0": newer_installer(folder, work)}
        with DesktopSession(work) as session:
            # A prefix each: a list that one has left would be the other's.
            for what, attempt in {
                "archive": lambda windows: try_archive(windows, folder, url),
                "installer for one user": lambda windows: try_installer(
                    windows, installers, "/CurrentUser", "users/*/AppData/Local/Programs/Tarnwick", url),
                "installer for all users": lambda windows: try_installer(
                    windows, installers, "/AllUsers", "Program Files/Tarnwick", url),
                "installer beside a list": lambda windows: refuses_a_folder_with_a_list(windows, setup),
            }.items():
                print(f"The {what} ...", flush=True)
                windows = Windows(work / what.replace(" ", "-"), session)
                try:
                    attempt(windows)
                except (AssertionError, TimeoutError, RuntimeError) as failure:
                    print(f"the {what}: {failure}", file=sys.stderr)
                    return 1
                finally:
                    windows.end()
    print("Under Wine archive and installer work.")
    return 0


sys.exit(main())
