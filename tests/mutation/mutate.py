#!/usr/bin/env python3
"""Breaks the judging, due-site, pool, pass and mail code in one place at a time and looks whether a test notices.

    mutate.py SOURCE_FOLDER WORK_FOLDER [--only TEXT] [--list]

The sources are copied to WORK_FOLDER, so that nothing is ever broken in place. A mutant flips an operator or a constant,
or leaves a call out. One that no test notices is a survivor; each must be explained in survivors.txt beside this
script. Exit status 1 when one is not, or when an explanation fits no survivor any more.
"""

from __future__ import annotations

import argparse
import os
import re
import shutil
import subprocess
import sys
import time
from dataclasses import dataclass
from pathlib import Path

# What is broken, and the test programs that must notice: the quick ones first.
SUBJECTS = {
    "src/engine/result_recording.cpp": ("engine", "machine"),
    "src/engine/due_sites.cpp": ("engine", "machine"),
    "src/engine/test_pass.cpp": ("engine", "machine", "faults"),
    "src/engine/inet_pool.cpp": ("machine",),
    "src/mail/smtp.cpp": ("mail", "machine"),
    "src/mail/mail_socket.cpp": ("mail", "machine"),
}

FLIPS = [
    (re.compile(r"(?<![=!<>])==(?!=)"), "!="),
    (re.compile(r"!="), "=="),
    (re.compile(r"(?<= )<(?= )"), "<="),
    (re.compile(r"(?<= )<=(?= )"), "<"),
    (re.compile(r"(?<= )>(?= )"), ">="),
    (re.compile(r"(?<= )>=(?= )"), ">"),
    (re.compile(r"&&"), "||"),
    (re.compile(r"(?<= )\|\|(?= )"), "&&"),
    (re.compile(r"\btrue\b"), "false"),
    (re.compile(r"\bfalse\b"), "true"),
    (re.compile(r"(?<= )\+ 1\b"), "- 1"),
    (re.compile(r"(?<= )- 1\b"), "+ 1"),
    (re.compile(r"\+\+(?=\w)"), "--"),
    (re.compile(r"(?<=[( ])!(?=[a-z])"), ""),
]
# A call whose result nobody takes.
CALL = re.compile(r"^\s+[A-Za-z_][\w.]*(?:\(\))?(?:(?:\.|->)\w+(?:\(\))?)*\([^=]*\);$")
TEST_LIMIT = 90


@dataclass(frozen=True)
class Mutant:
    file: str
    line: int
    before: str
    after: str

    def title(self) -> str:
        return f"{self.file}: {self.before.strip()} -> {self.after.strip() or '(left out)'}"


def code_of(line: str) -> str:
    """The line with its comment and its quoted texts blanked out, column by column."""
    blank = lambda found: " " * len(found.group())
    return re.sub(r"//.*", blank, re.sub(r'"(?:[^"\\]|\\.)*"|\'(?:[^\'\\]|\\.)*\'', blank, line))


def mutants_of(file: str, text: str):
    for number, line in enumerate(text.splitlines(), 1):
        code = code_of(line)
        if code.lstrip().startswith(("#", "template", "constexpr std::string_view")):
            continue
        for pattern, replacement in FLIPS:
            for found in pattern.finditer(code):
                yield Mutant(file, number, line, line[:found.start()] + replacement + line[found.end():])
        if CALL.match(code) and not code.lstrip().startswith(("return", "throw")):
            yield Mutant(file, number, line, "")


def run(command: list[str], **options) -> bool:
    try:
        return subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False,
                              **options).returncode == 0
    except subprocess.TimeoutExpired:
        return False


