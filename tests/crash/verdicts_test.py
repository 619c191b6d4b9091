#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""Whether each loss that a crash or a failing call may bring is seen."""

import plistlib
import sys
import unittest

sys.dont_write_bytecode = True
from disk import Node  # noqa: E402
from failing_calls import CANNOT_FAIL, ERRORS, Failing, Verdict, failings  # noqa: E402
from product import EARLIER, HOME, SETTINGS, STYLES  # noqa: E402
from replay import READING  # noqa: E402
from system_calls import Call, RecordingError, Run  # noqa: E402
from verdicts import Truths  # noqa: E402

MACRO = "Applications/Startup/Tarvo.dotm"
SCRIPTS = f"{HOME}/Library/Scripts/Applications/Mail/TarvoEiwa"
TEMPORARY = f"{HOME}/Library/Preferences/.tarvo-1"


def file(data):
    return Node("file", 0o644, data, ())


def plist(**values):
    return file(plistlib.dumps(values))


def styles(names, chosen):
    return plist(Style=[{"Name": name} for name in names], Selection={"MG": chosen})


FOLDER = Node("folder", 0o755, b"", ())
BEFORE = {STYLES: styles("ab", 0), SETTINGS: plist(Tool="tMG8")}
AFTER = {STYLES: styles("xb", 1), SETTINGS: plist(Tool="tMG8", Tekado1stE=True), MACRO: file(b"macro"),
         SCRIPTS: FOLDER, f"{SCRIPTS}/one": file(b"1"), f"{SCRIPTS}/two": file(b"2")}
TRUTHS = Truths([BEFORE, AFTER], (STYLES,)).with_starts([BEFORE, AFTER])
KEPT = {f"{EARLIER}/20261122T100000Z import 1.plist": BEFORE[STYLES]}


def faults(changes, isDone=False, tree=None):
    tree = {**(AFTER if tree is None else tree), **KEPT, **changes}
    return list(TRUTHS.faults({path: node for path, node in tree.items() if node}, isDone))


class ACrash(unittest.TestCase):
    def test_beforeAndAfterAreNoFaults(self):
        self.assertEqual([], faults({}, True))
        self.assertEqual([], faults({}, False, BEFORE))

    def test_stylesThatAreGoneCutOrMixedAreSeen(self):
        for node in (None, file(b""), file(AFTER[STYLES].data[:90]), styles("xx", 0), styles("ab", 2), file(b"\0" * 9)):
            self.assertTrue(faults({STYLES: node}), node)

    def test_settingsThatAreGoneOrCutAreSeen(self):
        for node in (None, file(b""), plist(Tool="tTX8")):
            self.assertTrue(faults({SETTINGS: node}), node)

    def test_aMarkWithoutItsDictionaryIsSeen(self):
        self.assertTrue(faults({STYLES: BEFORE[STYLES]}))

    def test_aCutMacroIsSeen(self):
        for node in (file(b""), file(b"mac"), file(b"\0" * 5), Node("file", 0o600, b"macro", ())):
            self.assertTrue(faults({MACRO: node}), node)

    def test_aFolderOfScriptsInPartIsSeen(self):
        self.assertTrue(faults({f"{SCRIPTS}/two": None}))

    def test_whatNobodyMadeIsSeen(self):
        self.assertTrue(faults({f"{HOME}/left": file(b"x")}))
        self.assertTrue(faults({f"{HOME}/folder": FOLDER}))

    def test_anEarlierSetThatIsCutIsSeen(self):
        self.assertTrue(faults({f"{EARLIER}/20261122T100001Z edit 2.plist": file(b"<plist")}))

    def test_formerStylesThatAreInNoFileAreSeen(self):
        self.assertTrue(faults({path: None for path in KEPT}))

    def test_whatWasToldAsDoneAndIsNotThereIsSeen(self):
        for lost in ({MACRO: None}, {STYLES: BEFORE[STYLES], SETTINGS: BEFORE[SETTINGS]}):
            self.assertEqual([], faults(lost, False))
            self.assertTrue(faults(lost, True))

    def test_aTemporaryIsAFaultAfterTheNextStartOnly(self):
        self.assertEqual([], faults({TEMPORARY: file(b"x")}))
        self.assertTrue(list(TRUTHS.faults_after_start({**AFTER, TEMPORARY: file(b"x")}, Run(0, "", ""), BEFORE)))

    def test_aNextStartThatFailsOrLosesStylesIsSeen(self):
        self.assertEqual([], list(TRUTHS.faults_after_start(AFTER, Run(0, "", ""), BEFORE)))
        self.assertTrue(list(TRUTHS.faults_after_start(AFTER, Run(1, "", ""), BEFORE)))
        self.assertTrue(list(TRUTHS.faults_after_start({**AFTER, STYLES: styles("seeds", 0)}, Run(0, "", ""), BEFORE)))
        self.assertTrue(list(TRUTHS.faults_after_start(BEFORE, Run(0, "", ""), AFTER)))


