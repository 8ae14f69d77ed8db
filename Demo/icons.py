"""Icons drawn from nothing: a squircle with a soft gradient and the application's initial, as an .icns file."""

import functools
import math
import struct
import zlib

SIZE = 256
MARGIN = 0.09


def arc(cx, cy, radius_x, radius_y, start, end, steps=10):
    """A piece of an ellipse as a polyline; degrees, clockwise from the right, as y grows downwards."""
    angles = [math.radians(start + (end - start) * step / steps) for step in range(steps + 1)]
    return [(cx + radius_x * math.cos(a), cy + radius_y * math.sin(a)) for a in angles]


# Initials as strokes in a box one high; the width is what the strokes take.
LETTERS = {
    "A": [[(0, 1), (0.38, 0), (0.76, 1)], [(0.14, 0.66), (0.62, 0.66)]],
    "B": [[(0, 0), (0, 1)], [(0, 0), *arc(0.36, 0.24, 0.24, 0.24, -90, 90), (0, 0.48)],
          [(0.36, 0.48), *arc(0.40, 0.74, 0.26, 0.26, -90, 90), (0, 1)]],
    "C": [arc(0.46, 0.5, 0.46, 0.5, -48, -312, 18)],
    "D": [[(0, 0), *arc(0.28, 0.5, 0.46, 0.5, -90, 90, 14), (0, 1), (0, 0)]],
    "F": [[(0.58, 0), (0, 0), (0, 1)], [(0, 0.48), (0.5, 0.48)]],
    "H": [[(0, 0), (0, 1)], [(0.7, 0), (0.7, 1)], [(0, 0.48), (0.7, 0.48)]],
    "K": [[(0, 0), (0, 1)], [(0.64, 0), (0, 0.6)], [(0.22, 0.4), (0.68, 1)]],
    "L": [[(0, 0), (0, 1), (0.56, 1)]],
    "M": [[(0, 1), (0, 0), (0.43, 0.62), (0.86, 0), (0.86, 1)]],
    "N": [[(0, 1), (0, 0), (0.7, 1), (0.7, 0)]],
    "P": [[(0, 1), (0, 0), *arc(0.36, 0.28, 0.28, 0.28, -90, 90), (0, 0.56)]],
    "R": [[(0, 1), (0, 0), *arc(0.36, 0.27, 0.27, 0.27, -90, 90), (0, 0.54)], [(0.34, 0.54), (0.66, 1)]],
    "S": [[*arc(0.34, 0.25, 0.32, 0.25, -30, -270, 10), *arc(0.34, 0.75, 0.34, 0.25, -90, 150, 10)]],
    "T": [[(0, 0), (0.72, 0)], [(0.36, 0), (0.36, 1)]],
    "W": [[(0, 0), (0.26, 1), (0.52, 0.2), (0.78, 1), (1.04, 0)]],
}


def colour(text):
    return tuple(int(text[at:at + 2], 16) for at in (1, 3, 5))


def mix(low, high, part):
    return tuple(round(a + (b - a) * part) for a, b in zip(low, high))


def segments(initial):
    """The letter's strokes as pixel segments, centred."""
    lines = LETTERS[initial]
    width = max(x for line in lines for x, _ in line)
    height = 0.34 * SIZE
    left, top = (SIZE - width * height) / 2, (SIZE - height) / 2
    points = [[(left + x * height, top + y * height) for x, y in line] for line in lines]
    return [(a, b) for line in points for a, b in zip(line, line[1:])]


def distance(x, y, a, b):
    dx, dy = b[0] - a[0], b[1] - a[1]
    part = ((x - a[0]) * dx + (y - a[1]) * dy) / (dx * dx + dy * dy or 1)
    part = min(1.0, max(0.0, part))
    return math.hypot(x - a[0] - part * dx, y - a[1] - part * dy)


def clamp(value):
    return min(1.0, max(0.0, value))


def draw(app):
    """The icon's pixels, row by row, as RGBA."""
    strokes, thickness, ink = segments(app.name[0]), 0.034 * SIZE, colour(app.letter)
    top, bottom = colour(app.ground[0]), colour(app.ground[1])
    radius, centre = SIZE * (0.5 - MARGIN), SIZE / 2
    box = [min(p[i] for s in strokes for p in s) - thickness - 1 for i in (0, 1)]
    box += [max(p[i] for s in strokes for p in s) + thickness + 1 for i in (0, 1)]
    rows = []
    for row in range(SIZE):
        y = row + 0.5
        v = abs(y - centre) / radius
        # Where the superellipse of degree 4 ends in this row.
        half = radius * (1 - v ** 4) ** 0.25 if v < 1 else 0.0
        ground = mix(top, bottom, clamp((y - centre + radius) / (2 * radius)))
        edge = mix(ground, (0, 0, 0), 0.10)
        pixels = bytearray()
        for column in range(SIZE):
            x = column + 0.5
            inside = half - abs(x - centre) + 0.5
            if inside <= 0 or half == 0:
                pixels += b"\0\0\0\0"
                continue
            shown = edge if inside < 2 or v > 0.985 else ground
            if box[0] < x < box[2] and box[1] < y < box[3]:
                near = min(distance(x, y, a, b) for a, b in strokes)
                shown = mix(shown, ink, clamp(thickness - near + 0.5))
            pixels += bytes((*shown, round(255 * clamp(inside))))
        rows.append(bytes(pixels))
    return rows


def png(rows):
    def chunk(kind, content):
        return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))

    header = struct.pack(">IIBBBBB", SIZE, len(rows), 8, 6, 0, 0, 0)
    content = zlib.compress(b"".join(b"\0" + row for row in rows), 9)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", content) + chunk(b"IEND", b"")


@functools.cache
def icns(app):
    """An icon file with its one image, 256 pixels wide ("ic08")."""
    image = png(draw(app))
    return b"icns" + struct.pack(">I", 16 + len(image)) + b"ic08" + struct.pack(">I", 8 + len(image)) + image
