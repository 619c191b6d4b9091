# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""A folder as calls change it: what each name stands for, and what each step of changes and syncs was.

Files are numbers: two names of one file have the same. Owners and times are left out.
"""

import itertools
import os
import posixpath

from system_calls import RecordingError

ROOT = 0
AT_THE_WORKING_FOLDER = "AT_FDCWD"


class File:
    """What a number stands for: of a file its bytes, of a link where it leads."""

    def __init__(self, kind, mode, data=b"", attributes=()):
        self.kind, self.mode, self.data, self.attributes = kind, mode, data, dict(attributes)

    def about(self):
        return self.mode, tuple(sorted(self.attributes.items()))


class Step:
    """One call that changes or syncs. names: {(folder, name): number or None}, changed in one go; content: {number:
    bytes}; about: {number: (mode, attributes)}; synced: numbers, or None for all."""

    def __init__(self, call, names=None, content=None, about=None, synced=()):
        self.call, self.names, self.content, self.about, self.synced = call, names or {}, content or {}, about or {}, synced

    def __str__(self):
        return told(self.call)


def told(call):
    """A call in a few words."""
    texts = [posixpath.basename(argument.decode("utf-8", "replace")) for argument in call.arguments if isinstance(argument, bytes)]
    words = [f"{call.result} bytes"] if call.name in ("read", "write") else [text for text in texts if text]
    return f"{call.name} {call.number}" + (f" ({', '.join(words)})" if words else "")


class Open:
    def __init__(self, number, path=None):
        self.number, self.path, self.offset = number, path, 0


class Model:
    """The folder as it stood, and what each call made of it."""

    def __init__(self, folder, tree, same):
        self.folder = str(folder)
        self.files, self.names, self.open, self.steps = {}, {}, {}, []
        self.touching, self.said = [], []
        numbers = {"": ROOT}
        known = {}
        fresh = itertools.count(1)
        for path in sorted(tree, key=len):
            number = numbers[path] = ROOT if path == "" else known.setdefault(same[path], None) or next(fresh)
            known[same[path]] = number
            node = tree[path]
            self.files[number] = File(node.kind, node.mode, node.data, node.attributes)
            if path:
                self.names[numbers[posixpath.dirname(path)], posixpath.basename(path)] = number
        self.fresh = fresh
        self.first = {number: (file.data, file.about()) for number, file in self.files.items()}
        self.first_names = dict(self.names)

    def is_below(self, path):
        return path == self.folder or path.startswith(self.folder + "/")

    def number_of(self, descriptor):
        opened = self.open.get(descriptor)
        return opened.number if opened else None

    # Paths.

    def place(self, base, path, follow=False):
        """(folder, name) of the last part; None: it is outside. With follow a last link is followed."""
        path = os.fsdecode(path)
        if posixpath.isabs(path):
            if not self.is_below(path):
                return None
            at, parts = ROOT, path[len(self.folder):].split("/")
        else:
            at, parts = (None if base == AT_THE_WORKING_FOLDER else self.number_of(base)), path.split("/")
            if at is None:
                return None
        return self.walk(at, [part for part in parts if part not in ("", ".")], follow)

    def walk(self, at, parts, follow):
        if ".." in parts:
            raise RecordingError("a path with .. in it")
        if not parts:
            return at, ""
        for index, part in enumerate(parts):
            number = self.names.get((at, part))
            isLast = index == len(parts) - 1
            if number is not None and self.files[number].kind == "link" and (follow or not isLast):
                target = os.fsdecode(self.files[number].data)
                rest = "/".join(parts[index + 1:])
                whole = posixpath.join(target, rest) if rest else target
                if posixpath.isabs(whole):
                    return self.place(AT_THE_WORKING_FOLDER, os.fsencode(whole), follow)
                return self.walk(at, whole.split("/"), follow)
            if isLast:
                return at, part
            if number is None:
                raise RecordingError(f"a path through {part}, which is not there")
            at = number
        raise AssertionError

    def at(self, place):
        return place[0] if place[1] == "" else self.names.get(place)

    # Changes.

    def step(self, call, names=None, content=None, about=None, synced=()):
        for place, number in (names or {}).items():
            if number is None:
                self.names.pop(place, None)
            else:
                self.names[place] = number
        for number, data in (content or {}).items():
            self.files[number].data = data
        about = {number: self.files[number].about() for number in about or ()}
        self.steps.append(Step(call, names, content, about, synced))

    def new(self, file):
        number = next(self.fresh)
        self.files[number] = file
        self.first[number] = (file.data, file.about())
        return number

    def put(self, call, number, data, offset):
        old = self.files[number].data
        self.step(call, content={number: old[:offset].ljust(offset, b"\0") + data + old[offset + len(data):]})
