"""Writes the texts of the table of options as a source for Qt's translation tools: the table itself knows no Qt.

    option_texts.py TABLE SOURCE
"""

import re
import sys
from pathlib import Path

TABLE, SOURCE = (Path(argument) for argument in sys.argv[1:3])
SHOWN = re.compile(r"\.(?:choices|unit|original|label|meaning) =\s*(\{[^}]*\}|(?:\"(?:[^\"\\]|\\.)*\"\s*)+)")
# Literals side by side are one text.
TEXT = re.compile(r"(?:\"(?:[^\"\\]|\\.)*\"\s*)+")

texts = {re.sub(r"\"\s*\"", "", text.strip())
         for shown in SHOWN.findall(TABLE.read_text(encoding="utf-8")) for text in TEXT.findall(shown)}
SOURCE.write_text("".join(f'QT_TRANSLATE_NOOP("QObject", {text})\n' for text in sorted(texts)), encoding="utf-8")
