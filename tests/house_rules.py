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

# The rooms, and which others each may include: the whole of who knows whom. A room is a folder of src; what is named
# here includes nothing else, and what is not named here is no room.
MACHINE = ("base", "platform")
DATA = (*MACHINE, "store")
RUN = (*DATA, "uucode", "mail", "alerts", "report", "engine")
TOOL = (*RUN, "program", "cli/terminal")
WINDOW = (*RUN, "program", "ui/controls")
ROOMS = {
    "base": (),
    "platform": ("base",),
    "platform/os": MACHINE,
    "platform/sqlite": (*MACHINE, "platform/os"),
    "platform/web": (*MACHINE, "platform/os"),
    "platform/events": (*MACHINE, "platform/os"),
    "platform/process": (*MACHINE, "platform/os"),
    "platform/sound": (*MACHINE, "platform/os"),
    "platform/desktop": (*MACHINE, "platform/os"),
    "store": MACHINE,
    "uucode": MACHINE,
    "mail": MACHINE,
    "alerts": (*DATA, "mail"),
    "report": DATA,
    "engine": (*DATA, "alerts", "report"),
    "program": RUN,
    "cli/terminal": DATA,
    "cli/pages": (*RUN, "cli/terminal"),
    "cli/list": TOOL,
    "cli/verbs": (*TOOL, "cli/pages", "cli/list"),
    "ui/controls": (*RUN, "program"),
    "ui/baseline": WINDOW,
    "ui/site": (*WINDOW, "ui/baseline", "platform/desktop"),
    "ui/settings": WINDOW,
    "ui/main_window": WINDOW,
    "app": None,  # puts together whatever there is
}
# The libraries of others that a room may include, by the headers' names; all others include standard C++ and the system
# alone.
QT = r"Q[A-Z]\w*|Qt\w*/.*|q[a-z]+\.h"
LIBRARIES = {
    "platform/sqlite": r"sqlite3\w*\.h",
    "platform/web": rf"curl/.*|{QT}",
    "platform/events": QT,
    "platform/process": QT,
    "platform/sound": QT,
    "platform/desktop": QT,
    "cli/terminal": r"nlohmann/.*",
    "cli/list": r"nlohmann/.*",
    "cli/verbs": r"CLI/.*|nlohmann/.*",
    "ui/controls": QT,
    "ui/baseline": QT,
    "ui/site": QT,
    "ui/settings": QT,
    "ui/main_window": QT,
    "app": QT,
}

MOST_LINES = 500
MOST_LINES_OF_A_FORM = 300

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
LIBRARY = re.compile(rf"^({QT}|sqlite3\w*\.h|curl/.*|CLI/.*|nlohmann/.*)$")
SQL = re.compile(r'"\s*(select\s(?=[^"]*\sfrom\s|\s*")|update\s+\w+\s+set\s|insert\s+into\s|delete\s+from\s'
                 r"|(create|alter|drop)\s+table\s|pragma\s+\w)", re.IGNORECASE)
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
    """The room that a file of src stands in: the folders that it lies in."""
    return str(Path(name).parent.relative_to("src").as_posix()) if name.startswith("src/") else None


def every_source_has_a_room(tree: Tree):
    for name in tree.lines:
        room = room_of(name)
        if room is not None and room not in ROOMS:
            yield (name, 1, f"lies in src/{room}, which is no room: put it where its idea belongs, or name the new room "
                   "and whom it may include in ROOMS of tests/house_rules.py.")


def rooms_open_downwards(tree: Tree):
    """A room includes the rooms below it that the table names, and no others."""
    for name in tree.lines:
        room = room_of(name)
        if ROOMS.get(room) is None:
            continue
        for number, text, target in tree.includes(name):
            other = room_of(target) if target else None
            if other is not None and other != room and other not in ROOMS[room]:
                yield (name, number, f'includes "{text}": {room}/ may include only '
                       f"{', '.join(sorted(ROOMS[room])) or 'itself'}. Pass what is needed in through a constructor, "
                       "or move the shared piece down.")


def libraries_stay_in_their_rooms(tree: Tree):
    """A library is included in the rooms that the table names, and through no header that others include."""
    for start in tree.lines:
        room = room_of(start)
        if room not in ROOMS:
            continue
        allowed = re.compile(rf"^({LIBRARIES.get(room, '(?!)')})$")
        ways = [(start, ())]
        seen = {start}
        while ways:
            name, way = ways.pop()
            for number, text, target in tree.includes(name):
                if LIBRARY.match(text) and not allowed.match(text):
                    through = " through " + " and ".join(way) if way else ""
                    yield (start, 1 if way else number,
                           f"includes <{text}>{through}: that library does not belong in {room}/. Put what needs it "
                           "behind an interface of src/platform and include the library in the .cpp of its room.")
                elif target and target not in seen:
                    seen.add(target)
                    ways.append((target, (*way, target)))


