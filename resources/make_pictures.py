#!/usr/bin/env python3
"""Draws the four pictures that stand in for a skin icon that cannot be shown.

    make_pictures.py [FOLDER]      writes the Targa files (default: beside this)
    make_pictures.py --png FOLDER  writes them as PNG, enlarged, to look at

A subject in the middle says what the picture is about, a box for a package and
a framed portrait for a skin icon; a badge says what is the matter with it. The
pictures are opaque squares like the game's own icons, so that they look the
same on light and dark windows.

A shape is a function from a point to its distance from the shape's edge,
negative inside; the distance also gives the anti-aliased edge.
"""

import math
import struct
import sys
import zlib
from pathlib import Path

SIZE = 128

GROUND_TOP = (58, 66, 80)
GROUND_BOTTOM = (34, 39, 49)
LINE = (214, 222, 232)
WHITE = (255, 255, 255)
BOX_TOP, BOX_LEFT, BOX_RIGHT = (122, 131, 146), (100, 109, 124), (80, 88, 102)
TAPE = (146, 155, 170)
SKY, FIGURE = (86, 112, 148), (226, 233, 242)
DIM_SKY, DIM_FIGURE = (74, 82, 96), (134, 143, 158)
GREY, RED = (120, 130, 146), (217, 64, 58)
AMBER, GREEN = (224, 146, 28), (46, 160, 84)


# Shapes -------------------------------------------------------------------

def circle(cx, cy, radius):
    return lambda x, y: math.hypot(x - cx, y - cy) - radius


def line(ax, ay, bx, by, width):
    """A line with round ends."""
    dx, dy = bx - ax, by - ay
    length = dx * dx + dy * dy

    def distance(x, y):
        t = max(0.0, min(1.0, ((x - ax) * dx + (y - ay) * dy) / length))
        return math.hypot(x - ax - t * dx, y - ay - t * dy) - width / 2
    return distance


def polyline(points, width):
    return union(*(line(*a, *b, width) for a, b in zip(points, points[1:])))


def polygon(points, rounding=0.0):
    edges = list(zip(points, points[1:] + points[:1]))

    def distance(x, y):
        nearest, inside = math.inf, False
        for (ax, ay), (bx, by) in edges:
            dx, dy = bx - ax, by - ay
            t = ((x - ax) * dx + (y - ay) * dy) / (dx * dx + dy * dy)
            t = max(0.0, min(1.0, t))
            nearest = min(nearest, math.hypot(x - ax - t * dx, y - ay - t * dy))
            if (ay > y) != (by > y) and x < ax + (y - ay) * dx / dy:
                inside = not inside
        return (-nearest if inside else nearest) - rounding
    return distance


def box(left, top, right, bottom, rounding):
    cx, cy = (left + right) / 2, (top + bottom) / 2
    w, h = (right - left) / 2 - rounding, (bottom - top) / 2 - rounding

    def distance(x, y):
        qx, qy = abs(x - cx) - w, abs(y - cy) - h
        outside = math.hypot(max(qx, 0.0), max(qy, 0.0))
        return outside + min(max(qx, qy), 0.0) - rounding
    return distance


def arc(cx, cy, radius, start, end, width):
    """Part of a ring; angles in degrees, clockwise from the right."""
    steps = 24
    angles = [math.radians(start + (end - start) * i / steps)
              for i in range(steps + 1)]
    return polyline([(cx + radius * math.cos(a), cy + radius * math.sin(a))
                     for a in angles], width)


def union(*shapes):
    return lambda x, y: min(shape(x, y) for shape in shapes)


def both(*shapes):
    return lambda x, y: max(shape(x, y) for shape in shapes)


def without(shape, cut):
    return lambda x, y: max(shape(x, y), -cut(x, y))


def outline(shape, width):
    return lambda x, y: abs(shape(x, y)) - width / 2


def grown(shape, amount):
    return lambda x, y: shape(x, y) - amount


