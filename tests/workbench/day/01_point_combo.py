#!/usr/bin/env python3
"""Looking into the point combo inserts nothing; a choice does, by a step that can be undone."""

from day import PROGRAM, expect, expect_true
from stage import run, scene


def combo_of(day):
    return day.window.wait_for("combo box", "Points")


@scene
def the_wheel_inserts_nothing(day):
    project = day.start_with()
    day.bench.wheel_down(combo_of(day).centre, 3)
    day.bench.click(combo_of(day).centre)
    day.bench.wheel_down(combo_of(day).centre, 3)
    day.expect_untouched_code(PROGRAM)
    expect(project.with_suffix(".prog").read_text(), PROGRAM, "the file")


@scene
def down_inserts_nothing(day):
    day.start_with()
    day.bench.keys("ctrl+5", "Down", "Down", "Escape", "Down", "Up", "Escape")
    day.expect_untouched_code(PROGRAM)


@scene
def enter_inserts_and_undo_takes_it_out(day):
    project = day.start_with()
    day.bench.keys("ctrl+End", "alt+1", "Down", "Return")
    day.wait_until_changed()
    text = day.code.text
    expect_true(text in (PROGRAM + "SupplyTemp", PROGRAM + "ReturnTemp"),
                f"one name more at the end of {text!r}")
    day.save()
    expect(project.with_suffix(".prog").read_text(), text, "the file")
    day.bench.keys("ctrl+z")
    day.expect_code(PROGRAM)
    day.bench.keys("ctrl+y", "ctrl+y")  # the state before the step is one of its own
    day.expect_code(text)


@scene
def a_click_in_the_list_inserts(day):
    day.start_with()
    day.bench.keys("ctrl+End")
    combo = combo_of(day)
    left, top, width, height = combo.rectangle
    day.bench.click((left + width - 10, top + height // 2))
    day.bench.click(combo.wait_for("list item", "ReturnTemp").centre)
    day.wait_until_changed()
    day.expect_code(PROGRAM + "ReturnTemp")
    day.bench.keys("ctrl+z")
    day.expect_code(PROGRAM)


if __name__ == "__main__":
    run()