def front_ends_write_no_sql(tree: Tree):
    for name, lines in tree.lines.items():
        if not (room_of(name) or "").startswith(("ui/", "cli/")):
            continue
        for number, line in enumerate(lines, 1):
            if SQL.search(line.split("//")[0]):
                yield (name, number, "writes SQL: make it a procedure of src/store, which window and terminal share.")


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
        if not name.startswith("src/") or (room_of(name) or "").startswith("platform"):
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


RULES = (every_source_has_a_room, rooms_open_downwards, libraries_stay_in_their_rooms, front_ends_write_no_sql, files_are_short, tests_do_not_sleep,
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
            "src/store/b.h": header + '#include "base/c.h"\n', "src/base/c.h": header,
            "src/platform/web/p.cpp": '#include "platform/p.h"\n#include <QString>\n',
            "src/platform/web/CMakeLists.txt": "add_library(p p.cpp)\n",
            "src/app/a.h": header + '#include "platform/web/q.h"\n', "src/platform/web/q.h": header,
            "src/ui/site/text.h": header + 'auto text = tr("Select a site.");  // "select a from b"\n',
            "tests/store/a_test.h": header + "sleep_for(1s);  // sleeps because the file's clock is coarse\n"}),
        "Qt in the core": ("src/store/a.h:2: includes <QString>", {"src/store/a.h": header + "#include <QString>\n"}),
        "SQLite in the core": ("includes <sqlite3.h>", {"src/program/m.h": header + "#include <sqlite3.h>\n"}),
        "curl in the core": ("includes <curl/curl.h>", {"src/engine/a.h": header + "#include <curl/curl.h>\n"}),
        "SQLite in a window": ("belong in ui/site/", {"src/ui/site/a.h": header + "#include <sqlite3.h>\n"}),
        "Qt in the terminal": ("belong in cli/verbs/", {"src/cli/verbs/a.h": header + "#include <QString>\n"}),
        "Qt in the database": ("belong in platform/sqlite/", {
            "src/platform/sqlite/a.h": header + "#include <QString>\n"}),
        "a library by way of a header": ("src/cli/pages/a.h:1: includes <nlohmann/json.hpp> through src/cli/terminal/b.h", {
            "src/cli/list/a.h": header + '#include "cli/terminal/b.h"\n',
            "src/cli/terminal/b.h": header + "#include <nlohmann/json.hpp>\n",
            "src/cli/pages/a.h": header + '#include "cli/terminal/b.h"\n'}),
        "a room that looks up": ('includes "engine/e.h": store/ may include only base, platform', {
            "src/store/a.h": header + '#include "engine/e.h"\n', "src/engine/e.h": header}),
        "a window in the terminal": ('includes "ui/site/s.h": cli/verbs/ may include only', {
            "src/cli/verbs/a.h": header + '#include "ui/site/s.h"\n', "src/ui/site/s.h": header}),
        "a wing in the core": ('includes "platform/sqlite/s.h": store/ may include only', {
            "src/store/a.h": header + '#include "platform/sqlite/s.h"\n', "src/platform/sqlite/s.h": header}),
        "a program in a room": ('includes "app/a.h": program/ may include only', {
            "src/program/p.h": header + '#include "app/a.h"\n', "src/app/a.h": header}),
        "SQL in a window": ("src/ui/site/a.h:2: writes SQL", {
            "src/ui/site/a.h": header + 'auto sql = "select url from sites";\n'}),
        "SQL in the terminal": ("writes SQL", {"src/cli/list/a.h": header + 'auto sql = "UPDATE sites set a = 1";\n'}),
        "a file in no room": ("src/stray/a.h:1: lies in src/stray, which is no room", {"src/stray/a.h": header}),
        "a long source": ("has 501 lines", {"src/store/a.h": header + "\n" * 500}),
        "a long form": ("has 301 lines", {"src/ui/site/a.h": header + "\n" * 300}),
        "a sleep": ("tests/a.h:2: sleeps", {"tests/a.h": header + "std::this_thread::sleep_for(1s);\n"}),
        "a sleep with an empty reason": ("sleeps", {"tests/a.h": header + "QTest::qSleep(5);  // sleeps because\n"}),
        "another sleep": ("sleeps", {"tests/a.h": header + "QThread::sleep(1);\n"}),
        "an unfinished piece": ("src/base/a.h:2: says " + "TO" + "DO", {"src/base/a.h": header + "// " + "TO" + "DO: later\n"}),
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
