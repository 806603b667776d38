"""Writes small Jet 3 and Jet 4 databases, as far as tests of reading them need it.

The form of the file is that of mdbtools' public description (HACKING.md): a definition page, a page of usage maps, the
catalog MSysObjects, a table definition and data pages for each table, and pages for long values: inline, on one page,
and in a chain over several.

    jet_writer.py FILE 3|4    a list of sites, with pages of every length and byte
"""

from __future__ import annotations

import datetime
import struct
import sys
from dataclasses import dataclass, field

BOOL, INT, LONG, DATE, BINARY, TEXT, OLE, MEMO = 1, 3, 4, 8, 9, 10, 11, 12
FIXED_SIZES = {BOOL: 0, INT: 2, LONG: 4, DATE: 8}
EPOCH = datetime.datetime(1899, 12, 30)


def rc4(key: bytes, data: bytes) -> bytes:
    box = list(range(256))
    j = 0
    for i in range(256):
        j = (j + box[i] + key[i % len(key)]) % 256
        box[i], box[j] = box[j], box[i]
    out, i, j = bytearray(), 0, 0
    for byte in data:
        i = (i + 1) % 256
        j = (j + box[i]) % 256
        box[i], box[j] = box[j], box[i]
        out.append(byte ^ box[(box[i] + box[j]) % 256])
    return bytes(out)


@dataclass
class Column:
    name: str
    kind: int


@dataclass
class Table:
    name: str
    columns: list[Column]
    rows: list[list] = field(default_factory=list)


