"""What no line of a source may say, and how many of them it may have."""

from __future__ import annotations

import re

from rules.tree import Tree, room_of

MOST_LINES = 500
MOST_LINES_OF_A_FORM = 300

SQL = re.compile(r'"\s*(select\s(?=[^"]*\sfrom\s|\s*")|update\s+\w+\s+set\s|insert\s+into\s|delete\s+from\s'
                 r"|(create|alter|drop)\s+table\s|pragma\s+\w)", re.IGNORECASE)
SLEEP = re.compile(r"\b(sleep_for|sleep_until|usleep|nanosleep|qSleep|msleep)\b|\b(?:QThread|std)?::sleep\s*\("
                   r"|(?<![\w.>:])sleep\s*\(")
OWN_REGEX = re.compile(r"\b(MatchesRegex|ContainsRegex)\b")
REASON = re.compile(r"//\s*sleeps because \S")
SYSTEM = re.compile(r"^\s*#\s*(if|ifdef|ifndef|elif).*\b(_WIN32|_WIN64|__linux__|__unix__|__APPLE__|Q_OS_\w+)\b")
CALLBACK = re.compile(r"CURLM?OPT_\w+FUNCTION\b")
TEXTS_OR_LISTS = re.compile(r"\bstd::variant<.*\b(std::(string|vector<.*>)|Array|Object)(?=[,>])")
UNFINISHED = re.compile(r"\b(TODO|FIXME|XXX|HACK)\b")


def front_ends_write_no_sql(tree: Tree):
    for name, lines in tree.lines.items():
        if not (room_of(name) or "").startswith(("ui/", "cli/", "exchange/")):
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


def tests_match_alike_on_each_system(tree: Tree):
    for name, lines in tree.lines.items():
        if not name.startswith("tests/"):
            continue
        for number, line in enumerate(lines, 1):
            if OWN_REGEX.search(line.split("//")[0]):
                yield (name, number, "matches by the test library's own expressions, which know no brackets on Windows: "
                       "take WholeMatch of support/whole_match.h.")


def only_the_platform_knows_the_system(tree: Tree):
    for name, lines in tree.lines.items():
        if not name.startswith("src/") or (room_of(name) or "").startswith("platform"):
            continue
        for number, line in enumerate(lines, 1):
            if SYSTEM.search(line):
                yield (name, number, "asks which system this is: put what differs behind a function of src/platform, in a "
                       "source that ends with _posix.cpp or _windows.cpp.")


def callbacks_are_guarded(tree: Tree):
    for name, lines in tree.lines.items():
        if not name.startswith("src/platform/web/"):
            continue
        for number, line in enumerate(lines, 1):
            if CALLBACK.search(line.split("//")[0]) and "kGuarded<" not in line:
                yield (name, number, "hands libcurl a function as it is: through kGuarded (curl_callback.h) no exception "
                       "crosses the library's C frames.")


def variants_can_be_copied_without_memory(tree: Tree):
    for name, lines in tree.lines.items():
        for number, line in enumerate(lines, 1):
            if TEXTS_OR_LISTS.search(line.split("//")[0]) and "Nothing" not in line:
                yield (name, number, "has a std::variant of texts or lists alone: libstdc++ 12 crashes when memory runs out "
                       "while it is copied. Give it base/nothing.h's Nothing, too.")


def nothing_is_unfinished(tree: Tree):
    for name, lines in tree.lines.items():
        for number, line in enumerate(lines, 1):
            found = UNFINISHED.search(line)
            if found:
                yield name, number, f"says {found.group(1)}: finish it, or take it out and keep the note elsewhere."


def headers_are_included_once(tree: Tree):
    for name, lines in tree.lines.items():
        if name.endswith(".h") and not any(line.strip() == "#pragma once" for line in lines):
            yield name, 1, "has no include guard: begin it with #pragma once."


def sources_name_their_licence(tree: Tree):
    """Whoever finds one file alone can tell what he may do with it. https://spdx.dev/learn/handling-license-info/"""
    if not (tree.root / "LICENSE").is_file():
        return
    for name, lines in tree.lines.items():
        if lines[:1] != ["// SPDX-License-Identifier: MIT"]:
            yield name, 1, "does not name its licence: begin it with // SPDX-License-Identifier: MIT"


RULES = (front_ends_write_no_sql, files_are_short, tests_do_not_sleep, tests_match_alike_on_each_system,
         only_the_platform_knows_the_system, callbacks_are_guarded, variants_can_be_copied_without_memory, nothing_is_unfinished,
         headers_are_included_once, sources_name_their_licence)