class Bench:
    """A copy of the sources with a build of its own."""

    def __init__(self, source: Path, work: Path):
        self.tree = work / "source"
        self.build = work / "build"
        listed = subprocess.run(["git", "-C", str(source), "ls-files", "-z"], capture_output=True, check=True).stdout
        for name in listed.decode().split("\0"):
            if name and (source / name).is_file():
                (self.tree / name).parent.mkdir(parents=True, exist_ok=True)
                if not (self.tree / name).is_file() or (self.tree / name).read_bytes() != (source / name).read_bytes():
                    shutil.copyfile(source / name, self.tree / name)
                    shutil.copymode(source / name, self.tree / name)
        self.environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "no_proxy": "*", "NO_PROXY": "*"}
        # Quick to compile: what a mutant does is the same without optimization.
        configured = run(["cmake", "-S", str(self.tree), "-B", str(self.build), "-G", "Ninja",
                          "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0", "-DBUILD_TESTING=ON"])
        if not configured:
            sys.exit("The copy of the sources could not be configured.")

    def compiles(self, rooms) -> bool:
        return run(["cmake", "--build", str(self.build), "--target", *[f"test_{room}" for room in rooms]])

    def passes(self, room: str) -> bool:
        return run([str(self.build / "tests" / room / f"test_{room}"), "--gtest_fail_fast", "--gtest_brief=1"],
                   env=self.environment, cwd=self.build / "tests" / room, timeout=TEST_LIMIT)

    def fate_of(self, mutant: Mutant) -> str:
        file = self.tree / mutant.file
        whole = file.read_text(encoding="utf-8")
        lines = whole.splitlines(keepends=True)
        lines[mutant.line - 1] = mutant.after + "\n"
        try:
            file.write_text("".join(lines), encoding="utf-8")
            if not self.compiles(SUBJECTS[mutant.file]):
                return "does not compile"
            for room in SUBJECTS[mutant.file]:
                if not self.passes(room):
                    return f"noticed by {room}"
            return "survived"
        finally:
            file.write_text(whole, encoding="utf-8")


def explanations() -> dict[str, str]:
    known = {}
    for line in (Path(__file__).parent / "survivors.txt").read_text(encoding="utf-8").splitlines():
        if line.strip() and not line.startswith("#"):
            title, _, reason = line.partition(" | ")
            known[title.strip()] = reason.strip()
    return known


def main() -> int:
    options = argparse.ArgumentParser()
    options.add_argument("source", type=Path)
    options.add_argument("work", type=Path)
    options.add_argument("--only", default="", help="only the mutants whose title holds this text")
    options.add_argument("--list", action="store_true", help="name the mutants and break nothing")
    given = options.parse_args()

    mutants = [mutant for file in SUBJECTS
               for mutant in mutants_of(file, (given.source / file).read_text(encoding="utf-8"))
               if given.only in mutant.title()]
    if given.list:
        print(*[mutant.title() for mutant in mutants], sep="\n")
        return 0

    bench = Bench(given.source.resolve(), given.work.resolve())
    rooms = sorted({room for subject in SUBJECTS.values() for room in subject})
    if not bench.compiles(rooms) or not all(bench.passes(room) for room in rooms):
        print("The tests do not pass on the sources as they are.", file=sys.stderr)
        return 2

    known = explanations()
    begun = time.monotonic()
    fates: dict[str, int] = {}
    unexplained = 0
    met = set()
    for number, mutant in enumerate(mutants, 1):
        fate = bench.fate_of(mutant)
        kind = fate.split()[0]
        fates[kind] = fates.get(kind, 0) + 1
        if fate == "survived":
            met.add(mutant.title())
            reason = known.get(mutant.title(), "")
            unexplained += not reason
            fate += f": {reason}" if reason else ", and nothing explains it"
        print(f"{number}/{len(mutants)} {mutant.title()} (line {mutant.line}): {fate}", flush=True)

    stale = [title for title in known if title not in met and not given.only]
    for title in stale:
        print(f"survivors.txt explains what did not survive: {title}", file=sys.stderr)
    print(f"{len(mutants)} mutants in {time.monotonic() - begun:.0f} s: {fates.get('noticed', 0)} noticed, "
          f"{fates.get('survived', 0)} survived ({unexplained} unexplained), {fates.get('does', 0)} did not compile.")
    return 1 if unexplained or stale else 0


if __name__ == "__main__":
    sys.exit(main())
