#!/usr/bin/env python3
"""kill -9, a full disk, a vanished folder, a file changed outside and two workbenches on
one project lose nothing that was typed."""

import random
import resource
import time

from day import PROGRAM, expect, expect_soon, expect_true
from stage import run, scene
from x_display import wait_until

TYPED = "REM typed last\n"


def recovery_of(project):
    return project.with_name("plant.json.recovery.txt")


def type_and_wait_until_kept(day, project):
    """Not later than five seconds after the last key."""
    day.bench.keys("ctrl+Home")
    day.bench.type(TYPED)
    day.expect_code(TYPED + PROGRAM)
    wait_until(lambda: recovery_of(project).exists()
               and TYPED.strip() in recovery_of(project).read_text(), "kept", 5)


def killed_while_working(day):
    project = day.start_with()
    type_and_wait_until_kept(day, project)
    day.bench.kill()
    expect(project.with_suffix(".prog").read_text(), PROGRAM, "the file")
    return project


def start_again(day, project):
    day.start(project, title="Recover Unsaved Work — Workbench")
    return day.wait_for_dialog("Recover Unsaved Work")


@scene
def killed_it_comes_back(day):
    project = killed_while_working(day)
    dialog = start_again(day, project)
    shown = " ".join(element.name for element in dialog.walk())
    expect_true(TYPED.strip() in shown, f"the comparison shows what was typed: {shown}")
    day.press(dialog, "Restore")
    day.wait_until_changed()
    day.expect_code(TYPED + PROGRAM)
    day.save()
    expect(project.with_suffix(".prog").read_text(), TYPED + PROGRAM, "the file")
    expect(project.with_name("plant.prog~").read_text(), PROGRAM, "the version before")
    wait_until(lambda: not recovery_of(project).exists(), "the recovery file is gone")


@scene
def killed_at_any_moment_nothing_older_than_five_seconds_is_lost(day):
    project = day.start_with("")
    typed = []
    end = time.monotonic() + random.uniform(5.5, 9)
    while time.monotonic() < end:
        line = f"REM {len(typed) + 1}"
        day.bench.type(line + "\n")
        typed.append((time.monotonic(), line))
        if len(typed) % 20 == 0:
            day.bench.keys("ctrl+s")
    day.bench.kill()
    due = [line for when, line in typed if when < time.monotonic() - 5]
    expect_true(due, "something was typed in time")
    day.start(project, title=None)
    day.bench.wait_for_title_with("Workbench")
    if day.find_dialog("Recover Unsaved Work"):
        day.press(day.wait_for_dialog("Recover Unsaved Work"), "Restore")
        day.wait_for_no_dialog("Recover Unsaved Work")
    expect(day.code.text.splitlines()[:len(due)], due, "what was typed five seconds before")


@scene
def it_may_wait_or_be_discarded(day):
    project = killed_while_working(day)
    day.press(start_again(day, project), "Decide Later")
    day.wait_until_saved()
    day.expect_code(PROGRAM)
    day.bench.quit()
    day.press(start_again(day, project), "Discard")
    day.wait_until_saved()
    wait_until(lambda: not recovery_of(project).exists(), "the recovery file is gone")
    day.bench.quit()
    day.start(project)
    day.expect_code(PROGRAM)


@scene
def a_full_disk(day):
    project = day.start_with()
    day.bench.type(TYPED)
    day.wait_until_changed()
    limits = resource.prlimit(day.bench.process.pid, resource.RLIMIT_FSIZE)
    resource.prlimit(day.bench.process.pid, resource.RLIMIT_FSIZE, (1, limits[1]))
    day.bench.keys("ctrl+s")
    dialog = day.wait_for_dialog("Save")
    expect_true("Nothing is lost" in dialog.texts(), dialog.texts())
    dialog.wait_for("push button", "Save Elsewhere…")
    expect(project.with_suffix(".prog").read_text(), PROGRAM, "the file")
    resource.prlimit(day.bench.process.pid, resource.RLIMIT_FSIZE, limits)
    day.press(dialog, "Retry")
    day.wait_until_saved()
    expect(project.with_suffix(".prog").read_text(), TYPED + PROGRAM, "the file, with room")


@scene
def a_folder_that_vanished(day):
    project = day.start_with()
    day.bench.type(TYPED)
    day.wait_until_changed()
    project.parent.rename(day.folder / "elsewhere")
    day.bench.keys("ctrl+s")
    dialog = day.wait_for_dialog("Save")
    expect_true("plant" in dialog.texts(), dialog.texts())
    day.press(dialog, "Save Elsewhere…")
    place = day.folder / "other.json"
    day.answer_with_file("Save Elsewhere", place)
    day.wait_until_saved()
    programs = [file for file in day.folder.glob("*.prog")]
    expect([file.read_text() for file in programs], [TYPED + PROGRAM], "the program")
    expect_true(place.exists(), "the project is at the other place")


@scene
def a_file_that_was_changed_outside(day):
    project = day.start_with()
    program = project.with_suffix(".prog")
    day.bench.type(TYPED)
    program.write_text("REM theirs\n")
    day.bench.keys("ctrl+s")
    dialog = day.wait_for_dialog("Save")
    expect_true("plant.prog has been changed elsewhere" in dialog.texts(), dialog.texts())
    day.press(dialog, "No")
    day.wait_until_changed()
    expect(program.read_text(), "REM theirs\n", "the file")
    day.bench.keys("ctrl+s")
    day.press(day.wait_for_dialog("Save"), "Yes")
    day.wait_until_saved()
    expect(program.read_text(), TYPED + PROGRAM, "the file")
    expect(program.with_name("plant.prog~").read_text(), "REM theirs\n", "the version before")


@scene
def two_workbenches_on_one_project(day):
    project = day.start_with()
    first = day.bench
    day.bench.type(TYPED)
    day.wait_until_changed()
    wait_until(lambda: recovery_of(project).exists(), "kept", 5)
    day.start(project)
    told = "Another workbench has this project open, too."
    expect_soon(lambda: told in day.message(), True, "who comes second is told")
    day.bench.kill()
    first.kill()
    dialog = start_again(day, project)
    day.press(dialog, "Restore")
    day.wait_until_changed()
    day.expect_code(TYPED + PROGRAM)


if __name__ == "__main__":
    run()
