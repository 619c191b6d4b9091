# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""Builds both forms, runs every test program and check, and adds up what they report.

A test program counts with the tests of its own report. One that ends without a report, or badly although no test
of it failed (a leak found at the end, say), counts as one failed test, and so do a build and a check that fail.
"""

import concurrent.futures
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

TOP = pathlib.Path(__file__).resolve().parent.parent
BUILDS = ("dev", "core-only")
CHECKS = (
    ("lint", ["script/lint"]),
    ("tools", [sys.executable, "tests/architecture/tools_test.py"]),
    ("resources", [sys.executable, "tests/resources/check_resources.py"]),
    ("model of a disk", [sys.executable, "tests/crash/model_test.py"]),
    ("verdicts on crashes", [sys.executable, "tests/crash/verdicts_test.py"]),
)
# Programs that report as those of C++ do, behind the option at the end: label, build that they need, words.
SCRIPTS = (("crashes", "dev", [sys.executable, "tests/crash/crash_states.py", "build/dev/console/tarvoctl", "--sample", "--report={}"]),)
SECONDS_PER_PROGRAM = 1200
TAIL = 6000  # characters of a program's output that are shown when it has no report


class Tally:
    """What passed, failed and was skipped so far; tells each failure as it comes."""

    def __init__(self, out=sys.stdout):
        self.passed, self.failed, self.skipped, self.out = 0, 0, 0, out

    def fail(self, name, output):
        self.failed += 1
        print(f"FAILED {name}\n{output.rstrip()}\n", file=self.out, flush=True)

    def skip(self, name, reason):
        self.skipped += 1
        print(f"skipped {name}: {reason}", file=self.out, flush=True)

    def add_program(self, label, status, output, report):
        """report: the decoded JSON report of a test program, None when it left none."""
        if report is None:
            self.fail(label, f"ended with status {status} without a report\n{output[-TAIL:]}")
            return
        failed_before = self.failed
        for suite in report["testsuites"]:
            for test in suite["testsuite"]:
                self.add_test(label, f"{suite['name']}.{test['name']}", test, output)
        if status != 0 and self.failed == failed_before:
            self.fail(label, f"ended with status {status} although no test failed\n{output[-TAIL:]}")

    def add_test(self, label, name, test, output):
        if test.get("failures"):
            self.fail(f"{label}: {name}", section(output, name) or "\n".join(f["failure"] for f in test["failures"]))
        elif test["status"] == "NOTRUN":
            self.skip(f"{label}: {name}", "disabled")
        elif test["result"] == "SKIPPED":
            self.skip(f"{label}: {name}", skip_reason(section(output, name)))
        else:
            self.passed += 1

    def closing_line(self):
        skipped = f", {self.skipped} skipped" if self.skipped else ""
        return f"{self.passed} passed, {self.failed} failed{skipped}"


def section(output, name):
    """What a test program printed while the test of that name ran."""
    found = re.search(rf"^\[ RUN      \] {re.escape(name)}\n(.*?)^\[ +(?:FAILED|SKIPPED) +\] ", output, re.M | re.S)
    return found.group(1) if found else ""


def skip_reason(text):
    lines = [line.strip() for line in text.splitlines() if line.strip() and not re.search(r": Skipped$", line)]
    return " ".join(lines) or "no reason given"


def environment():
    """Nothing of the caller's product, display, proxies or clock zone reaches a test."""
    kept = {name: value for name, value in os.environ.items() if not name.startswith(("TARVO_", "GTEST_", "XDG_"))}
    return kept | {"QT_QPA_PLATFORM": "offscreen", "UBSAN_OPTIONS": "print_stacktrace=1", "no_proxy": "*"}


def run(command, seconds=None, env=None):
    """Status and output of a command; a status below 0 is a signal."""
    try:
        done = subprocess.run(
            command, cwd=TOP, env=env, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT, timeout=seconds, check=False)
        return done.returncode, done.stdout.decode("utf-8", "replace")
    except subprocess.TimeoutExpired as late:
        return "none", (late.stdout or b"").decode("utf-8", "replace") + f"\nstopped after {seconds} s"
    except OSError as error:
        return "none", str(error)


def words_for(program):
    return [str(program), "--gtest_color=no", "--gtest_output=json:{}"]


def run_program(words):
    """Status, output and report of one test program; {} in the last word is where the report goes."""
    with tempfile.TemporaryDirectory() as folder:
        report = pathlib.Path(folder, "report.json")
        status, output = run([*words[:-1], words[-1].format(report)], SECONDS_PER_PROGRAM, environment())
        try:
            return status, output, json.loads(report.read_text("utf-8"))
        except (OSError, ValueError):
            return status, output, None


def programs_of(build):
    """The test programs that a build lists by name, as paths."""
    names = pathlib.Path(build, "test-programs.txt").read_text("utf-8").split()
    found = {path.name: path for path in pathlib.Path(build, "tests").rglob("test_*") if path.is_file() and os.access(path, os.X_OK)}
    return [found.get(name, pathlib.Path(build, "tests", name)) for name in names]


def main():
    tally = Tally()
    programs = []
    for build in BUILDS:
        print(f"Building build/{build}", flush=True)
        status, output = run(["script/build", build])
        if status != 0:
            tally.fail(f"build of {build}", output)
        else:
            programs += [(f"{build} {path.name}", words_for(path)) for path in programs_of(TOP / "build" / build)]
            programs += [(label, words) for label, needed, words in SCRIPTS if needed == build]

    print(f"Running {len(programs)} test programs and {len(CHECKS)} checks", flush=True)
    with concurrent.futures.ThreadPoolExecutor(max_workers=os.cpu_count()) as pool:
        checks = [(name, pool.submit(run, command)) for name, command in CHECKS]
        tests = [(label, pool.submit(run_program, words)) for label, words in programs]
        for label, test in tests:
            tally.add_program(label, *test.result())
        for name, check in checks:
            status, output = check.result()
            if status == 0:
                tally.passed += 1
            else:
                tally.fail(name, output)
    if not programs:
        tally.fail("test programs", "no build left any")
    print(tally.closing_line())
    return 1 if tally.failed else 0


if __name__ == "__main__":
    sys.exit(main())
