"""A sheet of pixels on which a tour draws by itself what it has a pupil draw, to compare the two.

A pixel belongs to a stroke when its middle lies within half the pen's width of the line. Where that is a matter of
a hair, on the rim of an ellipse, the pixel is left open: None."""

import math
import subprocess

WIDTH, HEIGHT = 318, 240
HAIR = 0.04


class Sheet:
    def __init__(self, pixels):
        self.rows = pixels

    @classmethod
    def blank(cls, colour=(255, 255, 255)):
        return cls([[colour] * WIDTH for _ in range(HEIGHT)])

    @classmethod
    def from_picture(cls, path, left=0, top=0):
        """The sheet that lies at that place in a picture file."""
        raw = subprocess.run(("convert", str(path), "-crop", f"{WIDTH}x{HEIGHT}+{left}+{top}", "-depth", "8", "rgb:-"),
                             check=True, stdout=subprocess.PIPE).stdout
        line = WIDTH * 3
        return cls([[tuple(raw[y * line + x * 3:y * line + x * 3 + 3]) for x in range(WIDTH)] for y in range(HEIGHT)])

    def colour(self, inside, colour, area=(0, 0, WIDTH, HEIGHT)):
        """Colours the pixels of the area (left, top, right, bottom) for whose middle `inside` is true; None opens them."""
        left, top, right, bottom = (round(edge) for edge in area)
        for y in range(max(0, top), min(HEIGHT, bottom)):
            for x in range(max(0, left), min(WIDTH, right)):
                held = inside(x + 0.5, y + 0.5)
                if held or held is None:
                    self.rows[y][x] = colour if held else None

    def line(self, start, end, colour, width=2):
        (x1, y1), (x2, y2) = start, end
        dx, dy = x2 - x1, y2 - y1

        def inside(x, y):
            part = ((x - x1) * dx + (y - y1) * dy) / (dx * dx + dy * dy) if dx or dy else 0
            part = min(1, max(0, part))
            return math.hypot(x - x1 - part * dx, y - y1 - part * dy) <= width / 2 + 1e-9

        self.colour(inside, colour, (min(x1, x2) - width, min(y1, y2) - width, max(x1, x2) + width, max(y1, y2) + width))

    def box(self, start, end, colour):
        (left, right), (top, bottom) = sorted((start[0], end[0])), sorted((start[1], end[1]))
        self.colour(lambda x, y: not (left + 1 < x < right - 1 and top + 1 < y < bottom - 1), colour,
                    (left - 1, top - 1, right + 1, bottom + 1))

    def filled_box(self, start, end, colour):
        (left, right), (top, bottom) = sorted((start[0], end[0])), sorted((start[1], end[1]))
        self.colour(lambda x, y: True, colour, (left, top, right + 1, bottom + 1))

    def ellipse(self, start, end, colour, filled):
        (left, right), (top, bottom) = sorted((start[0], end[0])), sorted((start[1], end[1]))
        cx, cy, rx, ry = (left + right) / 2, (top + bottom) / 2, (right - left) / 2, (bottom - top) / 2
        nearest = {}  # of each pixel near the rim: how far away that is
        for step in range(4000):
            x, y = cx + rx * math.cos(step * math.pi / 2000), cy + ry * math.sin(step * math.pi / 2000)
            for px in range(math.floor(x) - 2, math.floor(x) + 3):
                for py in range(math.floor(y) - 2, math.floor(y) + 3):
                    away = math.hypot(px + 0.5 - x, py + 0.5 - y)
                    nearest[px, py] = min(away, nearest.get((px, py), 9))

        def inside(x, y):
            if filled and ((x - cx) / rx) ** 2 + ((y - cy) / ry) ** 2 <= 1:
                return True
            away = nearest.get((math.floor(x), math.floor(y)), 9)
            return None if abs(away - 1) < HAIR else away < 1

        self.colour(inside, colour, (left - 2, top - 2, right + 3, bottom + 3))

    def fill(self, start, colour):
        old, waiting = self.rows[start[1]][start[0]], [start]
        while waiting:
            x, y = waiting.pop()
            if 0 <= x < WIDTH and 0 <= y < HEIGHT and self.rows[y][x] == old:
                self.rows[y][x] = colour
                waiting += [(x - 1, y), (x + 1, y), (x, y - 1), (x, y + 1)]

    def differences(self, other, but=(0, 0, 0, 0), guides=(None, None)):
        """The places where both tell a pixel and not the same, outside the area `but` and off the guides, which are a
        column and a row."""
        left, top, right, bottom = but
        return [(x, y) for y in range(HEIGHT) if y != guides[1] and self.rows[y] != other.rows[y] for x in range(WIDTH)
                if x != guides[0] and not (left <= x < right and top <= y < bottom)
                and None not in (self.rows[y][x], other.rows[y][x]) and self.rows[y][x] != other.rows[y][x]]

    def blots(self, colour, area):
        """How many separate blots of the colour there are in the area."""
        left, top, right, bottom = area
        open_pixels = {(x, y) for y in range(top, bottom) for x in range(left, right) if self.rows[y][x] == colour}
        count = 0
        while open_pixels:
            count += 1
            waiting = [open_pixels.pop()]
            while waiting:
                x, y = waiting.pop()
                near = {(x + dx, y + dy) for dx in (-1, 0, 1) for dy in (-1, 0, 1)} & open_pixels
                open_pixels -= near
                waiting += near
        return count

    def halved(self):
        """The picture of the card: each pixel the mean of four, as rows of colours."""
        return [[tuple(sum(self.rows[y + dy][x + dx][c] for dx in (0, 1) for dy in (0, 1)) / 4 for c in range(3))
                 for x in range(0, WIDTH, 2)] for y in range(0, HEIGHT, 2)]
