#!/usr/bin/env python3
"""Checks the button images in assets/: they are exactly what assets/make_assets.py draws, there
are the 24 expected files, each an 8-bit RGBA PNG of its use size with real transparency, and the
disabled forms are fainter than the normal ones.

usage: assets_test.py [SOURCE_DIR]
"""
import os
import struct
import subprocess
import sys
import tempfile
import unittest
import zlib

SOURCE_DIR = os.path.abspath(os.path.join(os.path.dirname(__file__), "..", ".."))

BASES = {
    "stayhold_check_updates": (28, 28),
    "stayhold_update_available": (28, 28),
    "stayhold_chrome_close": (36, 22),
    "stayhold_chrome_maximize": (36, 22),
    "stayhold_chrome_minimize": (36, 22),
    "stayhold_chrome_restore": (36, 22),
}
STATES = ("", "_hot", "_pressed", "_disabled")
EXPECTED = {base + state + ".png": size for base, size in BASES.items() for state in STATES}


class PngError(Exception):
    pass


def read_png(data):
    """Decodes a non-interlaced 8-bit PNG of colour type 2 or 6 to (width, height, colour type,
    rows of RGBA tuples). Checks the signature and every chunk's CRC."""
    if data[:8] != b"\x89PNG\r\n\x1a\n":
        raise PngError("not a PNG signature")
    pos, header, idat = 8, None, bytearray()
    while True:
        if pos + 12 > len(data):
            raise PngError("truncated chunk")
        length, = struct.unpack(">I", data[pos:pos + 4])
        kind = data[pos + 4:pos + 8]
        body = data[pos + 8:pos + 8 + length]
        crc, = struct.unpack(">I", data[pos + 8 + length:pos + 12 + length])
        if zlib.crc32(kind + body) != crc:
            raise PngError(f"bad CRC in {kind!r}")
        pos += 12 + length
        if kind == b"IHDR":
            header = struct.unpack(">IIBBBBB", body)
        elif kind == b"IDAT":
            idat += body
        elif kind == b"IEND":
            break
    if header is None:
        raise PngError("no IHDR")
    width, height, depth, colour, compression, filtering, interlace = header
    if depth != 8 or colour not in (2, 6) or compression or filtering or interlace:
        raise PngError(f"unsupported header {header}")
    bpp = 4 if colour == 6 else 3
    stride = width * bpp
    raw = zlib.decompress(bytes(idat))
    if len(raw) != height * (stride + 1):
        raise PngError("wrong amount of image data")
    rows, prev = [], bytearray(stride)
    for y in range(height):
        kind = raw[y * (stride + 1)]
        line = bytearray(raw[y * (stride + 1) + 1:(y + 1) * (stride + 1)])
        for i in range(stride):
            a = line[i - bpp] if i >= bpp else 0
            b = prev[i]
            c = prev[i - bpp] if i >= bpp else 0
            if kind == 0:
                p = 0
            elif kind == 1:
                p = a
            elif kind == 2:
                p = b
            elif kind == 3:
                p = (a + b) // 2
            elif kind == 4:
                e = a + b - c
                pa, pb, pc = abs(e - a), abs(e - b), abs(e - c)
                p = a if pa <= pb and pa <= pc else b if pb <= pc else c
            else:
                raise PngError(f"unknown filter {kind}")
            line[i] = (line[i] + p) & 0xFF
        rows.append([tuple(line[x * bpp:(x + 1) * bpp]) + ((255,) if bpp == 3 else ())
                     for x in range(width)])
        prev = line
    return width, height, colour, rows


def encode_with_filter(rows, kind):
    """An RGBA PNG whose every row uses filter `kind`; only for testing the reader."""
    height, width = len(rows), len(rows[0])
    stride, raw, prev = width * 4, bytearray(), bytearray(width * 4)
    for row in rows:
        line = bytes(v for px in row for v in px)
        out = bytearray()
        for i in range(stride):
            a = line[i - 4] if i >= 4 else 0
            b = prev[i]
            c = prev[i - 4] if i >= 4 else 0
            e = a + b - c
            pa, pb, pc = abs(e - a), abs(e - b), abs(e - c)
            paeth = a if pa <= pb and pa <= pc else b if pb <= pc else c
            p = (0, a, b, (a + b) // 2, paeth)[kind]
            out.append((line[i] - p) & 0xFF)
        raw += bytes((kind,)) + out
        prev = bytearray(line)

    def chunk(k, d):
        return struct.pack(">I", len(d)) + k + d + struct.pack(">I", zlib.crc32(k + d))
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(bytes(raw))) + chunk(b"IEND", b""))


def alphas(rows):
    return [px[3] for row in rows for px in row]


