#!/usr/bin/env python3
"""The rules of the house that a compiler does not know, checked over the sources.

    house_rules.py FOLDER        checks the repository in FOLDER; exit status 1 when a rule is broken
    house_rules.py --self-test   checks the rules themselves on small trees that break them

Each finding names the file and the line, and says how to mend it.
"""

from __future__ import annotations

import re
import sys
import tempfile
from pathlib import Path

# What each room may include of the others; the rooms that are named nowhere stand above all of them.
ROOMS = {
    "platform": set(),
    "store": {"platform"},
    "alerts": {"store", "platform"},
    "report": {"store", "platform"},
    "engine": {"alerts", "report", "store", "platform"},
}
CORE_ROOMS = ("store", "engine", "alerts", "report")
# Beside the rooms, and open to all of them: constants only.
SHARED_FILES = ("src/base/product.h",)
CORE_FILES = ("product.h", "m.h", "m.cpp", "program.h", "program.cpp", "fault_box.h", "fault_box.cpp",
              "site_draft.h", "site_draft.cpp")

MOST_LINES = 500
MOST_LINES_OF_A_FORM = 300

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
LIBRARY = re.compile(r"^(Q[A-Z]\w*|Qt\w*/.*|q[a-z]+\.h|sqlite3\w*\.h|curl/.*)$")
SLEEP = re.compile(r"\b(sleep_for|sleep_until|usleep|nanosleep|qSleep|msleep)\b|\b(?:QThread|std)?::sleep\s*\("
                   r"|(?<![\w.>:])sleep\s*\(")
REASON = re.compile(r"//\s*sleeps because \S")
SYSTEM = re.compile(r"^\s*#\s*(if|ifdef|ifndef|elif).*\b(_WIN32|_WIN64|__linux__|__unix__|__APPLE__|Q_OS_\w+)\b")
UNFINISHED = re.compile(r"\b(TODO|FIXME|XXX|HACK)\b")


class Tree:
    """The sources under a folder, read once."""

    def __init__(self, root: Path):
        self.root = root
        self.lines: dict[str, list[str]] = {}
        for top in ("src", "tests", "bench"):
            for path in sorted((root / top).rglob("*")):
                if path.suffix in (".h", ".cpp") and path.is_file():
                    text = path.read_text(encoding="utf-8", errors="replace")
                    self.lines[path.relative_to(root).as_posix()] = text.splitlines()

    def includes(self, name: str):
        """The line number, the text and, for one of our own headers, the file of each include."""
        for number, line in enumerate(self.lines[name], 1):
            found = INCLUDE.match(line)
            if not found:
                continue
            own = "src/" + found.group(2)
            beside = str(Path(name).parent.as_posix()) + "/" + found.group(2)
            target = next((file for file in (own, beside) if file in self.lines), None)
            yield number, found.group(2), target


def room_of(name: str) -> str | None:
    parts = name.split("/")
    return parts[1] if parts[0] == "src" and len(parts) > 2 else None


def is_core(name: str) -> bool:
    return room_of(name) in CORE_ROOMS or name in ("src/" + file for file in CORE_FILES)


def no_library_in_the_core(tree: Tree):
    """The core knows neither Qt nor SQLite nor curl, not even through a header that it includes."""
    for core in filter(is_core, tree.lines):
        ways = [(core, ())]
        seen = {core}
        while ways:
            name, way = ways.pop()
            for number, text, target in tree.includes(name):
                if LIBRARY.match(text):
                    through = " through " + " and ".join(way) if way else ""
                    yield (name if not way else core, number if not way else 1,
                           f"includes <{text}>{through}: the core knows no Qt, SQLite or curl. Put what needs it "
                           "behind an interface of src/platform and include the library in the .cpp there.")
                elif target and target not in seen:
                    seen.add(target)
                    ways.append((target, (*way, target)))


def rooms_open_downwards(tree: Tree):
    """A lower room knows nothing of the ones above it."""
    for name in tree.lines:
        room = room_of(name)
        if room not in ROOMS:
            continue
        for number, text, target in tree.includes(name):
            if target is None or target in SHARED_FILES:
                continue
            other = room_of(target)
            if other != room and other not in ROOMS[room]:
                yield (name, number, f'includes "{text}": {room}/ may include only '
                       f"{', '.join(sorted(ROOMS[room])) or 'itself'}. Pass what is needed in through a constructor, "
                       "or move the shared piece down.")


def files_are_short(tree: Tree):
    for name, lines in tree.lines.items():
        limit = MOST_LINES_OF_A_FORM if name.startswith("src/ui/") else MOST_LINES
        if len(lines) > limit:
            yield name, limit + 1, f"has {len(lines)} lines, {limit} are allowed here. Split it by idea, not by length."


def tests_do_not_sleep(tree: Tree):
    for name, lines in tree.lines.items():
        if not name.startswith("tests/"):
            continue
        for number, line in enumerate(lines, 1):
            if SLEEP.search(line.split("//")[0]) and not REASON.search(line):
                yield (name, number, "sleeps: a sleep is either too short or too long. Wait on a condition with a "
                       "limit (support/wait_until.h), or say why not at the end of the line: // sleeps because ...")


def only_the_platform_knows_the_system(tree: Tree):
    for name, lines in tree.lines.items():
        if not name.startswith("src/") or room_of(name) == "platform":
            continue
        for number, line in enumerate(lines, 1):
            if SYSTEM.search(line):
                yield (name, number, "asks which system this is: put what differs behind a function of src/platform, in a "
                       "source that ends with _posix.cpp or _windows.cpp.")


def nothing_is_unfinished(tree: Tree):
    for name, lines in tree.lines.items():
        for number, line in enumerate(lines, 1):
            found = UNFINISHED.search(line)
            if found:
                yield name, number, f"says {found.group(1)}: finish it, or take it out and keep the note elsewhere."


