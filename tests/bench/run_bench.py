# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""Runs the measured programs and their floors in turn and prints each row beside its floor.

Everything happens below build/bench/work, on the disk of the checkout: on a disk in memory a sync would cost nothing.
"""

import getpass
import itertools
import os
import pathlib
import plistlib
import shutil
import signal
import statistics
import subprocess
import sys
import time

from bus_rows import bus_rows, offscreen
from server_rows import SecureServer, hang_row, output_of, register_row

TOP = pathlib.Path(__file__).resolve().parent.parent.parent
BUILD = TOP / "build/bench"
WORK = BUILD / "work"
MANAGER = BUILD / "qt/tarvo-manager"
PROBED_MANAGER = BUILD / "tests/probe/probed_manager"  # the same, and it tells of its first paint
FLOOR_WINDOW = BUILD / "tests/bench/floor_window"
START_WRITES = BUILD / "tests/bench/start_writes"
EDIT_BENCH = BUILD / "tests/bench/edit_bench"
SCAN_BENCH = BUILD / "tests/bench/scan_bench"
ADDIN_BENCH = BUILD / "tests/bench/addin_bench"
PICKER_BENCH = BUILD / "tests/bench/picker_bench"
REQUEST_BENCH = BUILD / "tests/bench/request_bench"
REGISTER_BENCH = BUILD / "tests/bench/register_bench"
HANG_BENCH = BUILD / "tests/bench/hang_bench"
EARLIER_STYLES = "Library/Application Support/Wordhaven/Tarvo Styles"
SEED = "Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist"
USER_STYLES = "Library/Preferences/Wordhaven/TarvoStyle2009.plist"

STARTS = 15
EDITS = 41
SCANS = 31
OPENINGS = 15
INSTALLS = 31
REGISTRATIONS = 101
CALLS = 41
DICTIONARIES = 10_000
SCRIPTS = 1_000
SETTLE_SECONDS = 0.5  # from the first paint until memory is read
LONGEST_START = 30.0


def fresh_root(name):
    root = WORK / name
    shutil.rmtree(root, ignore_errors=True)
    subprocess.run([str(TOP / "sample/install"), str(root)], check=True, stdout=subprocess.DEVNULL)
    shutil.rmtree(home_of(root) / "Library/Scripts/Mail Scripts")  # or each first start would wait behind an alert
    return root


def home_of(root):
    return root / "Users" / getpass.getuser()


def print_row(name, here, floor, unit, aim, met):
    print(f"{name:34} {here:9.2f} {unit}   floor {floor:9.2f} {unit}   {here / floor:6.2f}x   {here - floor:+8.2f} {unit}   "
          f"{aim}: {'met' if met else 'missed'}", flush=True)


# Start: from exec to the first paint.

class Start:
    """One start of a program that tells of its first paint on the descriptor TARVO_PAINT_PROBE_FD."""

    def __init__(self, command):
        reading, writing = os.pipe()
        environment = os.environ | {"TARVO_PAINT_PROBE_FD": str(writing)}
        environment.setdefault("QT_QPA_PLATFORM", "xcb" if os.environ.get("DISPLAY") else "offscreen")
        begin = time.monotonic()
        process = subprocess.Popen([str(word) for word in command], env=environment, pass_fds=[writing],
                                   stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
        os.close(writing)
        try:
            told = os.read(reading, 64)
            self.milliseconds = (time.monotonic() - begin) * 1000
            self.painted_at = time.time_ns()
            if told != b"first-paint\n":
                raise SystemExit(f"{command[0]} ended before its first paint:\n{process.stderr.read().decode()}")
            time.sleep(SETTLE_SECONDS)
            self.megabytes = private_dirty(process.pid)
        finally:
            os.close(reading)
            process.send_signal(signal.SIGKILL)
            process.wait()
            process.stderr.close()


def private_dirty(process):
    for line in pathlib.Path(f"/proc/{process}/smaps_rollup").read_text("ascii").splitlines():
        if line.startswith("Private_Dirty:"):
            return int(line.split()[1]) / 1024
    raise SystemExit("the kernel tells nothing about private memory")


def identities(root):
    return {path: path.stat().st_ino for path in root.rglob("*") if path.is_file() and not path.is_symlink()}


def written_until(root, before, moment):
    """The files that a start replaced before its first paint; the lock is only opened, not written."""
    return [path for path, file in identities(root).items()
            if before.get(path) != file and path.stat().st_mtime_ns <= moment and path.suffix != ".lock"]


def writes_of_start(language):
    """The writes of a start on a fresh product as lines of the floor's list: the bytes of each and where they go."""
    root, kept = fresh_root("root"), WORK / "kept"
    shutil.rmtree(kept, ignore_errors=True)
    kept.mkdir()
    command = [START_WRITES, root, home_of(root), language, kept]
    done = subprocess.run([str(word) for word in command], check=True, stdout=subprocess.PIPE, text=True)
    lines = [line.split("\t") for line in done.stdout.splitlines()]
    return [(bytes_, pathlib.Path(target).relative_to(root)) for bytes_, target in lines]


