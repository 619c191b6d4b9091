# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""One action, tried: every state that a crash may leave of it, and every call of it failing once."""

import pathlib
import re
import tempfile
import time

import actions
import disk
import failing_calls
import product
import system_calls
from losses import Losses
from model import told
from replay import Replay
from verdicts import Truths

MOST_CAUSES = 6  # that are told of one fault
STARTS_IN_A_SAMPLE = 12  # one state of so many is started on
FAILURES_IN_A_SAMPLE = 5  # one call of so many fails, of those that change something
CHANGING = ("fsync", "linkat", "mkdirat", "openat", "renameat", "renameat2", "unlinkat", "write")


def begun_at(steps):
    """How many steps an opening took."""
    return next((index + 1 for index, step in enumerate(steps) if any(name == actions.BEGUN for _, name in step.names)), 0)


class Trial:
    """One action in a scratch folder."""

    def __init__(self, tool, action, folder, isSample):
        self.action, self.isSample = action, isSample
        self.product = product.Product(tool, pathlib.Path(folder, "製品 product"))
        self.states, self.started, self.failed, self.causes = 0, 0, 0, {}

    def look(self):
        return disk.look(self.product.folder)

    def run(self):
        actions.prepare(self.product, self.action)
        installed = self.look()
        replay = self.record(installed)
        begun = begun_at(replay.steps)
        losses = Losses(replay, begun)
        truths = self.truths(installed, losses.now())
        for state in losses.states():
            self.states += 1
            self.judge(state, truths, state.after >= losses.done)
        if losses.now() != self.after:
            self.tell("", ["the recorded calls do not lead to what is on the disk: the model is wrong"])
        self.let_calls_fail(failing_calls.failings([call for steps, call in replay.touching if steps >= begun]), installed, truths)

    def record(self, installed):
        same = disk.same_files(self.product.folder, installed)
        self.undisturbed, calls = self.product.record(self.action.words(), self.action.scripts()[-1])
        if self.undisturbed.status != 0:
            raise RuntimeError(f"ended with {self.undisturbed.status}: {self.undisturbed.err}")
        self.after = self.look()
        return Replay(self.product.folder, installed, same).follow(calls)

    def truths(self, installed, before):
        trees = [before]
        for lines in self.action.scripts()[:-1]:
            disk.lay_out(self.product.folder, installed)
            self.product.run(self.action.words(), lines)
            trees.append(self.look())
        trees.append(self.after)
        started = []
        for tree in trees:
            disk.lay_out(self.product.folder, tree)
            self.product.start()
            started.append(self.look())
        return Truths(trees, self.action.keeps).with_starts(started)

    def judge(self, state, truths, isDone):
        self.tell(state.cause, truths.faults(state.tree, isDone))
        if self.isSample and self.states % STARTS_IN_A_SAMPLE != 0:
            return
        for start in self.ways_to_start(state.tree):
            self.started += 1
            disk.lay_out(self.product.folder, state.tree)
            outcome = start()
            self.tell(state.cause, truths.faults_after_start(self.look(), outcome, state.tree))

    def ways_to_start(self, tree):
        """A verb does not begin over styles that cannot be read; a start does."""
        canPull = product.LOCAL_ENGINE in self.after and product.property_list(tree.get(product.STYLES)) is not None
        return [self.product.start, self.product.pull] if canPull else [self.product.start]

    def let_calls_fail(self, failings, installed, truths):
        verdict = failing_calls.Verdict(truths, self.undisturbed, self.look_after_a_start if self.action.mayWait else None)
        if self.isSample:
            failings = [each for each in failings if each.call.name in CHANGING][::FAILURES_IN_A_SAMPLE]
        for failing in failings:
            self.failed += 1
            disk.lay_out(self.product.folder, installed)
            outcome = self.product.run_failing(self.action.words(), self.action.scripts()[-1], failing)
            self.tell(f"{failing.error} of {told(failing.call)}", verdict.faults(failing, outcome, self.look()))

    def look_after_a_start(self):
        self.product.start()
        return self.look()

    def tell(self, cause, faults):
        for fault in faults:
            self.causes.setdefault(re.sub(r"\.tarvo-[\w-]+", "a temporary", fault), []).append(cause)

    def faults(self):
        """Each fault once, with some of what led to it."""
        return [f"{fault} ({len(causes)} times: {'; '.join(list(dict.fromkeys(causes))[:MOST_CAUSES])})" for fault, causes in self.causes.items()]


def attempt(tool, action, isSample):
    began = time.monotonic()
    with tempfile.TemporaryDirectory() as folder:
        trial = Trial(tool, action, folder, isSample)
        try:
            trial.run()
        except (RuntimeError, system_calls.RecordingError, OSError) as failure:
            trial.tell(type(failure).__name__, [str(failure)])
        trial.seconds = time.monotonic() - began
        return trial
