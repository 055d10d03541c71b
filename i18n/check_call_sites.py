#!/usr/bin/env python3
"""Checks that every Localized(cs, en) call site uses the Czech key of its table row.

usage: check_call_sites.py SOURCE_ROOT

A call whose English text is that of a row must pass that row's Czech key exactly; otherwise
the lookup silently misses the row and the other 79 languages fall back to English. Rows whose
key holds a doubled backslash are never found by design and are exempt. Exits 1 on a mismatch.
"""
import os
import re
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from make_string_table import read_column  # noqa: E402

LITERAL = re.compile(r'L"((?:[^"\\]|\\.)*)"')
ESCAPES = {"n": "\n", "t": "\t", "\\": "\\", '"': '"', "'": "'"}


def unescape(text):
    out, i = [], 0
    while i < len(text):
        if text[i] == "\\" and i + 1 < len(text):
            nxt = text[i + 1]
            if nxt == "u":
                out.append(chr(int(text[i + 2:i + 6], 16)))
                i += 6
                continue
            out.append(ESCAPES.get(nxt, nxt))
            i += 2
        else:
            out.append(text[i])
            i += 1
    return "".join(out)


def arguments(source, start):
    """The two arguments of the call opening at `start`, each a run of adjacent literals."""
    args, current, depth, i = [], [], 1, start
    while i < len(source) and depth > 0:
        ch = source[i]
        if ch == "L" and source.startswith('L"', i):
            match = LITERAL.match(source, i)
            current.append(unescape(match.group(1)))
            i = match.end()
            continue
        if ch == "(":
            depth += 1
        elif ch == ")":
            depth -= 1
        elif ch == "," and depth == 1:
            args.append(current)
            current = []
        elif not ch.isspace() and depth == 1:
            current.append(None)  # not a plain literal
        i += 1
    args.append(current)
    if len(args) != 2 or any(None in arg or not arg for arg in args):
        return None
    return "".join(args[0]), "".join(args[1])


def main():
    root = sys.argv[1]
    strings = os.path.join(root, "i18n", "strings")
    keys = read_column(os.path.join(strings, "cs.txt"), "cs")
    english = read_column(os.path.join(strings, "en.txt"), "en")
    rows_by_english = {}
    for row, (key, en) in enumerate(zip(keys, english)):
        if "\\\\" not in key:
            rows_by_english.setdefault(en, []).append(row)
    problems, calls = [], 0
    for folder, _, files in os.walk(root):
        if "/build" in folder or "/.git" in folder or "/tests" in folder:
            continue
        for name in files:
            if not name.endswith((".cpp", ".h")):
                continue
            path = os.path.join(folder, name)
            source = open(path, encoding="utf-8").read()
            for match in re.finditer(r"\bLocalized\(", source):
                pair = arguments(source, match.end())
                if pair is None:
                    continue
                calls += 1
                cs, en = pair
                rows = rows_by_english.get(en, [])
                if rows and cs not in (keys[r] for r in rows):
                    line = source.count("\n", 0, match.start()) + 1
                    problems.append(f"{os.path.relpath(path, root)}:{line}: {en!r} has row "
                                    f"{rows[0]:03d} with key {keys[rows[0]]!r}, but the call "
                                    f"passes {cs!r}")
    for problem in problems:
        print(problem)
    print(f"checked {calls} call sites: {len(problems)} problems")
    if calls == 0:
        print("no call sites found")
        sys.exit(1)
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