class Jet:
    def __init__(self, version: int):
        self.version = version
        self.size = 2048 if version == 3 else 4096
        self.pages: list[bytearray] = []
        self.maps: list[bytes] = [b"\0" * 69]  # the first is that of the whole file
        for _ in range(3):  # definition, usage maps, catalog
            self.new_page()

    def new_page(self) -> int:
        self.pages.append(bytearray(self.size))
        return len(self.pages) - 1

    # Texts and values.

    def text(self, value: str | bytes, compress: bool) -> bytes:
        """A text as its column holds it; bytes stand for themselves in Jet 3, and for Windows-1252 in Jet 4."""
        if self.version == 3:
            return value if isinstance(value, bytes) else value.encode("cp1252")
        if isinstance(value, bytes):
            value = "".join(decoded_1252(byte) for byte in value)
        wide = value.encode("utf-16-le")
        if compress and value and all(0 < ord(c) < 256 for c in value):
            return b"\xff\xfe" + value.encode("latin-1")
        return wide

    def long_value(self, value: bytes) -> bytes:
        """The 12 bytes in the row, and what stands elsewhere."""
        header = 10 if self.version == 3 else 14
        whole = self.size - header - 2
        if len(value) <= 64:
            return struct.pack("<III", len(value) | 0x80000000, 0, 0) + value
        if len(value) <= whole:
            return struct.pack("<III", len(value) | 0x40000000, self.put_long(value), 0)
        pieces = [value[at:at + whole - 4] for at in range(0, len(value), whole - 4)]
        following = 0
        for piece in reversed(pieces):
            following = self.put_long(struct.pack("<I", following) + piece)
        return struct.pack("<III", len(value), following, 0)

    def put_long(self, row: bytes) -> int:
        page = self.new_page()
        self.fill_data_page(page, [row], b"LVAL")
        return page << 8

    def fill_data_page(self, page: int, rows: list[bytes], owner: bytes):
        buffer = self.pages[page]
        table = owner if self.version == 3 else owner + b"\0\0\0\0"
        end, offsets = self.size, b""
        for row in rows:
            end -= len(row)
            buffer[end:end + len(row)] = row
            offsets += struct.pack("<H", end)
        header = b"\x01\x01" + struct.pack("<H", 0) + table + struct.pack("<H", len(rows)) + offsets
        assert len(header) <= end, "the page is too small for these rows"
        struct.pack_into("<H", buffer, 0, 0)
        buffer[:len(header)] = header
        struct.pack_into("<H", buffer, 2, end - len(header))

    def row_bytes(self, table: Table, values: list) -> bytes:
        fixed, var, nulls = b"", [], 0
        for number, (column, value) in enumerate(zip(table.columns, values)):
            if column.kind == BOOL:
                nulls |= bool(value) << number
                continue
            nulls |= (value is not None) << number
            if column.kind == INT:
                fixed += struct.pack("<h", value or 0)
            elif column.kind == LONG:
                fixed += struct.pack("<i", value or 0)
            elif column.kind == DATE:
                days = (value - EPOCH) / datetime.timedelta(days=1) if value else 0
                fixed += struct.pack("<d", days)
            elif value is None:
                var.append(b"")
            elif column.kind == TEXT:
                var.append(self.text(value, compress=True))
            elif column.kind == MEMO:
                var.append(self.long_value(self.text(value, compress=len(value) <= 1024)))
            else:
                var.append(self.long_value(value) if column.kind == OLE else value)
        count = len(values)
        mask = nulls.to_bytes((count + 7) // 8, "little")
        start = 1 if self.version == 3 else 2
        offsets = [start + len(fixed)]
        for value in var:
            offsets.append(offsets[-1] + len(value))
        body = fixed + b"".join(var)
        if self.version == 4:
            back = struct.pack(f"<{len(offsets)}H", *reversed(offsets))
            return struct.pack("<H", count) + body + back + struct.pack("<H", len(var)) + mask
        # Offsets are one byte each; a jump for each 256 bytes of the row tells where the next 256 begin.
        rest = 1 + len(body) + len(offsets) + 1 + len(mask)
        jumps = 0
        while (rest + jumps - 1) // 256 > jumps:
            jumps += 1
        table_of_jumps = [next((i for i, offset in enumerate(offsets) if offset >= 256 * (n + 1)), 0xff)
                          for n in range(jumps)]
        back = bytes(offset % 256 for offset in reversed(offsets)) + bytes(reversed(table_of_jumps))
        return bytes([count]) + body + back + bytes([len(var)]) + mask

    # Tables.

    def write_table(self, table: Table, page: int, system: bool = False):
        rows = [self.row_bytes(table, values) for values in table.rows]
        header = 10 if self.version == 3 else 14
        owned: list[int] = []
        pending: list[bytes] = []

        def flush():
            if pending:
                data = self.new_page()
                self.fill_data_page(data, pending, struct.pack("<I", page))
                owned.append(data)
                pending.clear()

        for row in rows:
            if header + sum(len(other) + 2 for other in (*pending, row)) > self.size:
                flush()
            pending.append(row)
        flush()
        used = self.map_of(owned)
        free = self.map_of([])
        self.define(table, page, used, free, 0x53 if system else 0x4e, len(rows))

    def map_of(self, owned: list[int]) -> int:
        """A row with the pages of a table: the map itself, or where its pieces are."""
        bits = 64 * 8
        if not owned or max(owned) < bits:
            bitmap = bytearray(64)
            for number in owned:
                bitmap[number // 8] |= 1 << number % 8
            self.maps.append(b"\0" + struct.pack("<I", 0) + bytes(bitmap))
        else:
            at_once = (self.size - 4) * 8
            pieces = []
            for begin in range(0, max(owned) + 1, at_once):
                piece = self.new_page()
                self.pages[piece][0:2] = b"\x05\x01"
                for number in owned:
                    if begin <= number < begin + at_once:
                        self.pages[piece][4 + (number - begin) // 8] |= 1 << (number - begin) % 8
                pieces.append(piece)
            row = b"\x01" + b"".join(struct.pack("<I", piece) for piece in pieces)
            self.maps.append(row.ljust(69, b"\0"))
        return 1 << 8 | (len(self.maps) - 1)

    def define(self, table: Table, page: int, used: int, free: int, kind: int, rows: int):
        variable = fixed_at = 0
        columns = names = b""
        for number, column in enumerate(table.columns):
            fixed = column.kind in FIXED_SIZES
            length = {BOOL: 1, TEXT: 255 if self.version == 3 else 510, BINARY: 255}.get(
                column.kind, FIXED_SIZES.get(column.kind, 0))
            flags = 0x03 if fixed else 0x02
            offset_v = 0 if fixed else variable
            offset_f = fixed_at if fixed else 0
            if self.version == 3:
                columns += struct.pack("<BHHHHHHBHH", column.kind, number, offset_v, number, 0x409, 0x4e4, 0, flags,
                                       offset_f, length)
                names += bytes([len(column.name)]) + column.name.encode("cp1252")
            else:
                columns += struct.pack("<BIHHHHHBBIHH", column.kind, 1625, number, offset_v, number, 0x409, 0, flags,
                                       1 if column.kind in (TEXT, MEMO) else 0, 0, offset_f, length)
                wide = column.name.encode("utf-16-le")
                names += struct.pack("<H", len(wide)) + wide
            variable += not fixed
            fixed_at += FIXED_SIZES.get(column.kind, 0)
        count = len(table.columns)
        tail = struct.pack("<BHHHIIII", kind, count, variable, count, 0, 0, used, free)
        head = struct.pack("<II", rows, 0) if self.version == 3 else struct.pack("<IIIB", 1625, rows, 0, 1) + bytes(15)
        definition = head + tail + columns + names + b"\xff\xff"
        whole = 12 + len(definition)
        assert whole <= self.size, "the definition of a table is one page here"
        first = b"VC" if self.version == 3 else struct.pack("<H", self.size - whole - 8)
        self.pages[page][:whole] = b"\x02\x01" + first + struct.pack("<II", 0, len(definition) + 12 - 8) + definition

    def save(self, name: str, tables: list[Table]):
        catalog = Table("MSysObjects", [Column("Id", LONG), Column("ParentId", LONG), Column("Name", TEXT),
                                        Column("Type", INT), Column("DateCreate", DATE), Column("DateUpdate", DATE),
                                        Column("Flags", LONG), Column("Owner", BINARY), Column("Database", MEMO),
                                        Column("Lv", OLE), Column("LvProp", OLE)])
        made = datetime.datetime(1999, 5, 17, 12, 0)
        places = {}
        for table in tables:
            places[table.name] = self.new_page()
        entries = [("MSysObjects", 2, 1, -0x80000000), *((table.name, places[table.name], 1, 0) for table in tables)]
        for title, page, kind, flags in entries:
            catalog.rows.append([page, 0x0f000001, title, kind, made, made, flags, b"\x04\x05", None, None, None])
        for table in tables:
            self.write_table(table, places[table.name])
        self.write_table(catalog, 2, system=True)
        self.fill_data_page(1, self.maps, struct.pack("<I", 0))
        self.pages[0][:] = self.definition_page()
        with open(name, "wb") as file:
            file.write(b"".join(self.pages))

    def definition_page(self) -> bytes:
        page = bytearray(self.size)
        page[:0x18] = b"\x00\x01\x00\x00Standard Jet DB\x00" + struct.pack("<I", self.version - 3)
        plain = bytearray(126 if self.version == 3 else 128)
        struct.pack_into("<H", plain, 0x3a - 0x18, 0x409)
        struct.pack_into("<H", plain, 0x3c - 0x18, 1252)
        page[0x18:0x18 + len(plain)] = rc4(bytes([0xc7, 0xda, 0x39, 0x6b]), bytes(plain))
        return bytes(page)


def decoded_1252(byte: int) -> str:
    """As Windows has it: the five bytes without a letter are control characters."""
    try:
        return bytes([byte]).decode("cp1252")
    except UnicodeDecodeError:
        return chr(byte)


def every_byte(length: int) -> bytes:
    """Every byte, also NUL, in an order that does not repeat with the pages of the file."""
    return bytes((i * 7 + i // 251) % 256 for i in range(length))


def site_tables() -> list[Table]:
    when = datetime.datetime(1999, 12, 31, 23, 59, 58)
    sites = Table("sites", [Column("idSite", LONG), Column("url", TEXT), Column("method", TEXT), Column("active", BOOL),
                            Column("tInterval", LONG), Column("lastChecked", DATE), Column("alertEmail", BOOL),
                            Column("email", TEXT), Column("sUserName", TEXT), Column("sPassWord", TEXT),
                            Column("status", BOOL), Column("success", LONG), Column("failure", LONG),
                            Column("content_compare", MEMO), Column("content_runtime", MEMO)])
    page = b"<html>caf\xe9 \x80 \x81\x8d\x8f\x90\x9d end</html>\r\n"
    sites.rows = [
        [1, "http://localhost/one", "GET", True, 10, when, False, "", "", "", True, 1275, 3, page, page],
        [2, "http://localhost/two?x='y'", "POST", True, 5, when, True, "a@b.cd", "me", "s\xe9cret", False, 7, 8,
         every_byte(3000), every_byte(1500)],
        [5, "http://localhost/" + "u" * 230, "GET", False, 60, None, False, None, None, None, False, None, None, None,
         None],
        [7, "http://localhost/large", "GET", True, 1, when, False, "", "", "", True, 1, 0, every_byte(1_100_000), ""],
        [9, "http://localhost/empty", "GET", True, 1, None, False, "", "", "", False, 0, 0, "", "x"],
    ]
    variables = Table("postVars", [Column("idPostVars", LONG), Column("idSite", LONG), Column("pname", TEXT),
                                   Column("pvalue", TEXT)],
                      [[1, 2, "user", "me & you"], [2, 2, "na\xefve", ""], [3, 77, "orphan", "x"]])
    control = Table("control", [Column("id", LONG), Column("email", TEXT), Column("smtp", TEXT), Column("audio", TEXT),
                                Column("program", TEXT), Column("timeout", LONG), Column("clogs", BOOL),
                                Column("creports", BOOL), Column("cemail", BOOL), Column("caudio", BOOL),
                                Column("cprogram", BOOL)],
                    [[1, "from@b.cd", "mail.b.cd", "", "C:\\Tools\\down.exe ~url~", 30, True, False, True, False, False]])
    log = Table("log", [Column("idSite", LONG), Column("url", TEXT), Column("status", BOOL), Column("errCode", LONG),
                        Column("errDescription", TEXT), Column("content", MEMO), Column("dateStamp", DATE)])
    for number in range(700):
        log.rows.append([1, "http://localhost/one", number % 2 == 0, 0 if number % 2 == 0 else -12007,
                         "" if number % 2 == 0 else "not found", every_byte(number * 5),
                         when + datetime.timedelta(minutes=number)])
    test = Table("test", [Column("id", LONG), Column("tname", TEXT), Column("tvalue", TEXT)], [[1, "a", "b"]])
    return [sites, variables, control, log, test]


def main() -> int:
    if len(sys.argv) != 3 or sys.argv[2] not in ("3", "4"):
        print(__doc__, file=sys.stderr)
        return 2
    jet = Jet(int(sys.argv[2]))
    jet.save(sys.argv[1], site_tables())
    return 0


if __name__ == "__main__":
    sys.exit(main())
