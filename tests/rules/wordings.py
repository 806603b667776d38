"""What keeps the messages translatable: each has a template, and each template is in the file of every language."""

from __future__ import annotations

import re
import xml.etree.ElementTree as ElementTree
from pathlib import Path

TEMPLATES = "translations/messages.txt"
CONTEXT = "Messages"
PLACE = re.compile(r"%\d")


def templates_of(root: Path) -> list[tuple[int, str]]:
    path = root / TEMPLATES
    lines = path.read_text(encoding="utf-8").splitlines() if path.is_file() else []
    return [(number, line) for number, line in enumerate(lines, 1) if line.strip() and not line.startswith("#")]


def texts_of_the_window(root: Path) -> set[str]:
    """What the sources translate themselves."""
    path = root / "translations" / "tarnwick.ts"
    contexts = ElementTree.parse(path).getroot().iter("context") if path.is_file() else ()
    return {message.findtext("source") for context in contexts if context.findtext("name") != CONTEXT
            for message in context.iter("message")}


def plain(text: str) -> str:
    return " ".join(text.split())


def every_text_has_a_template(root: Path, texts):
    """`texts` are those that are worded for a reader: file, line and text."""
    templates = templates_of(root)
    if not templates:
        return
    known = "\n".join([plain(line.replace("%%", "%")) for _, line in templates]
                      + [plain(text) for text in texts_of_the_window(root)])
    for name, line, text in texts:
        for piece in re.split(r"\n|\r|%\d", text):
            if re.search(r"[A-Za-z]{2}", piece) and plain(piece) not in known:
                yield (name, line, f'says "{piece.strip()}", which {TEMPLATES} does not have: add the whole message there, '
                       "%1, %2 ... for what is put in, then run the target update_translations and translate it.")


def places_in(text: str) -> list[str]:
    return sorted(PLACE.findall(text.replace("%%", "")))


def every_template_is_translated(root: Path):
    templates = templates_of(root)
    seen: set[str] = set()
    for number, text in templates:
        if text in seen:
            yield TEMPLATES, number, f'has "{text}" twice: take one away.'
        seen.add(text)
        places = places_in(text)
        if PLACE.findall(text.replace("%%", "")) != [f"%{place}" for place in range(1, len(places) + 1)]:
            yield TEMPLATES, number, "numbers its values otherwise than %1, %2 ... in their order."
    for path in sorted((root / "translations").glob("tarnwick*.ts")) if templates else ():
        name = path.relative_to(root).as_posix()
        found = {message.findtext("source"): message.find("translation")
                 for context in ElementTree.parse(path).getroot().iter("context") if context.findtext("name") == CONTEXT
                 for message in context.iter("message")}
        for text in found.keys() ^ seen:
            yield name, 1, f'and {TEMPLATES} differ in "{text}": run the target update_translations.'
        for text in found.keys() & seen if path.stem != "tarnwick" else ():
            translation = found[text]
            if translation is None or not translation.text or translation.get("type"):
                yield name, 1, f'does not translate "{text}".'
            elif places_in(translation.text) != places_in(text):
                yield name, 1, f'translates "{text}" with other values.'


CHECKS = (every_template_is_translated,)
