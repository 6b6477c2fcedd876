"""Draws the animated images of the gallery: gallery/movies.

usage: make_movies.py REPOSITORY

They are our own work, each frame computed here, so the outcome is the same wherever this runs. It takes nothing but
Python: edges are smoothed by drawing larger, and the files are written by the encoder below.

The background is transparent, so the images look right in every theme. GIF knows no half transparent pixel: the images
are drawn at twice the size at which they are shown, and become smooth when they are scaled down.
"""
import math
import sys
from pathlib import Path

OVERSAMPLING = 3
SIDE = 96  # at which the images are shown, and the unit of all that is drawn
SCALE = 2  # pixels of the file for each of these units


class Canvas:
    """Squares of color on a transparent plane, drawn large and reduced at the end."""

    def __init__(self):
        self.side = SIDE * SCALE
        self.large = self.side * OVERSAMPLING
        self.pixels = [[None] * self.large for _ in range(self.large)]

    def fill(self, inside, color, box):
        """Colors what is inside, which is asked for positions within the box."""
        fine = SCALE * OVERSAMPLING
        left, top, right, bottom = (max(0, int(value * fine)) for value in box)
        for y in range(top, min(self.large - 1, bottom) + 1):
            row = self.pixels[y]
            at_y = (y + 0.5) / fine
            for x in range(left, min(self.large - 1, right) + 1):
                if inside((x + 0.5) / fine, at_y):
                    row[x] = color

    def disc(self, x, y, radius, color):
        self.ellipse(x, y, radius, radius, color)

    def ellipse(self, x, y, width, height, color):
        self.fill(lambda px, py: ((px - x) / width) ** 2 + ((py - y) / height) ** 2 <= 1, color,
                  (x - width, y - height, x + width, y + height))

    def shadow(self, x, y, width, height, color):
        """A quarter of the pixels, which is a quarter of the color when the image is scaled down.

        They stand in no order: one would show as stripes at other scales than a half.
        """
        self.fill(lambda px, py: ((px - x) / width) ** 2 + ((py - y) / height) ** 2 <= 1
                  and (int(px * SCALE) * 7919 + int(py * SCALE) * 104729) % 61 % 4 == 0, color,
                  (x - width, y - height, x + width, y + height))

    def reduced(self):
        """Rows of colors; None is transparent. A pixel is there if half of it is."""
        rows = []
        for y in range(self.side):
            row = []
            for x in range(self.side):
                block = [color for dy in range(OVERSAMPLING)
                         for color in self.pixels[y * OVERSAMPLING + dy][x * OVERSAMPLING:(x + 1) * OVERSAMPLING]
                         if color]
                if 2 * len(block) < OVERSAMPLING ** 2:
                    row.append(None)
                elif block.count(block[0]) == len(block):
                    row.append(tuple(round(part / 17) * 17 for part in block[0]))
                else:
                    row.append(tuple(round(sum(color[i] for color in block) / len(block) / 17) * 17
                                     for i in range(3)))
            rows.append(row)
        return rows


def bouncing_ball(t):
    """A ball that falls, is flattened and jumps again."""
    canvas = Canvas()
    height = 1 - (2 * t - 1) ** 2
    press = max(0.0, 1 - height * 6)
    canvas.shadow(48, 87, 26 - 12 * height, 5 - 2 * height, (34, 34, 68))
    width, tall = 18 * (1 + 0.25 * press), 18 * (1 - 0.25 * press)
    y = 84 - tall - 44 * height
    canvas.ellipse(48, y, width, tall, (110, 100, 230))
    canvas.ellipse(42, y - tall * 0.4, width * 0.28, tall * 0.2, (178, 174, 244))
    return canvas.reduced()


def beating_heart(t):
    """A heart that beats twice and rests."""
    canvas = Canvas()
    beat = max(math.exp(-((t - at) / 0.07) ** 2) * size for at, size in ((0.18, 1.0), (0.42, 0.6)))
    scale = 24 * (1 + 0.2 * beat)

    def heart(px, py):
        x, y = (px - 48) / scale, (46 - py) / scale
        return (x * x + y * y - 1) ** 3 - x * x * y ** 3 <= 0

    canvas.fill(heart, (224, 62, 92), (8, 8, 88, 88))
    canvas.ellipse(48 - 0.55 * scale, 46 - 0.62 * scale, 0.2 * scale, 0.14 * scale, (246, 166, 180))
    return canvas.reduced()


