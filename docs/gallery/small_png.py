#!/usr/bin/env python3
"""Writes a picture of pdftoppm (PPM, on standard input) as a small PNG: few shades are enough for print.

usage: pdftoppm -r 80 -singlefile FILE.pdf | small_png.py FILE.png
"""

import struct
import sys
import zlib

SHADES = 12  # of each colour


def read_ppm(data):
    """Width, height and pixels of a P6 picture with 255 shades."""
    kind, size, most, pixels = data.split(b"\n", 3)
    if kind != b"P6" or most != b"255":
        sys.exit("small_png.py: that is no picture of pdftoppm")
    width, height = map(int, size.split())
    return width, height, pixels


def indexed(width, height, pixels):
    """The palette, and a row of its places for each line."""
    step = 255 / (SHADES - 1)
    shade = bytes(round(round(value / step) * step) for value in range(256))
    flat = pixels.translate(shade)
    palette, rows = {}, []
    for y in range(height):
        line = flat[y * width * 3 : (y + 1) * width * 3]
        colours = zip(line[0::3], line[1::3], line[2::3])
        rows.append([palette.setdefault(colour, len(palette)) for colour in colours])
    return list(palette), rows


def packed(row, bits):
    if bits == 8:
        return bytes(row)
    row = row + [0] * (len(row) % 2)
    return bytes(high << 4 | low for high, low in zip(row[0::2], row[1::2]))


def chunk(name, data):
    return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))


def main():
    width, height, pixels = read_ppm(sys.stdin.buffer.read())
    palette, rows = indexed(width, height, pixels)
    if len(palette) > 256:
        sys.exit("small_png.py: too many colours")
    bits = 4 if len(palette) <= 16 else 8
    lines = b"".join(b"\0" + packed(row, bits) for row in rows)
    with open(sys.argv[1], "wb") as file:
        file.write(b"\x89PNG\r\n\x1a\n")
        file.write(chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, bits, 3, 0, 0, 0)))
        file.write(chunk(b"PLTE", b"".join(map(bytes, palette))))
        file.write(chunk(b"IDAT", zlib.compress(lines, 9)))
        file.write(chunk(b"IEND", b""))


if __name__ == "__main__":
    main()
