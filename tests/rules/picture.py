"""The picture of the rooms, docs/images/house.svg, drawn from the table: scripts/draw-house.sh.

What a room says of itself is the first line of its CMakeLists.txt. A room stands above all that it includes.
"""

from __future__ import annotations

import sys
import textwrap
from pathlib import Path
from xml.sax.saxutils import escape

from rules.rooms import ROOMS

PICTURE = "docs/images/house.svg"
WIDTH, EDGE, GAP, LINE = 880, 20, 14, 19
CHARACTER = 7.4  # of the small letters, on the safe side for the fonts that are named
COLOURS = {  # paper and frame; every text stands on a box with a colour of its own, so it can be read on any paper
    "app": ("#2b3644", "#7d8a97"), "ui": ("#1f5fae", "#84b6f4"), "cli": ("#1f5fae", "#84b6f4"),
    "program": ("#4b3f8f", "#a9a0e6"), "platform": ("#7a4a12", "#e0b070"), "base": ("#2b3644", "#7d8a97"),
}
CORE = ("#1d6b45", "#73db9f")


def idea_of(root: Path, room: str) -> str:
    lists = root / "src" / room / "CMakeLists.txt"
    first = lists.read_text(encoding="utf-8").splitlines()[0] if lists.is_file() else ""
    return first.removeprefix("#").strip().rstrip(".")


def storeys() -> list[list[str]]:
    """The folders of src from the roof down, each above all those that its rooms include."""
    folders = {room.split("/")[0]: set() for room in ROOMS}
    for room, below in ROOMS.items():
        folder = room.split("/")[0]
        folders[folder] |= {other.split("/")[0] for other in (ROOMS if below is None else below)} - {folder}
    heights: dict[str, int] = {}

    def height(folder: str) -> int:
        if folder not in heights:
            heights[folder] = 1 + max((height(below) for below in folders[folder]), default=-1)
        return heights[folder]

    top = max(height(folder) for folder in folders)
    return [[folder for folder in folders if heights[folder] == level] for level in range(top, -1, -1)]


def box(x: float, y: float, width: float, height: float, colours: tuple[str, str], opacity: str = "") -> str:
    return (f'  <rect x="{x:g}" y="{y:g}" width="{width:g}" height="{height:g}" rx="9" fill="{colours[0]}"'
            f' stroke="{colours[1]}" stroke-width="1.5"{opacity}/>\n')


def texts(x: float, y: float, title: str, lines: list[str]) -> str:
    drawn = f'  <text x="{x:g}" y="{y:g}" fill="#ffffff" font-weight="bold">{escape(title)}</text>\n'
    for number, line in enumerate(lines, 1):
        drawn += f'  <text x="{x:g}" y="{y + number * LINE:g}" fill="#ffffff" font-size="13">{escape(line)}</text>\n'
    return drawn


def wrapped(text: str, width: float) -> list[str]:
    return textwrap.wrap(text, max(12, int((width - 2 * GAP) / CHARACTER)))


class Folder:
    """A box with what the folder says of itself and, below, a box for each room in it."""

    def __init__(self, root: Path, name: str, width: float):
        self.name, self.width = name, width
        self.lines = wrapped(idea_of(root, name), width) if name in ROOMS else []
        self.rooms = [room for room in ROOMS if room.startswith(name + "/")]
        columns = max(1, int((width - GAP) // 190))
        self.room_width = (width - GAP) / columns - GAP
        ideas = [wrapped(idea_of(root, room), self.room_width) for room in self.rooms]
        self.rows = [list(zip(self.rooms, ideas))[at:at + columns] for at in range(0, len(ideas), columns)]
        self.row_heights = [34 + LINE * max(len(lines) for _, lines in row) for row in self.rows]
        self.head = 36 + LINE * len(self.lines)
        self.height = self.head + sum(height + GAP for height in self.row_heights)

    def draw(self, x: float, y: float, height: float) -> str:
        colours = COLOURS.get(self.name, CORE)
        drawn = box(x, y, self.width, height, colours) + texts(x + GAP, y + 25, self.name + "/", self.lines)
        y += self.head
        for row, row_height in zip(self.rows, self.row_heights):
            for column, (room, lines) in enumerate(row):
                left = x + GAP + column * (self.room_width + GAP)
                drawn += box(left, y, self.room_width, row_height, ("#ffffff", colours[1]), ' fill-opacity="0.08"')
                drawn += texts(left + 10, y + 22, room.split("/")[1] + "/", lines)
            y += row_height + GAP
        return drawn


def draw(root: Path) -> str:
    drawn, y = "", 16
    for number, names in enumerate(storeys()):
        width = (WIDTH - 2 * EDGE - GAP * (len(names) - 1)) / len(names)
        folders = [Folder(root, name, width) for name in names]
        height = max(folder.height for folder in folders)
        for column, folder in enumerate(folders):
            x = EDGE + column * (width + GAP)
            middle = x + width / 2
            if number > 0:
                drawn += (f'  <path d="M{middle:g},{y - 25:g} v14" stroke="#7d8a97" stroke-width="2.5"/>'
                          f'<path d="M{middle - 5:g},{y - 12:g} h10 l-5,9 z" fill="#7d8a97"/>\n')
            drawn += folder.draw(x, y, height)
        y += height + 28
    return ('<svg xmlns="http://www.w3.org/2000/svg" '
            f'viewBox="0 0 {WIDTH} {y - 12:g}" font-family="DejaVu Sans, Segoe UI, system-ui, sans-serif" font-size="15" '
            'role="img" aria-label="The rooms of the program, from the front ends down to the machine">\n'
            f"  <!-- Made by scripts/draw-house.sh from the table of the rooms. -->\n{drawn}</svg>\n")


def the_picture_is_that_of_the_table(root: Path):
    picture = root / PICTURE
    if picture.is_file() and picture.read_text(encoding="utf-8") != draw(root):
        yield PICTURE, 1, "shows other rooms than there are: run scripts/draw-house.sh."


if __name__ == "__main__":
    house = Path(sys.argv[1])
    (house / PICTURE).write_text(draw(house), encoding="utf-8")
