#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""Whether the checker of crash states sees what it is there to see: the states that calls may leave, told by hand."""

import os
import pathlib
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
import disk  # noqa: E402
import system_calls  # noqa: E402
from disk import Node  # noqa: E402
from losses import Losses, partly  # noqa: E402
from replay import Replay  # noqa: E402
from system_calls import Call, RecordingError  # noqa: E402

FOLDER = "/scratch"
FIRST = {"": Node("folder", 0o755, b"", ()), "styles": Node("file", 0o644, b"old", ()), "kept": Node("folder", 0o755, b"", ())}


def path(name):
    return os.fsencode(f"{FOLDER}/{name}")


def call(name, *arguments, result=0, error=None):
    return Call(name, list(arguments), result, error, 1)


def made(name, descriptor, words="O_WRONLY|O_CREAT|O_EXCL"):
    return call("openat", "AT_FDCWD", path(name), words, 0o644, result=descriptor)


def folder(name, descriptor):
    return call("openat", "AT_FDCWD", path(name), "O_RDONLY|O_DIRECTORY", result=descriptor)


def written(descriptor, data):
    return call("write", descriptor, data, len(data), result=len(data))


def synced(descriptor):
    return call("fsync", descriptor)


def renamed(old, new):
    return call("renameat", "AT_FDCWD", path(old), "AT_FDCWD", path(new))


def states(*calls):
    replay = Replay(FOLDER, FIRST, {name: number for number, name in enumerate(FIRST)}).follow(calls)
    return [{name: node.data for name, node in state.tree.items() if node.kind == "file"} for state in Losses(replay).states()], replay


def found(*calls):
    every = states(*calls)[0]
    return [each for index, each in enumerate(every) if each not in every[:index]]


class WhatCallsLeave(unittest.TestCase):
    def test_aFileThatIsWrittenInPlaceMayBeEmptyOrCut(self):
        left = [each["styles"] for each in found(made("styles", 3, "O_WRONLY|O_TRUNC"), written(3, b"newest"), synced(3))]
        for data in (b"old", b"", b"new", b"newes", b"newest"):
            self.assertIn(data, left)

    def test_aRenamedFileThatWasNotSyncedMayBeEmptyOrZeros(self):
        left = [each["styles"] for each in found(made(".tarvo-1", 3), written(3, b"newest"), renamed(".tarvo-1", "styles"))]
        for data in (b"old", b"", b"\0" * 6, b"new", b"newest"):
            self.assertIn(data, left)

    def test_aSyncedFileThatIsRenamedIsTheOldOneOrTheNewOne(self):
        left = {each["styles"] for each in found(made(".tarvo-1", 3), written(3, b"newest"), synced(3), renamed(".tarvo-1", "styles"))}
        self.assertEqual({b"old", b"newest"}, left)

    def test_aRenamingLastsWhenItsFolderIsSynced(self):
        calls = [made(".tarvo-1", 3), written(3, b"newest"), synced(3), renamed(".tarvo-1", "styles")]
        self.assertIn(b"old", [each["styles"] for each in self.atTheEnd(*calls)])
        self.assertEqual([{"styles": b"newest"}], self.atTheEnd(*calls, folder("", 4), synced(4)))

    def test_theSyncOfAFileDoesNotMakeItsNameLast(self):
        self.assertIn({"styles": b"old"}, self.atTheEnd(made("new", 3), written(3, b"x"), synced(3)))

    def test_aSyncOfAnotherFolderDoesNotMakeANameLast(self):
        self.assertIn({"styles": b"old"}, self.atTheEnd(made("new", 3), folder("kept", 4), synced(4)))

    def test_aRenamingBetweenFoldersIsThereWholeOrNotAtAll(self):
        self.assertEqual([{"styles": b"old"}, {"kept/styles": b"old"}], found(renamed("styles", "kept/styles")))

    def test_changesOfDifferentNamesMayBeLostSingly(self):
        left = self.atTheEnd(made("one", 3), made("two", 4))
        self.assertEqual([{"styles"}, {"styles", "one"}, {"styles", "two"}, {"styles", "one", "two"}], sorted((set(each) for each in left), key=sorted_names))

    def test_changesOfOneNameKeepTheirOrder(self):
        left = self.atTheEnd(renamed("styles", "one"), renamed("one", "two"))
        self.assertEqual([["styles"], ["one"], ["two"]], [list(each) for each in reversed(left)])

    def test_whatLiesInAFolderWhoseNameIsLostIsLost(self):
        calls = [call("mkdir", path("new"), 0o777), made("new/file", 3), folder("new", 4), synced(4)]
        self.assertIn({"styles": b"old"}, self.atTheEnd(*calls))

    def test_aSecondNameSharesTheBytes(self):
        left = self.atTheEnd(call("linkat", "AT_FDCWD", path("styles"), "AT_FDCWD", path("kept/former"), 0), made("styles", 3, "O_WRONLY"), written(3, b"n"))
        self.assertIn({"styles": b"nld", "kept/former": b"nld"}, left)

    def test_aFileWithoutANameGetsOneByALink(self):
        nameless = call("openat", "AT_FDCWD", path(""), "O_WRONLY|O_TMPFILE", 0o600, result=3)
        named = call("linkat", "AT_FDCWD", b"/proc/self/fd/3", "AT_FDCWD", path("macro"), "AT_SYMLINK_FOLLOW")
        self.assertEqual([{"styles": b"old"}, {"styles": b"old", "macro": b"m"}], found(nameless, written(3, b"m"), synced(3), named))

    def test_ofALongRowEachLossAndEachPairIsTried(self):
        left = found(*(made(f"file{number}", 3 + number) for number in range(12)))
        self.assertIn({"styles"}, [set(each) for each in left])
        self.assertIn(10, [len(each) - 1 for each in left])

    def atTheEnd(self, *calls):
        replay = states(*calls)[1]
        left = [state for state in Losses(replay).states() if state.after == len(replay.steps)]
        return [{name: node.data for name, node in state.tree.items() if node.kind == "file"} for state in left]


