# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""The dictionary lists of a style file as Python's plistlib reads them, one line a list: lists_of.py FILE"""

import plistlib
import sys

with open(sys.argv[1], "rb") as file:
    styles = plistlib.load(file)["Style"]
for number, style in enumerate(styles):
    for direction in ("EJ", "JE"):
        names = style[direction].get("TD", [])
        print(" ".join([str(number), direction] + (["|".join(names)] if names else [])))
