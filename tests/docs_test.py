#!/usr/bin/env python3
"""What keeps the documentation true: every message is explained, every link leads somewhere, every picture is there, and
what the developers' texts name is in the sources.

    docs_test.py FOLDER        checks the repository in FOLDER; exit status 1 with a line for each finding
    docs_test.py --self-test   checks the checks themselves on small trees

A message is a text of the sources in src/ that is worded for a reader: three words or more, unless it is a statement, a
help text of the command line, a result that was asked for, or named in NO_MESSAGES below. Whatever is added to the
sources counts as a message until one of these says otherwise. Its place is docs/guide/troubleshooting.md; values that
the program puts into a text are written there as "..." and end what is compared.
"""

from __future__ import annotations

import fnmatch
import re
import sys
import tempfile
from pathlib import Path

sys.dont_write_bytecode = True  # nothing is left among the sources

from rules import names, picture, wordings  # noqa: E402

MESSAGES = "docs/guide/troubleshooting.md"

TOKEN = re.compile(r'//[^\n]*|/\*.*?\*/|R"(?P<mark>\w*)\((?P<raw>.*?)\)(?P=mark)"|"(?P<text>(?:[^"\\\n]|\\.)*)"'
                   r"|'(?:[^'\\\n]|\\.)+'|#[^\n]*|\s+|[A-Za-z_]\w*|\d[\w.']*|.", re.DOTALL)
ESCAPE = {"n": "\n", "r": "\r", "t": "\t", '"': '"', "\\": "\\"}

# Texts inside of these calls are the command line's own help, results, names for the eye, or statements.
HELP_CALLS = {"Verb", "VerbOption", "upkeepVerb", "examples", "add_option"}
RESULT_CALLS = {"say", "told", "tell", "line"}
LABEL_CALLS = {"original", "label", "meaning", "choices", "takes",  # of an option
               "addButton", "setToolTip", "setAccessibleName", "setWindowTitle", "named", "setTitle"}
STATEMENT_CALLS = {"joinSql", "query", "execute", "rows", "sqlite3_exec", "firstText", "firstFlag", "firstField"}
OTHER_CALLS = HELP_CALLS | RESULT_CALLS | LABEL_CALLS | STATEMENT_CALLS
STATEMENT = re.compile(r"^[\s)']*(select|update|insert|delete|drop|alter|create|from|where|order by|and|begin|rollback|"
                       r"release|pragma|vacuum|primary key|collate|values|rename to|not indexed) ", re.IGNORECASE)

# Calls whose text is a message even when it is short.
MESSAGE_CALLS = {"inform", "confirm", "complain", "runtime_error", "FileError", "DataAccessError", "OverflowError"}

