"""The names in the developers' texts: every file, class, member and function between backticks is one of the sources."""

from __future__ import annotations

import re
from functools import cached_property
from pathlib import Path

TEXTS = ("CONTRIBUTING.md", "README.md", "docs/developer.md", "docs/developer/*.md")
CODE_FOLDERS = ("src", "tests", "bench", "cmake", "scripts", "assets", "packaging", ".ci", "docs", "translations")
CODE_ENDINGS = {".h", ".cpp", ".py", ".sh", ".cmake", ".sql", ".txt", ".ts", ".html", ".json", ".supp"}
# Files that are there only when the program has run, by their names.
MADE_LATER = {"tarnwick.mdb", "email.txt", "recovered.txt", "unsteady.txt", "slow.txt", "certificate.txt", "issuer.txt", "online.txt", "laid-once.txt", "report.html"}
# How names are written, which are no names.
MANNERS = {"snake_case", "CamelCase"}
FILE = re.compile(r"^[\w./<>*{}$-]+\.(h|cpp|py|sh|cmake|sql|md|svg|txt|html|service|supp|\*)$")
MEMBER = re.compile(r"^~?([A-Za-z_]\w*)::(~?\w+)(\(.*\))?$")
FUNCTION = re.compile(r"^(\w+)\(.*\)$")
# A word that is no plain English: a capital or an underscore inside, or k and a capital.
WORD = re.compile(r"^([a-z]+[A-Z]\w*|[A-Z][a-z0-9]+[A-Z]\w*|\w+_\w*|[A-Za-z]+_)$")
ARTEFACT = re.compile(r"tarnwick(?:-cli)?[-_]\d[\w.-]*\.(?:tar\.gz|deb|zip|exe)")
FOREIGN = re.compile(r"^(std|fs|Qt|testing|nlohmann|Q[A-Z]\w*)::")


class Sources:
    """The files of the repository, and the words of its code."""

    def __init__(self, root: Path):
        self.root = root
        self.files = {path.relative_to(root).as_posix(): path
                      for top in CODE_FOLDERS for path in sorted((root / top).rglob("*")) if path.is_file()}
        self.files |= {path.name: path for path in root.iterdir() if path.is_file()}
        self.code = {name: path.read_text(encoding="utf-8", errors="replace") for name, path in self.files.items()
                     if path.suffix in CODE_ENDINGS and not name.startswith("docs/")}

    @cached_property
    def words(self) -> set[str]:
        return {word for text in self.code.values() for word in re.findall(r"\w+", text)}

    def has_file(self, name: str) -> bool:
        name = re.sub(r"<\w+>|\$\{\w+\}", "*", name.rstrip("/"))
        ways = [name, "src/" + name, "src/ui/" + name, "tests/" + name, "tests/support/" + name, "scripts/" + name]
        if "*" not in name:
            return any((self.root / way).exists() for way in ways) or (
                "/" not in name and any(file.endswith("/" + name) for file in self.files))
        return any(next(self.root.glob(way), None) for way in ways) or (
            "/" not in name and any(Path(file).match(name) for file in self.files))

    def file_in_src(self, name: str) -> list[str]:
        return [file for file in self.code if file.startswith("src/") and (file == "src/" + name or file.endswith("/" + name)
                                                                          or file == name)]

    def has_member(self, owner: str, member: str) -> bool:
        """Whether a class or enumeration has the member, as far as its braces and its definitions tell."""
        defined = re.compile(rf"\b{owner}::{re.escape(member)}\b")
        head = re.compile(rf"\b(?:class|struct|enum class|enum|namespace)\s+{owner}\b[^;{{]*\{{")
        for text in self.code.values():
            if defined.search(text):
                return True
            for found in head.finditer(text):
                if re.search(rf"(?<!\w){re.escape(member)}\b", body_after(text, found.end())):
                    return True
        return False

    def is_called(self, name: str, file: str) -> bool:
        """Whether anybody in src calls the function that is defined in the file: with a dot or an arrow before it from
        anywhere, or by its bare name where the class it is of is defined."""
        found = re.search(rf"^\S[^(\n]*?\b(\w+)::{name}\(", self.code[file], re.MULTILINE)
        owner = found.group(1) if found else None
        for other, text in self.code.items():
            if not other.startswith("src/"):
                continue
            if re.search(rf"(?:\.|->|&\w+::){name}\b", text):
                return True
            of_owner = owner is None or re.search(rf"^\S[^(\n]*\b{owner}::", text, re.MULTILINE)
            if of_owner and other.endswith(".cpp") and re.search(rf"^[ \t][^\n]*(?<![\w:.>]){name}\b", text, re.MULTILINE):
                return True
        return False


def body_after(text: str, start: int) -> str:
    depth, at = 1, start
    while at < len(text) and depth:
        depth += {"{": 1, "}": -1}.get(text[at], 0)
        at += 1
    return text[start:at]


