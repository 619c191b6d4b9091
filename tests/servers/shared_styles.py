#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""Two machines edit one user's styles over a real web server that is killed again and again.

shared_styles.py TARVOCTL nginx|apache EDITS SEED: each machine makes that many random edits, with reconciling in
between. Every fifty edits, and at the end, each makes one with the server up, and both reconcile twice: then both and
the server hold one of the registered sets whole. Judged by plistlib, hashlib and the programs' own logs. Prints what happened; the status
is 0 when all held, 1 when something did not, 77 when the server is not installed.
"""

import collections
import hashlib
import json
import pathlib
import plistlib
import random
import shutil
import subprocess
import sys
import tempfile
import threading
import time

sys.dont_write_bytecode = True
from web_servers import WebServer  # noqa: E402

TOP = pathlib.Path(__file__).resolve().parent.parent.parent
STYLES = "Library/Preferences/Wordhaven/TarvoStyle2009.plist"
BEHIND_THE_FRONT = b"\t<key>Style</key>\n"
NOT_INSTALLED = 77
EDITS_OF_A_ROUND = 50
SECONDS_BEFORE_A_MEETING = 0.5  # a lock of before the last kill is then nearly over


def set_hash(data):
    """The hash of the styles in a style file or on the server: of all bytes behind the key."""
    return hashlib.sha256(data.partition(BEHIND_THE_FRONT)[2]).hexdigest()


class Machine:
    """One home and the program that works in it; remembers everything that its logs say."""

    def __init__(self, tool, root, name, address, seed):
        self.tool, self.root, self.name, self.address = tool, root, name, address
        self.home = root / "Users" / name
        self.home.mkdir(parents=True)
        self.random = random.Random(f"{seed} {name}")
        self.counts, self.stamps, self.names, self.faults = collections.Counter(), [], 0, []

    def run(self, lines):
        """Runs a script from the start of the program to its end, and reads its log."""
        script = "\n".join(["default ConnectServer true", "start", *lines, "log"]) + "\n"
        command = [self.tool, "run", "-", "--root", self.root, "--home", self.home, "--language", "en", "--engine", self.address]
        done = subprocess.run([str(word) for word in command], input=script, capture_output=True, text=True, check=False)
        if done.returncode != 0:
            raise RuntimeError(f"{self.name}: {done.stderr}\n{script}")
        self.account([json.loads(line) for line in done.stdout.splitlines()])

    def account(self, events):
        """Every registration follows a reachable probe or an empty service, and its stamp is what is kept."""
        for number, event in enumerate(events):
            kind = event.get("engine")
            if kind is None:
                continue
            answer = event.get("result")
            self.counts[f"{kind} {answer}" if answer is not None else kind] += 1
            if kind == "sendRegistStyle":
                self.stamps.append(event["stamp"])
                before, after = events[number - 1], events[number + 1]
                if before not in ({"engine": "checkConnectionWithCurl", "result": True}, {"engine": "checkStyle", "result": False}):
                    self.faults.append(f"{self.name} registered after {before}")
                if after != {"default": "LastUpdate", "value": event["stamp"]}:
                    self.faults.append(f"{self.name} kept {after} for {event['stamp']}")

    def rename_lines(self):
        """A new name makes the set one that nobody had before."""
        self.names += 1
        return [f"choose stylePopup {self.random.choice((1, 2))}", "press StyleNameEditButton",
                f'type styleNameField "{self.name}{self.names} 様式"', "press snOKButton"]

    def edit_lines(self):
        kind = self.random.randrange(8)
        if kind < 4:
            return self.rename_lines()
        lines = [f"choose stylePopup {self.random.choice((1, 2))}"]
        if kind < 6:
            option = self.random.randrange(1, 4)
            lines += ["choose ejEditPopup 1", f"choose ejOption{option}Popup {self.random.randrange(3)}"]
        elif kind == 6:
            lines += ["tab directionTab 1", "choose jeEditPopup 1", f"choose jeOption1Popup {self.random.randrange(3)}", "tab directionTab 0"]
        else:
            lines.append("post SendPlistNoti")
        return lines

    def edit(self, count):
        while count > 0:
            some = min(count, self.random.randint(1, 5))
            self.run([line for _ in range(some) for line in self.edit_lines()])
            count -= some
            time.sleep(self.random.uniform(0, 0.1))

    def data(self):
        return (self.home / STYLES).read_bytes()


class Watcher(threading.Thread):
    """Looks at what the server hands out, and kills it at random."""

    def __init__(self, server, seed):
        super().__init__()
        self.server, self.random, self.ends = server, random.Random(f"{seed} server"), threading.Event()
        self.kills, self.seen, self.damaged = 0, set(), 0

    def look(self):
        data = self.server.get()
        if data:
            root = plistlib.loads(data)
            if root["Hash"] != set_hash(data) or not root["Style"] or not all(isinstance(style, dict) for style in root["Style"]):
                self.damaged += 1
            self.seen.add(root["Hash"])

    def run(self):
        while not self.ends.is_set():
            end = time.monotonic() + self.random.uniform(0.1, 1)
            while time.monotonic() < end and not self.ends.is_set():
                self.look()
                time.sleep(0.02)
            self.server.kill()
            self.kills += 1
            self.ends.wait(self.random.uniform(0, 0.15))
            self.server.start()

    def stop(self):
        self.ends.set()
        self.join()


def at_the_same_time(machines, work):
    failures = []

    def guarded(machine):
        try:
            work(machine)
        except Exception as failure:  # told by the main thread
            failures.append(failure)

    threads = [threading.Thread(target=guarded, args=(machine,)) for machine in machines]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    if failures:
        raise failures[0]


def meet(machines):
    """With the server up, each makes one edit, as it happens at the same time; then both reconcile twice."""
    time.sleep(SECONDS_BEFORE_A_MEETING)
    at_the_same_time(machines, lambda machine: machine.run(machine.rename_lines()))
    for machine in machines * 2:
        machine.run(["post SendPlistNoti"])


def faults_after_meeting(machines, watcher, server):
    faults = [fault for machine in machines for fault in machine.faults]
    registered = {stamp.split()[-1] for machine in machines for stamp in machine.stamps}
    held = server.get() or b""
    states = {machine.name: machine.data() for machine in machines} | {"server": held}
    hashes = {name: set_hash(data) for name, data in states.items()}
    styles = [plistlib.loads(data)["Style"] if data else None for data in states.values()]
    if len(set(hashes.values())) != 1 or any(each != styles[0] for each in styles) or not styles[0]:
        faults.append(f"the sets differ: {hashes}")
    if not set(hashes.values()) <= registered:
        faults.append("the set of a meeting was never registered")
    root = plistlib.loads(held)
    if f"{root['Revision']:020} {root['Hash']}" not in [stamp for machine in machines for stamp in machine.stamps]:
        faults.append("the stamp of a meeting is in no log")
    if not watcher.seen <= registered:
        faults.append(f"the server held sets that nobody registered: {watcher.seen - registered}")
    if watcher.damaged:
        faults.append(f"the server handed out {watcher.damaged} damaged sets")
    return faults


def run(tool, kind, edits, seed, folder):
    root = folder / "product"
    shutil.copytree(TOP / "sample" / "root", root, symlinks=True)
    server = WebServer(kind, folder / "server")
    machines = [Machine(tool, root, name, server.address(), seed) for name in ("北", "south")]
    watchers, faults, began = [], [], time.monotonic()
    server.start()
    try:
        for first in range(0, edits, EDITS_OF_A_ROUND):
            watcher = Watcher(server, f"{seed} {first}")
            watchers.append(watcher)
            watcher.start()
            try:
                at_the_same_time(machines, lambda machine: machine.edit(min(EDITS_OF_A_ROUND, edits - first)))
            finally:
                watcher.stop()
            meet(machines)
            faults += faults_after_meeting(machines, watcher, server)
    finally:
        server.kill()
    stored = sum(1 for method, status, _, _ in server.log() if method == "PUT" and status < 300)
    print(f"{kind}, seed {seed}: 2 x {edits} edits and {len(watchers)} meetings in {time.monotonic() - began:.1f} s, "
          f"{sum(watcher.kills for watcher in watchers)} kills, {stored} sets stored")
    for machine in machines:
        print(f"  {machine.name}: " + ", ".join(f"{name} {count}" for name, count in sorted(machine.counts.items())))
    return faults


def main(arguments):
    if len(arguments) != 4 or arguments[1] not in ("nginx", "apache"):
        raise SystemExit(f"usage: {pathlib.Path(sys.argv[0]).name} TARVOCTL nginx|apache EDITS SEED")
    tool, kind, edits, seed = arguments[0], arguments[1], int(arguments[2]), arguments[3]
    if not WebServer.is_here(kind):
        return NOT_INSTALLED
    with tempfile.TemporaryDirectory() as folder:
        pathlib.Path(folder).chmod(0o755)
        faults = run(tool, kind, edits, seed, pathlib.Path(folder))
    print("\n".join(faults), end="\n" if faults else "")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
