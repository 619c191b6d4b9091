# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""The states in which a disk may be found after a program was killed, or after the power went.

Killed: each step before is there, and of a write its beginning. After a power cut the laws are those of POSIX, which the
usual file systems keep and exceed:
- what was synced is there: of a file its bytes and what is known about it, but not its name; of a folder its names;
- one call's change of names is there whole or not at all, a renaming too, also between folders;
- a change of a name presupposes the earlier ones of the same name; any others may be lost, whatever their order;
- bytes that were not synced may be there, or the size without them (zeros), or their beginning, or nothing of them.
What lies on the disk at first is safe.
"""

import collections
import itertools
import math

from disk import Node
from model import ROOT

MOST_CHOICES = 256  # of lost names at one moment; beyond it each one, each pair, and all
MOST_VARIANTS = 64  # of unsafe files together at one moment; beyond it one file after the other

State = collections.namedtuple("State", "tree after cause")
"""after: how many steps had been made."""


def cut(data):
    """The beginnings that are tried of bytes that were being written."""
    return {data[:1], data[:len(data) // 2], data[:-1]} - {data, b""} if data else set()


def partly(old, new):
    """What may be there of a file's bytes between two syncs."""
    if old == new:
        return [new]
    added = new[len(old):] if new.startswith(old) else new
    start = old if new.startswith(old) else b""
    return list(dict.fromkeys([new, old, start + b"\0" * len(added), start, *(start + each for each in sorted(cut(added)))]))


def together(rows):
    """Which variants of the files are tried together; the first of each row is what nothing was lost of."""
    if math.prod(map(len, rows)) <= MOST_VARIANTS:
        return list(itertools.product(*rows))
    whole = [row[0] for row in rows]
    return [tuple(whole)] + [tuple(whole[:index] + [each] + whole[index + 1:]) for index, row in enumerate(rows) for each in row[1:]]


class Losses:
    """The states of one recorded run. begun: how many steps are over and safe before it is looked at; done: after how many
    the user was told that it is done, which is at the end when nothing was said before."""

    def __init__(self, replay, begun=0):
        self.replay, self.steps, self.begun = replay, replay.steps, begun
        self.done = min([said for said in replay.said if said > begun] + [len(self.steps)])
        self.names = dict(replay.first_names)  # as they are on the disk for sure
        self.content = {number: data for number, (data, _) in replay.first.items()}
        self.about = {number: about for number, (_, about) in replay.first.items()}
        self.safe_content, self.safe_about = dict(self.content), dict(self.about)
        self.pending, self.seen = [], set()
        for step in self.steps[:begun]:
            self.make(step)
        self.names, self.pending = self.all_names(), []
        self.safe_content, self.safe_about = dict(self.content), dict(self.about)

    def now(self):
        """What lies there when nothing is lost."""
        return self.state(self.all_names(), {}, 0, "").tree

    def states(self):
        """Each distinct state once for the moments before it was done, and once for those from then on."""
        for after in range(self.begun, len(self.steps) + 1):
            if after > self.begun:
                yield from self.killed_within(after)
                self.make(self.steps[after - 1])
            if after == self.done:
                self.seen.clear()
            yield from self.fresh([self.state(self.all_names(), {}, after, "killed")])
            yield from self.fresh(self.power_cuts(after))

    def make(self, step):
        self.content.update(step.content)
        self.about.update(step.about)
        if step.names:
            self.pending.append(step)
        for number in step.synced:
            self.sync(number)

    def sync(self, number):
        self.safe_content[number], self.safe_about[number] = self.content[number], self.about[number]
        kept = []
        for step in self.pending:
            if any(folder == number for folder, _ in step.names):
                self.names.update(step.names)
            else:
                kept.append(step)
        self.pending = kept

    def killed_within(self, after):
        """A write may end anywhere."""
        step = self.steps[after - 1]
        for number, data in step.content.items():
            old = self.content[number]
            begun = [old[:len(old)] + each for each in cut(data[len(old):])] if data.startswith(old) else []
            yield from self.fresh(self.state(self.all_names(), {number: (each, self.about[number])}, after - 1, f"killed within {step}") for each in begun)

    def all_names(self):
        return self.with_steps(self.pending)

    def with_steps(self, steps):
        names = dict(self.names)
        for step in steps:
            names.update(step.names)
        return names

    def power_cuts(self, after):
        for kept in self.choices():
            names = self.with_steps(kept)
            reached = set(self.walk(names).values())
            unsafe = [number for number in sorted(reached) if self.is_unsafe(number)]
            lost = [str(step) for step in self.pending if step not in kept]
            for variants in together(list(map(self.variants, unsafe))):
                cause = "power cut, lost: " + (", ".join(lost) or "nothing") + "".join(
                    f", of file {number} {len(data)} bytes" for number, (data, _) in zip(unsafe, variants) if data != self.content[number])
                yield self.state(names, dict(zip(unsafe, variants)), after, cause)

    def is_unsafe(self, number):
        return self.content[number] is not self.safe_content[number] or self.about[number] != self.safe_about[number]

    def variants(self, number):
        abouts = dict.fromkeys([self.about[number], self.safe_about[number]])
        return list(itertools.product(partly(self.safe_content[number], self.content[number]), abouts))

    def choices(self):
        """The rows of pending changes that may have reached the disk, each in its order."""
        every = range(len(self.pending))
        if 2 ** len(self.pending) <= MOST_CHOICES:
            lost = [set(each) for count in range(len(self.pending) + 1) for each in itertools.combinations(every, count)]
        else:
            lost = [set(each) for count in range(3) for each in itertools.combinations(every, count)] + [set(every)]
        return [[self.pending[index] for index in every if index not in each] for each in lost if self.is_possible(each)]

    def is_possible(self, lost):
        """Whatever changes a name again goes with the change before it."""
        gone = set()
        for index, step in enumerate(self.pending):
            if index in lost:
                gone.update(step.names)
            elif gone & step.names.keys():
                return False
        return True

    def walk(self, names):
        inside = collections.defaultdict(list)
        for (folder, name), number in names.items():
            if number is not None:
                inside[folder].append((name, number))
        paths, waiting = {"": ROOT}, [("", ROOT)]
        while waiting:
            path, number = waiting.pop()
            for name, inner in inside[number]:
                whole = f"{path}/{name}" if path else name
                paths[whole] = inner
                waiting.append((whole, inner))
        return paths

    def state(self, names, variants, after, cause):
        tree = {}
        for path, number in self.walk(names).items():
            data, (mode, attributes) = variants.get(number, (self.content[number], self.about[number]))
            tree[path] = Node(self.replay.files[number].kind, mode, data, attributes)
        return State(tree, after, f"{cause} after {self.steps[after - 1] if after else 'nothing'}")

    def fresh(self, states):
        for state in states:
            key = frozenset(state.tree.items())
            if key not in self.seen:
                self.seen.add(key)
                yield state
