"""The build: what is compiled, what of it is linked with what, and which tests need a machine."""

from __future__ import annotations

import re
from pathlib import Path
from posixpath import normpath

from rules.rooms import LIBRARIES, QT, ROOMS
from rules.tree import Tree, room_of

# The targets of libraries, by the headers that need them. A target of Qt brings along the ones behind it.
LIBRARY_TARGETS = (
    ("SQLite::SQLite3", r"sqlite3\w*\.h", ()),
    ("CURL::libcurl", r"curl/.*", ()),
    ("OpenSSL::SSL", r"openssl/ssl\.h", ()),
    ("OpenSSL::Crypto", r"openssl/.*", ()),
    ("ZLIB::ZLIB", r"zlib\.h", ()),
    ("Brotli::Decoder", r"brotli/.*", ()),
    ("Zstandard::Zstandard", r"zstd\w*\.h", ()),
    ("CLI11::CLI11", r"CLI/.*", ()),
    ("nlohmann_json::nlohmann_json", r"nlohmann/.*", ()),
    ("LibXml2::LibXml2", r"libxml/.*", ()),
    ("RE2::RE2", r"re2/.*", ()),
    ("Simdjson::Simdjson", r"simdjson\.h", ()),
    ("Yaml::Yaml", r"yaml-cpp/.*", ()),
    ("Zip::Zip", r"zip\.h", ()),
    ("PkgConfig::MDB", r"mdbtools\.h", ()),
    ("Qt6::Network", r"Q(Tcp|Host|Network|Ssl|LocalS|AbstractSocket)\w*", ("Qt6::Core",)),
    ("Qt6::Widgets", r"Q(Application|StylePainter|\w*(Widget|Dialog|Layout|Button|Edit|Box|TableView|HeaderView|Bar|Label"
                     r"|Menu|Style|StyleOption\w*|Delegate|MainWindow|ToolTip))", ("Qt6::Core", "Qt6::Gui")),
    ("Qt6::DBus", r"QDBus\w*", ("Qt6::Core",)),
    ("Qt6Keychain::Qt6Keychain", r"qt6keychain/.*", ()),
    ("Qt6::Core", r"Q[A-Z]\w*", ()),
)
ANY_LIBRARY = re.compile("|".join(headers for _, headers, _ in LIBRARY_TARGETS))
# The rooms whose tests drive the whole tool, with its transfers and its event loop, though they know no Qt themselves.
WHOLE_TOOL = {"exchange/list", "exchange/foreign", "cli/verbs"}

COMMAND = re.compile(r"^[ \t]*(\w+)[ \t]*\(((?:[^()]|\([^()]*\))*)\)", re.MULTILINE)
SOURCE_NAME = re.compile(r"(?<![\w./${}-])[\w./${}-]+\.cpp(?![\w.])")
MAKES_TARGET = {"tarnwick_room", "add_library", "add_executable", "tarnwick_test"}


def without_comments(text: str) -> str:
    return re.sub(r"#[^\n]*", "", text)


def lists(tree: Tree):
    """Each CMakeLists.txt below src, tests and bench, by its name, without its comments."""
    for top in ("src", "tests", "bench"):
        for path in sorted((tree.root / top).rglob("CMakeLists.txt")):
            yield path.relative_to(tree.root).as_posix(), without_comments(path.read_text(encoding="utf-8"))


def line_of(text: str, place: int) -> int:
    return text.count("\n", 0, place) + 1


def named_sources(tree: Tree, folder: str, text: str):
    """The sources that a text of the CMakeLists.txt in the folder names, each with the place where it does."""
    for found in SOURCE_NAME.finditer(text):
        for system in ("posix", "windows") if "${TARNWICK_SYSTEM}" in found.group(0) else ("",):
            name = normpath(f"{folder}/{found.group(0).replace('${TARNWICK_SYSTEM}', system)}")
            if name in tree.lines:
                yield name, found.start()


def every_source_is_built_once(tree: Tree):
    named: dict[str, str] = {}
    for lists_file, text in lists(tree):
        for name, place in named_sources(tree, str(Path(lists_file).parent), text):
            if name in named:
                yield (lists_file, line_of(text, place), f"names {name}, which {named[name]} names as well: name it in one "
                       "target, and link that one.")
            named[name] = lists_file
    for name in tree.lines:
        if name.endswith(".cpp") and name not in named:
            folder = Path(name).parent.as_posix()
            yield (name, 1, f"is built by no CMakeLists.txt: list {Path(name).name} in {folder}/CMakeLists.txt, or delete "
                   "it.")


def nothing_returns_in_mid_file(tree: Tree):
    for name, text in lists(tree):
        for found in re.finditer(r"(?m)^[ \t]*return[ \t]*\(", text):
            yield (name, line_of(text, found.end()), "leaves by return() what stands below without saying so there: put "
                   "what depends on a condition between if() and endif().")


class Target:
    """A library or program of src: its files and what it links."""

    def __init__(self, place: tuple[str, int]):
        self.place = place
        self.files: list[str] = []
        self.links: dict[str, tuple[str, int]] = {}  # PUBLIC or PRIVATE, and the line


