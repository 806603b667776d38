#!/usr/bin/env python3
"""The rules of the house that a compiler does not know, checked over the sources.

    house_rules.py FOLDER        checks the repository in FOLDER; exit status 1 when a rule is broken
    house_rules.py --self-test   checks the rules themselves on small trees that break them

Each finding names the file and the line, and says how to mend it. The rules are in tests/rules, the table of the rooms in
tests/rules/rooms.py.
"""

from __future__ import annotations

import sys
import tempfile
from pathlib import Path

sys.dont_write_bytecode = True  # nothing is left among the sources

from rules import build, lines, rooms  # noqa: E402
from rules.tree import Tree  # noqa: E402
from rules.trees import TREES  # noqa: E402

RULES = (*rooms.RULES, *lines.RULES, *build.RULES)


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
    failures = 0
    for title, (expected, files) in TREES.items():
        found = findings_of(files)
        pieces = (expected,) if isinstance(expected, str) else expected or ()
        good = len(found) == len(pieces) and all(piece in line for piece, line in zip(pieces, found))
        if not good:
            failures += 1
            print(f"{title}: expected {expected!r}, found {found}", file=sys.stderr)
    print(f"{len(TREES) - failures} of {len(TREES)} trees were judged rightly.")
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