# Files, or texts of a file, that are worded but no messages; each with the reason. A text is given by its beginning.
NO_MESSAGES = {
    "src/cli/verbs/channel_verb.cpp": ("the question for a password, and the help",
                                       (" (nothing is shown)", "; may be given", "Fields, for set", " It has to be",
                                        "Do not ask")),
    "src/uucode/*": ("the encoder of attachments, which neither the window nor the tool reaches", ()),
    "src/ui/history/*": ("what a history shows, and kinds of files",
                         ("Down from", "%1: nothing is known", "%1: median", "Up to", "It is on.",
                          "1 check has", "%1 checks", "Picture, for", "Filter: ", "History of All")),
    "src/ui/main_window/first_steps.cpp": ("the steps that an empty list offers",
                                           ("Which page", "Add your", "1. ", "2. ", "3. ", "You can also", "Step ")),
    "src/base/base64.cpp": ("who decodes says what is wrong in words of his own", ()),
    "src/engine/inet_pool.cpp": ("the states of a request, kept for callers of the pool and shown nowhere", ()),
    "src/holes/hole_words.cpp": ("what may stand in a place that varies; the guide explains it", ()),
    "src/report/metrics_text.cpp": ("what Prometheus reads", ()),
    "src/report/page_parts.cpp": ("parts of pages for others", ()),
    "src/report/history_page.cpp": ("the page of the history", ()),
    "src/report/month_page.cpp": ("the page of a month", ()),
    "src/report/month_tables.cpp": ("the figures of a month", ()),
    "src/report/status_page.cpp": ("the page for everybody", ()),
    "src/history/history_text.cpp": ("a picture", ()),
    "src/store/history_view.cpp": ("what is asked of the database", ()),
    "src/store/outbox.cpp": ("what is asked of the database", ("idAlert, idChannel", "page from", "'' as page")),
    "src/engine/site_reasons.cpp": ("what is asked of the database", ("case when",)),
    "src/platform/sqlite/sql_sites.cpp": ("what is asked of the database", ("comparePage as", "runtimePage as")),
    "src/platform/web/mail_text.cpp": ("the form of a mail", ("\r\nContent-", "; charset=")),
    "src/platform/secrets/secret_file.cpp": ("the heading of the file", ("# Passwords and",)),
    "src/ui/exchange/addresses_dialog.cpp": ("labels; the guide explains the window", ("Addresses, &one", "Paste or type")),
    "src/ui/exchange/export_dialog.cpp": ("the kinds of files, and labels", ("CSV, for", "JSON, with", "CSV is", "What is set")),
    "src/ui/rows/row_actions.cpp": ("what was done, and what undoing it is called; the guide explains both",
                                    ("%1 sites were", "&Undo Delete", "Putting sites back")),
    "src/ui/rows/sites_dialog.cpp": ("what a change would change; the guide explains it",
                                     ("Nothing is changed yet.", "All of them are so")),
    "src/ui/main_window/notice_button.cpp": ("what its key does", ("Esc puts",)),
    "src/ui/main_window/click_rule.cpp": ("entries of a menu; the guide explains them", ()),
    "src/ui/main_window/extra_columns.cpp": ("captions and cells of the list; the guide explains them", ()),
    "src/ui/*_layout.cpp": ("labels and hints of the window; the guide explains the controls", ()),
    "src/ui/controls/option_form.cpp": ("what a page of options says of a value; the guide explains it", ()),
    "src/ui/controls/alarm_*.cpp": ("the page of the alarm; the guide explains it", ()),
    "src/ui/controls/channel_choice.cpp": ("the choice of channels; the guide explains it", ()),
    "src/ui/controls/delivery_words.cpp": ("what an alert tells, as it is sent", ()),
    "src/ui/controls/dated_windows_table.cpp": ("cells of the table", ("as in",)),
    "src/ui/controls/quiet_hours_form.cpp": ("labels", ("Drag over", "Quiet hours")),
    "src/ui/controls/week_map.cpp": ("the names of its cells", ()),
    "src/ui/baseline/hole_table.cpp": ("cells of the table", ("time or", "%1; separators", "%1: proposed.")),
    "src/ui/baseline/hole_proposals.cpp": ("what was found in a difference; the guide explains it",
                                           ("Looking at the difference", "The latest page does", "%1 Line %2 differs")),
    "src/ui/baseline/holes_panel.cpp": ("labels and captions; the guide explains them", ()),
    "src/ui/baseline/learn_dialog.cpp": ("what it is about and what was learnt; the guide explains it",
                                         ("%v of", "The page is fetched", "1 place:", "%1 places:")),
    "src/ui/baseline/rules_dialog.cpp": ("a caption", ()),
    "src/ui/details/accept_dialog.cpp": ("what is accepted", ("What changed in", "This page becomes")),
    "src/ui/details/change_window.cpp": ("a caption", ("What changed in",)),
    "src/ui/details/alarm_*.cpp": ("what is told of a site; the guide explains it", ()),
    "src/ui/details/details_head.cpp": ("how many sites are chosen; the guide explains it", ("%1 sites",)),
    "src/ui/details/settling_words.cpp": ("which page is which, and which lines differ", ("− Good as", "line %1", "lines %1", "bytes differ")),
    "src/ui/details/details_pane.cpp": ("labels and hints; the guide explains the details", ("What changed in",)),
    "src/ui/details/difference_*.cpp": ("labels of the difference; the guide explains it", ()),
    "src/ui/main_window/details_area.cpp": ("entries of the menus, and what can be taken back; the guide explains them", ()),
    "src/ui/details/same_changes.cpp": ("labels and the question; the guide explains them",
                                        ("What changed in", "Tick the", "The latest page", "The baselines before")),
    "src/ui/details/seen_view.cpp": ("what is drawn; the guide explains it", ()),
    "src/ui/details/picture_difference.cpp": ("what stands in the place of a picture; the guide explains it", ()),
    "src/ui/outbox/outbox_*.cpp": ("labels and cells; the guide explains the window", ()),
    "src/ui/settings/channel*.cpp": ("labels and hints of the page; the guide explains it", ()),
    "src/ui/settings/window_frame.cpp": ("labels and hints; the guide explains them", ()),
    "src/ui/main_window/tray.cpp": ("what the tray's menu offers; the guide explains it", ()),
    "src/ui/main_window/worst_sites.cpp": ("what the tray says; the guide explains it", ()),
    "src/platform/desktop/desktop_start_posix.cpp": ("what desktops read", ("[Desktop Entry]",)),
    "src/ui/settings/pause_page.cpp": ("labels and choices; the guide explains them", ()),
    "src/ui/site/new_post_var.cpp": ("hints in the fields", ()),
    "src/ui/main_window/site_*.cpp": ("heads and hints of the list", ()),
    "src/ui/main_window/master.cpp": ("the foot of the window, and hints", ()),
    "src/ui/main_window/damage_box.cpp": ("the kinds of files in the file dialog", ("Lists of Sites",)),
    "src/ui/exchange/import_dialog.cpp": ("kinds of files, and labels", (
        "As its content", "CSV of", "JSON of", "List of", "List or", "Bookmarks of", "&Kind of", "Lists and", "Jet database")),
    "src/ui/settings/file_kinds.h": ("the kinds of files in the file dialog", ("Audio Files", "Program Files")),
    "src/app/window_arguments.cpp": ("what --help prints", ("Usage:",)),
    "src/alerts/alert_dispatch.cpp": ("the sample for a program that is tried", ("The connection was refused",)),
    "src/alerts/event_texts.cpp": ("subjects and texts of the mails", ()),
    "src/cli/verbs/command_line.cpp": ("the tool's own help", ("Tarnwick watches", "Exit status:")),
    "src/cli/verbs/completion.cpp": ("what shells read", ()),
    "src/cli/verbs/option_verb.cpp": ("the options in the verb's help", ("Names, and", " In a new")),
    "src/cli/verbs/page_diff.cpp": ("the head of a diff", ("--- baseline", "+++ latest")),
    "src/difference/unified_diff.cpp": ("the word of every diff for it", (" No newline",)),
    "src/cli/verbs/site_verbs.cpp": ("cells of the verb site", ("set; --show", "none yet:")),
    "src/engine/run_controller.cpp": ("the run clock", ("Run Time:",)),
    "src/platform/process/program_folder.cpp": ("what stands in the mark", ("The first start has",)),
    "src/platform/sqlite/sqlite_tables.cpp": ("pieces of statements", (" as select", " INTEGER PRIMARY")),
    "src/platform/sqlite/sqlite_errors.cpp": ("the library's words, which are taken away", ("CHECK constraint failed:",)),
    "src/platform/web/connection_failure.cpp": ("the library's words, which are looked for",
                                            ("Failed to connect to",)),
    "src/base/windows_command_line.cpp": ("arguments", ("/d /e:on",)),
    "src/report/*.cpp": ("pieces of the page", ("<img",)),
    "src/store/fields.cpp": ("what the fields are called, for forms and helps", ()),
    "src/delivery/alert_text.cpp": ("what is sent", ()),
    "src/delivery/hook_request.cpp": ("the placeholders, which the guide lists", ()),
    "src/delivery/mail_letter.cpp": ("the form of a date", ("%s, %u",)),
    "src/store/channel_table.cpp": ("what the fields are called, for forms and helps", ()),
    "src/engine/settling.cpp": ("what error pages say, which is looked for", ("internal server", "too many requests")),
    "src/finding/site_query.cpp": ("what the words find, as the guide tells", (
        "the last check", "down, with", "failed, but", "down, and", "answers too", "left out of", "nothing is told", "found while",
        "its certificate", "active, but", "has this", "lies on")),
    "src/engine/proof_of_life.cpp": ("what is sent", ()),
    "src/engine/channel_alerts.cpp": ("what is sent", ("Nothing was counted",)),
    "src/store/option_table.cpp": ("the values that an option takes", ("a whole number from",)),
    "src/store/option_table.h": ("a value of an option", ("do not check",)),
    "src/store/alarm_values.cpp": ("a word in a value of an option", ("do not check",)),
    "src/store/outbox.cpp": ("the columns of a statement", ("idAlert, idChannel", "page from", "'' as page")),
    "src/store/site_standing.cpp": ("the columns of a statement", ("failures, downSince",)),
    "src/store/database.cpp": ("a connection string", (";Jet",)),
    "src/store/result_log.cpp": ("the columns of a statement", ("rowid as",)),
}