def targets_of(tree: Tree) -> dict[str, Target]:
    """The targets of src by their names. A header belongs to the target of the source with its name, otherwise to the first
    one of its folder."""
    targets: dict[str, Target] = {}
    owners: dict[str, str] = {}
    for lists_file, text in lists(tree):
        folder = str(Path(lists_file).parent)
        if not folder.startswith("src"):
            continue
        first = None
        for command in COMMAND.finditer(text):
            kind, (name, *arguments) = command.group(1), command.group(2).split() or [""]
            name = "tarnwick_" + name if kind == "tarnwick_room" else name
            if kind in MAKES_TARGET:
                targets[name] = Target((lists_file, line_of(text, command.start(1))))
                first = first or name
            if name not in targets or kind not in MAKES_TARGET | {"target_sources", "target_link_libraries"}:
                continue
            for source, _ in named_sources(tree, folder, command.group(2)):
                targets[name].files.append(source)
                owners[source] = name
            visibility = None
            for argument in re.finditer(r"\S+", command.group(2)):
                word = argument.group(0)
                if word in ("PUBLIC", "PRIVATE", "SOURCES", "HEADERS", "HEADERS_OF"):
                    visibility = word if kind in ("tarnwick_room", "target_link_libraries") else None
                elif visibility in ("PUBLIC", "PRIVATE") and (word.startswith("tarnwick_") or "::" in word):
                    targets[name].links[word] = (visibility, line_of(text, command.start(2) + argument.start()))
        for header in tree.lines if first else ():
            if header.endswith(".h") and str(Path(header).parent) == folder:
                stem = header[:-2]
                owner = next((owners[source] for end in (".cpp", "_posix.cpp", "_windows.cpp")
                              if (source := stem + end) in owners), first)
                owners[header] = owner
                targets[owner].files.append(header)
    tree.owners = owners
    return targets


def source_elsewhere(tree: Tree, header: str) -> str | None:
    """The target that holds the source of a header which has none in its own folder: that of a wing for its interface."""
    stem, folder = Path(header).stem, Path(header).parent.as_posix()
    ends = [f"{stem}{end}" for end in (".cpp", "_posix.cpp", "_windows.cpp")]
    if any(f"{folder}/{end}" in tree.lines for end in ends):
        return None
    return next((owner for source, owner in tree.owners.items()
                 if Path(source).name in ends and source.startswith(folder + "/")), None)


def libraries_of(tree: Tree, file: str) -> set[str]:
    """The targets of libraries whose headers a file includes, also by way of the headers of others."""
    return {next(library for library, headers, _ in LIBRARY_TARGETS if re.fullmatch(headers, text))
            for text in tree.libraries_behind(file) if ANY_LIBRARY.fullmatch(text)}


def needs_of(tree: Tree, name: str, target: Target) -> dict[str, str]:
    """What a target includes, as the targets that it must link: PUBLIC when its own headers include a room."""
    needs: dict[str, str] = {}

    def need(other: str | None, visibility: str):
        if other is not None and other != name and needs.get(other) != "PUBLIC":
            needs[other] = visibility

    for file in target.files:
        for _, _, header in tree.includes(file):
            owner = tree.owners.get(header)
            if header and owner != name:
                need(owner, "PUBLIC" if file.endswith(".h") and is_room(name) else "PRIVATE")
                need(source_elsewhere(tree, header), "PRIVATE")
        for library in libraries_of(tree, file):
            need(library, "PRIVATE")
    return needs


def is_room(target: str) -> bool:
    return target.startswith("tarnwick_")


def rooms_link_what_they_include(tree: Tree):
    brought = {library: others for library, _, others in LIBRARY_TARGETS}
    for name, target in targets_of(tree).items():
        needs = needs_of(tree, name, target)
        file, line = target.place
        along = {other for linked in (*target.links, *needs) for other in brought.get(linked, ())}
        for other, wanted in sorted(needs.items()):
            if other not in target.links and other not in along:
                yield (file, line, f"{name} includes what is of {other} and does not link it: add {wanted} {other}.")
            elif other in target.links and target.links[other][0] != wanted:
                why = "a header of it includes that" if wanted == "PUBLIC" else "none of its headers includes that"
                yield (file, target.links[other][1], f"{name} links {other} {target.links[other][0]}: make it {wanted}, "
                       f"{why}.")
        for other, (_, at) in target.links.items():
            if other not in needs:
                yield file, at, f"{name} links {other}, of which it includes nothing: take it out."


def tests_without_a_machine(tree: Tree):
    """What tests a room that knows no Qt links none either."""
    for room in ROOMS:
        if QT in LIBRARIES.get(room, "") or room in WHOLE_TOOL or room == "app":
            continue
        lists_file = tree.root / "tests" / room / "CMakeLists.txt"
        text = without_comments(lists_file.read_text(encoding="utf-8")) if lists_file.is_file() else ""
        for command in COMMAND.finditer(text):
            kit = re.search(r"\b(MACHINE|WINDOW|tarnwick_(machine|window)_test_kit)\b|Qt6::\w+", command.group(2))
            if kit:
                yield (f"tests/{room}/CMakeLists.txt", line_of(text, command.start(2) + kit.start()),
                       f"gives the tests of {room}/ {kit.group(0)}, though that room knows no Qt: use the plain kit, and "
                       "put a test that needs the real machine into tests/machine.")
        for name in tree.lines:
            if str(Path(name).parent) == f"tests/{room}":
                for text in sorted(tree.libraries_behind(name)):
                    if re.fullmatch(QT, text):
                        yield (name, 1, f"includes <{text}>, itself or through a header, though {room}/ knows no Qt: put a "
                               "test that needs the real machine into tests/machine.")
                        break


RULES = (every_source_is_built_once, nothing_returns_in_mid_file, rooms_link_what_they_include, tests_without_a_machine)