def start_both(language, writes):
    """A start of the manager on a fresh product, then one of the floor with the same writes."""
    root, floor = fresh_root("root"), WORK / "floor"
    before = identities(root)
    manager = Start([PROBED_MANAGER, "--root", root, "--home", home_of(root), "--language", language])
    written = {path.relative_to(root) for path in written_until(root, before, manager.painted_at)}
    if written != {target for _, target in writes}:
        raise SystemExit("the start wrote other files than its floor does")
    shutil.rmtree(floor, ignore_errors=True)
    for _, target in writes:
        (floor / target).parent.mkdir(parents=True, exist_ok=True)
    (WORK / "list").write_text("".join(f"{bytes_}\t{floor / target}\n" for bytes_, target in writes), "utf-8")
    return manager, Start([FLOOR_WINDOW, language, WORK / "list"])


def start_rows(wanted):
    for language in ("en", "ja"):
        writes = writes_of_start(language)
        start_both(language, writes)  # warms up
        pairs = [start_both(language, writes) for _ in range(STARTS)]
        if "start" in wanted:
            here, floor = (statistics.median(pair[side].milliseconds for pair in pairs) for side in (0, 1))
            print_row(f"start, {language}, {len(writes)} writes", here, floor, "ms", "at most 25 ms over", here - floor <= 25)
        if "memory" in wanted:
            here, floor = (statistics.median(pair[side].megabytes for pair in pairs) for side in (0, 1))
            print_row(f"private memory, {language}", here, floor, "MB", "at most 6 MB over", here - floor <= 6)


# Edit: from the gesture until all its files are replaced and synced; as a verb, from reading the styles on.

def give_styles(root, count):
    """Gives the user as many styles, all options set, as copies of those that come with the product."""
    with open(root / SEED, "rb") as file:
        styles = plistlib.load(file)
    real = [style for style in styles["Style"] if "JE" in style]
    styles["Style"] = [real[number % len(real)] | {"Name": f"Style {number}", "ID": number} for number in range(count)]
    path = home_of(root) / USER_STYLES
    path.parent.mkdir(parents=True, exist_ok=True)
    with open(path, "wb") as file:
        plistlib.dump(styles, file)


def keeping_row():
    root, other = fresh_root("root"), WORK / "floor"
    give_styles(root, 100)
    shutil.rmtree(other, ignore_errors=True)
    shutil.copytree(home_of(root), other)
    (other / EARLIER_STYLES).parent.mkdir(parents=True, exist_ok=True)
    (other / EARLIER_STYLES).write_bytes(b"")  # a file where a folder must be
    command = [EDIT_BENCH, "keeping", root, home_of(root), "none", other, 5 * EDITS]
    done = subprocess.run([str(word) for word in command], check=True, stdout=subprocess.PIPE, text=True)
    here, bare, _ = done.stdout.split()
    print_row("edit that keeps the former styles", float(here), float(bare), "ms", "at most 1.05x",
              float(here) <= 1.05 * float(bare))


def edit_rows():
    for kind, engine in itertools.product(("gesture", "verb"), ("local", "none")):
        root, floor = fresh_root("root"), WORK / "floor"
        shutil.rmtree(floor, ignore_errors=True)
        give_styles(root, 100)
        command = [EDIT_BENCH, kind, root, home_of(root), engine, floor, EDITS]
        done = subprocess.run([str(word) for word in command], check=True, stdout=subprocess.PIPE, text=True)
        here, bare, files = done.stdout.split()
        name = "edit" if kind == "gesture" else "style set"
        print_row(f"{name} of 100 styles, {engine}, {files} files", float(here), float(bare), "ms", "at most 2x",
                  float(here) <= 2 * float(bare))


# The same in a window whose styles go to a server with TLS: what that costs the user.

def secure_edit_row():
    root, floor = fresh_root("root"), WORK / "floor"
    shutil.rmtree(floor, ignore_errors=True)
    give_styles(root, 100)
    with SecureServer() as server:
        command = [EDIT_BENCH, "gesture", root, home_of(root), server.address(), floor, EDITS]
        here, bare, files = output_of(command, server.environment()).split()
    print_row(f"edit of 100 styles, nginx, TLS, {files} files", float(here), float(bare), "ms", "at most 1.05x",
              float(here) <= 1.05 * float(bare))


