# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""The rows about other programs: calls on the session bus and second starts, on a bus of their own."""

import contextlib
import os
import statistics
import subprocess
import time

NAME = "com.wordhaven.TarvoManager"
OBJECT = "/com/wordhaven/TarvoManager"
CODES = ("tQB8", "tTX8")
SETTLE_SECONDS = 0.1  # a request has been carried out, so that it does not slow the next call


@contextlib.contextmanager
def session_bus():
    """A session bus in the environment of the programs started meanwhile."""
    bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address"],
                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    try:
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        yield
    finally:
        del os.environ["DBUS_SESSION_BUS_ADDRESS"]
        bus.terminate()
        bus.wait()
        bus.stdout.close()


def offscreen():
    platform = "xcb" if os.environ.get("DISPLAY") else "offscreen"
    # Off-screen windows say at each request that they cannot be raised.
    return os.environ | {"QT_QPA_PLATFORM": platform, "QT_LOGGING_RULES": "default.warning=false"}


def call(destination, path, method, *arguments):
    """How long a gdbus call takes, in milliseconds."""
    begin = time.monotonic()
    subprocess.run(["gdbus", "call", "--session", "--dest", destination, "--object-path", path, "--method", method,
                    *arguments], check=True, stdout=subprocess.DEVNULL)
    return (time.monotonic() - begin) * 1000


def open_tool(code):
    return call(NAME, OBJECT, "org.freedesktop.Application.ActivateAction", "open-tool", f"[<'{code}'>]", "{}")


def ping():
    return call("org.freedesktop.DBus", "/", "org.freedesktop.DBus.Peer.Ping")


@contextlib.contextmanager
def manager(command):
    process = subprocess.Popen(command, env=offscreen(), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        subprocess.run(["gdbus", "wait", "--session", "--timeout", "30", NAME], check=True)
        time.sleep(1)
        yield
    finally:
        process.kill()
        process.wait()


def second_start(command, code):
    begin = time.monotonic()
    subprocess.run([*command, "--open", code], env=offscreen(), check=True)
    return (time.monotonic() - begin) * 1000


def bus_rows(program, bench, root, home, floor, count, print_row):
    command = [str(program), "--root", str(root), "--home", str(home), "--engine", "none"]
    with session_bus():
        with manager(command):
            calls, pings, starts = [], [], []
            for number in range(count):
                code = CODES[number % 2]
                for times, measured in ((calls, lambda: open_tool(code)), (pings, ping),
                                        (starts, lambda: second_start(command, code))):
                    times.append(measured())
                    time.sleep(SETTLE_SECONDS)
        here, bare, start = (statistics.median(times) for times in (calls, pings, starts))
        print_row("call on the bus", here, bare, "ms", "at most 2 ms over", here - bare <= 2)
        print_row("second start", start, bare, "ms", "at most 300 ms", max(starts) <= 300)
        done = subprocess.run([str(word) for word in (bench, root, home, floor, count)], check=True,
                              stdout=subprocess.PIPE, text=True, env=offscreen())
    here, bare, files = done.stdout.split()
    print_row(f"request until shown, {files} files", float(here), float(bare), "ms", "at most 1.5x",
              float(here) <= 1.5 * float(bare))
