"""The sources, as the rules look at them."""

from __future__ import annotations

import re
from pathlib import Path

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


class Tree:
    """The sources under a folder, read once."""

    def __init__(self, root: Path):
        self.root = root
        self.lines: dict[str, list[str]] = {}
        self.owners: dict[str, str] = {}  # the target that each source and header of src is of
        self.behind: dict[str, set[str]] = {}
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
            ways = ("src/", Path(name).parent.as_posix() + "/", "tests/")
            target = next((way + found.group(2) for way in ways if way + found.group(2) in self.lines), None)
            yield number, found.group(2), target

    def libraries_behind(self, name: str) -> set[str]:
        """The headers of others that a file includes, also by way of our own headers."""
        if name not in self.behind:
            self.behind[name] = set()  # a circle of headers ends here
            for _, text, target in self.includes(name):
                self.behind[name] |= self.libraries_behind(target) if target else {text}
        return self.behind[name]


def room_of(name: str) -> str | None:
    """The room that a file of src stands in: the folders that it lies in."""
    return str(Path(name).parent.relative_to("src").as_posix()) if name.startswith("src/") else None
