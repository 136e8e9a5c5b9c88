#!/usr/bin/env python3
"""Writes the module's own bitmaps: 16 by 16 pixels, 256 colours, on grey 192. The arrows are solid
triangles in the colour of their depth; the check mark is drawn below as text. The grey is what the
loader turns into the button face, so it has to be palette entry and background alike.

Run it in this folder after a change; the .bmp files beside it are its output."""
import struct

GREY = (192, 192, 192)
SIZE = 16


def folded():
    """Points right: the vertical side in column 5 from row 4 to 12, the point in column 9 on row 8."""
    return {(5 + c, r) for c in range(5) for r in range(4 + c, 13 - c)}


def unfolded():
    """Points down: the top side in row 7 from column 3 to 11, the point in column 7 on row 11."""
    return {(c, 7 + r) for r in range(5) for c in range(3 + r, 12 - r)}


CHECK = """
................
................
................
................
............#...
...........##...
..........###...
...#.....###....
...##...###.....
...###.###......
....#####.......
.....###........
......#.........
................
................
................
"""


def check():
    rows = CHECK.strip().splitlines()
    return {(c, r) for r, row in enumerate(rows) for c, mark in enumerate(row) if mark == "#"}


def write(name, pixels, colour):
    palette = [GREY, colour] + [(0, 0, 0)] * 254
    table = b"".join(struct.pack("<BBBB", b, g, r, 0) for r, g, b in palette)
    rows = b"".join(
        bytes(1 if (c, r) in pixels else 0 for c in range(SIZE)) for r in reversed(range(SIZE)))
    offset = 14 + 40 + len(table)
    header = struct.pack("<2sIHHI", b"BM", offset + len(rows), 0, 0, offset)
    info = struct.pack("<IiiHHIIiiII", 40, SIZE, SIZE, 1, 8, 0, len(rows), 0, 0, 256, 0)
    with open(name, "wb") as out:
        out.write(header + info + table + rows)


COLOURS = [(51, 102, 153), (0, 128, 128), (0, 102, 255)]
for depth, colour in enumerate(COLOURS):
    write(f"arrow_folded_{depth}.bmp", folded(), colour)
    write(f"arrow_open_{depth}.bmp", unfolded(), colour)
write("check.bmp", check(), (0, 0, 0))