def lists_source(lists: Path, source: str) -> bool:
    if not lists.is_file():
        return False
    # A source of one system may be listed for all of them at once.
    of_any_system = re.sub(r"_(posix|windows)\.cpp$", "_${TARNWICK_SYSTEM}.cpp", source)
    text = lists.read_text(encoding="utf-8")
    return any(re.search(rf"(?<![\w./-]){re.escape(form)}(?![\w.])", text) for form in (source, of_any_system))


def every_source_is_built(tree: Tree):
    for name in tree.lines:
        if not name.endswith(".cpp"):
            continue
        folder, file = Path(name).parent, Path(name).name
        if not any(lists_source(tree.root / place / "CMakeLists.txt", Path(name).relative_to(place).as_posix())
                   for place in (folder, *folder.parents)):
            yield (name, 1, f"is built by no CMakeLists.txt: list {file} in {folder.as_posix()}/CMakeLists.txt, or "
                   "delete it.")


def headers_are_included_once(tree: Tree):
    for name, lines in tree.lines.items():
        if name.endswith(".h") and not any(line.strip() == "#pragma once" for line in lines):
            yield name, 1, "has no include guard: begin it with #pragma once."


RULES = (no_library_in_the_core, rooms_open_downwards, files_are_short, tests_do_not_sleep,
         only_the_platform_knows_the_system, nothing_is_unfinished,
         every_source_is_built, headers_are_included_once)


def findings(root: Path) -> list[str]:
    tree = Tree(root)
    if not tree.lines:
        return [f"{root}: no sources found under src, tests or bench."]
    return [f"{name}:{line}: {text}" for rule in RULES for name, line, text in rule(tree)]


def findings_of(files: dict[str, str]) -> list[str]:
    with tempfile.TemporaryDirectory(prefix="tarnwick-rules-") as folder:
        for name, text in files.items():
            path = Path(folder, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        return findings(Path(folder))


def self_test() -> int:
    header = "#pragma once\n"
    # Each tree, and a piece of the only finding that it must give; None for a tree that breaks no rule.
    trees = {
        "a sound tree": (None, {
            "src/store/a.h": header + '#include "platform/p.h"\n', "src/platform/p.h": header + "#include <string>\n",
            "src/store/b.h": header + '#include "product.h"\n', "src/base/product.h": header,
            "src/platform/p.cpp": '#include "platform/p.h"\n#include <QString>\n',
            "src/platform/CMakeLists.txt": "add_library(p p.cpp)\n",
            "tests/store/a_test.h": header + "sleep_for(1s);  // sleeps because the file's clock is coarse\n"}),
        "Qt in the core": ("src/store/a.h:2: includes <QString>", {"src/store/a.h": header + "#include <QString>\n"}),
        "SQLite in the core": ("includes <sqlite3.h>", {"src/program/m.h": header + "#include <sqlite3.h>\n"}),
        "curl in the core": ("includes <curl/curl.h>", {"src/engine/a.h": header + "#include <curl/curl.h>\n"}),
        "a library by way of a header": ("src/alerts/a.h:1: includes <QtCore/qglobal.h> through src/platform/p.h", {
            "src/alerts/a.h": header + '#include "platform/p.h"\n',
            "src/platform/p.h": header + "#include <QtCore/qglobal.h>\n"}),
        "a room that looks up": ('includes "engine/e.h": store/ may include only platform', {
            "src/store/a.h": header + '#include "engine/e.h"\n', "src/engine/e.h": header}),
        "a long source": ("has 501 lines", {"src/store/a.h": header + "\n" * 500}),
        "a long form": ("has 301 lines", {"src/ui/a.h": header + "\n" * 300}),
        "a sleep": ("tests/a.h:2: sleeps", {"tests/a.h": header + "std::this_thread::sleep_for(1s);\n"}),
        "a sleep with an empty reason": ("sleeps", {"tests/a.h": header + "QTest::qSleep(5);  // sleeps because\n"}),
        "another sleep": ("sleeps", {"tests/a.h": header + "QThread::sleep(1);\n"}),
        "an unfinished piece": ("src/a.h:2: says " + "TO" + "DO", {"src/a.h": header + "// " + "TO" + "DO: later\n"}),
        "a source that is not built": ("is built by no CMakeLists.txt", {
            "src/store/a.cpp": "\n", "src/store/CMakeLists.txt": "add_library(s data.cpp)\n"}),
        "a source of each system": (None, {
            "src/store/a_posix.cpp": "\n", "src/store/a_windows.cpp": "\n",
            "src/store/CMakeLists.txt": "add_library(s a_${TARNWICK_SYSTEM}.cpp)\n"}),
        "a question about the system": ("src/store/a.h:2: asks which system", {
            "src/store/a.h": header + "#ifdef _WIN32\n#endif\n"}),
        "a header without a guard": ("has no include guard", {"src/store/a.h": "int a();\n"}),
        "no sources at all": ("no sources found", {"README.md": "\n"}),
    }
    failures = 0
    for title, (expected, files) in trees.items():
        found = findings_of(files)
        good = not found if expected is None else len(found) == 1 and expected in found[0]
        if not good:
            failures += 1
            print(f"{title}: expected {expected!r}, found {found}", file=sys.stderr)
    print(f"{len(trees) - failures} of {len(trees)} trees were judged rightly.")
    return 1 if failures else 0


def main() -> int:
    if sys.argv[1:] == ["--self-test"]:
        return self_test()
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    found = findings(Path(sys.argv[1]))
    for line in found:
        print(line, file=sys.stderr)
    print(f"{len(found)} findings." if found else "The house rules hold.")
    return 1 if found else 0


sys.exit(main())
