#!/usr/bin/env python3
"""Runs a test in an environment that is the same on every machine, and fails when the
test skips anything that tests/skips.txt does not name.

    run_test.py --name NAME --folder FOLDER [--display] [--set NAME=VALUE]...
                [--left-out FILE] -- COMMAND...

FOLDER, emptied, becomes the home folder; FOLDER.log keeps what the test said. With
--display the test gets a virtual display. What the file of names says is left out: the
test, or functions of it."""

import argparse
import fnmatch
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

SKIPS = pathlib.Path(__file__).parent.parent / "skips.txt"
SKIPPED = 77  # what the tests that are scripts end with
KEPT = ("PATH", "TMPDIR", "ORVT_TEST_SEED", "ORVT_TEST_STEPS")
QTEST_SKIP = re.compile(r"^SKIP   : (\S+?)\((.*?)\)", re.MULTILINE)
GTEST_SKIP = re.compile(r"^\[  SKIPPED \] (\S+\.[^\s,]+)(?:, where| \()", re.MULTILINE)


def environment(folder, settings):
    """Nothing of the caller's that a test could feel, and no memory of earlier runs."""
    shutil.rmtree(folder, ignore_errors=True)
    runtime = folder / "runtime"
    runtime.mkdir(mode=0o700, parents=True)
    values = {name: os.environ[name] for name in KEPT if name in os.environ}
    values.update(
        HOME=str(folder), XDG_RUNTIME_DIR=str(runtime), LC_ALL="C.UTF-8", TZ="UTC",
        QT_QPA_PLATFORM="offscreen",
        # Project trees save. This holds nothing and takes nothing.
        ORVT_SETTINGS_FILE="/dev/null/none",
        # Else tests of the toolkit's kind tell Windows' debugger alone how they went.
        QT_FORCE_STDERR_LOGGING="1",
        ASAN_OPTIONS="detect_leaks=0", UBSAN_OPTIONS="print_stacktrace=1")
    values.update(setting.split("=", 1) for setting in settings)
    return values


def outcome(command, values, timeout=None):
    """How it ends, and what it says: to a file, for what an emulator leaves running would
    keep a pipe open."""
    with tempfile.TemporaryFile() as told:
        result = subprocess.run(command, env=values, check=False, timeout=timeout,
                                stdin=subprocess.DEVNULL, stdout=told,
                                stderr=subprocess.STDOUT)
        told.seek(0)
        return result.returncode, told.read()


def with_display(command):
    # Of a size that windows fit in at any scale.
    return ["xvfb-run", "--auto-servernum", "--server-args=-screen 0 2560x1600x24", *command]


def skips(name, status, output):
    """What was skipped: a test, a function of it, or function(row)."""
    found = {name} if status == SKIPPED else set()
    for function, row in QTEST_SKIP.findall(output):
        found.add(function.replace("::", ".") + (f"({row})" if row else ""))
    return found | set(GTEST_SKIP.findall(output))


def unexplained_skips(name, status, output):
    return {skip for skip in skips(name, status, output)
            if not any(fnmatch.fnmatchcase(skip, pattern) for pattern in names_in(SKIPS))}


def names_in(file):
    lines = file.read_text().splitlines()
    return [line.split()[0] for line in lines if line and not line.startswith("#")]


def functions_of(command, values):
    """Those of a test of the toolkit's kind, which cannot be told what to leave out."""
    told = subprocess.run([*command, "-functions"], env=values, check=True,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE)
    return re.findall(r"^(\w+)\(\)", told.stdout.decode(), re.MULTILINE)


def without(left_out, name, command, values):
    """The command, telling the program which of the test's functions are not to run."""
    names = [entry for entry in left_out if entry.startswith(f"{name}.")]
    if not names:
        return command
    if command[-1].startswith("--gtest_filter="):
        return [*command[:-1], f"{command[-1]}-{':'.join(names)}"]
    unwanted = [entry.split(".")[1] for entry in names]
    wanted = [one for one in functions_of(command, values) if one not in unwanted]
    return [*command, *wanted]


def ends_well(command, values):
    """Whether what is left out passes by itself, without being skipped."""
    try:
        status, told = outcome(command, values, timeout=60)
    except subprocess.TimeoutExpired:
        return False
    return status == 0 and not skips("", 0, told.decode(errors="replace"))


def alone(entry, command):
    """The command, with that function of the test alone."""
    if command[-1].startswith("--gtest_filter="):
        return [*command[:-1], f"--gtest_filter={entry}"]
    return [*command, entry.split(".")[1]]


def wrongly_left_out(left_out, name, command, values):
    """The functions that need not be left out: they pass, or are not there (a program of
    core tests that runs none of its functions passes, too)."""
    names = [entry for entry in left_out if entry.startswith(f"{name}.")]
    known = names
    if names and not command[-1].startswith("--gtest_filter="):
        known = [f"{name}.{function}" for function in functions_of(command, values)]
    return [entry for entry in names
            if entry not in known or ends_well(alone(entry, command), values)]


def arguments_given():
    parser = argparse.ArgumentParser()
    parser.add_argument("--name", required=True)
    parser.add_argument("--folder", type=pathlib.Path, required=True)
    parser.add_argument("--display", action="store_true")
    parser.add_argument("--set", action="append", default=[])
    parser.add_argument("--left-out", type=pathlib.Path)
    parser.add_argument("command", nargs="+")
    return parser.parse_args()


def main():
    arguments = arguments_given()
    settings = (["QT_QPA_PLATFORM=xcb"] if arguments.display else []) + arguments.set
    values = environment(arguments.folder, settings)
    left_out = names_in(arguments.left_out) if arguments.left_out else []
    if arguments.name in left_out:
        unneeded = ends_well(arguments.command, values)
        print(f"{arguments.name} need not be left out" if unneeded else "Left out")
        sys.exit(1 if unneeded else SKIPPED)
    command = without(left_out, arguments.name, arguments.command, values)
    if arguments.display:
        command = with_display(command)
    status, told = outcome(command, values)
    sys.stdout.buffer.write(told)
    output = told.decode(errors="replace")
    unexplained = unexplained_skips(arguments.name, status, output)
    for name in sorted(unexplained):
        print(f"{name} was skipped, and tests/skips.txt does not say why it may be")
    unneeded = wrongly_left_out(left_out, arguments.name, arguments.command, values)
    for name in unneeded:
        print(f"{name} need not be left out")
    if status < 0:
        print(f"Ended by signal {-status}")
    failed = bool(unexplained or unneeded) or status not in (0, SKIPPED)
    log = arguments.folder.parent / f"{arguments.folder.name}.log"
    log.write_text(output + ("\nFAILED\n" if failed else "\nPASSED\n"))
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()
