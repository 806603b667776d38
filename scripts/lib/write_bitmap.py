#!/usr/bin/env python3
"""Writes raw RGBA pixels from standard input as a 32-bit bitmap whose header names the alpha channel.

    write_bitmap.py WIDTH HEIGHT FILE < pixels

The common converters write 32-bit bitmaps without an alpha mask, and a reader then takes the fourth byte for padding
and shows black corners. A BITMAPV4HEADER with four channel masks is understood everywhere.
"""

import struct
import sys

BI_BITFIELDS = 3
FILE_HEADER_BYTES = 14
V4_HEADER_BYTES = 108
RED, GREEN, BLUE, ALPHA = 0x00FF0000, 0x0000FF00, 0x000000FF, 0xFF000000
PIXELS_PER_METRE = 3780  # 96 dots an inch


def bitmap(width: int, height: int, rgba: bytes) -> bytes:
    rows = []
    for y in reversed(range(height)):  # a bitmap's rows run from the bottom up
        row = bytearray(rgba[y * width * 4 : (y + 1) * width * 4])
        row[0::4], row[2::4] = row[2::4], row[0::4]
        rows.append(bytes(row))
    pixels = b"".join(rows)
    offset = FILE_HEADER_BYTES + V4_HEADER_BYTES
    file_header = struct.pack("<2sIHHI", b"BM", offset + len(pixels), 0, 0, offset)
    header = struct.pack("<IiiHHIIiiII", V4_HEADER_BYTES, width, height, 1, 32, BI_BITFIELDS, len(pixels),
                         PIXELS_PER_METRE, PIXELS_PER_METRE, 0, 0)
    header += struct.pack("<IIII4s", RED, GREEN, BLUE, ALPHA, b"BGRs")
    header += bytes(V4_HEADER_BYTES - len(header))  # end points and gamma: not used with sRGB
    return file_header + header + pixels


def main() -> None:
    width, height, path = int(sys.argv[1]), int(sys.argv[2]), sys.argv[3]
    rgba = sys.stdin.buffer.read()
    if len(rgba) != width * height * 4:
        sys.exit(f"{path}: {len(rgba)} bytes of pixels given, {width} x {height} needs {width * height * 4}")
    with open(path, "wb") as file:
        file.write(bitmap(width, height, rgba))


main()
