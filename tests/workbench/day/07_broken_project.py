#!/usr/bin/env python3
"""A broken or missing project leaves the window open, with the reason and what can be done."""

from day import PROGRAM, expect, expect_soon, expect_true
from stage import run, scene


def texts(day):
    return day.window.texts()


def expect_reason(day, reason):
    expect_soon(lambda: "The project cannot be opened" in texts(day), True, "the page of the fault")
    expect_true(reason in texts(day), f"\"{reason}\" stands in {texts(day)}")


@scene
def a_broken_project_tells_where(day):
    project = day.write_project()
    project.write_text(project.read_text().replace("19.4", "true"))
    broken = project.read_bytes()
    day.start(project, title="Workbench")
    expect_reason(day, "inputs #1, value: a number or a text is expected")
    expect(project.read_bytes(), broken, "the file is as it was")
    project.write_bytes(broken.replace(b"true", b"19.4"))
    day.press(day.window, "Try Again")
    day.wait_until_saved()
    day.expect_code(PROGRAM)


@scene
def a_missing_project_and_another_one(day):
    project = day.write_project()
    day.start(project.with_name("missing.json"), title="Workbench")
    expect_reason(day, "missing.json")
    day.press(day.window, "Open Another…")
    day.answer_with_file("Open Project", project)
    day.wait_until_saved()
    day.expect_code(PROGRAM)


@scene
def the_version_before(day):
    project = day.write_project()
    project.with_name("plant.json~").write_bytes(project.read_bytes())
    project.write_text("{")
    day.start(project, title="Workbench")
    expect_reason(day, "plant.json")
    day.press(day.window, "Open the Version Before")
    day.wait_until_changed()
    day.expect_code(PROGRAM)
    expect(project.read_text(), "{", "the broken file, until it is saved")


@scene
def a_program_that_is_missing(day):
    project = day.write_project()
    project.with_suffix(".prog").unlink()
    day.start(project, title="Workbench")
    expect_reason(day, "plant.prog")
    day.bench.quit()


if __name__ == "__main__":
    run()
