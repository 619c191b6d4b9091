#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""Whether a kill or a power cut at any moment of a saving action, or a call of it that fails, loses something.

crash_states.py TARVOCTL [--sample] [--only TEXT] [--report FILE]: records the system calls of each action, lays out each
state in which they may leave the disk, judges it and starts the program on it; then lets each call fail once. --sample:
some of the starts and calls, always the same. --report: what came of it, as a test program of C++ writes it. The status
is 1 when something is lost.
"""

import argparse
import concurrent.futures
import json
import os
import pathlib
import sys

sys.dont_write_bytecode = True
import actions  # noqa: E402
import system_calls  # noqa: E402
from trial import attempt  # noqa: E402


def arguments_of(words):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("tool", type=pathlib.Path)
    parser.add_argument("--sample", action="store_true")
    parser.add_argument("--only", default="")
    parser.add_argument("--report", type=pathlib.Path)
    return parser.parse_args(words)


def show(name, lines, ending):
    print(f"[ RUN      ] CrashStates.{name}\n" + "".join(line + "\n" for line in lines) + f"[{ending:^10}] CrashStates.{name}", flush=True)


def write_report(path, rows):
    """rows: (name, result, faults)."""
    tests = [{"name": name, "status": "RUN", "result": result} | ({"failures": [{"failure": "\n".join(faults)}]} if faults else {})
             for name, result, faults in rows]
    path.write_text(json.dumps({"testsuites": [{"name": "CrashStates", "testsuite": tests}]}), "utf-8")


def try_all(chosen, given):
    """(name, "COMPLETED", faults) of each; prints how each went."""
    rows, counts = [], [0, 0, 0]
    with concurrent.futures.ThreadPoolExecutor(max_workers=os.cpu_count()) as pool:
        for action, waiting in [(action, pool.submit(attempt, given.tool.resolve(), action, given.sample)) for action in chosen]:
            trial = waiting.result()
            faults = trial.faults()
            said = f"{trial.states} states, {trial.started} starts, {trial.failed} failing calls, {trial.seconds:.1f} s"
            show(action.name, [said, *faults], "FAILED" if faults else "OK")
            rows.append((action.name, "COMPLETED", faults))
            counts = [count + more for count, more in zip(counts, (trial.states, trial.started, trial.failed))]
    print(f"{len(rows)} actions, {counts[0]} states, {counts[1]} starts, {counts[2]} failing calls, {sum(len(row[2]) for row in rows)} faults")
    return rows


def main(words):
    given = arguments_of(words)
    chosen = [action for action in actions.ACTIONS if given.only in action.name]
    reason = system_calls.reason_to_skip()
    if reason:
        for action in chosen:
            show(action.name, [reason], "SKIPPED")
        rows = [(action.name, "SKIPPED", []) for action in chosen]
        print(f"{len(rows)} actions skipped: {reason}")
    else:
        rows = try_all(chosen, given)
    if given.report:
        write_report(given.report, rows)
    return 1 if any(faults for _, _, faults in rows) else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
