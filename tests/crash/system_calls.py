# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""The system calls of one run of a program, as strace tells them; and runs in which one of them fails."""

import collections
import os
import re
import shutil
import subprocess

LONGEST_TEXT = 1 << 20  # bytes of one argument; more is an error of the recording
SECONDS = 60
TRACED = "trace=%file,%desc,%process"

Call = collections.namedtuple("Call", "name arguments result error number")
"""arguments: bytes for texts, int for numbers, else the words of strace. result: the number that came back, None where
the call did not return. error: "EIO" and the like, or None. number: which one of its name it is, from 1."""

Run = collections.namedtuple("Run", "status out err")

LINE = re.compile(r"(?P<process>\d+) +(?P<name>\w+)\((?P<arguments>.*)\) += (?P<result>\?|-?\d+|0x[0-9a-f]+)(?: (?P<error>E[A-Z0-9]+))?")
TEXT = re.compile(r'"((?:\\x[0-9a-f]{2})*)"(\.\.\.)?$')


class RecordingError(Exception):
    """The trace says something that cannot be followed."""


def reason_to_skip():
    """Why no system call can be looked at on this machine; None where it can."""
    if shutil.which("strace") is None:
        return "strace is not installed"
    done = subprocess.run(["strace", "-o", os.devnull, "true"], capture_output=True, text=True, check=False)
    return None if done.returncode == 0 else "no program may be traced here: " + (done.stderr.strip() or f"status {done.returncode}")


def run(command, text="", strace=()):
    """Runs it with a neutral environment; status None: it was stopped because it did not end."""
    environment = {"PATH": os.environ.get("PATH", ""), "LANG": "C.UTF-8", "HOME": "/nonexistent"}
    words = [*(["strace", *strace, "--"] if strace else []), *map(str, command)]
    try:
        done = subprocess.run(words, input=text, capture_output=True, encoding="utf-8", errors="replace", env=environment,
                              cwd="/", umask=0o022, timeout=SECONDS, check=False)
    except subprocess.TimeoutExpired:
        return Run(None, "", f"stopped after {SECONDS} s")
    return Run(done.returncode, done.stdout, done.stderr)


def record(command, trace, text=""):
    """(how it ended, its calls in their order); trace: a file for strace."""
    ended = run(command, text, ["-f", "-xx", "-s", str(LONGEST_TEXT), "-e", TRACED, "-e", "signal=none", "-o", str(trace)])
    with open(trace, encoding="ascii", errors="surrogateescape") as lines:
        return ended, parsed(lines)


def run_failing(command, trace, name, number, error, text=""):
    """A run in which that call of the name, counted from 1, answers the error and does nothing."""
    ended = run(command, text, ["-f", "--seccomp-bpf", "-s", "0", "-e", f"trace={name}", "-e", "signal=none", "-e", f"inject={name}:error={error}:when={number}", "-o", str(trace)])
    with open(trace, encoding="ascii", errors="surrogateescape") as lines:
        if not any("(INJECTED)" in line for line in lines):
            raise RecordingError(f"{name} {number} was not met in another run of the same action")
    return ended


def parsed(lines):
    calls, counts, processes = [], collections.Counter(), set()
    for line in lines:
        if re.match(r"\d+ +(\+\+\+|---)", line):
            continue
        found = LINE.match(line)
        if not found:
            raise RecordingError(f"a line that is not understood: {line[:200]}")
        processes.add(found["process"])
        if len(processes) > 1:
            raise RecordingError("more than one process or thread: the order of their calls is not known")
        name = found["name"]
        counts[name] += 1
        result = None if found["result"] == "?" else int(found["result"], 0)
        calls.append(Call(name, [argument(each) for each in split(found["arguments"])], result, found["error"], counts[name]))
    return calls


def split(text):
    """The arguments; texts are all escaped, so that commas and brackets mean what they say."""
    parts, depth, start = [], 0, 0
    for at, letter in enumerate(text):
        if letter in "[{(":
            depth += 1
        elif letter in "]})":
            depth -= 1
        elif letter == "," and depth == 0:
            parts.append(text[start:at].strip())
            start = at + 1
    return parts + [text[start:].strip()] if text.strip() else []


def argument(word):
    found = TEXT.match(word)
    if found:
        if found[2]:
            raise RecordingError(f"a text that is longer than {LONGEST_TEXT} bytes")
        return bytes.fromhex(found[1].replace("\\x", ""))
    if re.fullmatch(r"-?\d+|0x[0-9a-f]+", word):
        return int(word, 8 if re.fullmatch(r"0\d+", word) else 0)
    return word
