#!/usr/bin/env python3
"""Writes the icons of the status bar panes: 16 by 16 pixels, 32 bits, two for each switch. They are
drawn below as text, once for both states; off is in greys, on is coloured, stands one pixel lower
and further right on a tinted ground, and so looks pressed.

Run it in this folder after a change; the pane_*.ico files beside it are its output."""
import struct

SIZE = 16

# Colour of a letter when off and when on. A blank, and a letter whose colour
# is None, is transparent.
COLOURS = {
    "#": ((96, 96, 96), (32, 56, 96)),       # outline
    "f": (None, (240, 160, 64)),             # filled when on
    "h": ((152, 152, 152), (224, 128, 32)),  # hatching
    "b": (None, (32, 56, 96)),               # thick when on
    "-": ((168, 168, 168), (216, 32, 32)),   # axis
    "o": ((136, 136, 136), (0, 112, 208)),   # handles, arrows
    "g": ((200, 200, 200), (160, 200, 240)),  # ground of a part
}
GROUND = (212, 228, 244)  # behind the on state
EDGE = (120, 152, 192)

FILL = """
..............
.############.
.#hfffhfffhf#.
.#fffhfffhff#.
.#ffhfffhfff#.
.#fhff#######.
.#hfff#.......
.#fffh#.......
.#ffhf#.......
.#fhff#.......
.#hfff#.......
.#fffh#.......
.######.......
..............
"""

BOLD = """
..............
.############.
.#bbbbbbbbbb#.
.#b........b#.
.#b..#######..
.#b.#bbbbbb...
.#b.#b........
.#b.#b........
.#b.#b........
.#b.#b........
.#b.#b........
.#bb#b........
.####b........
..............
"""

BASE = """
..............
..............
.############.
..............
..............
..............
.---.--.---.-.
.---.--.---.-.
..............
..............
..............
.############.
..............
..............
"""

DYN_DIM = """
..............
.#..........#.
.#..........#.
.#.o......o.#.
.#oo......oo#.
.#oooooooooo#.
.#oo......oo#.
.#.o......o.#.
.#..........#.
.#...####...#.
.....#gg#.....
.....#gg#.....
.....####.....
..............
"""

GROUP = """
..............
oo.o.oo.o.oo.o
o............o
..#######.....
..#ggggg#....o
o.#ggggg#....o
o.#gg#######..
..#gg#ggggg#..
o.####ggggg#.o
o....#ggggg#.o
.....#ggggg#..
o....#######.o
o............o
oo.o.oo.o.oo.o
"""


def pixels(drawing, on):
    """Rows of (r, g, b, a)."""
    image = [[(0, 0, 0, 0)] * SIZE for _ in range(SIZE)]
    if on:
        for r in range(SIZE):
            for c in range(SIZE):
                edge = r in (0, SIZE - 1) or c in (0, SIZE - 1)
                image[r][c] = (EDGE if edge else GROUND) + (255,)
    for r, row in enumerate(drawing.strip().splitlines()):
        for c, mark in enumerate(row):
            colour = COLOURS[mark][on] if mark in COLOURS else None
            if colour:
                image[r + 1][c + 1] = colour + (255,)
    return image


def write(name, image):
    rows = b"".join(
        b"".join(struct.pack("<BBBB", b, g, r, a) for r, g, b, a in row) for row in reversed(image))
    mask = b""
    for row in reversed(image):
        bits = sum((1 << (SIZE - 1 - c)) for c, pixel in enumerate(row) if pixel[3] == 0)
        mask += struct.pack(">HH", bits, 0)
    info = struct.pack("<IiiHHIIiiII", 40, SIZE, SIZE * 2, 1, 32, 0, len(rows) + len(mask), 0, 0, 0, 0)
    data = info + rows + mask
    head = struct.pack("<HHH", 0, 1, 1) + struct.pack("<BBBBHHII", SIZE, SIZE, 0, 0, 1, 32, len(data), 22)
    with open(name, "wb") as out:
        out.write(head + data)


for name, drawing in (("group", GROUP), ("dyn_dim", DYN_DIM), ("base", BASE), ("bold", BOLD),
                      ("fill", FILL)):
    write(f"pane_{name}_off.ico", pixels(drawing, False))
    write(f"pane_{name}_on.ico", pixels(drawing, True))
