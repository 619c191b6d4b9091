#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""Kills the manager again and again while it edits, and looks each time at what lies on the disk.

killed_programs.py console|window PROGRAM STYLES ROUNDS SEED: PROGRAM is tarvoctl, or window_script for the window.
Each round starts it on the disk that the round before left, lets it make random edits and kills it at a random moment,
in every fourth round while it starts. Judged by plistlib: the style file holds the styles as they were after one of
the edits, none before the last that the program told as made. Kept styles are whole, and what a killed program left
beside is gone after the next start. Prints what it did; the status is 0 when all held.
"""

import copy
import pathlib
import plistlib
import queue
import random
import re
import shutil
import subprocess
import sys
import tempfile
import threading
import time

STYLES = "Library/Preferences/Wordhaven/TarvoStyle2009.plist"
KEPT = "Library/Application Support/Wordhaven/Tarvo Styles"
DICTIONARIES = "Library/Application Support/Wordhaven/TarvoEiwa/TechDic/EJ"
NAMES = ["Aerospace.TRet", "Law A.TRet", "Physics.TRet", "化学.TRet", "特許.TRet"]
EDITS_OF_A_ROUND = 400  # more than a program makes before it is killed
SECONDS_FOR_AN_EDIT = 60


def place_of_rounds():
    """In memory where the system has a place for that: many synced writes would only wear a disk."""
    memory = pathlib.Path("/dev/shm")
    return memory if memory.is_dir() else None


def new_style(number):
    return {
        "ID": number, "Name": f"Style {number}", "EJ": {"Opt1": 0, "Opt2": 0, "Opt3": 0, "TD": list(NAMES)},
        "JE": {"TOpt1": 0, "TOpt2": 0, "TOpt3": 0, "TOpt4": True, "TOpt5": 0}}


class Edits:
    """Random edits as lines of a script, each with the change that it makes to the root of the style file."""

    def __init__(self, root, chance):
        self.root, self.random = copy.deepcopy(root), chance
        self.lines, self.changes = [], []

    def add(self, lines, *changes):
        """changes: of places in the root, (keys on the way down, new value)."""
        for way, value in changes:
            put(self.root, way, value)
        self.changes.append(copy.deepcopy(changes))
        self.lines += [*lines, f"default Made{len(self.changes)}"]

    def add_one(self):
        number = self.root["Selection"]["MG"]
        style = ("Style", number)
        kind = self.random.randrange(5 if len(self.root["Style"][number]["EJ"]["TD"]) > 1 else 3)
        if kind == 0 or number == 0:
            other = self.random.choice([index for index in range(1, len(self.root["Style"])) if index != number])
            self.add([f"choose stylePopup {other}"], (("Selection", "MG"), other))
        elif kind == 1:
            key, value = self.random.choice((1, 2, 3)), self.random.randrange(2)
            self.add(["choose ejEditPopup 1", f"choose ejOption{key}Popup {value}"], ((*style, "EJ", f"Opt{key}"), value))
        elif kind == 2:
            name = f"様式 {self.random.randrange(10**9)}"
            self.add(["press StyleNameEditButton", f'type styleNameField "{name}"', "press snOKButton"], ((*style, "Name"), name))
        else:
            self.add_list_edit(kind, style)

    def add_list_edit(self, kind, style):
        way = (*style, "EJ", "TD")
        names = self.root["Style"][style[1]]["EJ"]["TD"]
        row = self.random.randrange(1, len(names))
        lines = ["choose ejEditPopup 0", f"select ejTDTable {row}"]
        if kind == 3:
            raised = names[: row - 1] + [names[row], names[row - 1]] + names[row + 1 :]
            self.add([*lines, "press ejRaiseDicButton"], (way, raised))
        else:
            self.add([*lines, "press ejRemoveDicButton"], (way, names[:row] + names[row + 1 :]))
            self.add(["menu undoMenu"], (way, names))


def put(root, way, value):
    for key in way[:-1]:
        root = root[key]
    root[way[-1]] = copy.deepcopy(value)


class Rounds:
    """One home, and all that its programs left there."""

    def __init__(self, shell, program, styles, seed, folder):
        self.shell, self.program, self.random, self.folder = shell, program, random.Random(seed), folder
        self.home = folder / "Users/taro"
        self.file = self.home / STYLES
        self.left, self.seconds_to_start = set(), 0.2
        self.made, self.kills, self.kills_in_starts, self.left_beside = 0, 0, 0, 0
        (folder / DICTIONARIES).mkdir(parents=True)
        for name in NAMES:
            (folder / DICTIONARIES / name).write_bytes(b"")
        self.file.parent.mkdir(parents=True)
        root = {"Selection": {"MG": 0}, "Style": [new_style(number) for number in range(styles)]}
        self.file.write_bytes(plistlib.dumps(root))

    def command(self, script):
        words = [self.program, "run", script] if self.shell == "console" else [self.program, script]
        return [str(word) for word in [*words, "--root", self.folder, "--home", self.home]]

    def start(self, lines):
        script = self.folder / "round.scenario"
        script.write_text("\n".join(["start", "default Made0", *lines]) + "\n", "utf-8")
        return subprocess.Popen(
            self.command(script), stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, encoding="utf-8")

    def undisturbed(self):
        """A start and an end of the program without a kill."""
        program = self.start(["quit"])
        _, told = program.communicate()
        if program.returncode != 0:
            raise AssertionError(f"an undisturbed start ended with {program.returncode}: {told}")

    def root(self):
        return plistlib.loads(self.file.read_bytes())

    def round(self, kills_a_start):
        """Kills a program once; raises AssertionError where the disk holds what it must not."""
        before = self.root()
        edits = Edits(before, self.random)
        while len(edits.changes) < EDITS_OF_A_ROUND:
            edits.add_one()
        program = self.start(edits.lines)
        told = Told(program.stdout)
        started = time.monotonic()
        if kills_a_start:
            time.sleep(self.random.uniform(0, 1.1 * self.seconds_to_start))
        else:
            told.wait_for(0, program)
            self.seconds_to_start = time.monotonic() - started
            told.wait_for(self.random.randrange(1, 12), program)
            time.sleep(self.random.expovariate(200))
        program.kill()
        told.join()
        words = program.stderr.read()
        if program.wait() not in (0, -9):
            raise AssertionError(f"the program ended with {program.returncode} before it was killed: {words}")
        self.kills += program.returncode != 0  # on a busy machine it may have come to its end
        self.look(before, edits, told.last)

    def look(self, before, edits, told):
        found = self.root()
        at = self.edit_of(found, before, edits, max(told, 0))
        if at is None:
            self.file.rename(self.file.with_suffix(".fault"))
            raise AssertionError(f"the style file is as after none of the edits from {told} on: {self.file.with_suffix('.fault')}")
        self.made += at
        self.kills_in_starts += told < 0
        left = set(self.home.rglob(".tarvo-*"))
        if told >= 0 and left & self.left:
            raise AssertionError(f"left from an earlier round: {sorted(left & self.left)}")
        self.left_beside += len(left - self.left)
        self.left = left
        self.look_at_kept(len(found["Style"]))

    @staticmethod
    def edit_of(found, root, edits, first):
        """The number of the edit after which the root is the found one, from the first told as made on; None: of none."""
        for number in range(len(edits.changes) + 1):
            for way, value in edits.changes[number - 1] if number > 0 else ():
                put(root, way, value)
            if number >= first and root == found:
                return number
        return None

    def look_at_kept(self, styles):
        kept = sorted(path for path in (self.home / KEPT).glob("*") if not path.name.startswith(".tarvo-"))
        for path in kept[-3:]:
            if len(plistlib.loads(path.read_bytes())["Style"]) != styles:
                raise AssertionError(f"not whole: {path}")

    def end(self):
        before = self.root()
        self.undisturbed()
        if self.root() != before:
            raise AssertionError("the last start changed the styles")
        left = sorted(self.home.rglob(".tarvo-*"))
        if left:
            raise AssertionError(f"left after the last start: {left}")


class Told(threading.Thread):
    """Which edits a program told as made: last is -1 before the start has ended, then the number of the last one."""

    def __init__(self, output):
        super().__init__()
        self.output, self.last, self.numbers = output, -1, queue.Queue()
        self.start()

    def run(self):
        for line in self.output:
            made = re.match(r'\{"default":"Made(\d+)"', line)
            if made and line.endswith("\n"):
                self.last = int(made[1])
                self.numbers.put(self.last)
        self.numbers.put(None)

    def wait_for(self, number, program):
        while self.last < number:
            if self.numbers.get(timeout=SECONDS_FOR_AN_EDIT) is None:
                raise AssertionError(f"ended by itself with {program.wait()}: {program.stderr.read()}")


def main():
    shell, program, styles, rounds, seed = sys.argv[1], pathlib.Path(sys.argv[2]).resolve(), *map(int, sys.argv[3:6])
    folder = pathlib.Path(tempfile.mkdtemp(prefix="killed-programs-", dir=place_of_rounds()))
    run = Rounds(shell, program, styles, seed, folder)
    run.undisturbed()
    for number in range(rounds):
        try:
            run.round(number % 4 == 3)
        except (AssertionError, OSError, ValueError, KeyError, queue.Empty) as fault:
            print(f"{shell}, {styles} styles, seed {seed}, round {number}: {fault!r}; all of it lies in {folder}")
            return 1
    run.end()
    print(
        f"{shell}, {styles} styles, seed {seed}: killed {run.kills} times, {run.kills_in_starts} of them while it started; "
        f"{run.made} edits, none lost; {run.left_beside} files left beside, none after the next start")
    shutil.rmtree(folder)
    return 0


if __name__ == "__main__":
    sys.exit(main())
