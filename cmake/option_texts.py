"""Writes the texts of the table of options as a source for Qt's translation tools: the table itself knows no Qt.

    option_texts.py TABLE SOURCE
"""

import re
import sys
from pathlib import Path

TABLE, SOURCE = (Path(argument) for argument in sys.argv[1:3])
SHOWN = re.compile(r"\.(?:choices|unit|original|label|meaning|takes) =\s*(\{[^}]*\}|(?:\"(?:[^\"\\]|\\.)*\"\s*)+)")
# A value that the program asks for has a name in the header, and stands by that in the table.
VALUE = re.compile(r"string_view (\w+) = (\"(?:[^\"\\]|\\.)*\");")
NAMED = re.compile(r"std::string\(option_value::(\w+)\)")
# Literals side by side are one text.
TEXT = re.compile(r"(?:\"(?:[^\"\\]|\\.)*\"\s*)+")
PIECE = re.compile(r"\"((?:[^\"\\]|\\.)*)\"")

values = dict(VALUE.findall(TABLE.with_suffix(".h").read_text(encoding="utf-8")))
table = NAMED.sub(lambda named: values[named[1]], TABLE.read_text(encoding="utf-8"))
texts = {f'"{"".join(PIECE.findall(text))}"'
         for shown in SHOWN.findall(table) for text in TEXT.findall(shown)}
SOURCE.write_text("".join(f'QT_TRANSLATE_NOOP("QObject", {text})\n' for text in sorted(texts)), encoding="utf-8")
