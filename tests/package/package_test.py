#!/usr/bin/env python3
"""Makes the packages of a build, installs them into folders of the test's own, and starts what is in them.

    package_test.py CASE BUILD SOURCE PACKAGES VERSION

CASE is the name of one of the functions in CASES below; `makes_the_packages` leaves in the folder PACKAGES what the
others look at. Exit status 0: passed, 1: failed, 77: the machine lacks a tool for it.
"""

from __future__ import annotations

import gzip
import os
import re
import shutil
import signal
import sqlite3
import stat
import subprocess
import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "support"))
from desktop_session import wait_until  # noqa: E402

SKIPPED = 77
PROGRAMS = ("tarnwick", "tarnwickctl")
PICTURES = [f"images/{name}{state}.bmp" for name in ("new", "setup", "start", "stop") for state in ("", "h")]
DOCS = Path(__file__).resolve().parent.parent.parent / "docs"
GUIDE = [*(DOCS / "guide").glob("*.md"), *(DOCS / name for name in ("tarnwickctl.md", "security.md", "windows.md"))]
HELP_FILES = {"help/style.css", *(f"help/{text.stem}.html" for text in GUIDE),
              *(f"help/images/{name}" for text in GUIDE
                for name in re.findall(r"!\[.*?\]\(\S*images/(.+?)\)", text.read_text(encoding="utf-8")))}
PROGRAM_FILES = {"help.html", "images/logosmall.bmp", "images/tarnwick.png", "reports/green.jpg", "reports/red.jpg",
                 *PICTURES, *HELP_FILES}
USER_FILES = {"tarnwick.mdb", "email.txt"}
ICON_SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)


class Skip(Exception):
    """The machine lacks something that the case needs."""


def expect(condition: bool, what: str) -> None:
    if not condition:
        raise AssertionError(what)


def need(*tools: str) -> None:
    missing = [tool for tool in tools if shutil.which(tool) is None]
    if missing:
        raise Skip(f"{', '.join(missing)} not installed (scripts/package.sh --test installs them)")