def typing_dots(t):
    """The bubble of one who is writing, with three dots that rise in turn."""
    canvas = Canvas()
    bubble = (102, 119, 170)

    def rounded(px, py):
        dx, dy = max(0, abs(px - 48) - 18), abs(py - 46)
        return dx * dx + dy * dy <= 22 * 22

    canvas.fill(rounded, bubble, (8, 24, 88, 68))
    canvas.fill(lambda px, py: px >= 18 and py >= 58 and (px - 18) * 1.1 + (py - 58) <= 20, bubble, (18, 58, 40, 80))
    for index in range(3):
        rise = max(0.0, math.sin(2 * math.pi * (t - index * 0.14)))
        shade = tuple(round(a + (b - a) * rise) for a, b in zip((204, 213, 238), (255, 255, 255)))
        canvas.disc(31 + 17 * index, 49 - 8 * rise, 5.5, shade)
    return canvas.reduced()


def lzw(indices, bits):
    """The codes of the indices, packed from the low end."""
    clear, end = 1 << bits, (1 << bits) + 1
    out, pending, pending_bits = bytearray(), 0, 0

    def put(code, size):
        nonlocal pending, pending_bits
        pending |= code << pending_bits
        pending_bits += size
        while pending_bits >= 8:
            out.append(pending & 255)
            pending >>= 8
            pending_bits -= 8

    table, size = {(i,): i for i in range(clear)}, bits + 1
    put(clear, size)
    following, known = end + 1, ()
    for index in indices:
        longer = known + (index,)
        if longer in table:
            known = longer
            continue
        put(table[known], size)
        if following < 4096:
            table[longer] = following
            if following == 1 << size:
                size += 1
            following += 1
        else:
            put(clear, size)
            table, size, following = {(i,): i for i in range(clear)}, bits + 1, end + 1
        known = (index,)
    put(table[known], size)
    put(end, size)
    if pending_bits:
        out.append(pending & 255)
    return bytes(out)


def gif(frames, delay):
    """An endless animation. Each frame holds the rectangle of what it shows, and is wiped out before the next."""
    colors = sorted({color for frame in frames for row in frame for color in row if color})
    bits = max(2, len(colors).bit_length())
    if bits > 8:
        raise ValueError(f"{len(colors)} colors")
    number = {color: index for index, color in enumerate(colors)}
    number[None] = transparent = len(colors)
    side = len(frames[0])
    data = bytearray(b"GIF89a" + side.to_bytes(2, "little") * 2 + bytes([0x80 | 0x70 | (bits - 1), transparent, 0]))
    data += b"".join(bytes(color) for color in colors).ljust(3 << bits, b"\0")
    data += b"\x21\xff\x0bNETSCAPE2.0\x03\x01\0\0\0"
    for frame in frames:
        rows = [y for y in range(side) if any(frame[y])]
        columns = [x for x in range(side) if any(frame[y][x] for y in range(side))]
        left, top, right, bottom = columns[0], rows[0], columns[-1] + 1, rows[-1] + 1
        data += b"\x21\xf9\x04\x09" + delay.to_bytes(2, "little") + bytes([transparent, 0]) + b","
        for value in (left, top, right - left, bottom - top):
            data += value.to_bytes(2, "little")
        packed = lzw([number[color] for row in frame[top:bottom] for color in row[left:right]], bits)
        data += bytes([0, bits])
        for at in range(0, len(packed), 255):
            part = packed[at:at + 255]
            data += bytes([len(part)]) + part
        data += b"\0"
    return bytes(data + b";")


MOVIES = (("ball.gif", bouncing_ball, 20, 4), ("heart.gif", beating_heart, 20, 5), ("typing.gif", typing_dots, 18, 6))


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__.strip().splitlines()[2])
    folder = Path(sys.argv[1]) / "gallery" / "movies"
    folder.mkdir(exist_ok=True)
    for name, draw, count, delay in MOVIES:
        (folder / name).write_bytes(gif([draw(index / count) for index in range(count)], delay))


if __name__ == "__main__":
    main()
