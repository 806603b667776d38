"""The rooms: who knows whom, and who knows which library."""

from __future__ import annotations

import re

from rules.tree import Tree, room_of

# The rooms, and which others each may include: the whole of who knows whom. A room is a folder of src; what is named
# here includes nothing else, and what is not named here is no room.
MACHINE = ("base", "platform")
DATA = (*MACHINE, "history", "holes", "store")
RUN = (*DATA, "difference", "finding", "page_rules", "uucode", "mail", "alerts", "delivery", "report", "engine")
EXCHANGE = (*RUN, "program", "exchange/json")
TOOL = (*EXCHANGE, "exchange/list", "exchange/foreign", "cli/terminal")
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
    "platform/secrets": (*MACHINE, "platform/os"),
    "platform/desktop": (*MACHINE, "platform/os", "platform/secrets"),
    "history": MACHINE,
    "holes": MACHINE,
    "difference": MACHINE,
    "finding": MACHINE,
    "page_rules": (*MACHINE, "holes"),
    "store": (*MACHINE, "history", "holes"),
    "uucode": MACHINE,
    "mail": MACHINE,
    "alerts": (*DATA, "mail"),
    "delivery": (*DATA, "alerts"),
    "report": DATA,
    "engine": (*DATA, "difference", "finding", "page_rules", "alerts", "delivery", "report", "platform/os"),
    "program": RUN,
    "exchange/json": MACHINE,
    "exchange/list": EXCHANGE,
    "exchange/foreign": (*EXCHANGE, "exchange/list", "platform/os"),
    "cli/terminal": (*MACHINE, "exchange/json"),
    "cli/verbs": TOOL,
    "ui/controls": (*RUN, "program"),
    "ui/baseline": WINDOW,
    "ui/site": (*WINDOW, "ui/baseline", "platform/desktop"),
    "ui/settings": WINDOW,
    "ui/exchange": (*WINDOW, "exchange/list", "exchange/foreign", "platform/os"),
    "ui/outbox": WINDOW,
    "ui/rows": WINDOW,
    "ui/history": WINDOW,
    "ui/details": (*WINDOW, "ui/history"),
    "ui/main_window": (*WINDOW, "ui/rows", "ui/history", "ui/details"),
    "app": None,  # puts together whatever there is
}
# What reads the files of other programs.
FOREIGN = r"libxml/.*|yaml-cpp/.*|zip\.h|mdbtools\.h"
# What finds the parts of pages that rules name.
PARTS = r"re2/.*|simdjson\.h"
# The libraries of others that a room may include, by the headers' names; all others include standard C++ and the system
# alone.
CODINGS = r"zlib\.h|brotli/.*|zstd\w*\.h"
QT = r"Q[A-Z]\w*|Qt\w*/.*|q[a-z]+\.h"
KEY_RING = r"qt6keychain/.*"
LIBRARIES = {
    "platform/os": r"openssl/evp\.h",
    "platform/sqlite": r"sqlite3\w*\.h",
    "platform/web": rf"curl/.*|openssl/.*|{CODINGS}|{QT}",
    "platform/events": QT,
    "platform/process": QT,
    "platform/secrets": QT,
    "platform/desktop": rf"{QT}|{KEY_RING}",
    "page_rules": rf"libxml/.*|{PARTS}",
    "exchange/json": r"nlohmann/.*",
    "exchange/list": r"nlohmann/.*",
    "exchange/foreign": rf"nlohmann/.*|{FOREIGN}",
    "cli/verbs": r"CLI/.*|nlohmann/.*",
    "ui/controls": QT,
    "ui/baseline": QT,
    "ui/site": QT,
    "ui/settings": QT,
    "ui/exchange": QT,
    "ui/outbox": QT,
    "ui/rows": QT,
    "ui/history": QT,
    "ui/details": QT,
    "ui/main_window": QT,
    "app": QT,
}

LIBRARY = re.compile(rf"^({QT}|sqlite3\w*\.h|curl/.*|openssl/.*|{CODINGS}|CLI/.*|nlohmann/.*|{FOREIGN}|{PARTS}|{KEY_RING})$")
# No room holds more of the lines of src than this.
LARGEST_SHARE = 0.20
FEWEST_LINES_OF_A_HOUSE = 5000  # below, a share says nothing


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


def ways_between_rooms(tree: Tree) -> dict[str, dict[str, tuple[str, int]]]:
    """Which room includes which other, each with one place where it does."""
    ways: dict[str, dict[str, tuple[str, int]]] = {}
    for name in tree.lines:
        room = room_of(name)
        for number, _, target in tree.includes(name) if room else ():
            other = room_of(target) if target else None
            if other is not None and other != room:
                ways.setdefault(room, {}).setdefault(other, (name, number))
    return ways


def rooms_stand_in_no_circle(tree: Tree):
    """No room includes itself by way of others, whatever the table allows."""
    ways = ways_between_rooms(tree)
    closed: set[str] = set()

    def walk(room: str, path: tuple[str, ...]):
        if room in path:
            circle = path[path.index(room):]
            last = ways[circle[-1]][room]
            yield (*last, f"closes a circle of rooms: {' -> '.join((*circle, room))}. Move the shared piece down, or hand it "
                   "in.")
        elif room not in closed:
            for other in sorted(ways.get(room, {})):
                yield from walk(other, (*path, room))
            closed.add(room)

    for room in sorted(ways):
        yield from walk(room, ())


def no_room_is_the_house(tree: Tree):
    sizes: dict[str, int] = {}
    for name, lines in tree.lines.items():
        if room := room_of(name):
            sizes[room] = sizes.get(room, 0) + len(lines)
    whole = sum(sizes.values())
    for room, size in sorted(sizes.items()):
        if whole >= FEWEST_LINES_OF_A_HOUSE and size > whole * LARGEST_SHARE:
            yield (f"src/{room}", 1, f"holds {size} of the {whole} lines of src, {size / whole:.0%}; "
                   f"{LARGEST_SHARE:.0%} are allowed. Give what is an idea of its own a room of its own.")


RULES = (every_source_has_a_room, rooms_open_downwards, rooms_stand_in_no_circle, no_room_is_the_house,
         libraries_stay_in_their_rooms)
