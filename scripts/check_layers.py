#!/usr/bin/env python3
"""Checks that includes between the source folders point down only, and prints the matrix.

usage: check_layers.py SOURCE_ROOT

Bottom to top: base, tessel, then the application's folders i18n, guard, update, tray, settings,
setup, app. A folder may include the folders below it. A test folder (tests/X) counts as X.
No header of the application declares a mutable `extern` variable: process-wide state is owned
by one module and reached through its functions, so no folder reaches into another's globals.
Constant tables are data and may be extern. Exits 1 on any upward include or such variable.
"""
import os
import re
import sys

APPLICATION = ["i18n", "guard", "update", "tray", "settings", "setup", "app"]
ORDER = ["base", "tessel"] + APPLICATION
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"/]+)/')
EXTERN = re.compile(r"^\s*extern\s+(?!\"C\")(?!const\b)[^;(]*?\b(\w+)\s*(?:\[[^\]]*\])?\s*;", re.M)


def sources(root):
    """(folder, path) of every C++ file of a source folder or its test folder."""
    for base in ("", "tests"):
        for folder in ORDER:
            top = os.path.join(root, base, folder)
            for directory, _, files in os.walk(top):
                for name in files:
                    if name.endswith((".h", ".cpp")):
                        yield folder, os.path.join(directory, name)


def main():
    root = sys.argv[1]
    rank = {name: i for i, name in enumerate(ORDER)}
    matrix = {a: {b: 0 for b in ORDER} for a in ORDER}
    problems = []
    texts = {}
    for folder, path in sources(root):
        text = open(path, encoding="utf-8").read()
        texts[path] = (folder, text)
        for number, line in enumerate(text.splitlines(), 1):
            match = INCLUDE.match(line)
            if not match or match.group(1) not in rank or match.group(1) == folder:
                continue
            target = match.group(1)
            matrix[folder][target] += 1
            if rank[target] > rank[folder]:
                problems.append(f"{os.path.relpath(path, root)}:{number}: {folder} includes "
                                f"{target}, which is above it")
    for path, (folder, text) in texts.items():
        if rank[folder] < rank[APPLICATION[0]] or not path.endswith(".h"):
            continue
        for match in EXTERN.finditer(text):
            problems.append(f"{os.path.relpath(path, root)}: extern variable {match.group(1)}; "
                            f"give its module functions instead")
    print("includer \\ included " + "".join(f"{name:>9}" for name in ORDER))
    for a in ORDER:
        print(f"{a:>20}" + "".join(f"{matrix[a][b] or '.':>9}" for b in ORDER))
    for problem in problems:
        print(problem)
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