class PngReader(unittest.TestCase):
    def test_all_five_filters_round_trip(self):
        rows = [[((x * 37 + y * 11) & 0xFF, (x * y * 5) & 0xFF, (200 - x * 9) & 0xFF,
                  (y * 60 + x) & 0xFF) for x in range(7)] for y in range(5)]
        for kind in range(5):
            with self.subTest(filter=kind):
                width, height, colour, decoded = read_png(encode_with_filter(rows, kind))
                self.assertEqual((width, height, colour), (7, 5, 6))
                self.assertEqual(decoded, rows)

    def test_corrupt_crc_is_refused(self):
        data = bytearray(encode_with_filter([[(1, 2, 3, 4)]], 0))
        data[-20] ^= 0xFF
        with self.assertRaises(PngError):
            read_png(bytes(data))


class Images(unittest.TestCase):
    assets = os.path.join(SOURCE_DIR, "assets")

    def load(self, name):
        with open(os.path.join(self.assets, name), "rb") as f:
            return f.read()

    def test_files_match_the_generator(self):
        with tempfile.TemporaryDirectory() as out:
            result = subprocess.run(
                [sys.executable, os.path.join(self.assets, "make_assets.py"), out],
                capture_output=True, text=True)
            self.assertEqual(result.returncode, 0, result.stderr)
            self.assertEqual(sorted(os.listdir(out)), sorted(EXPECTED))
            for name in sorted(EXPECTED):
                with self.subTest(image=name):
                    with open(os.path.join(out, name), "rb") as f:
                        fresh = f.read()
                    committed = self.load(name)
                    if fresh != committed:
                        same_pixels = read_png(fresh)[3] == read_png(committed)[3]
                        self.fail(f"{name} differs from what make_assets.py draws"
                                  + (" (same pixels: only the compressed stream differs)"
                                     if same_pixels else "; regenerate with "
                                     "`python3 assets/make_assets.py assets`"))

    def test_exactly_the_expected_images(self):
        present = sorted(n for n in os.listdir(self.assets) if n.lower().endswith(".png"))
        self.assertEqual(present, sorted(EXPECTED))

    def test_format_size_and_transparency(self):
        for name, size in sorted(EXPECTED.items()):
            with self.subTest(image=name):
                width, height, colour, rows = read_png(self.load(name))
                self.assertEqual((width, height), size)
                self.assertEqual(colour, 6, "RGBA with straight alpha")
                a = alphas(rows)
                self.assertTrue(0 in a, "some pixels fully transparent")
                self.assertTrue(any(v > 0 for v in a), "something drawn")
                if not name.endswith("_disabled.png"):
                    self.assertTrue(255 in a, "the glyph itself is opaque")

    def test_disabled_is_fainter(self):
        for base in BASES:
            with self.subTest(base=base):
                normal = max(alphas(read_png(self.load(base + ".png"))[3]))
                disabled = max(alphas(read_png(self.load(base + "_disabled.png"))[3]))
                self.assertLess(disabled, normal)
                self.assertLessEqual(disabled, 0.5 * 255)

    def test_hot_and_pressed_add_a_plate(self):
        # Under the pointer the button gains a plate: more of the image is covered.
        for base in BASES:
            normal = sum(1 for v in alphas(read_png(self.load(base + ".png"))[3]) if v)
            for state in ("_hot", "_pressed"):
                with self.subTest(image=base + state):
                    covered = sum(1 for v in alphas(read_png(self.load(base + state + ".png"))[3]) if v)
                    self.assertGreaterEqual(covered, normal)
                    rows = read_png(self.load(base + state + ".png"))[3]
                    self.assertNotEqual(rows, read_png(self.load(base + ".png"))[3])

    def test_chrome_glyphs_are_centred(self):
        # The title bar draws the image centred in its button, so the glyph must be centred in
        # the image: equal side margins, and at most one pixel between top and bottom.
        for base in BASES:
            if "_chrome_" not in base:
                continue
            with self.subTest(base=base):
                width, height, _, rows = read_png(self.load(base + ".png"))
                xs = [x for y in range(height) for x in range(width) if rows[y][x][3]]
                ys = [y for y in range(height) for x in range(width) if rows[y][x][3]]
                self.assertEqual(min(xs), width - 1 - max(xs))
                self.assertLessEqual(abs(min(ys) - (height - 1 - max(ys))), 1)


if __name__ == "__main__":
    if len(sys.argv) > 1 and not sys.argv[1].startswith("-"):
        SOURCE_DIR = os.path.abspath(sys.argv.pop(1))
        Images.assets = os.path.join(SOURCE_DIR, "assets")
    unittest.main()