# Scan: a folder with very many dictionaries, known by their extension or, all of them, by their type code.

def fill_folder(folder, name):
    """Answers whether the disk took what makes the files dictionaries."""
    information = b"TRjt    " + bytes(24)
    for number in range(DICTIONARIES):
        path = folder / name.format(number)
        path.touch()
        if path.suffix:
            continue
        try:
            os.setxattr(path, "user.com.apple.FinderInfo", information)
        except OSError:
            return False
    return True


def scan_rows():
    for label, name in (("extension", "{:05} 専門辞書 Dictionary.TRet"), ("type code", "{:05} 専門辞書 Dictionary")):
        root, folder = WORK / "scan", "/Dictionaries"
        shutil.rmtree(root, ignore_errors=True)
        (root / folder[1:]).mkdir(parents=True)
        if not fill_folder(root / folder[1:], name):
            print(f"scan by {label}: left out, the disk keeps no attributes")
            continue
        done = subprocess.run([str(SCAN_BENCH), str(root), folder, str(SCANS)], check=True, stdout=subprocess.PIPE, text=True)
        here, bare, entries, size = done.stdout.split()
        print_row(f"scan of {entries} by {label}", float(here), float(bare), "ms", "at most 1.5x",
                  float(here) <= 1.5 * float(bare))
        print_row("  memory of each", float(size), 1024, " B", "less than the floor", float(size) < 1024)


# Picker: in the window, from the press of the button or the key until the list is painted.

def picker_rows():
    root = fresh_root("root")
    fill_folder(root / "Library/Application Support/Wordhaven/TarvoEiwa/TechDic/EJ", "{:05} 専門辞書 Dictionary.TRet")
    command = [PICKER_BENCH, root, home_of(root), "123", OPENINGS]
    done = subprocess.run([str(word) for word in command], check=True, stdout=subprocess.PIPE, text=True, env=offscreen())
    opening, first, keystroke, rows = done.stdout.split()
    for name, here, most in ((f"picker of {rows}, first opening", first, 300), ("  later opening", opening, 300),
                             ("  keystroke in its filter", keystroke, 16)):
        print(f"{name:34} {float(here):9.2f} ms   at most {most} ms: {'met' if float(here) <= most else 'missed'}", flush=True)


# Registrations on real web servers, of few styles and of many.

def server_rows():
    for count in (6, 100):
        root = fresh_root("root")
        give_styles(root, count)
        for kind in ("nginx", "apache"):
            register_row(kind, REGISTER_BENCH, home_of(root) / USER_STYLES, REGISTRATIONS, f"{count} styles", print_row)


# Add-ins: a folder with very many scripts, installed and removed.

def addin_rows():
    resources, place = WORK / "addin-resources", WORK / "addin-place"
    for folder in (resources, place):
        shutil.rmtree(folder, ignore_errors=True)
    scripts = resources / "Scripts/Many"
    for folder in (scripts, place):
        folder.mkdir(parents=True)
    for number in range(SCRIPTS):
        (scripts / f"{number:04} 翻訳 Translate.applescript").write_text("-- a script\n" * (number % 200 + 1), "utf-8")
    done = subprocess.run([str(ADDIN_BENCH), str(resources), str(place), str(INSTALLS)], check=True,
                          stdout=subprocess.PIPE, text=True)
    install, copying, removal, removing = map(float, done.stdout.split())
    for name, here, bare in (("install, cp -a", install, copying), ("removal, rm -r", removal, removing)):
        print_row(f"{SCRIPTS} scripts: {name}", here, bare, "ms", "at most 1.5x", here <= 1.5 * bare)


ROWS = ("start", "memory", "edit", "scan", "picker", "addin", "bus", "register", "hang")


def main(arguments):
    wanted = set(arguments) or set(ROWS)
    if wanted - set(ROWS):
        raise SystemExit("usage: script/bench " + " ".join(f"[{row}]" for row in ROWS))
    WORK.mkdir(parents=True, exist_ok=True)
    if wanted & {"start", "memory"}:
        start_rows(wanted)
    if "edit" in wanted:
        edit_rows()
        keeping_row()
        secure_edit_row()
    if "scan" in wanted:
        scan_rows()
    if "picker" in wanted:
        picker_rows()
    if "addin" in wanted:
        addin_rows()
    if "bus" in wanted:
        root = fresh_root("root")
        bus_rows(MANAGER, REQUEST_BENCH, root, home_of(root), WORK / "floor", CALLS, print_row)
    if "register" in wanted:
        server_rows()
    if "hang" in wanted:
        root = fresh_root("root")
        hang_row(HANG_BENCH, root, home_of(root), offscreen())


if __name__ == "__main__":
    main(sys.argv[1:])
