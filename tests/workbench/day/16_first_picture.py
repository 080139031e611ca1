#!/usr/bin/env python3
"""The first picture is there at once, a long program comes with progress and Cancel, and
may be typed in before it is finished."""

from day import PROGRAM, expect, expect_true
from screen_reader import Gone
from stage import run, scene
from x_display import wait_until

# So long that whoever asks slowly, as a screen reader does, still sees it come.
LONG = PROGRAM * (20_000_000 // len(PROGRAM))


def is_painted(day):
    """More than one colour in the window's middle, which a black one has not."""
    rows = day.display.colours_in(200, 200, 600, 300)
    return len({row[4 * x:4 * x + 3] for row in rows for x in range(600)}) > 3


def progress(day):
    try:
        return day.window.wait_for("status bar").find_all("progress bar", "Colouring the program")
    except Gone:
        return []


@scene
def a_long_program(day):
    project = day.start_with(LONG)
    wait_until(lambda: progress(day), "progress")
    day.press(day.window.wait_for("status bar"), "Cancel")  # at once: it ends on its own, too
    wait_until(lambda: not progress(day), "no progress any more", 3)
    expect_true(is_painted(day), "a picture of what was loaded")
    day.bench.type("REM first ")
    day.bench.keys("ctrl+End")
    day.bench.type("REM last")
    wait_until(lambda: day.code.caret == len(LONG) + len("REM first REM last"), "what was typed")
    day.save()
    expect(project.with_suffix(".prog").read_text(), "REM first " + LONG + "REM last", "the file")


@scene
def it_is_coloured_to_the_end(day):
    project = day.start_with(LONG)
    wait_until(lambda: progress(day), "progress")
    expect_true(is_painted(day), "a picture while it is loaded")
    day.bench.type("REM first ")
    wait_until(lambda: not progress(day), "all of it coloured", 150)
    wait_until(lambda: day.code.caret == len("REM first "), "what was typed meanwhile")
    day.save()
    expect(project.with_suffix(".prog").read_text(), "REM first " + LONG, "the file")


if __name__ == "__main__":
    run()