def spans_of(text: str):
    """The pieces between backticks outside of blocks of code: the line's number, the line, the piece."""
    inside = False
    for number, line in enumerate(text.splitlines(), 1):
        if line.lstrip().startswith("```"):
            inside = not inside
        elif not inside:
            for piece in re.findall(r"`([^`]+)`", line):
                yield number, line, piece


def wrong_name(sources: Sources, piece: str) -> str | None:
    """What is wrong with one name; None when nothing is, or when it is no name of the sources."""
    if piece in MANNERS or FOREIGN.match(piece) or Path(piece).name in MADE_LATER or piece.startswith(("~/", "/", "http", "build/")):
        return None
    top = piece.split("/")[0]
    if "/" in piece and re.fullmatch(r"[\w./<>*{}$-]+", piece) and (sources.has_file(top) or FILE.match(piece)):
        return None if sources.has_file(piece) else "no such file"
    if FILE.match(piece):
        return None if sources.has_file(piece) else "no such file"
    if member := MEMBER.match(piece):
        return None if sources.has_member(member.group(1), member.group(2)) else "no such member"
    if function := FUNCTION.match(piece):
        return None if function.group(1) in sources.words else "no such function"
    if WORD.match(piece):
        return None if piece in sources.words else "no such name"
    return None


def every_name_is_in_the_sources(root: Path):
    sources = None
    for text in (path for pattern in TEXTS for path in sorted(root.glob(pattern))):
        sources = sources or Sources(root)
        for number, _, piece in spans_of(text.read_text(encoding="utf-8")):
            names = piece.split() if re.match(r"(scripts|tests|src|docs|build|cmake)/", piece) else [piece]
            for name in names:
                if problem := wrong_name(sources, name):
                    yield (text.relative_to(root).as_posix(), number, f"names `{name}`: {problem} is in the sources. Name what "
                           "there is, or take the sentence out.")


def every_step_is_taken(root: Path):
    """In a row of a table that names a source and functions after it, these stand in that source and are called."""
    sources = None
    for text in (path for pattern in TEXTS for path in sorted(root.glob(pattern))):
        sources = sources or Sources(root)
        for number, line in enumerate(text.read_text(encoding="utf-8").splitlines(), 1):
            row = re.match(r"\| *\d+ *\|([^|]*)\|", line)
            files: list[str] = []
            for piece in re.findall(r"`([^`]+)`", row.group(1)) if row else ():
                if piece.endswith((".cpp", ".h")):
                    files = sources.file_in_src(piece)
                    continue
                function = re.match(r"(?:\w+::)?(~?)(\w+)", piece)
                if not files or not function or function.group(1) or not re.search("[a-z]", function.group(2)):
                    continue
                name = function.group(2)
                place = (text.relative_to(root).as_posix(), number)
                if not any(re.search(rf"\b{name}\b", sources.code[file]) for file in files):
                    yield (*place, f"names `{piece}` as a step in {files[0]}, which does not have it: name the source that "
                           "does.")
                elif not any(sources.is_called(name, file) for file in files):
                    yield (*place, f"names `{piece}` as a step, and nobody calls it: name what is called instead.")


def artefacts_of(root: Path) -> set[str]:
    """What a release of this version is made of, by the names that CMake and the scripts give."""
    project = re.search(r"^project\(\w+ VERSION ([\d.]+)", text_of(root / "CMakeLists.txt"), re.MULTILINE)
    release = re.search(r"^set\(package_release (\d+)\)", text_of(root / "cmake/Packages.cmake"), re.MULTILINE)
    version, package = (found.group(1) if found else "" for found in (project, release))
    windows = f"tarnwick-{version}-windows-x86_64"
    return {f"tarnwick-{version}.tar.gz", f"tarnwick-{version}-linux-x86_64.tar.gz", f"{windows}.zip", f"{windows}-setup.exe",
            f"tarnwick-cli_{version}-{package}_amd64.deb", f"tarnwick_{version}-{package}_amd64.deb"}


def text_of(path: Path) -> str:
    return path.read_text(encoding="utf-8") if path.is_file() else ""


def every_artefact_has_its_name(root: Path):
    """Whoever copies a name out of the documentation finds that file in the release."""
    artefacts = artefacts_of(root)
    for path in (*sorted(root.glob("*.md")), *sorted((root / "docs").rglob("*.md")), *sorted((root / "packaging").rglob("*.txt"))):
        if path.name == "CHANGELOG.md":
            continue
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            for name in ARTEFACT.findall(line):
                if name not in artefacts:
                    yield (path.relative_to(root).as_posix(), number, f"names {name}, which is no file of this version: write "
                           "the name that CMakeLists.txt and cmake/Packages.cmake give it.")


CHECKS = (every_artefact_has_its_name, every_name_is_in_the_sources, every_step_is_taken)
