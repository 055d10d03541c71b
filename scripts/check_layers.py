#!/usr/bin/env python3
"""Checks the source tree's shape: every #include points down the layer order, no two folders
include each other, no application header declares a mutable `extern` variable (process-wide
state is owned by one module and reached through its functions; constant tables are data), and
no source file outgrows 800 lines. Prints the folders' include matrix and each breach, and exits
1 when there is one. Usage: check_layers.py [ROOT]

The order, bottom first. A folder may include its own headers and those of any folder of a
lower rank; folders of one rank may not include each other.
"""
import os
import re
import sys

LAYERS = [
    ("base", 0),
    ("tessel/style", 1),
    ("tessel/paint", 2),
    ("tessel/skin", 3),
    ("tessel/core", 3),
    ("tessel/controls", 4),
    ("i18n", 5),
    ("guard", 6),
    ("update", 7),
    ("tray", 8),
    ("settings", 9),
    ("setup", 10),
    ("app", 11),
]
RANK = dict(LAYERS)
TOOLKIT = [folder for folder, _ in LAYERS if folder == "base" or folder.startswith("tessel/")]

# Tests of the toolkit build into a program of their own, without the application.
TOOLKIT_TEST_ROOTS = ("tests/base", "tests/tessel")
TOOLKIT_TEST_MAY_INCLUDE = tuple(TOOLKIT) + ("tests/support", "tests/base", "tests/tessel")

SOURCE_ENDINGS = (".cpp", ".h", ".inc")
SIZE_ENDINGS = SOURCE_ENDINGS + (".py", ".sh", ".cmake")
MAX_LINES = 800
SKIPPED_DIRS = {".git", "build"}

INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.M)
EXTERN = re.compile(r"^\s*extern\s+(?!\"C\")(?!const\b)[^;(]*?\b(\w+)\s*(?:\[[^\]]*\])?\s*;", re.M)


def walk(root):
    for directory, dirs, files in os.walk(root):
        dirs[:] = [d for d in dirs if d not in SKIPPED_DIRS and not d.startswith(".")]
        for name in files:
            path = os.path.relpath(os.path.join(directory, name), root).replace(os.sep, "/")
            yield path


def folder_of(path):
    """The layer folder a path lies in (the longest match), or None."""
    best = None
    for folder, _ in LAYERS:
        if path.startswith(folder + "/") and (best is None or len(folder) > len(best)):
            best = folder
    return best


def check(root):
    breaches = []
    edges = {}
    for path in walk(root):
        full = os.path.join(root, path)
        if path.endswith(SIZE_ENDINGS):
            with open(full, encoding="utf-8", errors="replace") as f:
                lines = sum(1 for _ in f)
            if lines > MAX_LINES:
                breaches.append(f"{path}: {lines} lines, more than {MAX_LINES}")
        if not path.endswith(SOURCE_ENDINGS):
            continue
        with open(full, encoding="utf-8", errors="replace") as f:
            text = f.read()
        included = INCLUDE.findall(text)
        top = path.split("/", 1)[0]
        source = folder_of(path)
        if path.startswith(TOOLKIT_TEST_ROOTS):
            for header in included:
                if "/" in header and not header.startswith(TOOLKIT_TEST_MAY_INCLUDE):
                    breaches.append(f"{path}: a toolkit test includes {header}")
            continue
        if top == "bench":
            for header in included:
                if header.startswith("tests/"):
                    breaches.append(f"{path}: a benchmark includes {header} from the tests")
            continue
        if top == "tests":
            continue
        if source is None:
            if "/" in path and top not in ("cmake", "scripts", "package", "assets", "skins"):
                breaches.append(f"{path}: its folder has no place in the layer order")
            continue
        if path.endswith(".h") and source not in TOOLKIT:
            for match in EXTERN.finditer(text):
                breaches.append(f"{path}: extern variable {match.group(1)}; give its module functions")
        for header in included:
            target = folder_of(header)
            if target is None or target == source:
                continue
            edges.setdefault((source, target), []).append(f"{path} -> {header}")
            if RANK[target] >= RANK[source]:
                breaches.append(f"{path}: {source} may not include {header} ({target} is not below it)")
    for (a, b), places in sorted(edges.items()):
        if a < b and (b, a) in edges:
            breaches.append(f"{a} and {b} include each other: {places[0]}; {edges[(b, a)][0]}")
    return breaches, edges


def print_matrix(edges):
    folders = [folder for folder, _ in LAYERS]
    names = [folder.replace("tessel/", "t/") for folder in folders]
    print("includer \\ included " + "".join(f"{name:>11}" for name in names))
    for a, name in zip(folders, names):
        row = "".join(f"{len(edges.get((a, b), [])) or '.':>11}" for b in folders)
        print(f"{name:>20}{row}")


def main():
    root = sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(__file__), "..")
    breaches, edges = check(os.path.abspath(root))
    print_matrix(edges)
    for breach in breaches:
        print(breach)
    if breaches:
        print(f"layers: {len(breaches)} breach(es)")
        return 1
    print("layers: every include points down, no application global, no file over 800 lines")
    return 0


if __name__ == "__main__":
    sys.exit(main())