class Source:
    """The texts of a C++ source, each with its line and the names of the calls that it stands in."""

    def __init__(self, text: str):
        self.texts: list[tuple[int, str, list[str]]] = []
        calls: list[str] = []
        name = ""
        pending: tuple[int, str] | None = None
        for match in TOKEN.finditer(text):
            token = match.group(0)
            if token.isspace() or token.startswith(("//", "/*", "#")):
                continue
            piece = match.group("raw") if match.group("raw") is not None else match.group("text")
            if piece is not None:
                if match.group("raw") is None:
                    piece = re.sub(r"\\(.)", lambda escape: ESCAPE.get(escape.group(1), escape.group(0)), piece)
                line = text.count("\n", 0, match.start()) + 1
                pending = (pending[0], pending[1] + piece) if pending else (line, piece)
                continue
            if pending:
                self.texts.append((*pending, [name, *calls]))
                pending = None
            if token in "([{":
                calls.append(name if token != "[" else "")
            elif token in ")]}" and calls:
                calls.pop()
            if token != "=":  # a member keeps its name for what it is given
                name = token if re.match(r"\w", token) else ""


def words_in(text: str) -> int:
    return sum(1 for word in text.split() if re.search(r"[A-Za-z]", word))


def is_message(text: str, calls: list[str]) -> bool:
    if OTHER_CALLS.intersection(calls) or STATEMENT.match(text):
        return False
    return words_in(text) >= (2 if MESSAGE_CALLS.intersection(calls[-1:]) else 3)


