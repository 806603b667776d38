#!/usr/bin/env python3
"""Tries the packages where nothing else is installed: in bare systems of Debian, as a person would by the guide.

    bare_test.py PACKAGES SYSTEMS

PACKAGES is the folder with the archive and the packages. SYSTEMS is where the bare systems are kept, each as an archive of
its own; those that are missing are made (mmdebstrap). Must be run by the administrator; needs Debian's own server.
Exit status 0: passed, 1: failed, 77: the machine lacks something for it.
"""

from __future__ import annotations

import contextlib
import json
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "support"))
from desktop_session import DesktopSession, missing_tools, wait_until  # noqa: E402
from edited_package import edited_package  # noqa: E402
from steady_page import web  # noqa: E402

SKIPPED = 77
# The system that the packages are made for, and one with a newer C library.
SUITES = ("bookworm", "trixie")
MOST_PACKAGES_OF_THE_TOOL = 40
SITES = 100
TOOL_GUIDE = Path(__file__).resolve().parent.parent.parent / "docs/tarnwickctl.md"
# What a system with a service manager and sudo does, as far as the guide makes use of it. The service itself is started by
# the test.
SUDO = """#!/bin/sh
if [ "$1" = -u ]; then user=$2; shift 2; exec runuser -u "$user" -- "$@"; fi
exec "$@"
"""
SYSTEMCTL = """#!/bin/sh
echo "$*" >>/root/systemctl.txt
"""


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
        (self.root / "dev/null").chmod(0o666)
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


@contextlib.contextmanager
def running(system: System, *command):
    """A run, from its beginning on; what goes on meanwhile must not end it, and SIGTERM must."""
    process = subprocess.Popen(system.command(*command), stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                               stderr=subprocess.STDOUT, text=True)
    try:
        said = []
        for line in process.stdout:
            said.append(line)
            if "Run started" in line:
                break
        expect("Run started" in "".join(said[-1:]), f"no run has begun: {said}")
        yield
        expect(process.poll() is None, "the run has ended by itself")
        process.send_signal(signal.SIGTERM)
        process.stdout.read()
        expect(process.wait() == 0, f"the run ended with {process.returncode}")
    finally:
        if process.poll() is None:
            process.kill()
            process.wait()


def fill(system: System, tool: str, url: str) -> None:
    """A hundred sites, each checked twice; one of them with a name, a variable and an option."""
    (system.root / "root/addresses.txt").write_text("".join(f"{url}?site={number}\n" for number in range(SITES)))
    system.run(tool, "import", "/root/addresses.txt")
    system.run(tool, "set", "1", "--user", "me", "--alert-email", "me@example.org")
    system.run(tool, "post", "2", "add", "name", "value")
    system.run(tool, "option", "3", "confirm=4")
    for _ in range(2):
        said = system.run(tool, "check")
        expect(len(re.findall("^up ", said, re.MULTILINE)) == SITES, f"the check says: {said}")


def everything(system: System, tool: str) -> tuple[str, ...]:
    """All that is kept of the sites: what they are, their baselines, how they stand, and what was found."""
    exported = "/root/everything.json"
    system.run(tool, "export", "--baselines", exported)
    sites = json.loads((system.root / exported.lstrip("/")).read_text())
    expect(len(sites["sites"]) == SITES, f"there are {len(sites['sites'])} sites")
    (system.root / exported.lstrip("/")).unlink()
    return json.dumps(sites, sort_keys=True), system.run(tool, "sites", "--json"), system.run(tool, "log", "--json")


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
    unpack = ["tar", "-xzf", next(packages.glob("tarnwick-*.tar.gz")), "-C", system.root / "root"]
    subprocess.run(unpack, check=True)
    tool = "/root/tarnwick/tarnwickctl"
    fill(system, tool, url)
    said = system.run("/root/tarnwick/tarnwick", status=1)
    expect(said.count("\n") == 1 and "no display" in said, f"without a display it says: {said}")
    opens(system, session, work, "/root/tarnwick/tarnwick")
    had = everything(system, tool)
    subprocess.run(unpack, check=True)
    expect(everything(system, tool) == had, "an archive over the archive has changed the list")
    with running(system, tool, "run"):
        subprocess.run(unpack, check=True)
    expect(everything(system, tool)[0] == had[0], "an archive under a run has changed the list")


