#!/usr/bin/env python3
"""Program and tables side by side by keys and by dragging; the arrangement is there again
after the next start; rows drag into the program as names."""

from day import PROGRAM, expect, expect_true
from screen_reader import Gone
from stage import run, scene
from x_display import wait_until


def place_of(element):
    left, top, width, height = element.rectangle
    return left, top, left + width, top + height


def stand_beside(day):
    """The table's left edge is behind the program's right one, and both are seen."""
    try:
        program = place_of(day.code)
        table = place_of(day.window.wait_for("table", "Inputs"))
    except Gone:
        return False
    return 0 <= program[0] < program[2] <= table[0]


def open_beside(day):
    day.go_to_table("Inputs")
    day.bench.keys("F11")
    wait_until(lambda: stand_beside(day), "the table beside the program")


@scene
def by_key_and_back_into_tabs(day):
    day.start_with()
    open_beside(day)
    day.bench.keys("ctrl+F11")
    wait_until(lambda: not stand_beside(day), "tabs again")


def drop_tab(day, across, down):
    """In parts of the place that the views have; gives the rectangles of both."""
    tab = day.window.wait_for("page tab", "Inputs")
    left, top, width, height = day.window.wait_for("frame", "Views").rectangle
    day.bench.drag(tab.centre, (left + int(width * across), top + int(height * down)))
    day.bench.drop()
    wait_until(lambda: not day.window.find_all("page tab"), "no tabs any more")


@scene
def by_dragging_the_tab(day):
    day.start_with()
    day.go_to_table("Inputs")
    drop_tab(day, 0.97, 0.5)
    wait_until(lambda: stand_beside(day), "the table beside the program")
    program, table = day.code.rectangle, day.window.wait_for("table", "Inputs").rectangle
    expect_true(abs(program[2] - table[2]) < table[2] // 4, "both have their room")


@scene
def by_dragging_the_tab_below(day):
    day.start_with()
    day.go_to_table("Inputs")
    drop_tab(day, 0.5, 0.95)
    table = day.window.wait_for("table", "Inputs")
    wait_until(lambda: 0 <= place_of(day.code)[3] <= place_of(table)[1], "the table below")
    expect_true(abs(day.code.rectangle[3] - table.rectangle[3]) < table.rectangle[3] // 4,
                "both have their room")


@scene
def the_next_start_has_the_arrangement(day):
    project = day.start_with()
    open_beside(day)
    day.bench.quit()
    day.start(project)
    wait_until(lambda: stand_beside(day), "the table beside the program")
    day.expect_code(PROGRAM)


@scene
def a_row_is_dragged_into_the_program(day):
    project = day.start_with()
    open_beside(day)
    row = day.window.wait_for("table", "Inputs").wait_for("cell", "ReturnTemp")
    day.bench.click(row.centre)
    left, top, width, height = day.code.rectangle
    day.bench.drag(row.centre, (left + width // 2, top + height // 2))  # below the last line
    day.bench.drop()
    day.expect_code(PROGRAM + "ReturnTemp")
    day.save()
    expect(project.with_suffix(".prog").read_text(), PROGRAM + "ReturnTemp", "the file")
    day.bench.keys("ctrl+2", "ctrl+z")
    day.expect_code(PROGRAM)


@scene
def a_drag_that_is_given_up_changes_nothing(day):
    day.start_with()
    open_beside(day)
    row = day.window.wait_for("table", "Inputs").wait_for("cell", "ReturnTemp")
    day.bench.click(row.centre)
    day.bench.drag(row.centre, day.code.centre)
    day.bench.keys("Escape")
    day.bench.drop()
    day.expect_untouched_code(PROGRAM)


@scene
def a_window_of_its_own_and_back(day):
    day.start_with()
    day.go_to_table("Inputs")
    before = len(day.bench.visible_windows())
    day.choose("Window", "Own Window")
    wait_until(lambda: len(day.bench.visible_windows()) == before + 1, "one window more")
    own = day.wait_for_dialog("Inputs")
    own.wait_for("cell", "ReturnTemp")
    day.press(own, "Put back into the window")
    wait_until(lambda: len(day.bench.visible_windows()) == before, "back in the window")
    day.window.wait_for("table", "Inputs")


if __name__ == "__main__":
    run()
