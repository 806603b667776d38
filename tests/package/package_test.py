#!/usr/bin/env python3
"""Makes the packages of a build, installs them into folders of the test's own, and starts what is in them.

    package_test.py CASE BUILD SOURCE PACKAGES VERSION

CASE is the name of one of the functions in CASES below; `makes_the_packages` leaves in the folder PACKAGES what the
others look at. Exit status 0: passed, 1: failed, 77: the machine lacks a tool for it.
"""

from __future__ import annotations

import gzip
import json
import os
import platform
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
from edited_package import edited_package  # noqa: E402

SKIPPED = 77
PROGRAMS = ("tarnwick", "tarnwickctl")
# The second ones are for the languages that the words in the bitmaps are not of.
PICTURES = [f"images/{name}{state}" for name in ("new", "setup", "start", "stop")
            for state in (".bmp", "h.bmp", "-released.png", "-pressed.png")]
DOCS = Path(__file__).resolve().parent.parent.parent / "docs"
GUIDE = [*(DOCS / "guide").glob("*.md"), *(DOCS / name for name in ("tarnwickctl.md", "security.md", "windows.md"))]
HELP_FILES = {"help/style.css", *(f"help/{text.stem}.html" for text in GUIDE),
              *(f"help/images/{name}" for text in GUIDE
                for name in re.findall(r"!\[.*?\]\(\S*images/(.+?)\)", text.read_text(encoding="utf-8")))}
PRESETS = {f"channels/{file.name}" for file in (DOCS.parent / "assets/channels").glob("*.txt")}
PROGRAM_FILES = {"help.html", "images/logosmall.bmp", "images/tarnwick.png", "reports/green.jpg", "reports/red.jpg",
                 *PICTURES, *PRESETS, *HELP_FILES}
USER_FILES = {"tarnwick.mdb", "email.txt", "recovered.txt"}
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

    def debian_packages(self) -> dict[str, Path]:
        """Each by its name, in the order in which they can be installed."""
        need("dpkg-deb", "dpkg-shlibdeps")
        return {name: next(self.packages.glob(f"{name}_*.deb")) for name in ("tarnwick-cli", "tarnwick")}

    def system(self, *names: str) -> Path:
        """The Debian packages, or those of these names, unpacked; the folder /usr of that system."""
        root = self.work / "system"
        for name, package in self.debian_packages().items():
            if name in (names or (name,)):
                run("dpkg-deb", "--extract", package, root)
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
    for package in (case.work / "made").glob("tarnwick*.*"):
        shutil.copy(package, case.packages)
    expect(len(list(case.packages.glob("*.tar.gz"))) == 1, "there is no archive")


def expect_program_folder(folder: Path, *more: str) -> None:
    """Nothing in it is the user's: whatever it is laid over, no list and no template is touched."""
    expected = {*PROGRAMS, *PROGRAM_FILES, "fresh/tarnwick.mdb", "fresh/email.txt", "fresh/recovered.txt", *more}
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


def install(case: Case, prefix: Path, *options: str) -> None:
    run("cmake", "--install", case.build, "--prefix", prefix, *options)


def installs_the_program_folder(case: Case) -> None:
    install(case, case.work / "prefix", "--component", "portable")
    expect([path.name for path in (case.work / "prefix").iterdir()] == ["tarnwick"], "more than one folder was made")
    expect_program_folder(case.work / "prefix" / "tarnwick")


def installs_into_the_places_of_a_system(case: Case) -> None:
    prefix = case.work / "prefix"
    install(case, prefix)
    expect({path.name for path in prefix.iterdir()} == {"bin", "lib", "share"}, f"laid {list(prefix.iterdir())}")
    unit = (prefix / "lib/systemd/system/tarnwick.service").read_text(encoding="utf-8")
    expect(f"ExecStart={prefix}/bin/tarnwickctl " in unit and "/usr/bin" not in unit, "the unit names another place")
    wanted = fill(prefix / "bin/tarnwickctl", case, 3)
    before = files_in(prefix)
    install(case, prefix)
    expect(addresses(prefix / "bin/tarnwickctl", case) == wanted, "the list is another one behind the second installation")
    case.starts(prefix / "bin/tarnwick", case.user_folder / "tarnwick.mdb")
    expect(files_in(prefix) == before, "something was written into the installation")


