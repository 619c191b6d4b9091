# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""Runs of an action in each of which one system call fails, and what may come of that.

Status 0 means that the thing is stored, or that the user was told why not: by a line on the error output, by an alert,
among the notices or by a write that is logged as failed. The styles are in a file whatever fails.

No faults, by what the product promises:
- medical dictionaries join the styles at the next start where this one was in the way; that start is tried then;
- scripts of an earlier generation that cannot be cleared away stay and are not told; each start tries again;
- a file that could not be read is kept beside its place or among the earlier styles; one of them is enough.
"""

import collections

import disk
from product import EARLIER, HOME, LOCK, SETTINGS, STYLES, property_list
from system_calls import RecordingError

LOOKING = "access faccessat faccessat2 fgetxattr flistxattr fstat getdents64 getxattr lgetxattr listxattr lstat newfstatat read readlink readlinkat stat statx"
ERRORS = {
    **dict.fromkeys(LOOKING.split(), ("EIO",)),
    "close": ("EIO",), "copy_file_range": ("EIO",), "fchmod": ("EPERM",), "fchmodat": ("EPERM",), "fchown": ("EPERM",),
    "flock": ("ENOLCK",), "fsetxattr": ("ENOSPC",), "fsync": ("EIO", "ENOSPC"), "linkat": ("EPERM", "ENOSPC"), "mkdirat": ("ENOSPC",),
    "openat": ("EACCES", "EMFILE"), "renameat": ("EIO", "ENOSPC"), "renameat2": ("EIO", "ENOSPC"), "rmdir": ("EIO",), "setxattr": ("ENOSPC",),
    "symlinkat": ("ENOSPC",), "unlink": ("EIO",), "unlinkat": ("EIO",), "write": ("EIO", "ENOSPC"),
}
CANNOT_FAIL = ("fcntl", "lseek")
OF_TIME = ("LastUpdate", "Stamp")  # what two runs never have in common
OLD_SCRIPTS = f"{HOME}/Library/Scripts/Mail Scripts"
TELLING = ('"writeFailed"', '"alert"', '"manager.noticeTable"')
CRASHES = 128  # a status from here on is a signal

Failing = collections.namedtuple("Failing", "call error")


def failings(calls):
    """Each call of the list that can fail, with each way in which it does."""
    unknown = {call.name for call in calls} - ERRORS.keys() - set(CANNOT_FAIL)
    if unknown:
        raise RecordingError(f"calls of which nobody has said how they fail: {', '.join(sorted(unknown))}")
    return [Failing(call, error) for call in calls for error in ERRORS.get(call.name, ())]


def comparable(path, node):
    """What two runs leave alike of a file."""
    value = property_list(node) if path.endswith(".plist") else None
    if isinstance(value, dict):
        return {key: each for key, each in value.items() if key not in OF_TIME}
    return node and (node.kind, node.data, node.attributes)


class Verdict:
    """Judges how such runs ended, beside the undisturbed one."""

    def __init__(self, truths, undisturbed, later=None):
        """later: starts the program again and looks, where that may have to finish what was begun."""
        self.truths, self.undisturbed, self.later = truths, undisturbed, later

    def faults(self, failing, outcome, tree):
        temporaries = [path for path in tree if disk.is_temporary(path) and path.startswith(HOME)]
        if self.later and outcome.status == 0 and self.missing(tree, self.truths.after):
            tree = self.later()
            yield from self.faults_of(outcome, tree, self.truths.started[-1])
        else:
            yield from self.faults_of(outcome, tree, self.truths.after)
        if failing.call.name != "unlinkat":
            yield from (f"{path}: a temporary that stays" for path in temporaries)

    def faults_of(self, outcome, tree, after):
        if outcome.status is None or outcome.status < 0 or outcome.status >= CRASHES:
            yield f"ended with {outcome.status}: {outcome.err[-300:]}"
        missing = self.missing(tree, after)
        if outcome.status == 0 and missing and not self.is_told(outcome):
            yield f"status 0, nothing told, and not stored: {', '.join(missing)}"
        if not self.holds_styles(tree):
            yield "the styles are in no file"

    def missing(self, tree, after):
        """What the action stores, and this run has not."""
        before = self.truths.before
        changed = [path for path in sorted(before.keys() | after.keys()) if path != LOCK and not path.startswith((EARLIER, OLD_SCRIPTS))
                   and comparable(path, before.get(path)) != comparable(path, after.get(path))]
        missing = [path for path in changed if comparable(path, tree.get(path)) != comparable(path, after.get(path))]
        return [path for path in missing if ".unreadable" not in path or not self.truths.holds(after[path].data, tree)] + self.truths.lost(tree)

    def is_told(self, outcome):
        own = [line for line in outcome.out.splitlines() if line not in self.undisturbed.out.splitlines()]
        return outcome.err != self.undisturbed.err or any(word in line for line in own for word in TELLING)

    def holds_styles(self, tree):
        known = [comparable(STYLES, each[STYLES]) for each in self.truths.trees + self.truths.started if STYLES in each]
        if STYLES not in self.truths.before and STYLES not in tree:
            return True  # the product's are still those of the user
        return any(comparable(STYLES, node) in known for path, node in tree.items()
                   if path.startswith(HOME) and path != SETTINGS and node.kind == "file" and node.data and not disk.is_temporary(path))
