# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""What a crash may leave of an action, judged beside undisturbed runs of it.

No faults, by what the product promises:
- the lock and folders that hold nothing yet may be there or not, with any mode;
- an earlier set of kind "edit" may be lost with the power, and any superfluous one may come back;
- a macro or a folder of scripts that was being removed may be there still, the folder in part: its files go one by one,
  and removing it again finishes;
- in folders that several homes share (those of Office), and in those that a user picked for a file (Documents here), a
  temporary file may stay; nothing there is ever swept;
- the stamp of styles that are taken from the service is stored before them, in that order: after a crash in between the
  service still has them, and the styles here are those of before;
- the product's styles that stand in for a file that cannot be read give way to those of the engine.
"""

import re

from disk import above, is_temporary
from product import EARLIER, HOME, LOCAL_ENGINE, LOCK, SETTINGS, STYLES, property_list

STANDS_IN = "StylesStandIn"
MARKS = ("Corwell1stE", "Corwell1stJ", "Tekado1stE", "Tekado1stJ")
SCRIPTS = re.compile(re.escape(HOME) + r"/(?:Library/Scripts|Documents)/.*/TarvoEiwa$")
QUICKLY_KEPT = re.compile(re.escape(EARLIER) + r"/\S+ (?:edit|repair) ")


def part(node, key):
    root = property_list(node)
    return root.get(key) if isinstance(root, dict) else None


class Truths:
    """Trees that undisturbed runs left: before the action, after each stage of it, and at its end."""

    def __init__(self, trees, keeps):
        """keeps: paths of files whose bytes of before last, in one file or another."""
        self.trees, self.keeps = trees, keeps
        self.before, self.after = trees[0], trees[-1]
        self.started = []  # the same after a next start

    def with_starts(self, started):
        self.started = started
        return self

    def values(self, path, key, trees=None):
        return [part(tree.get(path), key) for tree in trees or self.trees if path in tree]

    # A state before the next start.

    def faults(self, tree, isDone):
        yield from self.faults_of_styles(tree, self.trees)
        yield from self.faults_of_settings(tree)
        for path, node in tree.items():
            if path not in (STYLES, SETTINGS, LOCK) and not is_temporary(path):
                yield from self.faults_of_item(path, node, tree)
        yield from self.lost(tree)
        if isDone:
            yield from self.untrue(tree)

    def faults_of_styles(self, tree, trees):
        node = tree.get(STYLES)
        if node is None:
            if STYLES in self.before:
                yield "the style file is gone"
            return
        if any(node.data == each[STYLES].data for each in trees if STYLES in each):
            return
        for key in ("Style", "Selection"):
            value = part(node, key)
            if value is None or value not in self.values(STYLES, key, trees):
                yield f"“{key}” in the style file is none that was ever stored: {str(value)[:200]}"

    def faults_of_settings(self, tree):
        node = tree.get(SETTINGS)
        if node is None:
            if SETTINGS in self.before:
                yield "the settings are gone"
            return
        values = property_list(node)
        if not isinstance(values, dict):
            if node != self.before.get(SETTINGS):
                yield "the settings cannot be read"
            return
        known = [property_list(each.get(SETTINGS)) or {} for each in self.trees]
        for key, value in values.items():
            if not any(value == each.get(key) for each in known):
                yield f"the setting {key} is none that was ever stored: {str(value)[:200]}"
        new = [mark for mark in MARKS if mark in values and mark not in known[0]]
        if new and part(tree.get(STYLES), "Style") != part(self.after[STYLES], "Style"):
            yield f"{', '.join(new)} in the settings, but not the dictionaries in the styles"

    def faults_of_item(self, path, node, tree):
        known = [each[path] for each in self.trees if path in each]
        if node.kind == "folder":
            if any(each.kind == "folder" for each in known):
                yield from self.faults_of_folder(path, tree)
            else:
                yield f"{path}: a folder that nobody made"
        elif above(path) == EARLIER:
            if not known and node.data not in [each[STYLES].data for each in self.trees if STYLES in each] or known and node.data != known[0].data:
                yield f"{path}: an earlier set that is not whole"
        elif node not in known:
            yield f"{path}: {len(node.data)} bytes that were never stored there whole"

    def faults_of_folder(self, path, tree):
        """A new folder of scripts holds all that belongs to it."""
        if not SCRIPTS.match(path) or path in self.before:
            return
        inside = {each for each in tree if each.startswith(path + "/")}
        if inside != {each for each in self.after if each.startswith(path + "/")}:
            yield f"{path}: a folder of scripts that holds {len(inside)} of them"

    def lost(self, tree):
        return [f"{path}: what it held before is in no file" for path in self.keeps if not self.holds(self.before[path].data, tree)]

    def holds(self, data, tree):
        return any(node.data == data for path, node in tree.items() if path.startswith(HOME) and not is_temporary(path))

    def untrue(self, tree):
        """What was told as done is on the disk."""
        for path in sorted(self.before.keys() | self.after.keys()):
            if path == LOCK or QUICKLY_KEPT.match(path) or self.before.get(path) == self.after.get(path):
                continue
            wanted, found = self.after.get(path), tree.get(path)
            if path in (STYLES, SETTINGS):
                wanted, found = property_list(wanted), property_list(found)
            elif wanted and found and wanted.kind == found.kind == "folder":
                continue
            if wanted != found and not (wanted is None and above(path) == EARLIER):
                yield f"{path}: done was told, and it is {'not there' if found is None else 'still there' if wanted is None else 'another'}"

    # A state after the next start.

    def faults_after_start(self, tree, outcome, found):
        """found: the tree on which it was started."""
        if outcome.status != 0:
            yield f"the next start ended with {outcome.status}: {outcome.err.strip()}"
        for path in tree:
            if is_temporary(path) and path.startswith(HOME) and above(path) != f"{HOME}/Documents":
                yield f"{path}: still there after the next start"
        node = tree.get(STYLES)
        shared = [part(found.get(LOCAL_ENGINE), "Style")] if part(found.get(SETTINGS), STANDS_IN) else []
        for key in ("Style", "Selection"):
            value = part(node, key)
            if value is None or value not in self.values(STYLES, key, self.started + self.trees) + shared:
                yield f"after the next start “{key}” is none that was ever stored: {str(value)[:200]}"
        done = self.values(STYLES, "Style", [self.after, *self.started[-1:]]) + shared
        if part(found.get(STYLES), "Style") in done and part(node, "Style") not in done:
            yield "what was stored is gone after the next start"
