#!/usr/bin/env python3
"""Tries the packages where nothing else is installed: in bare systems of Debian, as a person would by the guide.

    bare_test.py PACKAGES SYSTEMS

PACKAGES is the folder with the archive and the packages. SYSTEMS is where the bare systems are kept, each as an archive of
its own; those that are missing are made (mmdebstrap). Must be run by the administrator; needs Debian's own server.
Exit status 0: passed, 1: failed, 77: the machine lacks something for it.
"""

from __future__ import annotations

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
# The system that the packages are made for, and one with a newer C library.
SUITES = ("bookworm", "trixie")
MOST_PACKAGES_OF_THE_TOOL = 40


def mirror() -> str:
    """The archive of packages that this system is installed from."""
    indexes = subprocess.run(["apt-get", "indextargets", "--format", "$(REPO_URI) $(CODENAME)", "Created-By: Packages"],
                             capture_output=True, text=True, check=True).stdout
    return next(line.split()[0] for line in indexes.splitlines() if "-" not in line.split()[1])


def expect(condition: bool, what: str) -> None:
    if not condition:
        raise AssertionError(what)


class System:
    """A bare system in a folder; everything that is done in it goes with it."""

    def __init__(self, archive: Path, folder: Path):
        self.root = folder / archive.stem
        self.root.mkdir()
        subprocess.run(["tar", "-xf", archive, "-C", self.root, "--exclude=./dev/*"], check=True)
        (self.root / "dev/null").touch()  # a plain file does for what is thrown away
        for file in ("resolv.conf", "hosts"):
            shutil.copy(Path("/etc") / file, self.root / "etc" / file)

    def command(self, *arguments, **env: str) -> list[str]:
        clean = {"PATH": "/usr/sbin:/usr/bin:/sbin:/bin", "HOME": "/root", "LC_ALL": "C.UTF-8", "no_proxy": "*",
                 "DEBIAN_FRONTEND": "noninteractive", **env}
        # Every system shows its processes; here it goes with the command.
        inside = 'mount -t proc proc "$0/proc" && exec chroot "$0" "$@"'
        return ["unshare", "--mount", "--propagation", "private", "sh", "-c", inside, str(self.root), "/usr/bin/env", "-i", *(f"{key}={value}" for key, value in clean.items()),
                *map(str, arguments)]

    def run(self, *arguments, status: int = 0, **env: str) -> str:
        done = subprocess.run(self.command(*arguments, **env), stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                              check=False, stdin=subprocess.DEVNULL)
        expect(done.returncode == status, f"{' '.join(map(str, arguments))} ended with {done.returncode}:\n{done.stdout}")
        return done.stdout

    def install(self, *packages: str) -> None:
        options = ("-y", "-qq", "--no-install-recommends", "-o", "APT::Sandbox::User=root", "--allow-downgrades")
        self.run("apt-get", "update", "-qq", "-o", "APT::Sandbox::User=root")
        self.run("apt-get", "install", *options, *packages)

    def packages(self) -> set[str]:
        return set(self.run("dpkg-query", "-W", "-f", "${Package}\n").split())


def watches(system: System, tool: str, url: str) -> None:
    """A site is added and checked, twice."""
    idSite = system.run(tool, "add", url).strip()
    for _ in range(2):
        said = system.run(tool, "check", idSite)
        expect("up" in said, f"the check says: {said}")


def opens(system: System, session: DesktopSession, work: Path, program: str) -> None:
    """The window comes up on a display of another machine, as it were, and goes when it is closed."""
    errors = work / "errors.txt"
    with errors.open("w") as file:
        process = subprocess.Popen(system.command(program, DISPLAY=session.env["DISPLAY"]), stdin=subprocess.DEVNULL,
                                   stdout=file, stderr=file)
    try:
        window = session.window("Tarnwick", process)
        wait_until(lambda: session.close(window, check=False) or process.poll() is not None, "the window to close")
        expect(process.returncode == 0, f"the window ended with {process.returncode}")
    except (RuntimeError, TimeoutError) as failure:
        raise AssertionError(f"{failure}; it said: {errors.read_text()}") from failure
    finally:
        if process.poll() is None:
            process.kill()
            process.wait()


