#!/usr/bin/env python3
"""What an artefact is made of: brings the libraries along that an archive needs, with their licences, and writes the list
of everything in it (SPDX 2.3).

    made_of.py bundle  --version V --time SECONDS --folder PROGRAM_FOLDER --plugins QT_PLUGINS
    made_of.py sbom    --version V --time SECONDS --programs FILE... --to FILE
    made_of.py windows --version V --time SECONDS --folder PROGRAM_FOLDER --libraries FILE --notices FOLDER

The same input gives the same bytes.
"""

from __future__ import annotations

import argparse
import hashlib
import json
import re
import shutil
import subprocess
import sys
import time
from pathlib import Path

PROGRAMS = ("tarnwick", "tarnwickctl")
# What every system has by itself: the C and C++ libraries, by the beginnings of their names.
SYSTEM = ("linux-vdso.so", "ld-linux", "libc.so", "libm.so", "libdl.so", "librt.so", "libpthread.so", "libresolv.so",
          "libstdc++.so", "libgcc_s.so")
# Nothing is drawn by a graphics processor, so what brings the drivers of the machine in stays away.
PLUGINS = ("platforms/libqxcb.so", "platforms/libqoffscreen.so", "platforminputcontexts/*.so")
# Compiled into the programs from their headers, as Debian's packages.
HEADERS = ("libcli11-dev", "nlohmann-json3-dev")
LICENCES = {"libcli11-dev": "BSD-3-Clause", "nlohmann-json3-dev": "MIT", "libsqlite3-0": "blessing", "libcurl4": "curl",
            "libssl3": "Apache-2.0", "zlib1g": "Zlib", "libbrotli1": "MIT", "libzstd1": "BSD-3-Clause",
            "libqt6core6": "LGPL-3.0-only", "libqt6gui6": "LGPL-3.0-only", "libqt6widgets6": "LGPL-3.0-only",
            "libqt6network6": "LGPL-3.0-only", "libqt6dbus6": "LGPL-3.0-only", "qt": "LGPL-3.0-only", "sqlite": "blessing",
            "libre2-9": "BSD-3-Clause", "libxml2": "MIT", "libsimdjson14": "Apache-2.0", "re2": "BSD-3-Clause",
            "simdjson": "Apache-2.0", "curl": "curl", "zlib": "Zlib", "cli11": "BSD-3-Clause", "nlohmann-json": "MIT",
            "compiler": "GPL-3.0-or-later WITH GCC-exception-3.1"}
# Which source packages of Debian the libraries of the Windows build are from.
WINDOWS_SOURCES = {"qt": "qt6-base", "sqlite": "sqlite3", "curl": "curl", "zlib": "zlib", "re2": "re2",
                   "libxml2": "libxml2", "simdjson": "simdjson"}


def output_of(*command) -> str:
    return subprocess.run([str(part) for part in command], stdout=subprocess.PIPE, text=True, check=True).stdout


def libraries_of(*files: Path) -> dict[str, Path]:
    """The libraries that the files need, and theirs, by the names that they ask for."""
    found = {}
    for file in files:
        for line in output_of("ldd", file).splitlines():
            name, _, place = line.strip().partition(" => ")
            if place.startswith("not found"):
                raise SystemExit(f"{file} needs {name}, which is not on this machine.")
            if place and not name.startswith(SYSTEM):
                found[name] = Path(place.split(" (")[0])
    return dict(sorted(found.items()))


def packages_of(files) -> set[str]:
    """The Debian packages that brought the files, by any of their paths."""
    ways = {}
    for file in files:
        real = file.resolve()
        for path in (file, real, Path("/usr") / real.relative_to("/"), Path(str(real).removeprefix("/usr"))):
            ways[str(path)] = file
    done = subprocess.run(["dpkg", "-S", *ways], capture_output=True, text=True, check=False)
    found = {}
    for line in done.stdout.splitlines():
        packages, _, path = line.partition(": ")
        found[ways[path]] = packages.split(":")[0].split(",")[0]
    unknown = [str(file) for file in files if file not in found]
    if unknown:
        raise SystemExit(f"No package has brought {', '.join(unknown)}, so the licence is not known.")
    return set(found.values())


def versions_of(packages) -> dict[str, tuple[str, str]]:
    """The version of each package, and the source package it is built from."""
    lines = output_of("dpkg-query", "-W", "-f", "${Package}\t${Version}\t${source:Package}\n", *sorted(set(packages)))
    return {name: (version, source) for name, version, source in (line.split("\t") for line in lines.splitlines())}


