"""Plays the scenes of a test: each has a display, a session bus, a home and a folder of its
own, and ends with a workbench that lives or has ended as it was told to."""

import argparse
import os
import sys
import tempfile
import time

from day import Day, expect_true
from screen_reader import ScreenReader, missing_screen_reader
from x_display import Display, Failed, missing_tools

SKIPPED = 77
SCENES = []


def scene(function):
    SCENES.append(function)
    return function


def run():
    parser = argparse.ArgumentParser()
    for name in ("--workbench", "--sample", "--pictures"):
        parser.add_argument(name, required=True)
    parser.add_argument("--only", help="a scene")
    arguments = parser.parse_args()
    missing = missing_tools() + missing_screen_reader()
    if missing:
        print("Skipped, for this is not installed: " + ", ".join(missing))
        sys.exit(SKIPPED)
    for act in SCENES:
        if arguments.only in (None, act.__name__):
            _play(act, arguments)


def _play(act, arguments):
    started = time.monotonic()
    with Display(1300, 950) as display, tempfile.TemporaryDirectory(prefix="day") as folder:
        reader = ScreenReader(display)
        day = Day(arguments, display, reader, folder)
        try:
            act(day)
            if day.bench:
                expect_true(day.bench.process.poll() in (None, 0, -9), "the workbench is sound")
        except Failed as failure:
            os.makedirs(arguments.pictures, exist_ok=True)
            picture = os.path.join(arguments.pictures, act.__name__ + ".png")
            display.write_picture(picture)
            print(f"{act.__name__}: {failure}\nThe screen then: {picture}", file=sys.stderr)
            sys.exit(1)
    print(f"{act.__name__}: passed in {time.monotonic() - started:.1f} s")