class AFailingCall(unittest.TestCase):
    def faults(self, outcome, changes, name="fsync"):
        failing = Failing(Call(name, [], 0, None, 1), "EIO")
        tree = {path: node for path, node in {**AFTER, **KEPT, **changes}.items() if node}
        return list(Verdict(TRUTHS, Run(0, "", "")).faults(failing, outcome, tree))

    def test_statusZeroWithoutTheThingIsSeenUnlessItIsTold(self):
        self.assertEqual([], self.faults(Run(0, "", ""), {}))
        self.assertTrue(self.faults(Run(0, "", ""), {MACRO: None}))
        self.assertTrue(self.faults(Run(0, '{"beep":true}\n', ""), {MACRO: None}))
        for told in (Run(1, "", ""), Run(0, '{"name":"manager.noticeTable"}\n', ""), Run(0, "", "x: no\n"), Run(0, '{"writeFailed":"styles"}\n', ""), Run(0, '{"alert":1}\n', "")):
            self.assertEqual([], self.faults(told, {MACRO: None}), told)

    def test_whatWaitsForTheNextStartIsSeenWhenThatDoesNotFinishIt(self):
        failing = Failing(Call("openat", [], 0, None, 1), "EIO")
        for later, isFault in ((AFTER, False), (BEFORE, True)):
            verdict = Verdict(TRUTHS, Run(0, "", ""), lambda tree=later: {**tree, **KEPT})
            self.assertEqual(isFault, bool(list(verdict.faults(failing, Run(0, "", ""), {**BEFORE, **KEPT}))))

    def test_aCrashAndAHangAreSeen(self):
        for status in (None, -11, 134):
            self.assertTrue(self.faults(Run(status, "", "x"), {}))

    def test_stylesInNoFileAreSeen(self):
        self.assertTrue(self.faults(Run(1, "", "x"), {STYLES: None, **dict.fromkeys(KEPT)}))
        self.assertEqual([], self.faults(Run(1, "", "x"), {STYLES: None}))

    def test_aTemporaryThatStaysIsSeenUnlessItCouldNotBeRemoved(self):
        self.assertTrue(self.faults(Run(1, "", "x"), {TEMPORARY: file(b"")}))
        self.assertEqual([], self.faults(Run(1, "", "x"), {TEMPORARY: file(b"")}, "unlinkat"))

    def test_aCallOfWhichNobodySaidHowItFailsIsAnError(self):
        with self.assertRaises(RecordingError):
            failings([Call("mknod", [], 0, None, 1)])
        self.assertEqual(2, len(failings([Call("write", [], 0, None, 1), Call("lseek", [], 0, None, 1)])))
        self.assertFalse(set(CANNOT_FAIL) & set(ERRORS))
        self.assertIn("newfstatat", READING)


if __name__ == "__main__":
    unittest.main()