def installs_over_an_older_one(case: Case) -> None:
    folder = case.work / "tarnwick"
    folder.mkdir()
    (folder / "tarnwick.mdb").write_text("my list")
    (folder / "tarnwick.mdb").chmod(0o640)
    (folder / "email.txt").write_text("my text")
    (folder / "help.html").write_text("an older page")
    install(case, case.work, "--component", "portable")
    expect((folder / "tarnwick.mdb").read_text() == "my list", "the list was overwritten")
    expect(mode_of(folder / "tarnwick.mdb") == 0o640, "the rights of the user's file were changed")
    expect((folder / "email.txt").read_text() == "my text", "the template was overwritten")
    expect("Tarnwick Help" in (folder / "help.html").read_text(encoding="utf-8"), "the help page is still the old one")


def of_the_archive(folder: Path) -> set[str]:
    """What an archive holds beside the program folder."""
    kinds = ("lib/*", "plugins/*/*", "licenses/*", "translations/qt/*")
    return {path.relative_to(folder).as_posix() for kind in kinds for path in folder.glob(kind)} | {
        "LICENSE", "README.txt", "needs.txt", "qt.conf", "tarnwick.spdx.json", "systemd/tarnwick.service",
        *(f"man/man1/{name}.1" for name in PROGRAMS),
        *(f"completions/tarnwickctl.{shell}" for shell in ("bash", "zsh", "fish"))}


def archive_works_anywhere(case: Case) -> None:
    place = case.work / "another place"
    place.mkdir()
    expect(case.archive().name == f"tarnwick-{case.version}-linux-{platform.machine()}.tar.gz",
           f"the archive is named {case.archive().name}")
    run("tar", "-xzf", case.archive(), "-C", place)
    folder = place / "tarnwick"
    expect_program_folder(folder, *of_the_archive(folder))
    for name in ("lib/libQt6Widgets.so.6", "lib/libsqlite3.so.0", "plugins/platforms/libqxcb.so",
                 "licenses/libqt6core6.txt", "licenses/libcli11-dev.txt"):
        expect((folder / name).is_file(), f"the archive has no {name}")
    for name in PROGRAMS:
        for line in run("ldd", folder / name).splitlines():
            library, _, found = line.strip().partition(" => ")
            expect(not found or found.startswith(str(folder)) or library.startswith(("libc.so", "libm.so", "libstdc++.so",
                   "libgcc_s.so", "libresolv.so")), f"{name} takes {line.strip()} from the machine")
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


def made_of(file: Path) -> dict[str, dict]:
    """What a list of what something is made of names, by the names."""
    listed = json.loads(file.read_text(encoding="utf-8"))
    expect(listed["spdxVersion"] == "SPDX-2.3", f"{file.name} is of another kind")
    ids = {package["SPDXID"] for package in listed["packages"]}
    expect(len(ids) == len(listed["packages"]), f"{file.name} has one id for two things")
    expect(all(one["relatedSpdxElement"] in ids for one in listed["relationships"]), f"{file.name} names what it has not")
    return {package["name"]: package for package in listed["packages"]}


def lists_name_what_is_inside(case: Case) -> None:
    run("tar", "-xzf", case.archive(), "-C", case.work)
    folder = case.work / "tarnwick"
    archive = made_of(folder / "tarnwick.spdx.json")
    expect(archive["tarnwick"]["versionInfo"] == case.version, "the list is of another version")
    expect(set(archive) - {"tarnwick"} == {path.stem for path in (folder / "licenses").iterdir()},
           "the licences and the list differ")
    usr = case.system()
    tool = made_of(usr / "share/doc/tarnwick-cli/tarnwickctl.spdx.json")
    expect({"libcurl4", "libsqlite3-0", "libcli11-dev"} <= set(tool) and "libqt6widgets6" not in tool, f"it lists {tool}")
    expect("libqt6widgets6" in made_of(usr / "share/doc/tarnwick/tarnwick.spdx.json"), "the window's list lacks its toolkit")


