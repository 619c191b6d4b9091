#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""Ten machines edit one user's styles over a real web server; servers and machines are killed again and again.

shared_styles.py TARVOCTL nginx|apache EDITS SEED: so many edits in all, of options, lists, names, whole styles and
whole sets. What each changed is read from the machine's own style file before and after it, so that an edit that was
killed counts as far as it got. At the end every machine takes what the service holds until nothing changes: then all
machines and the server hold one set, and each value in it is the last one that some machine gave it; a value that only
one machine gave is that one. Judged by plistlib and hashlib. Prints what happened; the status is 0 when all held, 1
when something did not, 77 when the server is not installed.
"""

import collections
import hashlib
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
SEED = "Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist"
STYLES = "Library/Preferences/Wordhaven/TarvoStyle2009.plist"
EARLIER = "Library/Application Support/Wordhaven/Tarvo Styles"
BEHIND_THE_FRONT = b"\t<key>Style</key>\n"
NOT_INSTALLED = 77
MACHINES = 10
STYLES_EACH = 1  # of its own; the first ones belong to all
COMMON = 3
SECONDS_AT_MOST = 60  # for one verb: it waits three seconds for the service and then goes
ROUNDS_AT_MOST = 12
DONE = (0, 5)  # 5: stored here, on its way


def set_hash(data):
    """The hash of the styles on the server: of all bytes behind the key."""
    return hashlib.sha256(data.partition(BEHIND_THE_FRONT)[2]).hexdigest()


def values_of(styles):
    """Every value by its style's place and key; the keys of both directions one by one."""
    values = {}
    for place, style in enumerate(styles):
        for key, value in style.items():
            if isinstance(value, dict):
                values |= {(place, key, inner): repr(what) for inner, what in value.items()}
            elif key != "ID":
                values[(place, key)] = repr(value)
    return values