def moved(shape, dx, dy, degrees=0.0):
    cos, sin = math.cos(math.radians(degrees)), math.sin(math.radians(degrees))

    def distance(x, y):
        x, y = x - dx, y - dy
        return shape(cos * x + sin * y, cos * y - sin * x)
    return distance


# Canvas -------------------------------------------------------------------

class Canvas:
    """Rows of (red, green, blue), the top row first."""

    def __init__(self):
        self.rows = [[self.ground(y + 0.5)] * SIZE for y in range(SIZE)]

    @staticmethod
    def ground(y):
        t = y / SIZE
        return tuple(a + (b - a) * t for a, b in zip(GROUND_TOP, GROUND_BOTTOM))

    def fill(self, shape, colour, opacity=1.0):
        """Paints the shape; without a colour the ground shows again."""
        for y, row in enumerate(self.rows):
            paint = colour or self.ground(y + 0.5)
            for x, under in enumerate(row):
                cover = max(0.0, min(1.0, 0.5 - shape(x + 0.5, y + 0.5)))
                if cover > 0:
                    cover *= opacity
                    row[x] = tuple(u + (p - u) * cover
                                   for u, p in zip(under, paint))

    def pixels(self):
        return [[tuple(round(c) for c in pixel) for pixel in row]
                for row in self.rows]


# The parts of the pictures ------------------------------------------------

# Corners of the box seen from above its front edge.
TOP, RIGHT, FRONT, LEFT = (58, 17), (97, 36), (58, 55), (19, 36)
RIGHT_FOOT, FOOT, LEFT_FOOT = (97, 79), (58, 98), (19, 79)
BADGE = (98, 98)


def between(a, b, t):
    return (a[0] + (b[0] - a[0]) * t, a[1] + (b[1] - a[1]) * t)


def draw_package(canvas):
    hull = polygon([TOP, RIGHT, RIGHT_FOOT, FOOT, LEFT_FOOT, LEFT], 3)
    canvas.fill(hull, BOX_RIGHT)
    canvas.fill(both(hull, polygon([(0, 26.7), FRONT, (58, 128), (0, 128)])),
                BOX_LEFT)
    canvas.fill(both(hull, polygon([(0, 26.7), (58, -50), (116, 26.7), FRONT])),
                BOX_TOP)
    # The tape runs over the lid and a little down the left face.
    a, b = between(LEFT, FRONT, 0.40), between(LEFT, FRONT, 0.60)
    c, d = between(TOP, RIGHT, 0.60), between(TOP, RIGHT, 0.40)
    canvas.fill(both(hull, polygon([a, b, c, d])), TAPE)
    canvas.fill(polygon([a, b, (b[0], b[1] + 17), (a[0], a[1] + 17)]), TAPE,
                0.8)


def draw_missing_package(canvas):
    edges = [(TOP, RIGHT), (RIGHT, RIGHT_FOOT), (RIGHT_FOOT, FOOT),
             (FOOT, LEFT_FOOT), (LEFT_FOOT, LEFT), (LEFT, TOP),
             (LEFT, FRONT), (RIGHT, FRONT), (FRONT, FOOT)]
    dashes = []
    for a, b in edges:
        # A dash half as long at both ends joins with those of its neighbours.
        for t, u in ((0, 0.12), (0.37, 0.63), (0.88, 1)):
            start, end = between(a, b, t), between(a, b, u)
            if min(math.dist(start, BADGE), math.dist(end, BADGE)) > 30:
                dashes.append(line(*start, *end, 4.5))
    canvas.fill(union(*dashes), LINE, 0.85)


def draw_portrait(canvas, sky, figure, frame, dx=0.0, dy=0.0, part=None):
    """A framed head and shoulders; only what lies inside part, when given."""
    whole = part or (lambda x, y: -math.inf)
    inner = box(19, 17, 97, 98, 9)
    body = union(circle(58, 48, 16.5), circle(58, 107, 33))
    for shape, colour in ((inner, sky), (both(grown(inner, -2), body), figure),
                          (outline(grown(inner, -2), 5), frame)):
        canvas.fill(both(moved(shape, dx, dy), whole), colour)


