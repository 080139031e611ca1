#!/usr/bin/env python3
"""Everything by keyboard: panes, kinds of points, splits, results; a list of keys, About and
the first steps; commands are enabled by what is possible; the status bar tells the truth."""

from day import PROGRAM, expect, expect_soon, expect_true
from screen_reader import Gone
from stage import run, scene
from x_display import wait_until


def has_focus(element):
    try:
        return "focused" in element.states
    except Gone:
        return False


def command(day, menu, name):
    """The states of the command in its menu, which is shut again."""
    day.choose(menu)
    states = day.wait_for_entry(name).states
    day.bench.keys("Escape", "Escape")
    return states


@scene
def panes_by_their_keys(day):
    day.start_with()
    day.bench.keys("F6")
    day.go_to_table("Inputs")
    for key, role, name in (("ctrl+1", "tree", "Project"), ("ctrl+4", "tree", "Results"),
                            ("ctrl+3", "table", "Inputs"), ("ctrl+2", "text", "plant.prog")):
        day.bench.keys(key)
        wait_until(lambda r=role, n=name: has_focus(day.window.wait_for(r, n)),
                   f"the focus in {name} after {key}")
    day.bench.keys("ctrl+5")
    wait_until(lambda: has_focus(day.window.wait_for("combo box", "Points")
                                 .wait_for("text")), "the focus in the points")


@scene
def f7_walks_through_the_panes(day):
    day.start_with()
    for key in ("F7", "shift+F7"):
        day.bench.keys("ctrl+2")
        seen = []
        for _ in range(3):
            day.reader.heard()
            day.bench.keys(key)
            seen.append(wait_until(lambda: focused_name(day), f"a focus after {key}"))
        expect(len(set(seen)), 3, f"panes after {key}: {seen}")


def focused_name(day):
    for role, name in (("tree", "Project"), ("text", "plant.prog"), ("text", "")):
        for element in day.window.find_all(role, name):
            if has_focus(element):
                return f"{role} {name}"
    return None


@scene
def kinds_of_points(day):
    day.start_with()
    for number, kind in enumerate(("Inputs", "Outputs", "Variables", "Constants"), 1):
        day.bench.keys(f"alt+{number}")
        expect_soon(lambda k=kind: "checked" in day.window.wait_for("check box", k).states,
                    True, f"{kind} after Alt+{number}")


@scene
def keys_and_about(day):
    day.start_with()
    day.bench.keys("F1")
    dialog = day.wait_for_dialog("Keys")
    day.bench.type("anal")
    wait_until(lambda: [item.name for item in dialog.find_all("tree item")
                        if item.name == "Analyse"], "the keys that were looked for")
    day.bench.keys("Escape")
    day.wait_for_no_dialog("Keys")
    day.choose("Help", "About")
    expect_true("ORVTListview" in day.wait_for_dialog("About").texts(), "what it is")
    day.bench.keys("Escape")
    day.wait_for_no_dialog("About")
    wait_until(lambda: has_focus(day.code), "the focus in the program again")


@scene
def the_first_start_shows_the_first_steps(day):
    day.start(title=None)
    day.bench.wait_for_title_with("Workbench")
    day.press(day.window, "Look at the Sample")
    day.wait_until_saved("Air handling unit 1")
    day.bench.quit()
    day.start(title="Air handling unit 1 — Workbench")
    day.choose("Help", "First Steps")
    day.press(day.window, "Begin")
    wait_until(lambda: day.window.find_all("tree", "Project"), "the project again")


@scene
def commands_are_enabled_by_what_is_possible(day):
    day.start_with()
    expect_true("enabled" not in command(day, "Edit", "Undo"), "nothing to undo")
    expect_true("enabled" not in command(day, "Edit", "Cut"), "nothing to cut")
    day.bench.type("x y")
    day.bench.keys("shift+Home")
    expect_true("enabled" in command(day, "Edit", "Undo"), "something to undo")
    expect_true("enabled" in command(day, "Edit", "Cut"), "something to cut")
    expect_true("enabled" not in command(day, "Points", "Rename"), "no point to rename")
    day.go_to_table("Inputs")
    expect_true("enabled" in command(day, "Points", "Read Values"), "values to read")
    day.go_to_table("Input Parameters")
    expect_true("enabled" not in command(day, "Points", "Read Values"), "no values to read")


@scene
def the_status_bar_tells_the_truth(day):
    day.start_with()
    day.bench.keys("ctrl+Home", "Down", "End")
    column = len(PROGRAM.splitlines()[1]) + 1
    expect_soon(lambda: f"Row: 2, Col: {column}" in day.status(), True, "the position")
    day.bench.keys("ctrl+f")
    wait_until(lambda: day.bench.active_title() != "Plant — Workbench", "the dialog for finding")
    day.bench.type("ENDIF")
    day.bench.keys("Return")
    expect_soon(lambda: any(text.startswith("Row: 3,") for text in day.status()), True,
                "the position while finding")
    day.bench.keys("Escape")
    day.go_to_table("Inputs")
    expect_soon(lambda: any("Row" in text for text in day.status()), False,
                "a position beside a table")


if __name__ == "__main__":
    run()