class Machine:
    """One home; knows what each of its verbs has changed."""

    def __init__(self, tool, root, number, address, seed):
        self.tool, self.root, self.number, self.address = tool, root, number, address
        self.home = root / "Users" / f"機械 {number}"
        self.home.mkdir(parents=True)
        self.random = random.Random(f"{seed} {number}")
        self.counts, self.names = collections.Counter(), 0
        self.edits = {}  # the last value that this machine gave to each key
        self.faults = []

    def styles(self):
        path = self.home / STYLES
        return plistlib.loads(path.read_bytes())["Style"] if path.exists() else None

    def run(self, *words, kill_after=None):
        command = [self.tool, *words, "--root", self.root, "--home", self.home, "--language", "en", "--engine", self.address]
        process = subprocess.Popen([str(word) for word in command], stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        try:
            out, err = process.communicate(timeout=kill_after or SECONDS_AT_MOST)
        except subprocess.TimeoutExpired:
            process.kill()
            process.communicate()
            self.counts["killed"] += 1
            if not kill_after:
                self.faults.append(f"{self.number}: {words} did not end")
            return None, ""
        self.counts[f"{words[0]} {process.returncode}"] += 1
        return process.returncode, out + err

    def verb(self):
        """An edit, mostly of a style of its own."""
        own = COMMON + self.number * STYLES_EACH + self.random.randrange(STYLES_EACH)
        place = str(own if self.random.random() < 0.7 else self.random.randrange(COMMON))
        kind = self.random.randrange(20)
        direction = self.random.choice(("ej", "je"))
        if kind < 9:
            return "style", "set", place, f"Opt{self.random.randrange(1, 4)}={self.random.randrange(3)}"
        if kind < 12:
            return "style", "set", place, f"TOpt{self.random.randrange(1, 4)}={self.random.randrange(2)}"
        if kind < 16:
            return self.list_verb(place, direction)
        if kind < 18 and place != "0":
            self.names += 1
            return "style", "rename", place, f"様式 {self.number}-{self.names}"
        if kind < 19:
            return "style", "import", place, self.exported(place)
        return self.restore_verb()

    def list_verb(self, place, direction):
        styles = self.styles() or self.initial
        loaded = styles[int(place)].get(direction.upper(), {}).get("TD", [])
        folder = self.root / "Library/Application Support/Wordhaven/TarvoEiwa/TechDic" / direction.upper()
        # What an installation inserts by itself is shared by nobody.
        others = [path.name for path in sorted(folder.iterdir())
                  if path.is_file() and path.name not in loaded and not path.name.startswith(("cwl", "Tekado"))]
        if others and (not loaded or self.random.random() < 0.5) and len(loaded) < 8:
            return "dictionary", "add", place, direction, self.random.choice(others)
        if len(loaded) > 1 and self.random.random() < 0.5:
            return "dictionary", "move", place, direction, self.random.choice(loaded), str(self.random.randrange(1, len(loaded) + 1))
        if loaded:
            return "dictionary", "remove", place, direction, self.random.choice(loaded)
        return "style", "set", place, "Opt1=1"

    def exported(self, place):
        path = self.home / "exported.whstyle"
        styles = self.styles() or self.initial
        style = dict(self.random.choice(styles)) | {"Name": styles[int(place)]["Name"]}
        path.write_bytes(plistlib.dumps(style))
        return path

    def restore_verb(self):
        kept = [path.name.split()[0] for path in (self.home / EARLIER).glob("*.plist")]
        return ("restore", self.random.choice(kept)) if kept else ("style", "set", "1", "Opt2=1")

    def note(self, before, after):
        former, now = values_of(before or self.initial), values_of(after or self.initial)
        for key in former.keys() | now.keys():
            if former.get(key) != now.get(key):
                self.edits[key] = now.get(key)

    def edit(self):
        before = self.styles()
        kills = self.random.random() < 0.03
        status, said = self.run(*self.verb(), kill_after=self.random.uniform(0.005, 0.06) if kills else None)
        if status is not None and status not in DONE and status not in (1, 2):
            self.faults.append(f"{self.number}: status {status}: {said}")
        self.note(before, self.styles())
        if self.random.random() < 0.1:
            self.run("engine", "pull")

    def work(self, count):
        for _ in range(count):
            self.edit()


class Killer(threading.Thread):
    """Looks at what the server hands out, and kills it at random."""

    def __init__(self, server, seed):
        super().__init__()
        self.server, self.random, self.ends = server, random.Random(f"{seed} server"), threading.Event()
        self.kills, self.damaged = 0, 0

    def look(self):
        data = self.server.get()
        if data:
            root = plistlib.loads(data)
            if root["Hash"] != set_hash(data) or not root["Style"] or not all(isinstance(style, dict) for style in root["Style"]):
                self.damaged += 1

    def run(self):
        while not self.ends.is_set():
            end = time.monotonic() + self.random.uniform(0.5, 4)
            while time.monotonic() < end and not self.ends.is_set():
                self.look()
                self.ends.wait(0.1)
            self.server.kill()
            self.kills += 1
            self.ends.wait(self.random.uniform(0, 0.3))
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


def meet(machines, server):
    """With the server up, all take what it holds until nothing changes; how many rounds that took."""
    for rounds in range(1, ROUNDS_AT_MOST + 1):
        before = server.get()
        for machine in machines:
            machine.run("engine", "pull")
        sets = [machine.styles() for machine in machines]
        if server.get() == before and all(each == sets[0] for each in sets):
            return rounds
    return None


def lost(machines, held, initial):
    """Values that are nobody's last word."""
    said = collections.defaultdict(dict)
    for machine in machines:
        for key, value in machine.edits.items():
            said[key][machine.number] = value
    final, first = values_of(held), values_of(initial)
    faults = []
    for key in final.keys() | said.keys() | first.keys():
        allowed = set(said[key].values()) if key in said else {first.get(key)}
        if final.get(key) not in allowed:
            faults.append(f"{key} is {final.get(key)}, said were {dict(said.get(key, {}))}, at first {first.get(key)}")
    return faults


def seed_styles(root):
    """A style of its own for each machine, and some that belong to all."""
    path = root / SEED
    seed = plistlib.loads(path.read_bytes())
    real = [style for style in seed["Style"] if "JE" in style]
    count = COMMON + MACHINES * STYLES_EACH
    seed["Style"] = [real[number % len(real)] | {"ID": number} for number in range(count)]
    for number, style in enumerate(seed["Style"][1:], 1):
        style["Name"] = f"Style {number}"
    path.write_bytes(plistlib.dumps(seed))


def run(tool, kind, edits, seed, folder):
    root = folder / "product"
    shutil.copytree(TOP / "sample" / "root", root, symlinks=True)
    seed_styles(root)
    server = WebServer(kind, folder / "server")
    machines = [Machine(tool, root, number, server.address(), seed) for number in range(MACHINES)]
    began = time.monotonic()
    server.start()
    try:
        machines[0].run("style", "set", "0", "Opt1=1")
        initial = machines[0].styles()
        for machine in machines:
            machine.initial = initial
        killer = Killer(server, seed)
        killer.start()
        try:
            at_the_same_time(machines, lambda machine: machine.work(edits // MACHINES))
        finally:
            killer.stop()
        rounds = meet(machines, server)
        held = server.get() or b""
        states = [machine.styles() for machine in machines]
    finally:
        server.kill()
    faults = [fault for machine in machines for fault in machine.faults]
    if rounds is None:
        faults.append("the machines did not agree")
    root = plistlib.loads(held)
    if root["Hash"] != set_hash(held) or any(state != root["Style"] for state in states):
        faults.append("the sets differ")
    if killer.damaged:
        faults.append(f"the server handed out {killer.damaged} damaged sets")
    faults += lost(machines, root["Style"], initial)
    counts = sum((machine.counts for machine in machines), collections.Counter())
    stored = sum(1 for method, status, _, _ in server.log() if method == "PUT" and status < 300)
    print(f"{kind}, seed {seed}: {edits} edits of {MACHINES} machines in {time.monotonic() - began:.1f} s, "
          f"{killer.kills} kills of the server, {stored} sets stored, agreed after {rounds} rounds")
    print("  " + ", ".join(f"{name}: {count}" for name, count in sorted(counts.items())), flush=True)
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
    print("\n".join(faults[:30]), end="\n" if faults else "")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