def draw_badge(canvas, colour, *symbol):
    disc = circle(*BADGE, 21)
    canvas.fill(grown(disc, 5), None)
    canvas.fill(disc, colour)
    for shape, paint in symbol:
        canvas.fill(shape, paint)


# The pictures -------------------------------------------------------------

def not_in_use():
    """Package features are switched off."""
    canvas = Canvas()
    draw_package(canvas)
    power = union(arc(98, 99, 10.5, -52, 232, 4.6), line(98, 85.5, 98, 97, 4.6))
    draw_badge(canvas, GREY, (power, WHITE))
    return canvas


def no_package():
    """The package is not there."""
    canvas = Canvas()
    draw_missing_package(canvas)
    cross = union(line(90.5, 90.5, 105.5, 105.5, 5.5),
                  line(105.5, 90.5, 90.5, 105.5, 5.5))
    draw_badge(canvas, RED, (cross, WHITE))
    return canvas


def not_found():
    """The package is there, but no icon comes out of it."""
    canvas = Canvas()
    tear = [(50, 0), (66, 28), (49, 46), (65, 66), (48, 84), (62, 128)]
    left = polygon([(0, 0)] + tear + [(0, 128)])
    right = polygon([(128, 0)] + tear + [(128, 128)])
    draw_portrait(canvas, DIM_SKY, DIM_FIGURE, LINE, -2, 0, grown(left, -2.5))
    draw_portrait(canvas, DIM_SKY, DIM_FIGURE, LINE, 3, 4, grown(right, -2.5))
    hook = union(arc(98, 93, 6.5, -180, 50, 4.8),
                 polyline([(102.2, 98), (98, 101.5), (98, 103.5)], 4.8),
                 circle(98, 110.5, 2.9))
    draw_badge(canvas, AMBER, (hook, WHITE))
    return canvas


def user_defined():
    """The user added this skin."""
    canvas = Canvas()
    draw_portrait(canvas, SKY, FIGURE, LINE)
    body = polygon([(-13, 0), (-7, -4), (12, -4), (12, 4), (-7, 4)], 0.8)
    pencil = moved(body, *BADGE, -45)
    gap = moved(line(7.2, -6, 7.2, 6, 1.8), *BADGE, -45)
    draw_badge(canvas, GREEN, (without(pencil, gap), WHITE))
    return canvas


PICTURES = {"notinuse": not_in_use, "nopk3": no_package,
            "notfound": not_found, "userdef": user_defined}


# Files --------------------------------------------------------------------

def targa(pixels):
    """Uncompressed, 24 bits, bottom row first: what the game's icons are."""
    header = struct.pack("<BBBHHBHHHHBB", 0, 0, 2, 0, 0, 0, 0, 0,
                         SIZE, SIZE, 24, 0)
    return header + bytes(value for row in reversed(pixels)
                          for red, green, blue in row
                          for value in (blue, green, red))


def png(pixels, scale):
    def chunk(kind, data):
        check = zlib.crc32(kind + data)
        return (struct.pack(">I", len(data)) + kind + data +
                struct.pack(">I", check))

    lines = []
    for row in pixels:
        wide = bytes(value for pixel in row for _ in range(scale)
                     for value in pixel)
        lines += [b"\0" + wide] * scale
    head = struct.pack(">IIBBBBB", SIZE * scale, SIZE * scale, 8, 2, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) +
            chunk(b"IDAT", zlib.compress(b"".join(lines))) +
            chunk(b"IEND", b""))


def main(arguments):
    as_png = arguments[:1] == ["--png"]
    rest = arguments[as_png:]
    folder = Path(rest[0]) if rest else Path(__file__).resolve().parent
    for name, draw in PICTURES.items():
        pixels = draw().pixels()
        if as_png:
            (folder / f"{name}.png").write_bytes(png(pixels, 3))
        else:
            (folder / f"{name}.tga").write_bytes(targa(pixels))


if __name__ == "__main__":
    main(sys.argv[1:])
