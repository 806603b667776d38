#!/usr/bin/env python3
"""Makes the pages of the online help from the user's guide.

    make_help.py DOCS ENTRY FOLDER

DOCS is the folder of the documentation, ENTRY the help page that the window opens; the style of the pages is the one of
ENTRY. Into FOLDER go a page for each text of the guide, the pictures that they show, and the style sheet. A link that
leads nowhere ends it with status 1 and a line that names the text and the link.

The library is markdown-it-py (Debian: python3-markdown-it), which reads Markdown as CommonMark defines it, and its tables.
"""

from __future__ import annotations

import html
import re
import shutil
import sys
from pathlib import Path

from markdown_it import MarkdownIt
from markdown_it.token import Token

# Beside the guide itself: what a user is sent to from there.
MORE_TEXTS = ("tarnwickctl.md", "security.md", "windows.md")

PAGE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{title} - Tarnwick Help</title>
<link rel="stylesheet" href="style.css">
</head>
<body>
<header><div><p><a href="../help.html">Tarnwick Help</a> &rsaquo; <a href="index.html">The user's guide</a></p></div></header>
<main>
{body}</main>
<footer>This page lies in Tarnwick's own folder and needs no network.</footer>
</body>
</html>
"""


class DeadLink(Exception):
    pass


def slug(heading: str) -> str:
    """The anchor of a heading, as GitHub makes it from the heading's text."""
    return re.sub(r"[^\w\- ]", "", heading.strip().lower()).replace(" ", "-")


def text_of(token: Token) -> str:
    return "".join(child.content for child in token.children or () if child.type in ("text", "code_inline"))


class Text:
    """One text of the documentation."""

    def __init__(self, path: Path, parser: MarkdownIt):
        self.path = path
        self.page = path.stem + ".html"
        self.tokens = parser.parse(path.read_text(encoding="utf-8"))
        self.anchors: set[str] = set()
        self.title = path.stem
        for opening, inline in zip(self.tokens, self.tokens[1:]):
            if opening.type != "heading_open":
                continue
            if opening.tag == "h1":
                self.title = text_of(inline)
            anchor = slug(text_of(inline))
            opening.attrSet("id", anchor)
            self.anchors.add(anchor)


class Help:
    def __init__(self, docs: Path):
        self.docs = docs.resolve()
        self.parser = MarkdownIt("commonmark", {"html": False}).enable("table")
        paths = [*sorted((self.docs / "guide").glob("*.md")), *(self.docs / name for name in MORE_TEXTS)]
        self.texts = {path: Text(path, self.parser) for path in paths}
        self.pictures: set[Path] = set()

    def target_of(self, text: Text, link: str) -> str | None:
        """What the link is on a page; None when it leads to a file that the help does not hold."""
        if re.match(r"[a-z]+:", link):
            return link
        name, _, anchor = link.partition("#")
        path = (text.path.parent / name).resolve() if name else text.path
        if not path.exists():
            raise DeadLink(f"{text.path}: the link to {link} leads nowhere.")
        target = self.texts.get(path)
        if target is None:
            return None
        if anchor and anchor not in target.anchors:
            raise DeadLink(f"{text.path}: the link to {link} names no heading of that text.")
        return (target.page if name else "") + (f"#{anchor}" if anchor else "")

    def picture_of(self, text: Text, link: str) -> str:
        path = (text.path.parent / link).resolve()
        if not path.is_file():
            raise DeadLink(f"{text.path}: the picture {link} is not there.")
        self.pictures.add(path)
        return "images/" + path.name

    def lead(self, text: Text) -> None:
        """Puts the links of the pages in place of those of the texts."""
        for block in text.tokens:
            dropped = False
            for token in block.children or ():
                if token.type == "image":
                    token.attrSet("src", self.picture_of(text, str(token.attrGet("src"))))
                elif token.type == "link_open":
                    target = self.target_of(text, str(token.attrGet("href")))
                    dropped = target is None
                    if dropped:
                        token.tag, token.attrs = "span", {}
                    else:
                        token.attrSet("href", target)
                elif token.type == "link_close" and dropped:
                    token.tag = "span"

    def write(self, folder: Path, style: str) -> None:
        (folder / "images").mkdir(parents=True, exist_ok=True)
        for text in self.texts.values():
            self.lead(text)
            body = self.parser.renderer.render(text.tokens, self.parser.options, {})
            # A wide table is moved sideways by itself, not with the page.
            body = body.replace("<table>", '<div class="wide"><table>').replace("</table>", "</table></div>")
            page = PAGE.format(title=html.escape(text.title), body=body)
            (folder / text.page).write_text(page, encoding="utf-8", newline="\n")
        for picture in sorted(self.pictures):
            shutil.copyfile(picture, folder / "images" / picture.name)
        (folder / "style.css").write_text(style, encoding="utf-8", newline="\n")


def check_entry(entry: Path, text: str, help_pages: Help) -> None:
    """The entry page links to the pages of the guide, which lie in the folder help beside it."""
    anchors = {text.page: text.anchors for text in help_pages.texts.values()}
    own = set(re.findall(r'\bid="([^"]+)"', text))
    for link in re.findall(r'\bhref="([^"]+)"', text):
        name, _, anchor = link.partition("#")
        if name and (not name.startswith("help/") or name[5:] not in anchors):
            raise DeadLink(f"{entry}: the link to {link} leads nowhere.")
        if anchor and anchor not in (anchors[name[5:]] if name else own):
            raise DeadLink(f"{entry}: the link to {link} names no heading there.")


def main() -> int:
    if len(sys.argv) != 4:
        print(__doc__, file=sys.stderr)
        return 2
    docs, entry, folder = (Path(argument) for argument in sys.argv[1:])
    text = entry.read_text(encoding="utf-8")
    style = re.search(r"<style>\n(.*?)</style>", text, re.DOTALL)
    try:
        help_pages = Help(docs)
        check_entry(entry, text, help_pages)
        help_pages.write(folder, style.group(1) if style else "")
    except DeadLink as fault:
        print(fault, file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