def debian_packages_lie_in_the_systems_places(case: Case) -> None:
    def documentation(package: str, program: str) -> set[str]:
        names = ("copyright", "changelog.gz", "changelog.Debian.gz", f"{program}.spdx.json")
        return {f"bin/{program}", f"lib/tarnwick/{program}", f"share/man/man1/{program}.1.gz",
                f"share/lintian/overrides/{package}", *(f"share/doc/{package}/{name}" for name in names)}

    bars = {"reports/green.jpg", "reports/red.jpg"}
    cli = documentation("tarnwick-cli", "tarnwickctl") | {
        f"lib/tarnwick/{name}" for name in ("shared-installation.txt", "fresh/tarnwick.mdb", "fresh/email.txt",
                                     "fresh/recovered.txt", *bars, *PRESETS)} | {
        "lib/systemd/system/tarnwick.service", "lib/sysusers.d/tarnwick.conf",
        "share/bash-completion/completions/tarnwickctl", "share/fish/vendor_completions.d/tarnwickctl.fish"}
    zsh = {"share/zsh/vendor-completions/_tarnwickctl", "share/zsh/site-functions/_tarnwickctl"}
    found = files_in(case.system("tarnwick-cli"))
    expect(found != without_translations(found), "the tool speaks one language only")
    found = without_translations(found)
    expect(len(found & zsh) == 1 and found - zsh == cli, f"tarnwick-cli differs: {(found - zsh) ^ cli}")
    usr = case.system()
    window = documentation("tarnwick", "tarnwick") | {f"lib/tarnwick/{name}" for name in PROGRAM_FILES - bars - PRESETS} | {
        "share/applications/tarnwick.desktop", "share/metainfo/example.tarnwick.tarnwick.metainfo.xml",
        "share/icons/hicolor/scalable/apps/tarnwick.svg",
        *(f"share/icons/hicolor/{size}x{size}/apps/tarnwick.png" for size in ICON_SIZES)}
    added = without_translations(files_in(usr)) - found
    expect(added == window, f"tarnwick differs: {added ^ window}")
    for name in PROGRAMS:
        expect(os.readlink(usr / "bin" / name) == f"../lib/tarnwick/{name}", f"bin/{name} leads elsewhere")
    for package in case.debian_packages().values():
        writable = [line for line in run("dpkg-deb", "--contents", package).splitlines()
                    if re.match(r"[-d].{4}w|[-d].{7}w", line) or " root/root " not in line]
        expect(not writable, "others can write or own:\n" + "\n".join(writable))
    depends, recommends = ({name: run("dpkg-deb", "--field", package, field)
                            for name, package in case.debian_packages().items()} for field in ("Depends", "Recommends"))
    for library in ("libqt6core6", "libcurl4", "libsqlite3-0"):
        expect(library in depends["tarnwick-cli"], f"tarnwick-cli does not depend on {library}: {depends}")
    expect(not re.search("libqt6(gui|widgets)|libx11", depends["tarnwick-cli"]), f"tarnwick-cli needs a desktop: {depends}")
    version = run("dpkg-deb", "--field", case.debian_packages()["tarnwick-cli"], "Version").strip()
    expect("libqt6widgets6" in depends["tarnwick"] and f"tarnwick-cli (= {version})" in depends["tarnwick"], f"{depends}")
    expect("pipewire-bin | pulseaudio-utils | alsa-utils" in recommends["tarnwick"],
           f"nothing plays the alert sound: {recommends}")
    sizes = {size: (usr / f"share/icons/hicolor/{size}x{size}/apps/tarnwick.png").read_bytes()[16:24]
             for size in ICON_SIZES}
    wrong = [size for size, found in sizes.items() if found != size.to_bytes(4, "big") * 2]
    expect(not wrong, f"icons of another size than their folder's: {wrong}")


