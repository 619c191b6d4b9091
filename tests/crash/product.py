# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""A private copy of the sample product with one user's home, and the program that works on it."""

import pathlib
import plistlib
import subprocess

import system_calls

TOP = pathlib.Path(__file__).resolve().parent.parent.parent
HOME = "Users/me"
PREFERENCES = f"{HOME}/Library/Preferences"
STYLES = f"{PREFERENCES}/Wordhaven/TarvoStyle2009.plist"
SETTINGS = f"{PREFERENCES}/com.wordhaven.TarvoManager.plist"
LOCK = f"{PREFERENCES}/com.wordhaven.TarvoManager.lock"
SUPPORT = f"{HOME}/Library/Application Support/Wordhaven"
EARLIER = f"{SUPPORT}/Tarvo Styles"
LOCAL_ENGINE = f"{SUPPORT}/TarvoEngine.plist"
SCRIPT = ["run", "-"]
START_AND_QUIT = ("start", "quit")


def install(folder):
    subprocess.run([TOP / "sample/install", folder], check=True, stdout=subprocess.DEVNULL)
    [home] = pathlib.Path(folder, "Users").iterdir()
    home.rename(pathlib.Path(folder, HOME))


class Product:
    """One scratch folder: the product lies at its root."""

    def __init__(self, tool, folder):
        self.tool, self.folder, self.trace = tool, str(folder), str(folder) + ".trace"

    def command(self, words):
        return [self.tool, "--root", self.folder, "--home", f"{self.folder}/{HOME}", "--language", "en", *words]

    def filled_in(self, words):
        """The words with the places that only this run knows."""
        places = {"{root}": self.folder, "{home}": f"{self.folder}/{HOME}", "{tests}": str(TOP / "tests")}
        if "{earlier}" in words:
            places["{earlier}"] = self.run(["history"]).out.split()[0]
        for place, path in places.items():
            words = [word.replace(place, path) for word in words]
        return words

    def run(self, words, lines=(), through=system_calls.run):
        """The words are a verb, or those that run the lines of a script."""
        text = "".join(line + "\n" for line in self.filled_in(list(lines)))
        return through(self.command(self.filled_in(words)), text)

    def record(self, words, lines):
        return self.run(words, lines, lambda command, text: system_calls.record(command, self.trace, text))

    def run_failing(self, words, lines, failing):
        call, error = failing
        return self.run(words, lines, lambda command, text: system_calls.run_failing(command, self.trace, call.name, call.number, error, text))

    def start(self):
        return self.run(SCRIPT, START_AND_QUIT)

    def pull(self):
        """What the end of a start does with the engine of this machine; scripts have an engine of their own."""
        return self.run(["engine", "pull"])


def property_list(node):
    """The value of a file; None where there is none, or it is no property list."""
    if node is None or node.kind != "file":
        return None
    try:
        return plistlib.loads(node.data)
    except Exception:  # plistlib raises whatever its parser and its readers raise
        return None
