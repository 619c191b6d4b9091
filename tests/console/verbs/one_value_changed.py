# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""Edits one option of a complete style file by tarvoctl and lets Python's plistlib say what changed.

Usage: one_value_changed.py TARVOCTL SAMPLE_INSTALL WORK_FOLDER FORM      (FORM: xml, binary or utf16)
The style file holds unknown keys of every type at every level. Prints nothing and ends with 0 when exactly the one value
changed; else prints each difference and ends with 1.
"""

import datetime
import pathlib
import plistlib
import subprocess
import sys

FORMS = {
    "xml": plistlib.dumps,
    "binary": lambda root: plistlib.dumps(root, fmt=plistlib.FMT_BINARY),
    "utf16": lambda root: plistlib.dumps(root).decode().replace('encoding="UTF-8"', 'encoding="UTF-16"').encode("utf-16"),
}

UNKNOWN = {
    "true": True,
    "false": False,
    "zero": 0,
    "negative": -(2**63),
    "largest": 2**64 - 1,
    "real": 0.1,
    "large real": 1.7976931348623157e308,
    "small real": -5e-324,
    "minus zero": -0.0,
    "date": datetime.datetime(1999, 12, 31, 23, 59, 59),
    "data": bytes(range(256)),
    "no data": b"",
    "text": "日本語 🈂 <&>\"' tab\there\nline",
    "empty": "",
    "list": [1, 1.0, True, "1", [], {}],
    "nested": {"a": {"b": [{"c": "d"}]}},
    "漢字": "key",
}


def styles(root):
    seed = root / "Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist"
    file = plistlib.loads(seed.read_bytes())
    for style in file["Style"]:
        # Chosen dictionaries all exist, and names that are unknown stay untouched only below unknown keys.
        style["unknown"] = dict(UNKNOWN)
        for half in ("EJ", "JE"):
            if half in style:
                style[half]["unknown"] = dict(UNKNOWN)
                style[half]["UD"] = ["not there.eud2"]
    file["unknown"] = dict(UNKNOWN)
    return file


def same(a, b):
    if type(a) is not type(b):
        return False
    return repr(a) == repr(b) if isinstance(a, float) else a == b


def differences(before, after, where="root"):
    if isinstance(before, dict) and isinstance(after, dict):
        for key in sorted(before.keys() | after.keys()):
            if key not in before or key not in after:
                yield f"{where}.{key}: {'added' if key in after else 'removed'}"
            else:
                yield from differences(before[key], after[key], f"{where}.{key}")
    elif isinstance(before, list) and isinstance(after, list) and len(before) == len(after):
        for index, pair in enumerate(zip(before, after)):
            yield from differences(*pair, f"{where}[{index}]")
    elif not same(before, after):
        yield f"{where}: {before!r} became {after!r}"


def main():
    tarvoctl, install, work, form = sys.argv[1:]
    root, home = pathlib.Path(work) / "root", pathlib.Path(work) / "home"
    subprocess.run([install, str(root)], check=True, stdout=subprocess.DEVNULL)
    preferences = home / "Library/Preferences"
    (preferences / "Wordhaven").mkdir(parents=True)
    inserted = {key: True for key in ("Corwell1stE", "Corwell1stJ", "Tekado1stE", "Tekado1stJ")}
    (preferences / "com.wordhaven.TarvoManager.plist").write_bytes(plistlib.dumps(inserted))
    file = preferences / "Wordhaven/TarvoStyle2009.plist"
    before = styles(root)
    file.write_bytes(FORMS[form](before))
    index = 1
    changed = (before["Style"][index]["EJ"]["Opt1"] + 1) % 3
    subprocess.run(
        [tarvoctl, "--root", str(root), "--home", str(home), "style", "set", str(index), f"Opt1={changed}"], check=True
    )
    found = list(differences(before, plistlib.loads(file.read_bytes())))
    expected = [f"root.Style[{index}].EJ.Opt1: {before['Style'][index]['EJ']['Opt1']!r} became {changed!r}"]
    if found != expected:
        print("\n".join(found) or "nothing changed")
    return 0 if found == expected else 1


if __name__ == "__main__":
    sys.exit(main())