def debian_packages_satisfy_lintian(case: Case) -> None:
    need("lintian")
    # Run by the administrator it says that it should not be.
    said = run("lintian", "--fail-on", "error,warning", *case.debian_packages().values())
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
    versions = {run("dpkg-deb", "--field", package, "Version").strip() for package in case.debian_packages().values()}
    expect(len(versions) == 1 and re.fullmatch(re.escape(case.version) + r"-\d+", *versions), f"packages of {versions}")
    with gzip.open(usr / "share/doc/tarnwick/changelog.Debian.gz", "rt") as changes:
        expect(changes.readline().startswith(f"tarnwick ({versions.pop()}) "), "the package's changes differ")
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


def newer_packages(case: Case) -> list[Path]:
    """The packages with a higher version and another picture of the report."""
    def change(tree: Path) -> None:
        if (tree / "usr/lib/tarnwick/reports").exists():
            (tree / "usr/lib/tarnwick/reports/red.jpg").write_text("a newer red")

    return [edited_package(case.work, package, "99.0.0-1", change) for package in case.debian_packages().values()]


def single_package(case: Case) -> Path:
    """All in one package, as it was until 1.0.0-1."""
    def change(tree: Path) -> None:
        run("dpkg-deb", "--extract", case.debian_packages()["tarnwick-cli"], tree)
        control = tree / "DEBIAN" / "control"
        control.write_text(re.sub(r"^Depends: .*\n", "", control.read_text(), flags=re.MULTILINE))

    return edited_package(case.work, case.debian_packages()["tarnwick"], "1.0.0-1", change)


class DpkgRoot:
    """A system of dpkg's in a folder."""

    def __init__(self, case: Case):
        need("dpkg")
        self.root = case.work / "system"
        for folder in ("var/lib/dpkg/updates", "var/lib/dpkg/info", "var/lib/dpkg/triggers"):
            (self.root / folder).mkdir(parents=True)
        (self.root / "var/lib/dpkg/status").touch()
        self.command = ("dpkg", f"--root={self.root}", "--force-not-root", "--force-depends",
                        "--force-script-chrootless", "--auto-deconfigure",  # as apt has it
                        f"--log={case.work}/dpkg.log")
        # The scripts of the packages find nothing of the machine that they could change.
        tools = case.work / "tools"
        tools.mkdir()
        for tool in ("dpkg-deb", "dpkg-split", "tar", "rm", "sh", "ldconfig", "start-stop-daemon", "diff", "dpkg-query"):
            found = shutil.which(tool, path=case.env["PATH"] + ":/usr/sbin:/sbin")
            if found is not None:
                (tools / tool).symlink_to(found)
        self.env = {**case.env, "PATH": str(tools)}
        self.dpkg = shutil.which("dpkg")

    def do(self, *arguments) -> str:
        return run(self.dpkg, *self.command[1:], *arguments, env=self.env)

    def installed(self) -> list[str]:
        states = self.do("--list").splitlines()
        return [line.split()[1] for line in states if line.startswith("ii")]


def upgrade_keeps_what_the_user_has(case: Case) -> None:
    system = DpkgRoot(case)
    tool = system.root / "usr/bin/tarnwickctl"
    system.do("--install", single_package(case))
    wanted = fill(tool, case, 100)
    (case.user_folder / "email.txt").write_text("my text")
    system.do("--install", *case.debian_packages().values())
    expect(system.installed() == ["tarnwick", "tarnwick-cli"], f"installed are {system.installed()}")
    expect(addresses(tool, case) == wanted, "the list is another one behind the upgrade from the single package")
    with subprocess.Popen([tool, "run"], env=case.env, stdout=subprocess.PIPE, text=True) as running:
        try:
            expect("Run started" in running.stdout.readline(), "no run has begun")
            system.do("--install", *newer_packages(case))
            expect(running.poll() is None, "the run has ended under the upgrade")
        finally:
            running.send_signal(signal.SIGTERM)
            running.stdout.read()
    expect(addresses(tool, case) == wanted, "the list is another one behind the upgrade")
    expect((case.user_folder / "email.txt").read_text() == "my text", "the template was replaced")
    case.tool(tool, "report")
    expect((case.user_folder / "reports/red.jpg").read_text() == "a newer red", "the picture is still the old one")
    system.do("--install", *case.debian_packages().values())
    expect(addresses(tool, case) == wanted, "the list is another one behind the downgrade")
    expect((case.user_folder / "email.txt").read_text() == "my text", "the template was replaced by the downgrade")
    system.do("--remove", "tarnwick")
    expect(addresses(tool, case) == wanted, "the tool went with the window")
    system.do("--purge", "tarnwick-cli")
    left = {name for name in files_in(system.root) if not name.startswith("var/lib/dpkg/")}
    expect(not left, f"the packages have left {left}")
    expect((case.user_folder / "tarnwick.mdb").exists(), "the list went with the packages")


