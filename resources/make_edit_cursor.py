#!/usr/bin/env python3
"""Writes edit_cursor.cur, the pointer over the in-place editor: an upright bar with a small pencil,
32 by 32 pixels in black and white, drawn below as text. '#' is black, 'o' white, all else
transparent; the hot spot is on the bar.

Run it in this folder after a change."""
import struct

SIZE, HOT_SPOT = 32, (5, 8)
ROWS = """
oooo.oooo
o##o.o##o
ooo#o#ooo
...o#o
...o#o
...o#o.........oo
...o#o........o##o
...o#o.......o#oo#o
...o#o......o#oo#o
...o#o.....o#oo#o
...o#o....o#oo#o
...o#o....o##o#o
...o#o....o###o
ooo#o#ooo.ooo
o##o.o##o
oooo.oooo
"""


def plane(rows, bit_of):
    out = b""
    for y in reversed(range(SIZE)):
        row = rows[y] if y < len(rows) else ""
        bits = 0
        for x in range(SIZE):
            bits = bits << 1 | bit_of(row[x] if x < len(row) else ".")
        out += struct.pack(">I", bits)
    return out


def main():
    rows = ROWS.strip("\n").splitlines()
    image = struct.pack("<IiiHHIIiiII", 40, SIZE, 2 * SIZE, 1, 1, 0, 0, 0, 0, 2, 0)
    image += struct.pack("<II", 0x000000, 0xFFFFFF)
    image += plane(rows, lambda mark: int(mark == "o"))  # colour
    image += plane(rows, lambda mark: int(mark not in "#o"))  # transparent
    head = struct.pack("<HHH", 0, 2, 1)
    entry = struct.pack("<BBBBHHII", SIZE, SIZE, 2, 0, *HOT_SPOT, len(image), 22)
    with open("edit_cursor.cur", "wb") as out:
        out.write(head + entry + image)


main()