def sorted_names(names):
    return len(names), sorted(names)


class WhatWasTold(unittest.TestCase):
    def test_isDoneWhenItIsSaidOrElseAtTheEnd(self):
        said = call("write", 1, b"done", 4, result=4)
        self.assertEqual(1, Losses(states(made("one", 3), said, made("two", 4))[1]).done)
        self.assertEqual(2, Losses(states(made("one", 3), made("two", 4))[1]).done)


class WhatIsNotKnown(unittest.TestCase):
    def test_anUnknownCallOnTheFolderIsAnError(self):
        for unknown in (call("fallocate", 3, 0, 0, 9), call("mknod", path("pipe"), 0o644)):
            with self.assertRaises(RecordingError):
                found(made("new", 3), unknown)

    def test_anUnknownCallElsewhereIsNone(self):
        self.assertEqual(1, len(found(call("mknod", b"/elsewhere/pipe", 0o644), call("fallocate", 7, 0, 0, 9))))

    def test_aCallThatFailedChangesNothing(self):
        self.assertEqual(1, len(found(call("unlink", path("styles"), result=-1, error="EACCES"))))

    def test_aSecondProcessIsAnError(self):
        with self.assertRaises(RecordingError):
            system_calls.parsed(["7 close(3) = 0\n", "8 close(3) = 0\n"])

    def test_argumentsAreTakenApart(self):
        [only] = system_calls.parsed(['7 openat(AT_FDCWD, "\\x61\\x2c", O_RDWR|O_CREAT, 0600) = -1 EACCES (Permission denied)\n'])
        self.assertEqual(Call("openat", ["AT_FDCWD", b"a,", "O_RDWR|O_CREAT", 0o600], -1, "EACCES", 1), only)

    def test_whatBeganBeforeIsNotCutAgain(self):
        self.assertEqual({b"old", b"older", b"old\0\0", b"olde"}, set(partly(b"old", b"older")))


PROGRAM = """import os, sys
folder = sys.argv[1]
os.mkdir(folder + "/new", 0o700)
with open(folder + "/one", "ab", 0) as file: file.write(b" more")
with open(folder + "/new/two", "wb", 0) as file: file.write(b"12345"); file.seek(1); file.write(b"x"); file.truncate(4); os.fchmod(file.fileno(), 0o600)
os.link(folder + "/one", folder + "/new/former")
os.symlink("new/two", folder + "/link")
with open(folder + "/link", "r+b", 0) as file: file.write(b"y"); os.fsync(file.fileno())
os.setxattr(folder + "/link", "user.code", b"TRjt")
os.rename(folder + "/one", folder + "/new/renamed")
os.mkdir(folder + "/gone"); os.rmdir(folder + "/gone"); os.unlink(folder + "/link")
"""


@unittest.skipIf(system_calls.reason_to_skip(), system_calls.reason_to_skip() or "")
class WhatAProgramDoes(unittest.TestCase):
    def test_theModelAgreesWithTheDisk(self):
        with tempfile.TemporaryDirectory() as scratch:
            inside = pathlib.Path(scratch, "様 x")
            inside.mkdir()
            (inside / "one").write_text("one")
            before = disk.look(inside)
            replay = Replay(inside, before, disk.same_files(inside, before))
            ended, calls = system_calls.record([sys.executable, "-c", PROGRAM, inside], pathlib.Path(scratch, "trace"))
            self.assertEqual((0, ""), (ended.status, ended.err))
            replay.follow(calls)
            self.assertEqual(disk.look(inside), Losses(replay, len(replay.steps)).now())
            self.assertNotEqual(before, disk.look(inside))

    def test_aTreeThatIsLaidOutIsThatTree(self):
        with tempfile.TemporaryDirectory() as scratch:
            tree = {**FIRST, "kept/link": Node("link", 0o777, b"../styles", ()), "kept/code": Node("file", 0o600, b"", (("user.code", b"x"),))}
            for each in (tree, FIRST, {"": FIRST[""], "styles": Node("folder", 0o700, b"", ())}, tree):
                disk.lay_out(scratch + "/x", each)
                self.assertEqual(each, disk.look(scratch + "/x"))


if __name__ == "__main__":
    unittest.main()
