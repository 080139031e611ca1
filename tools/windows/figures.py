#!/usr/bin/env python3
"""What the tests came to, from what they said; fails where something is left out that is
not there.

    ctest -N | figures.py FOLDER LEFT_OUT

FOLDER holds the logs that tests/support/run_test.py writes, LEFT_OUT names what was not
to run."""

import pathlib
import re
import sys

GTEST = re.compile(r"^\[==========\] (\d+) tests? from .* ran", re.MULTILINE)
GTEST_PASSED = re.compile(r"^\[  PASSED  \] (\d+) test", re.MULTILINE)
QTEST = re.compile(r"^Totals: (\d+) passed, (\d+) failed, (\d+) skipped", re.MULTILINE)


def functions(text):
    """How many a log tells of: run, and passed."""
    run = sum(int(number) for number in GTEST.findall(text))
    passed = sum(int(number) for number in GTEST_PASSED.findall(text))
    for good, bad, skipped in QTEST.findall(text):
        run += int(good) + int(bad) + int(skipped)
        passed += int(good)
    return run, passed


def unknown(left_out, tests_folder, tests):
    """What is neither a file nor a test, or a function of one."""
    return [name for name in left_out
            if not (tests_folder / name).exists() and name.split(".")[0] not in tests]


def main():
    tests = re.findall(r"Test +#\d+: (\S+)", sys.stdin.read())
    logs = [path.read_text(errors="replace") for path in pathlib.Path(sys.argv[1]).glob("*.log")]
    good = sum(log.endswith("\nPASSED\n") for log in logs)
    run = passed = 0
    for log in logs:
        counts = functions(log)
        run += counts[0]
        passed += counts[1]
    file = pathlib.Path(sys.argv[2])
    lines = file.read_text().splitlines()
    left_out = [line for line in lines if line and not line.startswith("#")]
    print(f"{len(logs)} tests ran, {good} passed; of their {run} functions {passed} passed.")
    print(f"{len(left_out)} files, tests or functions are left out:")
    for line in left_out:
        print(f"    {line}")
    missing = unknown([line.split()[0] for line in left_out], file.parent, tests)
    for name in missing:
        print(f"{name} is left out, and is not there")
    return bool(missing)


if __name__ == "__main__":
    sys.exit(main())