def is_excepted(name: str, text: str) -> bool:
    return any(fnmatch.fnmatchcase(name, pattern) and (not beginnings or text.startswith(beginnings))
               for pattern, (_, beginnings) in NO_MESSAGES.items())


def worded(root: Path):
    """The texts of the sources that are worded for a reader: file, line and text."""
    for path in sorted((root / "src").rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        name = path.relative_to(root).as_posix()
        for line, text, calls in Source(path.read_text(encoding="utf-8")).texts:
            if is_message(text, calls):
                yield name, line, text


def messages(root: Path):
    return ((name, line, text) for name, line, text in worded(root) if not is_excepted(name, text))


def told_in_a_terminal(root: Path):
    """Help and results of the tool, without the examples' commands: of each two texts of theirs the first."""
    for path in sorted((root / "src" / "cli").rglob("*.cpp")):
        name = path.relative_to(root).as_posix()
        is_command = False
        for line, text, calls in Source(path.read_text(encoding="utf-8")).texts:
            is_command = "examples" in calls and not is_command
            told = (HELP_CALLS | RESULT_CALLS).intersection(calls) and words_in(text) >= 3
            if told and not is_command and not is_excepted(name, text):
                yield name, line, text


def plain(text: str) -> str:
    """A text without marks and quotes, and with single blanks: as it is compared."""
    return " ".join(re.sub(r"[`*\\\"]", "", text).split())


def every_message_is_explained(root: Path):
    page = root / MESSAGES
    explained = plain(page.read_text(encoding="utf-8")) if page.is_file() else ""
    for name, line, text in messages(root):
        for piece in re.split(r"%\d|\n", text):
            if words_in(piece) >= 2 and plain(piece) not in explained:
                yield (name, line, f'says "{piece.strip()}", which {MESSAGES} does not explain: add the message there with '
                       "its meaning and the remedy, or name it in NO_MESSAGES of tests/docs_test.py if nobody reads it.")


def slug(heading: str) -> str:
    """The anchor of a heading, as GitHub makes it."""
    return re.sub(r"[^\w\- ]", "", plain(re.sub(r"\[(.*?)\]\(.*?\)", r"\1", heading)).lower()).replace(" ", "-")


def texts_of(root: Path) -> list[Path]:
    return [*sorted(root.glob("*.md")), *sorted((root / "docs").rglob("*.md"))]


def without_code(text: str) -> str:
    """The same lines, those of code emptied: an example is no link."""
    inside = False
    lines = []
    for line in text.splitlines():
        fence = line.lstrip().startswith("```")
        lines.append("" if inside or fence else re.sub(r"`[^`]*`", "", line))
        inside ^= fence
    return "\n".join(lines)


def anchors_of(path: Path) -> set[str]:
    inside = False
    anchors = set()
    for line in path.read_text(encoding="utf-8").splitlines():
        if line.lstrip().startswith("```"):
            inside = not inside
        elif not inside and (heading := re.match(r"#+ +(.*)", line)):
            anchors.add(slug(heading.group(1)))
    return anchors


def every_link_leads_somewhere(root: Path):
    for path in texts_of(root):
        name = path.relative_to(root).as_posix()
        for number, line in enumerate(without_code(path.read_text(encoding="utf-8")).splitlines(), 1):
            for link in re.findall(r"\]\(([^)\s]+)\)", line):
                if re.match(r"[a-z]+:", link):
                    continue
                file, _, anchor = link.partition("#")
                target = (path.parent / file).resolve() if file else path
                if not target.exists():
                    yield name, number, f"links to {link}, which is not there: correct the link or add what it names."
                elif anchor and target.suffix == ".md" and anchor not in anchors_of(target):
                    yield name, number, f"links to {link}, and no heading there has that anchor: correct it."


def every_picture_is_used(root: Path):
    shown = "".join(path.read_text(encoding="utf-8") for path in texts_of(root))
    for picture in sorted((root / "docs" / "images").glob("*")):
        if f"images/{picture.name})" not in shown:
            yield (picture.relative_to(root).as_posix(), 1, "is shown by no text: show it, or delete it and what makes it "
                   "in scripts/lib/take_screenshots.py.")


def no_exception_is_stale(root: Path):
    """Each exception still excepts something; only of the repository itself."""
    texts = [(name, text) for name, _, text in worded(root)]
    for pattern, (_, beginnings) in NO_MESSAGES.items():
        for beginning in beginnings or ("",):
            if not any(fnmatch.fnmatchcase(name, pattern) and text.startswith(beginning) for name, text in texts):
                yield ("tests/docs_test.py", 1, f'excepts "{beginning}" in {pattern}, where no such text is any more: take it '
                       "out of NO_MESSAGES.")


def every_message_can_be_translated(root: Path):
    """Of the rooms that know no language; and what the terminal tool prints beside messages."""
    return wordings.every_text_has_a_template(root, (*messages(root), *told_in_a_terminal(root)))


CHECKS = (every_message_is_explained, every_message_can_be_translated, *wordings.CHECKS, every_link_leads_somewhere, every_picture_is_used, *names.CHECKS,
          picture.the_picture_is_that_of_the_table)


def findings(root: Path, checks=CHECKS) -> list[str]:
    if not (root / "docs").is_dir():
        return [f"{root}: there is no folder docs."]
    return [f"{name}:{line}: {text}" for check in checks for name, line, text in check(root.resolve())]


def findings_of(files: dict[str, str]) -> list[str]:
    with tempfile.TemporaryDirectory(prefix="tarnwick-docs-") as folder:
        for name, text in {"docs/index.md": "# Docs\n", **files}.items():
            path = Path(folder, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        return findings(Path(folder))


def catalogue(template: str, german: str | None = None) -> dict[str, str]:
    """A template, and the files of two languages."""
    form = ("<TS><context><name>Messages</name><message><source>{0}</source><translation>{1}</translation></message>"
            "</context></TS>")
    german = template if german is None else german
    return {"translations/messages.txt": template + "\n", "translations/tarnwick.ts": form.format(template, ""),
            "translations/tarnwick_de.ts": form.format(template, german)}


def self_test() -> int:
    explained = {MESSAGES: "| \"The list ... is `empty`\nnow.\" | | |\n"}
    # One function that is called, and one whose name another class has as well.
    steps = {
        "src/engine/run.h": "class Run {\n  void begin();\n  void recordResult();\n};\nenum class Kind { first };\n",
        "src/engine/run.cpp": "void Run::begin() {\n}\n\nvoid Run::recordResult() {\n}\n",
        "src/engine/pass.cpp": "void guardRun(Run& run) {\n  run.begin();\n}\n\nvoid Pass::record() {\n  recordResult();\n}\n",
    }
    release = {"CMakeLists.txt": "project(Tarnwick VERSION 1.2.0 LANGUAGES CXX)\n",
               "cmake/Packages.cmake": "set(package_release 3)\n"}
    # Each tree, and a piece of the only finding that it must give; None for a tree without any.
    trees = {
        "an explained message": (None, {"src/a.cpp": 'f("The list " + x +\n  " is empty "\n  "now.");', **explained}),
        "a message that nobody explains": ('src/a.cpp:2: says "is full now."', {
            "src/a.cpp": 'f("The list ");\nthrow runtime_error(x + " is full now.");', **explained}),
        "a short one in a box": ('says "Logs Cleared"', {"src/a.cpp": 'prompts.inform("Logs Cleared");'}),
        "one with a place for a value": ('says "cannot be read today."', {
            "src/a.cpp": 'tr("The list %1 cannot be read today.");', MESSAGES: "The list ... is fine."}),
        "one in a raw text": ("says", {"src/a.cpp": 'fault(R"(no text: give {"a": 1} instead)");'}),
        "statements, help and results": (None, {
            "src/a.cpp": 'db.execute("update sites set url = 1");\nreturn Verb{"x", {{"X", &x, "The name of a thing"}}};\n'
                         'console.say("All is well now.");\n// "not a text at all"\n#include "a b c"\n'}),
        "an option's description, and a member that is none": ('says "The list is full now."', {
            "src/a.cpp": '{.label = "The name of it", .choices = {"the one or", "the other one"}, .text = "The list is full now."}'}),
        "a file that is excepted": (None, {"src/uucode/uu_code.cpp": 'f("No line begins here.");'}),
        "a message that has a template": (None, {
            "src/a.cpp": 'f("The list " + x + " is empty now.");', **explained, **catalogue("The list %1 is empty now.")}),
        "one that has none": ('says "is empty now.", which translations/messages.txt does not have', {
            "src/a.cpp": 'f("The list " + x + " is empty now.");', **explained, **catalogue("The list %1 is full.")}),
        "a help that has none, and a command": ('says "what is due", which', {
            "src/cli/a.cpp": 'examples({{"check --due x", "what is due"}});', **catalogue("The list is full.")}),
        "a template that is not translated": ("tarnwick_de.ts:1: does not translate", {
            **catalogue("The list is full.", "")}),
        "one that is translated with other values": ("with other values", {
            **catalogue("The list %1 is full.", "Die Liste %2 ist voll.")}),
        "a link to a file": (None, {"README.md": "[a](docs/index.md#docs) [b](https://example.org/x) `[c](d)`\n"}),
        "a dead link": ("README.md:2: links to docs/away.md", {"README.md": "\n[a](docs/away.md)\n"}),
        "a dead anchor": ("no heading there", {"README.md": "[a](docs/index.md#away)\n"}),
        "an example in code": (None, {"README.md": "```\n[a](docs/away.md)\n# No heading\n```\n"}),
        "a picture that is not there": ("links to x.png", {"docs/index.md": "![x](x.png)\n"}),
        "a picture that is not shown": ("is shown by no text", {"docs/images/x.png": "x"}),
        "a picture of other rooms": ("docs/images/house.svg:1: shows other rooms than there are", {
            "docs/images/house.svg": "<svg/>\n", "README.md": "![rooms](docs/images/house.svg)\n"}),
        "names of the sources": (None, {**steps, "docs/developer.md":
            "`Run::begin`, `Run::begin()`, `engine/run.cpp`, `src/engine/run.h`, `run.*`, `engine/<name>.h`, `guardRun`, "
            "`std::string`, `build/release/x.cpp`, `plain words`, `Kind::first`\n| 1 | `engine/run.cpp` `begin` | it |\n"}),
        "artefacts of this version": (None, {**release, "README.md":
            "`tarnwick-cli_1.2.0-3_amd64.deb`, `tarnwick-1.2.0-windows-x86_64-setup.exe`, `tarnwick-cli_*.deb`\n"}),
        "an artefact of another": ("README.md:1: names tarnwick-1.1.0-linux-x86_64.tar.gz, which is no file of this version", {
            **release, "README.md": "`tarnwick-1.1.0-linux-x86_64.tar.gz`\n"}),
        "a file that is not there": ("docs/developer.md:2: names `engine/away.cpp`: no such file", {
            **steps, "docs/developer.md": "\n`engine/away.cpp`\n"}),
        "a member that nobody has": ("names `Run::fill`: no such member", {**steps, "CONTRIBUTING.md": "`Run::fill`\n"}),
        "a value that is not of that kind": ("names `Kind::second`", {**steps, "README.md": "`Kind::second`\n"}),
        "a procedure that nobody has": ("names `countDown`: no such name", {
            **steps, "docs/developer/recipes.md": "`countDown`\n"}),
        "a function that nobody has": ("names `count()`: no such function", {**steps, "docs/developer.md": "`count()`\n"}),
        "a step that nobody takes": ("names `Run::recordResult` as a step, and nobody calls it", {
            **steps, "docs/developer.md": "| 1 | `engine/run.cpp` `Run::recordResult` | it |\n"}),
        "a step in another source": ("`guardRun` as a step in src/engine/run.cpp, which does not have it", {
            **steps, "docs/developer.md": "| 1 | `engine/run.cpp` `guardRun` | it |\n"}),
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
    found = findings(Path(sys.argv[1]), (*CHECKS, no_exception_is_stale))
    for line in found:
        print(line, file=sys.stderr)
    print(f"{len(found)} findings." if found else "The documentation holds.")
    return 1 if found else 0


sys.exit(main())
