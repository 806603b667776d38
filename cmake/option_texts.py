"""Writes the texts of the tables of options and channels as a source for Qt's translation tools: the tables themselves know no Qt.

    option_texts.py TABLE ... SOURCE
"""

import re
import sys
from pathlib import Path

*TABLES, SOURCE = (Path(argument) for argument in sys.argv[1:])
SHOWN = re.compile(r"\.(?:choices|unit|original|label|meaning|takes|secret) =\s*(\{[^}]*\}|(?:\"(?:[^\"\\]|\\.)*\"\s*)+)")
# A value that the program asks for has a name in the header, and stands by that in the table.
VALUE = re.compile(r"string_view (\w+) = (\"(?:[^\"\\]|\\.)*\");")
NAMED = re.compile(r"std::string\((?:option|channel)_value::(\w+)\)")
# Literals side by side are one text.
TEXT = re.compile(r"(?:\"(?:[^\"\\]|\\.)*\"\s*)+")
PIECE = re.compile(r"\"((?:[^\"\\]|\\.)*)\"")

texts = set()
for table in TABLES:
    values = dict(VALUE.findall(table.with_suffix(".h").read_text(encoding="utf-8")))
    source = NAMED.sub(lambda named: values[named[1]], table.read_text(encoding="utf-8"))
    texts |= {f'"{"".join(PIECE.findall(text))}"' for shown in SHOWN.findall(source) for text in TEXT.findall(shown)}
texts -= {'""'}
SOURCE.write_text("".join(f'QT_TRANSLATE_NOOP("QObject", {text})\n' for text in sorted(texts)), encoding="utf-8")