def spdx(version: str, seconds: int, parts: dict[str, tuple[str, str]], relation: str) -> str:
    """The list as SPDX; `parts` are the versions and source packages by name."""
    def entry(name: str, release: str, licence: str, **more) -> dict:
        return {"name": name, "SPDXID": "SPDXRef-" + re.sub(r"[^A-Za-z0-9.-]", "-", name), "versionInfo": release,
                "downloadLocation": "NOASSERTION", "filesAnalyzed": False, "licenseConcluded": "NOASSERTION",
                "licenseDeclared": licence, "copyrightText": "NOASSERTION", **more}

    packages = [entry("tarnwick", version, "MIT", supplier="Organization: The Tarnwick developers")]
    for name, (release, source) in sorted(parts.items()):
        reference = {"referenceCategory": "PACKAGE-MANAGER", "referenceType": "purl",
                     "referenceLocator": f"pkg:deb/debian/{source}@{release}?arch=source"}
        packages.append(entry(name, release, LICENCES.get(name, "NOASSERTION"),
                              **({"externalRefs": [reference]} if source else {})))
    relations = [{"spdxElementId": "SPDXRef-DOCUMENT", "relationshipType": "DESCRIBES",
                  "relatedSpdxElement": "SPDXRef-tarnwick"}]
    relations += [{"spdxElementId": "SPDXRef-tarnwick", "relationshipType": relation,
                   "relatedSpdxElement": package["SPDXID"]} for package in packages[1:]]
    digest = hashlib.sha256(json.dumps([packages, relations]).encode()).hexdigest()
    return json.dumps({"spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT",
                       "name": f"tarnwick-{version}",
                       "documentNamespace": f"https://www.tarnwick.example/spdx/tarnwick-{version}-{digest}",
                       "creationInfo": {"created": time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime(seconds)),
                                        "creators": ["Tool: packaging/made_of.py"]},
                       "packages": packages, "relationships": relations}, indent=1) + "\n"


def write(path: Path, text: str) -> None:
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text, encoding="utf-8")
    path.chmod(0o644)


def lay(source: Path, target: Path, mode: int = 0o644) -> None:
    target.parent.mkdir(parents=True, exist_ok=True)
    shutil.copyfile(source, target)
    target.chmod(mode)


def needs(files) -> str:
    """What is left to the system: the newest versions of its libraries' symbols that the files ask for."""
    newest: dict[str, tuple[int, ...]] = {}
    for file in files:
        for kind, number in re.findall(r"Name: (GLIBC|GLIBCXX|CXXABI|GCC)_([\d.]+)", output_of("readelf", "-VW", file)):
            newest[kind] = max(newest.get(kind, (0,)), tuple(int(part) for part in number.split(".")))
    return "".join(f"{kind}_{'.'.join(map(str, number))}\n" for kind, number in sorted(newest.items()))


def bundle(wish) -> None:
    folder = wish.folder
    plugins = sorted(file for pattern in PLUGINS for file in wish.plugins.glob(pattern))
    programs = [folder / name for name in PROGRAMS]
    libraries = libraries_of(*programs, *plugins)
    for name, file in libraries.items():
        lay(file, folder / "lib" / name)
    for file in plugins:
        lay(file, folder / "plugins" / file.relative_to(wish.plugins))
    for program in programs:
        # As the older kind of path it counts for the libraries of the libraries, too; programs that are started never
        # see it, which a variable of the environment they would.
        subprocess.run(["patchelf", "--force-rpath", "--set-rpath", "$ORIGIN/lib", program], check=True)
    packages = packages_of([*libraries.values(), *plugins])
    for package in sorted(packages | set(HEADERS)):
        lay(Path("/usr/share/doc") / package / "copyright", folder / "licenses" / f"{package}.txt")
    write(folder / "needs.txt", needs(file for kind in ("lib/*", "plugins/*/*", "tarnwick", "tarnwickctl")
                                      for file in sorted(folder.glob(kind))))
    write(folder / "tarnwick.spdx.json", spdx(wish.version, wish.time, versions_of(packages | set(HEADERS)), "CONTAINS"))


def sbom(wish) -> None:
    needed = []
    for program in wish.programs:
        direct = re.findall(r"\(NEEDED\).*\[(.+)\]", output_of("readelf", "-dW", program))
        needed += [file for name, file in libraries_of(program).items() if name in direct]
    write(wish.to, spdx(wish.version, wish.time, versions_of(packages_of(needed) | set(HEADERS)), "DEPENDS_ON"))


def windows(wish) -> None:
    parts = {}
    for line in wish.libraries.read_text(encoding="utf-8").splitlines():
        name, *releases = line.split()
        if name == "headers":
            parts["cli11"], parts["nlohmann-json"] = (releases[0], "cli11"), (releases[1], "nlohmann-json3")
        else:
            parts[name] = (releases[0], WINDOWS_SOURCES.get(name, ""))
    write(wish.folder / "tarnwick.spdx.json", spdx(wish.version, wish.time, parts, "CONTAINS"))
    for notice in sorted(wish.notices.iterdir()):
        lay(notice, wish.folder / "licenses" / f"{notice.name}.txt")
    for package in HEADERS:
        lay(Path("/usr/share/doc") / package / "copyright", wish.folder / "licenses" / f"{package}.txt")


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    kinds = parser.add_subparsers(required=True)
    for kind, wanted in ((bundle, ("folder", "plugins")), (sbom, ("programs", "to")),
                         (windows, ("folder", "libraries", "notices"))):
        one = kinds.add_parser(kind.__name__)
        one.add_argument("--version", required=True)
        one.add_argument("--time", type=int, required=True)
        for name in wanted:
            one.add_argument(f"--{name}", type=Path, required=True, nargs="+" if name == "programs" else None)
        one.set_defaults(kind=kind)
    wish = parser.parse_args()
    wish.kind(wish)
    return 0


sys.exit(main())
