#!/usr/bin/env python3
"""Writes the two pictures of the tip dialog, each in the four sizes it is shown in: tip_left_*.bmp,
a lamp over a house, and tip_top_*.bmp, a row of roofs. 256 colours; edges are smoothed by looking at
sixteen places of each pixel.

Run it in this folder after a change; the .bmp files beside it are its output."""
import math
import struct

SCALES = {"100": 1.0, "125": 1.25, "150": 1.5, "200": 2.0}
GROUND, DEEP = (36, 84, 138), (24, 60, 104)
LAMP, RAY, METAL = (255, 214, 92), (150, 186, 220), (206, 214, 222)
WALL, ROOF, DOOR = (232, 238, 244), (196, 92, 60), (98, 132, 166)
WHITE, LINE = (255, 255, 255), (150, 176, 204)


def near_segment(x, y, x1, y1, x2, y2, half):
    dx, dy = x2 - x1, y2 - y1
    t = max(0.0, min(1.0, ((x - x1) * dx + (y - y1) * dy) / (dx * dx + dy * dy)))
    return math.hypot(x - x1 - t * dx, y - y1 - t * dy) <= half


def lamp(x, y):
    if math.hypot(x - 45, y - 50) <= 20 or (39 <= x <= 51 and 66 <= y <= 74):
        return LAMP
    if 39 <= x <= 51 and 76 <= y <= 86 and y % 4 < 3:
        return METAL
    for i in range(7):
        a = math.radians(150 + 40 * i)
        c, s = math.cos(a), math.sin(a)
        if near_segment(x, y, 45 + 26 * c, 50 + 26 * s, 45 + 34 * c, 50 + 34 * s, 1.2):
            return RAY
    return None


def left(x, y):
    """90 by 180: the lamp above, the house on its ground below."""
    if y < 100:
        return lamp(x, y) or GROUND
    if y > 164:
        return DEEP
    if 112 <= y <= 136 and abs(x - 45) <= (y - 112) * 1.25:
        return ROOF
    if 136 < y <= 164 and 21 <= x <= 69:
        if 41 <= x <= 51 and y >= 146:
            return DOOR
        if 143 <= y <= 151 and (27 <= x <= 35 or 57 <= x <= 65):
            return DOOR
        return WALL
    return GROUND


def top(x, y):
    """309 by 42: outlines of roofs above a line, on white."""
    if 36 <= y <= 38 and 8 <= x <= 301:
        return GROUND
    for i, (height, width) in enumerate([(22, 34), (15, 28), (26, 40), (18, 30), (12, 26)]):
        start = 96 + i * 40
        points = [(start, 36), (start, 36 - height * 0.55), (start + width / 2, 36 - height),
                  (start + width, 36 - height * 0.55), (start + width, 36)]
        for (x1, y1), (x2, y2) in zip(points, points[1:]):
            if near_segment(x, y, x1, y1, x2, y2, 0.7):
                return LINE
    if near_segment(x, y, 14, 36, 14, 12, 2) or near_segment(x, y, 14, 12, 40, 12, 2):
        return ROOF
    if near_segment(x, y, 26, 36, 26, 24, 2) or near_segment(x, y, 26, 24, 52, 24, 2):
        return GROUND
    return WHITE


def pixel(picture, x, y, scale):
    places = [picture((x + (i + 0.5) / 4) / scale, (y + (j + 0.5) / 4) / scale)
              for i in range(4) for j in range(4)]
    # Rounded to 32 steps a channel, so that all shades of an edge fit into one palette.
    return tuple(min(255, (sum(p[c] for p in places) // 16 + 4) // 8 * 8) for c in range(3))


def write(name, picture, width, height, scale):
    columns, rows = round(width * scale), round(height * scale)
    pixels = [[pixel(picture, x, y, scale) for x in range(columns)] for y in range(rows)]
    palette = sorted({p for row in pixels for p in row})
    assert len(palette) <= 256, (name, len(palette))
    index = {colour: i for i, colour in enumerate(palette)}
    table = b"".join(struct.pack("<BBBB", b, g, r, 0) for r, g, b in palette)
    table += bytes(4 * (256 - len(palette)))
    body = b"".join(bytes(index[p] for p in row) + bytes(-columns % 4) for row in reversed(pixels))
    offset = 14 + 40 + len(table)
    header = struct.pack("<2sIHHI", b"BM", offset + len(body), 0, 0, offset)
    info = struct.pack("<IiiHHIIiiII", 40, columns, rows, 1, 8, 0, len(body), 0, 0, 256, 0)
    with open(name, "wb") as out:
        out.write(header + info + table + body)


for label, scale in SCALES.items():
    write(f"tip_left_{label}.bmp", left, 90, 180, scale)
    write(f"tip_top_{label}.bmp", top, 309, 42, scale)
