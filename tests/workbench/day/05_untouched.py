#!/usr/bin/env python3
"""What nobody touched is saved byte for byte as it came; Tidy spaces what is asked for."""

import os

from day import expect, expect_soon
from stage import run, scene

ODD = (b"\xef\xbb\xbfREM  written  elsewhere\t\r\n"
       b"if SupplyTemp>SupplyMin\r\n"
       b"\tValve = LIMIT(Demand , 0,100)\r\n"
       b"ENDIF   \r\n"
       b"\r\n"
       b"END")


def files_of(project):
    return project.read_bytes(), project.with_suffix(".prog").read_bytes()


@scene
def opening_and_saving_changes_nothing(day):
    project = day.start_with(ODD)
    before = files_of(project)
    day.bench.keys("ctrl+s", "ctrl+End", "ctrl+Home", "ctrl+s")
    expect_soon(lambda: "Row: 1, Col: 1" in day.status(), True, "the caret is back")
    expect(files_of(project), before, "the files")
    day.bench.quit()
    expect(files_of(project), before, "the files at the end")
    left = sorted(os.listdir(project.parent))
    expect(left, ["plant.json", "plant.prog"], "the folder")


@scene
def only_the_line_that_was_typed_in_changes(day):
    project = day.start_with(ODD)
    before = files_of(project)
    day.bench.keys("ctrl+End")
    day.bench.type("x")
    day.bench.keys("BackSpace")
    day.bench.keys("Up")
    day.bench.type("REM here")
    day.wait_until_changed()
    day.save()
    expect(files_of(project), (before[0], ODD.replace(b"\r\n\r\n", b"\r\nREM here\r\n")),
           "the files")
    kept = project.with_name("plant.prog~").read_bytes()
    expect(kept, ODD, "the version before")


@scene
def undo_gives_the_file_back(day):
    project = day.start_with(ODD)
    day.bench.keys("ctrl+Home", "Down", "ctrl+Shift+k")
    day.wait_until_changed()
    day.bench.keys("ctrl+z")
    day.wait_until_saved()
    day.save()
    expect(files_of(project)[1], ODD, "the program's file")


@scene
def tidy_spaces_when_it_is_asked_to(day):
    project = day.start_with(ODD)
    day.bench.keys("ctrl+a")
    day.choose("Edit")
    day.bench.click(day.wait_for_entry("Lines").centre)
    day.bench.click(day.wait_for_entry("Tidy").centre)
    day.wait_until_changed()
    day.save()
    expect(files_of(project)[1],
           ODD.replace(b"\tValve", b"    Valve").replace(b"100)", b"100 )")
           .replace(b"ENDIF   ", b"ENDIF"), "the program's file")
    day.bench.keys("ctrl+z")
    day.wait_until_changed()
    day.save()
    expect(files_of(project)[1], ODD, "the program's file after undo")


if __name__ == "__main__":
    run()
