#!/usr/bin/env python3
"""Checks the translated columns of i18n/strings against the English column.

usage: check_translations.py STRINGS_DIR [CODE ...]   (all translated columns when no code is given)

For every cell of a checked column: it is translated (no @untranslated marker), keeps the
protected terms of its English cell, has as many line breaks and as many leading and trailing
blanks, differs from the English text unless same_as_english.txt allows it, and is written in the
column's script. Exits 1 with one line per problem.
"""
import os
import re
import sys
import unicodedata

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from make_string_table import COLUMNS, UNTRANSLATED, read_column  # noqa: E402

# Terms that stay as they are in every language, when the English cell has them.
PROTECTED = [
    "skins\\\\HOW_TO_CREATE_CUSTOM_SKIN.txt",
    "C:\\\\Program Files\\\\Stayhold",
    "KLM / quill-notebook",
    "marlowen/releases",
    "StayholdSetup.exe",
    "Windows Update",
    "setup_url",
    "SHA-256",
    "Stayhold",
    "Tessel",
]

# Latin with its extensions: Azerbaijani ə (U+0259) and the Uzbek ʻ (U+02BB) are letters too.
LATIN = [(0x41, 0x5A), (0x61, 0x7A), (0xC0, 0x2FF), (0x1E00, 0x1EFF), (0x2C60, 0x2C7F)]
ARABIC = [(0x600, 0x6FF), (0x750, 0x77F), (0x8A0, 0x8FF), (0xFB50, 0xFDFF), (0xFE70, 0xFEFF)]
CYRILLIC = [(0x400, 0x52F)]
DEVANAGARI = [(0x900, 0x97F), (0xA8E0, 0xA8FF)]
BENGALI = [(0x980, 0x9FF)]
CJK = [(0x4E00, 0x9FFF), (0x3400, 0x4DBF), (0xF900, 0xFAFF)]
SCRIPTS = {
    "ar": ARABIC, "fa": ARABIC, "ur": ARABIC, "ug": ARABIC,
    "he": [(0x590, 0x5FF), (0xFB1D, 0xFB4F)],
    "bg": CYRILLIC, "ru": CYRILLIC, "uk": CYRILLIC, "be": CYRILLIC, "kk": CYRILLIC,
    "tt": CYRILLIC, "mk": CYRILLIC, "sr": CYRILLIC,
    "el": [(0x370, 0x3FF), (0x1F00, 0x1FFF)],
    "hy": [(0x530, 0x58F)],
    "ka": [(0x10A0, 0x10FF), (0x1C90, 0x1CBF)],
    "hi": DEVANAGARI, "mr": DEVANAGARI, "kok": DEVANAGARI, "ne": DEVANAGARI,
    "bn": BENGALI, "as": BENGALI,
    "gu": [(0xA80, 0xAFF)], "pa": [(0xA00, 0xA7F)], "or": [(0xB00, 0xB7F)],
    "ta": [(0xB80, 0xBFF)], "te": [(0xC00, 0xC7F)], "kn": [(0xC80, 0xCFF)],
    "ml": [(0xD00, 0xD7F)], "th": [(0xE00, 0xE7F)], "lo": [(0xE80, 0xEFF)],
    "km": [(0x1780, 0x17FF), (0x19E0, 0x19FF)], "am": [(0x1200, 0x139F), (0x2D80, 0x2DDF)],
    "chr": [(0x13A0, 0x13FF), (0xAB70, 0xABBF)],
    "zh-CN": CJK, "zh-TW": CJK,
    "ja": CJK + [(0x3040, 0x309F), (0x30A0, 0x30FF), (0x31F0, 0x31FF)],
    "ko": [(0xAC00, 0xD7AF), (0x1100, 0x11FF), (0x3130, 0x318F)],
}
# Characters that exist only in one of the two Chinese forms (a sample of common ones).
SIMPLIFIED_ONLY = set("设载启关为个时动开务显应择录检验装护级计划运这没从后将图标单项认证败选击键钟态户统页删击")
TRADITIONAL_ONLY = set("設載啟關為個時動開務顯應擇錄檢驗裝護級計劃運這沒從後將圖標單項認證敗選擊鍵鐘態戶統頁刪")


def in_ranges(ch, ranges):
    code = ord(ch)
    return any(low <= code <= high for low, high in ranges)


def letters(text):
    return [ch for ch in text if unicodedata.category(ch).startswith("L")]


def strip_protected(text):
    for term in PROTECTED:
        text = text.replace(term, " ")
    return text


def blanks(text):
    return len(text) - len(text.lstrip(" ")), len(text) - len(text.rstrip(" "))


def load_allowed(folder):
    allowed = set()
    path = os.path.join(folder, "same_as_english.txt")
    if os.path.exists(path):
        for line in open(path, encoding="utf-8"):
            line = line.split("#", 1)[0].strip()
            if line:
                code, row = line.split()
                allowed.add((code, int(row)))
    return allowed


def check_column(code, cells, english, allowed):
    problems = []
    script = SCRIPTS.get(code, LATIN)
    for row, (text, en) in enumerate(zip(cells, english)):
        where = f"{code}.txt row {row:03d}"
        if text == UNTRANSLATED:
            problems.append(f"{where}: not translated yet")
            continue
        for term in PROTECTED:
            if en.count(term) > text.count(term):
                problems.append(f"{where}: lost the protected term {term!r}")
                break
        if text.count("\n") != en.count("\n"):
            problems.append(f"{where}: {text.count(chr(10))} line breaks, English has {en.count(chr(10))}")
        if blanks(text) != blanks(en):
            problems.append(f"{where}: leading/trailing blanks {blanks(text)}, English has {blanks(en)}")
        own = letters(strip_protected(text))
        if text == en and (code, row) not in allowed and own:
            problems.append(f"{where}: same as the English text (allow it in same_as_english.txt only if right)")
        if (code, row) in allowed or not own:
            continue
        if script is LATIN:
            foreign = [ch for ch in own if not in_ranges(ch, LATIN)]
            if foreign:
                problems.append(f"{where}: letters outside the Latin script: {''.join(foreign[:8])}")
        else:
            native = sum(1 for ch in own if in_ranges(ch, script))
            if native * 2 < len(own):
                problems.append(f"{where}: mostly not in the {code} script ({native} of {len(own)} letters)")
        if code == "zh-TW" and SIMPLIFIED_ONLY & set(text):
            problems.append(f"{where}: simplified characters {''.join(sorted(SIMPLIFIED_ONLY & set(text)))}")
        if code == "zh-CN" and TRADITIONAL_ONLY & set(text):
            problems.append(f"{where}: traditional characters {''.join(sorted(TRADITIONAL_ONLY & set(text)))}")
    return problems


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    folder = sys.argv[1]
    codes = sys.argv[2:] or [c for c in COLUMNS if c not in ("cs", "en")]
    english = read_column(os.path.join(folder, "en.txt"), "en")
    allowed = load_allowed(folder)
    problems = []
    for code in codes:
        cells = read_column(os.path.join(folder, code + ".txt"), code)
        problems += check_column(code, cells, english, allowed)
    for problem in problems:
        print(problem)
    print(f"checked {len(codes)} columns: {len(problems)} problems")
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