def try_packages(system: System, packages: Path, session: DesktopSession, work: Path, url: str) -> None:
    def laid(package: Path) -> str:
        shutil.copy(package, system.root / "root")
        return f"/root/{package.name}"

    made = [next(packages.glob(f"{name}_*.deb")) for name in ("tarnwick-cli", "tarnwick")]
    cli, window = (laid(package) for package in made)
    newer = [laid(edited_package(work, package, "99.0.0-1")) for package in made]
    system.install("systemd-standalone-sysusers")  # as every system with a service manager has
    before = system.packages()
    system.install(cli)
    brought = system.packages() - before
    desktop = {name for name in brought if name.startswith(("libqt6gui", "libqt6widgets", "libx11", "libgl1", "libegl"))}
    expect(not desktop and len(brought) <= MOST_PACKAGES_OF_THE_TOOL, f"the tool brings {len(brought)} packages: {brought}")
    print(f"  tarnwick-cli brings {len(brought)} packages", flush=True)
    fill(system, "tarnwickctl", url)
    before = system.packages()
    system.install(cli, window)
    print(f"  tarnwick brings {len(system.packages() - before)} more", flush=True)
    opens(system, session, work, "tarnwick")
    had = everything(system, "tarnwickctl")
    for what, files in (("upgrade", newer), ("downgrade", [cli, window])):
        system.install(*files)
        expect(everything(system, "tarnwickctl") == had, f"the {what} has changed the list")
    with running(system, "tarnwickctl", "run"):
        system.install(*newer)
    expect(everything(system, "tarnwickctl")[0] == had[0], "the upgrade under a run has changed the list")
    serves(system, url, "sudo systemctl")
    system.run("apt-get", "remove", "-y", "-qq", "tarnwick")
    expect(everything(system, "tarnwickctl")[0] == had[0], "the list went with the window")
    system.run("apt-get", "purge", "-y", "-qq", "tarnwick-cli")
    for folder in ("root/.local/share/tarnwick", "var/lib/tarnwick"):
        expect((system.root / folder / "tarnwick.mdb").exists(), f"the list in {folder} went with the package")


def try_service(system: System, packages: Path, _: DesktopSession, __: Path, url: str) -> None:
    subprocess.run(["tar", "-xzf", next(packages.glob("tarnwick-*.tar.gz")), "-C", system.root / "root"], check=True)
    (system.root / "etc/systemd/system").mkdir(parents=True, exist_ok=True)
    serves(system, url, "sudo useradd")


def block_of(beginning: str) -> str:
    """A block of commands of the guide to the tool."""
    text = TOOL_GUIDE.read_text(encoding="utf-8")
    return next(block for block in re.findall(r"^```\w*\n(.*?)^```$", text, re.MULTILINE | re.DOTALL)
                if block.startswith(beginning))


def serves(system: System, url: str, first_block: str) -> None:
    """What the guide says of the service, word by word; then it is started as its unit has it."""
    for name, text in (("sudo", SUDO), ("systemctl", SYSTEMCTL)):
        tool = system.root / "usr/sbin" / name
        tool.write_text(text)
        tool.chmod(0o755)
    system.run("sh", "-euc", f"cd /root; {block_of(first_block)}")
    expect((system.root / "root/systemctl.txt").read_text().endswith("enable --now tarnwick\n"), "no service is switched on")
    unit = next(system.root / place / "tarnwick.service" for place in ("etc/systemd/system", "usr/lib/systemd/system")
                if (system.root / place / "tarnwick.service").exists())
    told = dict(line.split("=", 1) for line in unit.read_text().splitlines() if re.match(r"\w+=", line))
    user, start = told["User"], told["ExecStart"].split()
    system.run("install", "-d", "-m", told["StateDirectoryMode"], "-o", user, "-g", told["Group"],
               f"/var/lib/{told['StateDirectory']}")
    system.run("runuser", "-u", user, "--", *told["ExecStartPre"].split())
    with running(system, "setpriv", f"--reuid={user}", f"--regid={told['Group']}", "--clear-groups", "--", *start):
        said = system.run("sh", "-euc", block_of("sudo -u tarnwick").replace("https://www.example.org/", url))
        expect("up   1 " in said, f"the service's list says: {said}")


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
                for what, attempt in (("archive", try_archive), ("archive as a service", try_service),
                                      ("packages", try_packages)):
                    if what == "packages" and suite != SUITES[0]:
                        continue  # they are made for the first one alone
                    print(f"The {what} on a bare {suite} ...", flush=True)
                    folder = work / f"{suite}-{what.replace(' ', '-')}"
                    folder.mkdir()
                    try:
                        attempt(System(archive, folder), packages, session, folder, url)
                    except (AssertionError, TimeoutError) as failure:
                        print(f"the {what} on {suite}: {failure}", file=sys.stderr)
                        return 1
                    shutil.rmtree(folder)
    print("On bare systems everything works.")
    return 0


sys.exit(main())