def shells_complete_the_tool(case: Case) -> None:
    need("bash", "zsh", "fish")
    usr = case.system("tarnwick-cli")
    fish = usr / "share/fish/vendor_completions.d/tarnwickctl.fish"
    said = run("fish", "--no-config", "-c", f"source {fish}; complete -C 'tarnwickctl expo'; "
               "complete -C 'tarnwickctl export x --format '; complete -C 'tarnwickctl sites --d'", env=case.env)
    expect([line.split("\t")[0] for line in said.splitlines()] == ["export", "csv", "json", "--down"], said)
    bash = usr / "share/bash-completion/completions/tarnwickctl"
    for words, wanted in ((("expo",), "export"), (("export", "x", "--format", ""), "csv json"), (("sites", "--d"), "--down"),
                          (("--folder", "/us"), "/usr"), (("counters", "cl"), "clear")):
        line = " ".join(f"'{word}'" for word in ("tarnwickctl", *words))
        said = run("bash", "-c", f"compopt() {{ :; }}; source {bash}; COMP_WORDS=({line}); COMP_CWORD={len(words)}; "
                   "_tarnwickctl; echo ${COMPREPLY[*]}", env=case.env)
        expect(said.strip() == wanted, f"bash completes {words} by {said}")
    for file in usr.glob("share/zsh/*/_tarnwickctl"):
        expect(run("zsh", "-n", file) == "", "zsh does not understand its completion")
        text = file.read_text(encoding="utf-8")
        expect(text.startswith("#compdef tarnwickctl\n") and "'--format[" in text, "zsh is told nothing")


def service_is_well_formed(case: Case) -> None:
    need("systemd-analyze", "systemd-sysusers")
    usr = case.system("tarnwick-cli")
    root = usr.parent
    for user in ("passwd", "group"):
        (root / "etc").mkdir(exist_ok=True)
        (root / "etc" / user).touch()
    run("systemd-sysusers", f"--root={root}", "tarnwick.conf")
    expect(re.search(r"^tarnwick:.*:/var/lib/tarnwick:\S*/nologin$", (root / "etc/passwd").read_text(), re.MULTILINE),
           "there is no user of the service")
    unit = usr / "lib/systemd/system/tarnwick.service"
    own = case.work / "tarnwick.service"
    own.write_text(unit.read_text().replace("/usr/bin/", f"{usr}/bin/").replace("man:tarnwickctl(1)", "http://localhost/"))
    expect(run("systemd-analyze", "verify", "--man=no", own) == "", "the unit is odd")


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
         (makes_the_packages, installs_the_program_folder, installs_into_the_places_of_a_system,
          installs_over_an_older_one, archive_works_anywhere, archive_over_archive_keeps_what_the_user_has,
          list_of_an_older_archive_stays, lists_name_what_is_inside, debian_packages_lie_in_the_systems_places,
          debian_packages_satisfy_lintian, desktop_accepts_the_metadata, manual_pages_are_well_formed,
          shells_complete_the_tool, service_is_well_formed, one_version_everywhere, each_user_has_a_folder_of_his_own,
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