def try_archive(system: System, packages: Path, session: DesktopSession, work: Path, url: str) -> None:
    subprocess.run(["tar", "-xzf", next(packages.glob("tarnwick-*.tar.gz")), "-C", system.root / "root"], check=True)
    watches(system, "/root/tarnwick/tarnwickctl", url)
    said = system.run("/root/tarnwick/tarnwick", status=1)
    expect(said.count("\n") == 1 and "no display" in said, f"without a display it says: {said}")
    opens(system, session, work, "/root/tarnwick/tarnwick")
    expect(url in system.run("/root/tarnwick/tarnwickctl", "sites"), "the list is gone")


def try_packages(system: System, packages: Path, session: DesktopSession, work: Path, url: str) -> None:
    for file in packages.glob("tarnwick*.deb"):
        shutil.copy(file, system.root / "root")
    cli, window = (next((system.root / "root").glob(f"{name}_*.deb")).relative_to(system.root)
                   for name in ("tarnwick-cli", "tarnwick"))
    before = system.packages()
    system.install(f"/{cli}")
    brought = system.packages() - before
    desktop = {name for name in brought if name.startswith(("libqt6gui", "libqt6widgets", "libx11", "libgl1", "libegl"))}
    expect(not desktop and len(brought) <= MOST_PACKAGES_OF_THE_TOOL, f"the tool brings {len(brought)} packages: {brought}")
    print(f"  tarnwick-cli brings {len(brought)} packages", flush=True)
    watches(system, "tarnwickctl", url)
    before = system.packages()
    system.install(f"/{cli}", f"/{window}")
    print(f"  tarnwick brings {len(system.packages() - before)} more", flush=True)
    opens(system, session, work, "tarnwick")
    system.run("apt-get", "remove", "-y", "-qq", "tarnwick")
    expect(url in system.run("tarnwickctl", "sites"), "the list is gone")
    system.run("apt-get", "purge", "-y", "-qq", "tarnwick-cli")
    expect((system.root / "root/.local/share/tarnwick/tarnwick.mdb").exists(), "the list went with the package")


def bare_system(suite: str, systems: Path) -> Path:
    archive = systems / f"{suite}.tar"
    if not archive.exists():
        systems.mkdir(parents=True, exist_ok=True)
        unfinished = systems / f"{suite}.new.tar"
        subprocess.run(["mmdebstrap", "--quiet", "--variant=minbase", "--mode=root", "--aptopt=APT::Sandbox::User \"root\"",
                        suite, unfinished, mirror()], check=True)
        unfinished.rename(archive)
    return archive


def main() -> int:
    packages, systems = (Path(argument).resolve() for argument in sys.argv[1:3])
    missing = [*missing_tools(), *(tool for tool in ("mmdebstrap", "chroot", "unshare") if shutil.which(tool) is None)]
    if os.geteuid() != 0 or missing:
        print(f"skipped: {'not run by the administrator' if os.geteuid() != 0 else ', '.join(missing) + ' not installed'}")
        return SKIPPED
    with tempfile.TemporaryDirectory(prefix="tarnwick-bare-") as name, web() as url:
        work = Path(name)
        with DesktopSession(work) as session:
            for suite in SUITES:
                archive = bare_system(suite, systems)
                for what, attempt in (("archive", try_archive), ("packages", try_packages)):
                    if what == "packages" and suite != SUITES[0]:
                        continue  # they are made for the first one alone
                    print(f"The {what} on a bare {suite} ...", flush=True)
                    folder = work / f"{suite}-{what}"
                    folder.mkdir()
                    try:
                        attempt(System(archive, folder), packages, session, folder, url)
                    except AssertionError as failure:
                        print(f"the {what} on {suite}: {failure}", file=sys.stderr)
                        return 1
                    shutil.rmtree(folder)
    print("On bare systems everything works.")
    return 0


sys.exit(main())
