#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""Compares styles before and after a journey: carried_styles.py FOLDER COUNT

For each number N below COUNT the folder holds "N.whstyle", a style as it was exported, and "N.plist", the style file
into which it was imported as the record 3, named "Beta". Every key but "Name" and "ID" must have the same type and
value. Prints each difference, then how many pairs were compared.
"""
import pathlib
import plistlib
import sys


def same(a, b):
    if type(a) is not type(b):
        return False
    if isinstance(a, list):
        return len(a) == len(b) and all(map(same, a, b))
    if isinstance(a, dict):
        return a.keys() == b.keys() and all(same(a[key], b[key]) for key in a)
    return a == b


def main(folder, count):
    for number in range(count):
        exported = plistlib.loads((folder / f"{number}.whstyle").read_bytes())
        imported = plistlib.loads((folder / f"{number}.plist").read_bytes())["Style"][3]
        expected = {**exported, "Name": "Beta", "ID": 3}
        if not same(imported, expected):
            print(f"style {number}: {expected!r:.1000}\nbecame: {imported!r:.1000}")
    print(f"{count} compared")


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]), int(sys.argv[2]))