def run(*command, status: int = 0, **options) -> str:
    """What the command prints; an error when it ends with another status."""
    done = subprocess.run([str(part) for part in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          check=False, **options)
    expect(done.returncode == status, f"{' '.join(map(str, command))} ended with {done.returncode}:\n{done.stdout}")
    return done.stdout


def mode_of(path: Path) -> int:
    return stat.S_IMODE(path.stat().st_mode)


def files_in(folder: Path) -> set[str]:
    return {path.relative_to(folder).as_posix() for path in folder.rglob("*")
            if (path.is_symlink() or not path.is_dir())}


def without_translations(files: set[str]) -> set[str]:
    """They are there only where Qt's tool for them was."""
    return {name for name in files if not re.search(r"(^|/)translations/tarnwick_\w+\.qm$", name)}


def rows(database: Path, sql: str) -> list[tuple]:
    connection = sqlite3.connect(database, timeout=5)
    try:
        with connection:
            return connection.execute(sql).fetchall()
    finally:
        connection.close()


class Case:
    """What a case has at hand: the build, the packages, a folder of its own with a user who has never been here."""

    def __init__(self, build: Path, source: Path, packages: Path, version: str, work: Path):
        self.build, self.source, self.packages, self.version, self.work = build, source, packages, version, work
        self.home = work / "home"
        self.home.mkdir()
        self.user_folder = self.home / ".local" / "share" / "tarnwick"
        kept = {key: value for key, value in os.environ.items() if not key.startswith(("XDG_", "QT_"))}
        self.env = {**kept, "HOME": str(self.home), "QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8",
                    "XDG_RUNTIME_DIR": str(self.home)}

    def archive(self) -> Path:
        return next(self.packages.glob("tarnwick-*.tar.gz"))

    def debian_package(self) -> Path:
        need("dpkg-deb", "dpkg-shlibdeps")
        return next(self.packages.glob("tarnwick_*.deb"))

    def system(self) -> Path:
        """The Debian package, unpacked; the folder /usr of that system."""
        root = self.work / "system"
        run("dpkg-deb", "--extract", self.debian_package(), root)
        return root / "usr"

    def tool(self, program: Path, *arguments: str, status: int = 0) -> str:
        return run(program, *arguments, status=status, env=self.env, cwd=self.work)

    def starts(self, program: Path, database: Path) -> None:
        """Starts the window and waits until it is ready: the last that the start does to the database, right before it
        says "Ready ...", is to renumber the variables."""
        with (self.work / "said.txt").open("w+") as said:
            process = subprocess.Popen([str(program)], env=self.env, cwd=self.work, stdin=subprocess.DEVNULL,
                                       stdout=said, stderr=said)
            try:
                def ready():
                    said.seek(0)
                    expect(process.poll() is None, f"the program ended with {process.returncode}: {said.read()}")
                    return database.exists() and rows(
                        database, "select 1 from sqlite_master where lower(name) = 'temppostvars'")

                wait_until(ready, 'the program to say "Ready ..."')
            finally:
                if process.poll() is None:
                    process.send_signal(signal.SIGTERM)
                process.wait(timeout=30)


def makes_the_packages(case: Case) -> None:
    shutil.rmtree(case.packages, ignore_errors=True)
    case.packages.mkdir(parents=True)
    run("cpack", "--config", case.build / "CPackConfig.cmake", "-B", case.work / "made", cwd=case.build)
    for package in (case.work / "made").glob("tarnwick[-_]*"):
        shutil.copy(package, case.packages)
    expect(len(list(case.packages.glob("*.tar.gz"))) == 1, "there is no archive")


def expect_program_folder(folder: Path) -> None:
    """Nothing in it is the user's: whatever it is laid over, no list and no template is touched."""
    expected = {*PROGRAMS, *PROGRAM_FILES, "fresh/tarnwick.mdb", "fresh/email.txt"}
    expect(without_translations(files_in(folder)) == expected,
           f"the folder differs: {without_translations(files_in(folder)) ^ expected}")
    expect(rows(folder / "fresh/tarnwick.mdb", "select count(*) from sites") == [(0,)], "the database is not fresh")


def addresses(tool: Path, case: Case) -> list[str]:
    return [line.split()[-1] for line in case.tool(tool, "sites").splitlines()[1:]]


def fill(tool: Path, case: Case, count: int) -> list[str]:
    """A list of so many sites, and a mail template of the user's own; the addresses."""
    wanted = [f"http://127.0.0.1:9/{number}" for number in range(count)]
    lines = "".join(f"{url}\n" for url in wanted)
    run(tool, "import", "-", "--format", "csv", env=case.env, input="url\n" + lines)
    return wanted


def installs_the_program_folder(case: Case) -> None:
    run("cmake", "--install", case.build, "--prefix", case.work / "prefix")
    expect([path.name for path in (case.work / "prefix").iterdir()] == ["tarnwick"], "more than one folder was made")
    expect_program_folder(case.work / "prefix" / "tarnwick")


def installs_over_an_older_one(case: Case) -> None:
    folder = case.work / "tarnwick"
    folder.mkdir()
    (folder / "tarnwick.mdb").write_text("my list")
    (folder / "tarnwick.mdb").chmod(0o640)
    (folder / "email.txt").write_text("my text")
    (folder / "help.html").write_text("an older page")
    run("cmake", "--install", case.build, "--prefix", case.work)
    expect((folder / "tarnwick.mdb").read_text() == "my list", "the list was overwritten")
    expect(mode_of(folder / "tarnwick.mdb") == 0o640, "the rights of the user's file were changed")
    expect((folder / "email.txt").read_text() == "my text", "the template was overwritten")
    expect("Tarnwick Help" in (folder / "help.html").read_text(encoding="utf-8"), "the help page is still the old one")


def archive_works_anywhere(case: Case) -> None:
    place = case.work / "another place"
    place.mkdir()
    run("tar", "-xzf", case.archive(), "-C", place)
    folder = place / "tarnwick"
    expect_program_folder(folder)
    case.starts(folder / "tarnwick", folder / "tarnwick.mdb")
    expect(not (case.home / ".local").exists(), "a folder in the home was made for a program that has its own")
    expect(USER_FILES <= files_in(folder), "the first start has laid no list or no template")
    expect(mode_of(folder / "tarnwick.mdb") == 0o600, "others can read the database")


def archive_over_archive_keeps_what_the_user_has(case: Case) -> None:
    unpack = ("tar", "-xzf", case.archive(), "-C", case.work)
    run(*unpack)
    folder = case.work / "tarnwick"
    tool = folder / "tarnwickctl"
    wanted = fill(tool, case, 100)
    (folder / "email.txt").write_text("my text")
    run(*unpack)
    expect(addresses(tool, case) == wanted, "the list is another one behind the unpacking")
    expect((folder / "email.txt").read_text() == "my text", "the template is another one behind the unpacking")
    with subprocess.Popen([tool, "run"], env=case.env, stdout=subprocess.PIPE, text=True) as running:
        try:
            expect("Run started" in running.stdout.readline(), "no run has begun")
            # Unpacking writes other files and gives them the names; the run goes on with the ones that it has.
            run(*unpack)
            expect(running.poll() is None, "the run has ended under the unpacking")
            expect(addresses(tool, case) == wanted, "the list is another one behind an unpacking under a run")
        finally:
            running.send_signal(signal.SIGTERM)
            running.stdout.read()
    expect(running.returncode == 0, f"the run ended with {running.returncode}")
    for file in folder.glob("tarnwick.mdb*"):
        file.unlink()
    run(*unpack)
    expect("tarnwick.mdb is missing" in case.tool(tool, "sites", status=2), "a lost list is no error")
    expect(not (folder / "tarnwick.mdb").exists(), "an empty list came into the place of a lost one")


def list_of_an_older_archive_stays(case: Case) -> None:
    """Older archives brought the list along, and left no mark."""
    folder = case.work / "tarnwick"
    run("tar", "-xzf", case.archive(), "-C", case.work)
    shutil.copy(folder / "fresh/tarnwick.mdb", folder)
    shutil.copy(folder / "fresh/email.txt", folder)
    wanted = fill(folder / "tarnwickctl", case, 100)
    run("tar", "-xzf", case.archive(), "-C", case.work)
    expect(addresses(folder / "tarnwickctl", case) == wanted, "the list is another one behind the unpacking")
    for file in folder.glob("tarnwick.mdb*"):
        file.unlink()
    expect("tarnwick.mdb is missing" in case.tool(folder / "tarnwickctl", "sites", status=2), "a lost list is no error")


def debian_package_lies_in_the_systems_places(case: Case) -> None:
    package = case.debian_package()
    usr = case.system()
    files = files_in(usr)
    expected = {f"bin/{name}" for name in PROGRAMS} | {f"lib/tarnwick/{name}" for name in (*PROGRAMS, *PROGRAM_FILES)}
    expected |= {"lib/tarnwick/shared-installation.txt", "lib/tarnwick/fresh/tarnwick.mdb",
                 "lib/tarnwick/fresh/email.txt", "share/applications/tarnwick.desktop",
                 "share/metainfo/example.tarnwick.tarnwick.metainfo.xml", "share/doc/tarnwick/copyright",
                 "share/doc/tarnwick/changelog.gz", "share/doc/tarnwick/changelog.Debian.gz",
                 "share/lintian/overrides/tarnwick", "share/icons/hicolor/scalable/apps/tarnwick.svg"}
    expected |= {f"share/icons/hicolor/{size}x{size}/apps/tarnwick.png" for size in ICON_SIZES}
    expected |= {f"share/man/man1/{page.name}.gz" for page in (case.source / "docs" / "man").glob("*.1")}
    expected |= {f"share/doc/tarnwick/examples/{unit.name}" for unit in (case.source / "docs" / "systemd").glob("*")}
    expect(without_translations(files) == expected, f"the package differs: {without_translations(files) ^ expected}")
    for name in PROGRAMS:
        expect(os.readlink(usr / "bin" / name) == f"../lib/tarnwick/{name}", f"bin/{name} leads elsewhere")
    writable = [line for line in run("dpkg-deb", "--contents", package).splitlines()
                if re.match(r"[-d].{4}w|[-d].{7}w", line) or " root/root " not in line]
    expect(not writable, "others can write or own:\n" + "\n".join(writable))
    depends = run("dpkg-deb", "--field", package, "Depends")
    for library in ("libqt6widgets6", "libcurl4", "libsqlite3-0"):
        expect(library in depends, f"the package does not depend on {library}: {depends}")
    recommends = run("dpkg-deb", "--field", package, "Recommends")
    expect("pipewire-bin | pulseaudio-utils | alsa-utils" in recommends, f"nothing plays the alert sound: {recommends}")
    sizes = {size: (usr / f"share/icons/hicolor/{size}x{size}/apps/tarnwick.png").read_bytes()[16:24]
             for size in ICON_SIZES}
    wrong = [size for size, found in sizes.items() if found != size.to_bytes(4, "big") * 2]
    expect(not wrong, f"icons of another size than their folder's: {wrong}")


def debian_package_satisfies_lintian(case: Case) -> None:
    need("lintian")
    # Run by the administrator it says that it should not be.
    said = run("lintian", "--fail-on", "error,warning", case.debian_package())
    expect(not re.search("^[EW]: ", said, re.MULTILINE), said)


def desktop_accepts_the_metadata(case: Case) -> None:
    need("appstreamcli", "desktop-file-validate")
    usr = case.system()
    run("appstreamcli", "validate", "--no-net", *usr.glob("share/metainfo/*.xml"))
    expect(run("desktop-file-validate", usr / "share/applications/tarnwick.desktop") == "", "the desktop file is odd")


def manual_pages_are_well_formed(case: Case) -> None:
    need("man")
    for page in case.system().glob("share/man/man1/*.gz"):
        done = subprocess.run(["man", "--warnings", "-E", "UTF-8", "-l", str(page)], env={**case.env, "MANWIDTH": "80"},
                              stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, check=True)
        expect(done.stderr == "", f"{page.name}: {done.stderr}")


def one_version_everywhere(case: Case) -> None:
    usr = case.system()
    expect(case.tool(usr / "bin/tarnwickctl", "--version").split() == ["tarnwickctl", case.version], "--version differs")
    expect(run("dpkg-deb", "--field", case.debian_package(), "Version").strip() == case.version + "-1",
           "the package's version differs")
    with gzip.open(usr / "share/doc/tarnwick/changelog.Debian.gz", "rt") as changes:
        expect(changes.readline().startswith(f"tarnwick ({case.version}-1) "), "the package's changes differ")
    metainfo = next(usr.glob("share/metainfo/*.xml")).read_text(encoding="utf-8")
    expect(f'<release version="{case.version}"' in metainfo, "the metadata's version differs")
    released = re.findall(r"^## \[([\d.]+)\]", (case.source / "CHANGELOG.md").read_text(encoding="utf-8"), re.MULTILINE)
    expect(released[0] == case.version, "the change log does not begin with this version")


def each_user_has_a_folder_of_his_own(case: Case) -> None:
    usr = case.system()
    before = files_in(usr)
    case.starts(usr / "bin" / "tarnwick", case.user_folder / "tarnwick.mdb")
    expect(files_in(usr) == before, "something was written into the installation")
    expect({name for name in files_in(case.user_folder) if not name.startswith("tarnwick.mdb-")} ==
           {*USER_FILES, "reports/green.jpg", "reports/red.jpg"}, "the user's folder differs")
    expect(mode_of(case.user_folder) == 0o700, "others can look into the user's folder")
    expect(mode_of(case.user_folder / "tarnwick.mdb") == 0o600, "others can read the database")
    # The tool finds the list that the window works on.
    case.tool(usr / "bin" / "tarnwickctl", "add", "http://127.0.0.1/")
    expect(rows(case.user_folder / "tarnwick.mdb", "select url from sites") == [("http://127.0.0.1/",)],
           "the tool worked on another list")


def newer_package(case: Case) -> Path:
    """The package with a higher version and another picture of the report."""
    tree = case.work / "newer"
    run("dpkg-deb", "--raw-extract", case.debian_package(), tree)
    control = tree / "DEBIAN" / "control"
    control.write_text(re.sub(r"^Version: .*$", "Version: 99.0.0-1", control.read_text(), flags=re.MULTILINE))
    (tree / "usr/lib/tarnwick/reports/red.jpg").write_text("a newer red")
    package = case.work / "newer.deb"
    run("dpkg-deb", "--root-owner-group", "--build", tree, package)
    return package


def upgrade_keeps_what_the_user_has(case: Case) -> None:
    need("dpkg")
    root = case.work / "system"
    for folder in ("var/lib/dpkg/updates", "var/lib/dpkg/info", "var/lib/dpkg/triggers"):
        (root / folder).mkdir(parents=True)
    (root / "var/lib/dpkg/status").touch()
    install = ("dpkg", f"--root={root}", "--force-not-root", "--force-depends", "--force-script-chrootless",
               f"--log={case.work}/dpkg.log", "--install")
    env = {**case.env, "PATH": case.env["PATH"] + ":/usr/sbin:/sbin"}
    run(*install, case.debian_package(), env=env)
    tool = root / "usr/bin/tarnwickctl"
    wanted = fill(tool, case, 100)
    (case.user_folder / "email.txt").write_text("my text")
    with subprocess.Popen([tool, "run"], env=case.env, stdout=subprocess.PIPE, text=True) as running:
        try:
            expect("Run started" in running.stdout.readline(), "no run has begun")
            run(*install, newer_package(case), env=env)
            expect(running.poll() is None, "the run has ended under the upgrade")
        finally:
            running.send_signal(signal.SIGTERM)
            running.stdout.read()
    expect(addresses(tool, case) == wanted, "the list is another one behind the upgrade")
    expect((case.user_folder / "email.txt").read_text() == "my text", "the template was replaced")
    expect((case.user_folder / "reports/red.jpg").read_text() == "a newer red", "the picture is still the old one")
    run(*install, case.debian_package(), env=env)
    expect(addresses(tool, case) == wanted, "the list is another one behind the downgrade")
    expect((case.user_folder / "email.txt").read_text() == "my text", "the template was replaced by the downgrade")


def lost_database_is_an_error(case: Case) -> None:
    tool = case.system() / "bin" / "tarnwickctl"
    case.tool(tool, "sites")
    for file in case.user_folder.glob("tarnwick.mdb*"):
        file.unlink()
    before = files_in(case.user_folder)
    said = case.tool(tool, "sites", status=2)
    expect("tarnwick.mdb is missing" in said, f"the error does not say what is missing: {said}")
    expect(files_in(case.user_folder) == before, "something was made in its place")


def no_path_of_the_build_is_left(case: Case) -> None:
    usr = case.system()
    for name in PROGRAMS:
        for place in (case.build, case.source):
            expect(str(place).encode() not in (usr / "lib/tarnwick" / name).read_bytes(), f"{name} names {place}")


CASES = {case.__name__: case for case in
         (makes_the_packages, installs_the_program_folder, installs_over_an_older_one, archive_works_anywhere,
          archive_over_archive_keeps_what_the_user_has, list_of_an_older_archive_stays,
          debian_package_lies_in_the_systems_places, debian_package_satisfies_lintian, desktop_accepts_the_metadata,
          manual_pages_are_well_formed, one_version_everywhere, each_user_has_a_folder_of_his_own,
          upgrade_keeps_what_the_user_has, lost_database_is_an_error, no_path_of_the_build_is_left)}


def main() -> int:
    if len(sys.argv) != 6 or sys.argv[1] not in CASES:
        print(__doc__ + "\nCases: " + ", ".join(CASES), file=sys.stderr)
        return 2
    with tempfile.TemporaryDirectory(prefix="tarnwick-package-") as work:
        try:
            CASES[sys.argv[1]](Case(*map(Path, sys.argv[2:5]), sys.argv[5], Path(work)))
        except Skip as reason:
            print(f"skipped: {reason}")
            return SKIPPED
        except (AssertionError, TimeoutError, StopIteration) as failure:
            print(f"{sys.argv[1]}: {failure}", file=sys.stderr)
            return 1
    return 0


sys.exit(main())
