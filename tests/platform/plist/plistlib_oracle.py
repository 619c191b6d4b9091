#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""Python's plistlib as an independent reader and writer of property lists.

  reemit IN OUT        reads each list of IN and writes it in XML and in binary
  generate COUNT OUT   writes COUNT generated values, each in XML and in binary
  compare COUNT IN     reads COUNT pairs of lists and compares them with what generate wrote
  dates IN OUT         tells of each text of IN, with "1" or "0", whether a list with that date can be read

Files hold records: eight bytes of length, big-endian, then the bytes. An empty record stands for a value that a form
cannot hold or a list that could not be read. Exit status 1: something differs, and is printed.
"""
import datetime
import plistlib
import random
import struct
import sys

SEED = 2009
DEEPEST = 512
ALPHABET = "ab <>&\"'\t\n]\\/;\u00e9\u0085\u2028\u3000\u3042\u8f9e\u66f8\uff71\ufeff\ufffd\U0001f600\U0010fffd"
BINARY_ONLY = "\0\x01\x08\x0b\x1f\ufffe\uffff\r"


def read_records(path):
    with open(path, "rb") as file:
        while header := file.read(8):
            yield file.read(struct.unpack(">Q", header)[0])


def write_records(path, records):
    with open(path, "wb") as file:
        for record in records:
            file.write(struct.pack(">Q", len(record)) + record)


class Generator:
    """One value; odd ones hold what only the binary form can."""

    def __init__(self, index):
        self.random = random.Random(SEED * 1_000_003 + index)
        self.binary_only = index % 2 == 1
        # plistlib writes equal scalars once, and takes 0.0 and -0.0 for equal: a value holds only one of the two.
        self.zero = -0.0 if index % 4 < 2 else 0.0

    def root(self):
        return self.value(1) if self.random.random() < 0.1 else self.dictionary(1)

    def value(self, depth):
        kinds = [self.boolean, self.integer, self.real, self.date, self.data, self.text]
        if self.binary_only:
            kinds.append(self.uid)
        if depth < 6:
            kinds += [self.array, self.dictionary] * 3
        choose = self.random.choice(kinds)
        return choose(depth) if choose in (self.array, self.dictionary) else choose()

    def boolean(self):
        return self.random.random() < 0.5

    def integer(self):
        bits = self.random.randrange(65)
        number = self.random.choice([self.random.getrandbits(bits) if bits else 0, (1 << bits) - 1, (1 << bits) >> 1])
        return -number if self.random.random() < 0.4 and number <= 1 << 63 else number

    def real(self):
        return self.random.choice([
            struct.unpack(">d", self.random.randbytes(8))[0], self.random.uniform(-10, 10), self.zero, 5e-324, 1e22,
            1.7976931348623157e308, float("inf"), float("-inf"), float("nan"), float(self.random.getrandbits(60))])

    def date(self):
        moment = datetime.datetime(1, 1, 1) + datetime.timedelta(
            seconds=self.random.randrange(315537897600) if self.random.random() < 0.5
            else 62135596800 + self.random.randrange(1 << 32))
        return moment.replace(microsecond=self.random.randrange(900_000)) if self.binary_only else moment

    def data(self):
        return self.random.randbytes(self.random.choice([0, 1, 2, 3, 14, 15, 16, 57, 58, 300]))

    def text(self, also=True):
        letters = ALPHABET + (BINARY_ONLY if self.binary_only and also else "")
        return "".join(self.random.choices(letters, k=self.random.choice([0, 1, 2, 5, 14, 15, 16, 40])))

    def uid(self):
        return plistlib.UID(self.random.getrandbits(self.random.choice([1, 8, 16, 32, 64])))

    def array(self, depth):
        return [self.value(depth + 1) for _ in range(self.random.randrange(5))]

    def dictionary(self, depth):
        return {self.text(also=False): self.value(depth + 1) for _ in range(self.random.randrange(8))}


def generated(index):
    if index > 1:
        return Generator(index).root()
    value = True
    for _ in range(DEEPEST - 1):
        value = [value] if index == 0 else {"k": value}
    return value


def after_binary(value):
    """What XML can hold of a value that came in binary."""
    if isinstance(value, list):
        return [after_binary(item) for item in value]
    if isinstance(value, dict):
        return {key: after_binary(item) for key, item in value.items()}
    if isinstance(value, str):
        return "".join("\ufffd" if letter in BINARY_ONLY and letter != "\r" else letter for letter in value)
    if isinstance(value, datetime.datetime):
        return value.replace(microsecond=0)
    if isinstance(value, plistlib.UID):
        return {"CF$UID": value.data}
    return value


def same(a, b):
    if type(a) is not type(b):
        return False
    if isinstance(a, list):
        return len(a) == len(b) and all(map(same, a, b))
    if isinstance(a, dict):
        return a.keys() == b.keys() and all(same(a[key], b[key]) for key in a)
    if isinstance(a, float):
        return repr(a) == repr(b)
    return a == b


def reemit(source, target):
    def records():
        for record in read_records(source):
            value = plistlib.loads(record)
            yield plistlib.dumps(value)
            yield plistlib.dumps(value, fmt=plistlib.FMT_BINARY)
    write_records(target, records())
    return 0


def generate(count, target):
    def records():
        for index in range(int(count)):
            value = generated(index)
            yield b"" if index % 2 == 1 and index > 1 else plistlib.dumps(value)
            yield plistlib.dumps(value, fmt=plistlib.FMT_BINARY)
    write_records(target, records())
    return 0


def compare(count, source):
    records = read_records(source)
    different = 0
    for index in range(int(count)):
        value = generated(index)
        for form, expected in (("XML", value), ("binary", after_binary(value))):
            record = next(records)
            if form == "XML" and index % 2 == 1 and index > 1:
                continue
            if not record or not same(plistlib.loads(record), expected):
                different += 1
                print(f"value {index} from {form}: {expected!r:.1000}\nbecame: {record[:2000]!r}")
    if next(records, None) is not None:
        print("more lists than values")
        different += 1
    return 1 if different else 0


def dates(source, target):
    def records():
        for record in read_records(source):
            try:
                plistlib.loads(b"<plist><date>" + record + b"</date></plist>")
                yield b"1"
            except Exception:  # plistlib throws whatever its date parser does
                yield b"0"
    write_records(target, records())
    return 0


if __name__ == "__main__":
    sys.setrecursionlimit(10 * DEEPEST)
    sys.exit({"reemit": reemit, "generate": generate, "compare": compare, "dates": dates}[sys.argv[1]](*sys.argv[2:]))
