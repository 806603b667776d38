#!/usr/bin/env python3
"""Looks at the programs that people get: whether they were built with the guards that the build asks for.

    hardening_test.py BUILD_FOLDER SOURCE_FOLDER

Exit status 0: passed, 1: failed, 77: the machine lacks the tools for it.
"""

from __future__ import annotations

import json
import platform
import re
import shutil
import subprocess
import sys
from pathlib import Path

SKIPPED = 77
PROGRAMS = ("tarnwick", "tarnwickctl")
FLAGS = ("-fstack-protector-strong", "-fstack-clash-protection", "-D_FORTIFY_SOURCE=3", "-D_GLIBCXX_ASSERTIONS")
# What the build as people get it has beside these.
GUARDS = ("-Wformat", "-Werror=format-security", *(["-fcf-protection"] if platform.machine() == "x86_64" else []))
# What a program shows of each guard: in which part of the answer, and what stands there.
SIGNS = {
    "it can lie at any address": ("-h", r"Type:\s+DYN"),
    "its tables of addresses are read-only": ("-lW", r"GNU_RELRO"),
    "all addresses are looked up at its start": ("-dW", r"BIND_NOW|FLAGS_1.*\bNOW\b"),
    "nothing on its stack is run": ("-lW", r"GNU_STACK\s.*\sRW\s"),
    "its stacks are guarded": ("-sW", r"__stack_chk_fail"),
    "the C library checks its buffers": ("-sW", r"__\w+_chk\b(?<!stack_chk)"),
    "its containers are checked": ("-sW", r"__glibcxx_assert_fail"),
}


def faults_of_flags(build: Path, source: Path):
    has_guards = "TARNWICK_GUARDS:BOOL=ON" in (build / "CMakeCache.txt").read_text(encoding="utf-8")
    flags = (*FLAGS, *GUARDS) if has_guards else FLAGS
    for entry in json.loads((build / "compile_commands.json").read_text(encoding="utf-8")):
        name = Path(entry["directory"], entry["file"]).resolve()
        if not name.is_relative_to(source / "src"):
            continue
        words = entry["command"].split()
        for flag in flags:
            if flag not in words or any(word.startswith("-U_FORTIFY_SOURCE") for word in words):
                yield f"{name.relative_to(source)} is compiled without {flag}"


def faults_of_program(program: Path):
    for what, (part, sign) in SIGNS.items():
        shown = subprocess.run(["readelf", part, str(program)], capture_output=True, text=True, check=True).stdout
        if not re.search(sign, shown):
            yield f"{program.name}: there is no sign that {what} (readelf {part})"


def faults_of_service(source: Path):
    service = (source / "docs/systemd/tarnwick.service").read_text(encoding="utf-8").splitlines()
    if "LimitCORE=0" not in service:
        yield "the service may leave a dump of its memory, with the passwords in it"


def main() -> int:
    build, source = (Path(argument).resolve() for argument in sys.argv[1:3])
    if shutil.which("readelf") is None:
        print("skipped: readelf is not installed (package binutils)")
        return SKIPPED
    faults = [*faults_of_flags(build, source), *faults_of_service(source)]
    for program in PROGRAMS:
        faults += faults_of_program(build / "tarnwick" / program)
    print("\n".join(faults))
    return 1 if faults else 0


sys.exit(main())
