#!/usr/bin/env python3
"""Checks update/make_release_manifest.py: the hash, the key order the program's reader needs,
literal non-ASCII text, escapes, and the history carried from the previous release."""
import hashlib
import os
import subprocess
import sys
import tempfile
import unittest

SCRIPT = os.path.join(os.path.dirname(__file__), "..", "..", "update", "make_release_manifest.py")


def run(*args):
    return subprocess.run([sys.executable, SCRIPT, *args], capture_output=True, text=True)


class ReleaseManifest(unittest.TestCase):
    def setUp(self):
        self.dir = tempfile.mkdtemp()
        self.setup = os.path.join(self.dir, "StayholdSetup.exe")
        with open(self.setup, "wb") as f:
            f.write(os.urandom(200000))

    def make(self, out, version, *extra):
        result = run("--setup", self.setup, "--version", version, "--setup-url",
                     f"https://example.invalid/StayholdSetup-{version}.exe", "--out", out, *extra)
        self.assertEqual(result.returncode, 0, result.stderr)
        return open(out, encoding="utf-8").read()

    def test_hash_order_text_and_history(self):
        first = os.path.join(self.dir, "first.json")
        text = self.make(first, "1.0.113", "--changes-cs", 'Oprava "úvozovek"\na \\ lomítka',
                         "--changes", "one")
        expected = hashlib.sha256(open(self.setup, "rb").read()).hexdigest().upper()
        self.assertIn(f'"sha256": "{expected}"', text)
        self.assertIn('Oprava \\"úvozovek\\"\\na \\\\ lomítka', text)
        self.assertNotIn("\\u", text)
        # The program's reader needs the release's own keys before the history; a re-release
        # of the same version replaces its entry.
        second = os.path.join(self.dir, "second.json")
        self.make(second, "1.0.114", "--changes", "two", "--previous", first)
        third = self.make(os.path.join(self.dir, "third.json"), "1.0.114", "--changes", "two again",
                          "--previous", second)
        self.assertLess(third.index('"changes_en"'), third.index('"history"'))
        history = third[third.index('"history"'):]
        self.assertEqual(history.count('"version": "1.0.113"'), 1)
        self.assertEqual(history.count('"version": "1.0.114"'), 1)
        self.assertIn("two again", history)
        self.assertNotIn('"two"', history)

    def test_refusals(self):
        out = os.path.join(self.dir, "x.json")
        for setup, version, url in ((os.path.join(self.dir, "missing.exe"), "1.0", "https://e/x"),
                                    (self.setup, "beta", "https://e/x"),
                                    (self.setup, "1.0", "ftp://e/x")):
            result = run("--setup", setup, "--version", version, "--setup-url", url, "--out", out)
            self.assertNotEqual(result.returncode, 0, (setup, version, url))

if __name__ == "__main__":
    unittest.main()
