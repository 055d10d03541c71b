#!/usr/bin/env python3
"""Checks the button images in assets/: they are exactly what assets/make_assets.py draws, as
8-bit RGBA PNGs (setup_scenario.sh counts them where they are installed).

usage: assets_test.py [SOURCE_DIR]
"""
import os
import subprocess
import sys
import tempfile
import unittest

SOURCE_DIR = os.path.abspath(os.path.join(os.path.dirname(__file__), "..", ".."))


class Images(unittest.TestCase):
    def test_generated_and_transparent(self):
        assets = os.path.join(SOURCE_DIR, "assets")
        present = sorted(n for n in os.listdir(assets) if n.lower().endswith(".png"))
        with tempfile.TemporaryDirectory() as out:
            result = subprocess.run([sys.executable, os.path.join(assets, "make_assets.py"), out],
                                    capture_output=True, text=True)
            self.assertEqual(result.returncode, 0, result.stderr)
            self.assertEqual(sorted(os.listdir(out)), present)
            for name in present:
                with open(os.path.join(out, name), "rb") as fresh, \
                        open(os.path.join(assets, name), "rb") as committed:
                    data = committed.read()
                    self.assertTrue(fresh.read() == data, f"{name} differs from what "
                                    "make_assets.py draws; regenerate with it")
                # IHDR: 8 bits per channel, colour type 6 (RGBA).
                self.assertEqual(data[12:16], b"IHDR", name)
                self.assertEqual(data[24:26], bytes([8, 6]), name)


if __name__ == "__main__":
    if len(sys.argv) > 1 and not sys.argv[1].startswith("-"):
        SOURCE_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main()
