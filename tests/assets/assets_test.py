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
BASES = {"stayhold_check_updates": (28, 28), "stayhold_update_available": (28, 28),
         "stayhold_chrome_close": (36, 22), "stayhold_chrome_maximize": (36, 22),
         "stayhold_chrome_minimize": (36, 22), "stayhold_chrome_restore": (36, 22)}
EXPECTED = {base + state + ".png": size for base, size in BASES.items()
            for state in ("", "_hot", "_pressed", "_disabled")}


def read_png(data):
    """Decodes a non-interlaced 8-bit RGBA PNG to (width, height, rows of RGBA tuples), checking
    the signature and every chunk's CRC."""
    assert data[:8] == b"\x89PNG\r\n\x1a\n", "not a PNG signature"
    pos, header, idat = 8, None, bytearray()
    while pos + 12 <= len(data):
        length, kind = struct.unpack(">I4s", data[pos:pos + 8])
        body = data[pos + 8:pos + 8 + length]
        assert zlib.crc32(kind + body) == struct.unpack(">I", data[pos + 8 + length:pos + 12 + length])[0]
        pos += 12 + length
        if kind == b"IHDR":
            header = struct.unpack(">IIBBBBB", body)
        elif kind == b"IDAT":
            idat += body
    width, height = header[:2]
    assert header[2:] == (8, 6, 0, 0, 0), f"not 8-bit straight RGBA: {header}"
    stride, raw = width * 4, zlib.decompress(bytes(idat))
    assert len(raw) == height * (stride + 1), "wrong amount of image data"
    rows, prev = [], bytearray(stride)
    for y in range(height):
        kind, line = raw[y * (stride + 1)], bytearray(raw[y * (stride + 1) + 1:(y + 1) * (stride + 1)])
        for i in range(stride):
            a, b = line[i - 4] if i >= 4 else 0, prev[i]
            c = prev[i - 4] if i >= 4 else 0
            pa, pb, pc = abs(b - c), abs(a - c), abs(a + b - 2 * c)
            paeth = a if pa <= pb and pa <= pc else b if pb <= pc else c
            line[i] = (line[i] + (0, a, b, (a + b) // 2, paeth)[kind]) & 0xFF
        rows.append([tuple(line[x * 4:x * 4 + 4]) for x in range(width)])
        prev = line
    return width, height, rows


def image(name):
    with open(os.path.join(SOURCE_DIR, "assets", name), "rb") as f:
        return read_png(f.read())


def alphas(name):
    return [px[3] for row in image(name)[2] for px in row]


class Images(unittest.TestCase):
    def test_exactly_the_files_the_generator_draws(self):
        assets = os.path.join(SOURCE_DIR, "assets")
        present = sorted(n for n in os.listdir(assets) if n.lower().endswith(".png"))
        self.assertEqual(present, sorted(EXPECTED))
        with tempfile.TemporaryDirectory() as out:
            result = subprocess.run([sys.executable, os.path.join(assets, "make_assets.py"), out],
                                    capture_output=True, text=True)
            self.assertEqual(result.returncode, 0, result.stderr)
            self.assertEqual(sorted(os.listdir(out)), sorted(EXPECTED))
            for name in sorted(EXPECTED):
                with open(os.path.join(out, name), "rb") as fresh, \
                        open(os.path.join(assets, name), "rb") as committed:
                    self.assertTrue(fresh.read() == committed.read(), f"{name} differs from what "
                                    "make_assets.py draws; regenerate with it")

    def test_format_size_transparency_and_states(self):
        # Disabled is fainter; under the pointer the button gains a plate that covers more.
        for base in BASES:
            normal = alphas(base + ".png")
            with self.subTest(base=base):
                self.assertEqual(image(base + "_pressed.png")[:2], EXPECTED[base + ".png"])
                self.assertIn(0, normal, "some pixels fully transparent")
                self.assertIn(255, normal, "the glyph itself is opaque")
                self.assertLessEqual(max(alphas(base + "_disabled.png")), min(max(normal) - 1, 127))
                for state in ("_hot", "_pressed"):
                    covered = alphas(base + state + ".png")
                    self.assertGreaterEqual(sum(map(bool, covered)), sum(map(bool, normal)))
                    self.assertNotEqual(covered, normal)

    def test_chrome_glyphs_are_centred(self):
        # The title bar draws the image centred in its button, so the glyph must be centred in
        # the image: equal side margins, and at most one pixel between top and bottom.
        for base in (b for b in BASES if "_chrome_" in b):
            with self.subTest(base=base):
                width, height, rows = image(base + ".png")
                xs = [x for y in range(height) for x in range(width) if rows[y][x][3]]
                ys = [y for y in range(height) for x in range(width) if rows[y][x][3]]
                self.assertEqual(min(xs), width - 1 - max(xs))
                self.assertLessEqual(abs(min(ys) - (height - 1 - max(ys))), 1)


if __name__ == "__main__":
    if len(sys.argv) > 1 and not sys.argv[1].startswith("-"):
        SOURCE_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main()
