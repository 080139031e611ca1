#!/usr/bin/env python3
"""Whether the core's operations cost what they promise, whatever their input.

    bounds.py work PROBE VALGRIND     twice the input: at most 2.6 times the instructions
    bounds.py memory PROBE            at most 64 MB and 40 times the input
    bounds.py box PROBE               at most half as much again as the toolkit's document

Prints the figures of each operation and fails when one is above its bound."""

import pathlib
import re
import subprocess
import sys
import tempfile

UNITS = 5_000
MOST_WORK = 2.6
MOST_MEMORY = 40  # times the input
BIG = 2_500_000  # beyond where a table that doubles has just grown
MOST_OF_A_BOX = 1.5  # times what the toolkit's document takes for the same text
ALWAYS = 64 * 1024  # kilobytes, whatever the input
PART = re.compile(r"^desc: Trigger: Client Request: (.*)=(\d+)$", re.MULTILINE)
TOTAL = re.compile(r"^(?:totals|summary): (\d+)", re.MULTILINE)


def instructions(probe, valgrind):
    """Of each operation, by its input's size."""
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(
            [valgrind, "--tool=callgrind", "--quiet", "--instr-atstart=no",
             f"--callgrind-out-file={folder}/part", probe, "work", str(UNITS)], check=True)
        found = {}
        for part in pathlib.Path(folder).glob("part*"):
            text = part.read_text(errors="replace")
            name = PART.search(text)
            if name:
                found.setdefault(name[1], {})[int(name[2])] = int(TOTAL.search(text)[1])
    return found


def work(probe, valgrind):
    names = operations(probe)
    found = instructions(probe, valgrind)
    wrong = [f"{name} was not measured" for name in names if len(found.get(name, {})) != 2]
    for name in sorted(found, key=names.index):
        once, twice = (found[name][size] for size in sorted(found[name]))
        print(f"{name:36} {once / UNITS:10.1f} a unit, twice the input: {twice / once:5.2f} times")
        if twice > MOST_WORK * once:
            wrong.append(f"{name} takes {twice / once:.2f} times as long for twice as much")
    most = max((max(of.values()) / min(of.values()) for of in found.values()), default=0)
    print(f"Figure: {len(found)} operations, twice the input at most {most:.2f} times the work")
    return wrong


def memory(probe):
    wrong = []
    largest = 0
    for name in operations(probe):
        kilobytes, size = map(int, subprocess.run(
            [probe, "memory", str(BIG), name], check=True, capture_output=True).stdout.split())
        times = max(0, kilobytes - ALWAYS) * 1024 / size
        largest = max(largest, times)
        print(f"{name:36} {kilobytes // 1024:5} MB, 64 MB and {times:5.1f} times the input")
        if times > MOST_MEMORY:
            wrong.append(f"{name} takes {kilobytes // 1024} MB for {size} bytes")
    print(f"Figure: at most 64 MB and {largest:.1f} times the input")
    return wrong


def box(probe):
    wrong = []
    largest = 0
    for name in operations(probe):
        ours, document = (int(subprocess.run(
            [probe, whose, name], check=True, capture_output=True).stdout)
            for whose in ("ours", "document"))
        times = ours / document
        largest = max(largest, times)
        print(f"{name:36} {ours // 1024:5} MB, {times:5.2f} times a document of the toolkit")
        if times > MOST_OF_A_BOX:
            wrong.append(f"a box takes {ours // 1024} MB for {name}")
    print(f"Figure: a box takes at most {largest:.2f} times a document of the toolkit")
    return wrong


def operations(probe):
    return subprocess.run(
        [probe, "names"], check=True, capture_output=True, text=True).stdout.splitlines()


def main():
    task = {"work": work, "memory": memory, "box": box}[sys.argv[1]]
    wrong = task(*sys.argv[2:])
    for line in wrong:
        print(line)
    sys.exit(1 if wrong else 0)


if __name__ == "__main__":
    main()
