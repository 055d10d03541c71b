#!/usr/bin/env python3
"""Writes the update manifest (update.json) for a release of Stayhold.

usage: make_release_manifest.py --setup StayholdSetup.exe --version 1.0.113
           --setup-url https://.../StayholdSetup-1.0.113.exe
           [--changes TEXT] [--changes-cs TEXT] [--changes-en TEXT]
           [--release-url URL] [--previous update.json] --out update.json

The setup's SHA-256 is computed from the file. The history of --previous is carried over and
the new version is added to it. The program reads the manifest with plain text searches, so the
top-level keys are written ahead of "history", non-ASCII text is written as it stands (the reader
decodes no \\u escapes), and only \\n, \\r, \\t, \\" and \\\\ are escaped.
"""
import argparse
import hashlib
import re
import sys


def quote(text):
    out = ['"']
    for ch in text:
        if ch == '"' or ch == "\\":
            out.append("\\" + ch)
        elif ch == "\n":
            out.append("\\n")
        elif ch == "\r":
            out.append("\\r")
        elif ch == "\t":
            out.append("\\t")
        elif ord(ch) < 0x20:
            sys.exit(f"make_release_manifest: control character {ord(ch):#x} cannot be written")
        else:
            out.append(ch)
    out.append('"')
    return "".join(out)


def unquote(text):
    return re.sub(r"\\(.)", lambda m: {"n": "\n", "r": "\r", "t": "\t"}.get(m.group(1), m.group(1)),
                  text)


def previous_history(path):
    """The entries of an earlier manifest written by this script (objects of string values)."""
    text = open(path, encoding="utf-8").read()
    start = text.find('"history"')
    if start < 0:
        return []
    entries = []
    for body in re.findall(r"\{([^{}]*)\}", text[start:]):
        entry = {key: unquote(value) for key, value in
                 re.findall(r'"(version|changes|changes_cs|changes_en)"\s*:\s*"((?:[^"\\]|\\.)*)"', body)}
        if entry.get("version"):
            entries.append(entry)
    return entries


def sha256_of(path):
    digest = hashlib.sha256()
    with open(path, "rb") as f:
        for block in iter(lambda: f.read(65536), b""):
            digest.update(block)
    return digest.hexdigest().upper()


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawTextHelpFormatter)
    parser.add_argument("--setup", required=True)
    parser.add_argument("--version", required=True)
    parser.add_argument("--setup-url", required=True)
    parser.add_argument("--release-url")
    parser.add_argument("--changes", default="")
    parser.add_argument("--changes-cs", default="")
    parser.add_argument("--changes-en", default="")
    parser.add_argument("--previous")
    parser.add_argument("--out", required=True)
    args = parser.parse_args()
    if not re.search(r"\d", args.version):
        sys.exit("make_release_manifest: the version must contain a number")
    if not args.setup_url.startswith(("https://", "http://")):
        sys.exit("make_release_manifest: the setup URL must be absolute http or https")
    try:
        sha256 = sha256_of(args.setup)
    except OSError as error:
        sys.exit(f"make_release_manifest: cannot read the setup: {error}")

    history = [e for e in (previous_history(args.previous) if args.previous else [])
               if e["version"] != args.version]
    history.append({"version": args.version, "changes": args.changes,
                    "changes_cs": args.changes_cs, "changes_en": args.changes_en})

    fields = [("version", args.version)]
    if args.release_url:
        fields.append(("release_url", args.release_url))
    fields += [("setup_url", args.setup_url), ("sha256", sha256), ("changes", args.changes),
               ("changes_cs", args.changes_cs), ("changes_en", args.changes_en)]
    lines = ["{"]
    lines += [f"  {quote(key)}: {quote(value)}," for key, value in fields]
    lines.append('  "history": [')
    for i, entry in enumerate(history):
        inner = ", ".join(f"{quote(key)}: {quote(entry.get(key, ''))}"
                          for key in ("version", "changes", "changes_cs", "changes_en"))
        lines.append("    {" + inner + "}" + ("," if i + 1 < len(history) else ""))
    lines.append("  ]")
    lines.append("}")
    with open(args.out, "w", encoding="utf-8", newline="\n") as f:
        f.write("\n".join(lines) + "\n")


if __name__ == "__main__":
    main()
