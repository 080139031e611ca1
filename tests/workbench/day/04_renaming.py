#!/usr/bin/env python3
"""A point is renamed everywhere as one step, after a list of places with ticks; adding,
removing and changing points can be undone likewise."""

import json

from day import PROGRAM, expect, expect_soon, expect_true
from stage import run, scene

RENAMED = PROGRAM.replace("SupplyTemp", "AirTemp")


def rename(day, former, name):
    table = day.go_to_table("Inputs")
    day.select_row(table, former)
    day.reader.heard()
    day.bench.keys("F2")
    day.reader.wait_for_focus("text")
    day.bench.keys("ctrl+a")
    day.bench.type(name)
    day.bench.keys("Return")
    return table


def saved(project):
    """Both files, the project's as it is meant."""
    return json.loads(project.read_text()), project.with_suffix(".prog").read_text()


def named_in(tables):
    return (tables["inputs"][0]["name"], tables["controllers"][0]["input"],
            tables["logs"][0]["data"], tables["networkOutputs"][0]["dataSource"])


@scene
def it_is_renamed_everywhere(day):
    project = day.start_with()
    files = project.read_bytes(), project.with_suffix(".prog").read_bytes()
    table = rename(day, "SupplyTemp", "AirTemp")
    dialog = day.wait_for_dialog("Rename")
    places = dialog.find_all("tree item")
    boxes = [place for place in places if "checked" in place.states]
    expect(len(boxes), 4, "places with a tick")
    day.press(dialog, "Rename")
    day.wait_until_changed()
    day.cell(table, "AirTemp")
    day.save()
    tables, program = saved(project)
    expect(named_in(tables), ("AirTemp",) * 4, "the name in the tables")
    expect(program, RENAMED, "the program")
    day.bench.keys("ctrl+z")
    day.wait_until_changed()
    day.save()
    expect((project.read_bytes(), project.with_suffix(".prog").read_bytes()), files,
           "the files, to the byte, after one step of undo")
    day.bench.keys("ctrl+y")
    day.wait_until_changed()
    day.save()
    expect(named_in(saved(project)[0]), ("AirTemp",) * 4, "the name once more")
    expect(saved(project)[1], RENAMED, "the program once more")


@scene
def a_place_without_a_tick_is_left_alone(day):
    project = day.start_with()
    rename(day, "SupplyTemp", "AirTemp")
    dialog = day.wait_for_dialog("Rename")
    place = next(item for item in dialog.find_all("tree item") if "Logs" in item.name)
    left, top, _, height = place.rectangle
    day.bench.click((left + 10, top + height // 2))
    expect_soon(lambda: "checked" in place.states, False, "a tick")
    day.press(dialog, "Rename")
    day.wait_until_changed()
    day.save()
    tables, program = saved(project)
    expect(named_in(tables), ("AirTemp", "AirTemp", "SupplyTemp", "AirTemp"), "the names")
    expect(program, RENAMED, "the program")


@scene
def who_gives_up_has_changed_nothing(day):
    project = day.start_with()
    before = project.read_bytes()
    table = rename(day, "SupplyTemp", "AirTemp")
    day.press(day.wait_for_dialog("Rename"), "Cancel")
    day.cell(table, "SupplyTemp")
    day.save()
    expect(project.read_bytes(), before, "the project's file")


@scene
def points_come_and_go(day):
    project = day.start_with()
    before = saved(project)
    table = day.go_to_table("Inputs")
    day.choose("Points", "Add Point…")
    dialog = day.wait_for_dialog("Add Point")
    for asked in ("Name:", "Table:"):
        expect_true(asked in dialog.texts(), f"{asked} is asked: {dialog.texts()}")
    day.bench.type("NewTemp")
    day.bench.keys("Return")
    day.wait_until_changed()
    day.cell(table, "NewTemp")
    day.select_row(table, "ReturnTemp")
    day.choose("Points", "Remove Point")
    day.save()
    names = [point["name"] for point in saved(project)[0]["inputs"]]
    expect(names, ["SupplyTemp", "NewTemp"], "the inputs")
    day.bench.keys("ctrl+z", "ctrl+z")
    day.cell(table, "ReturnTemp")
    day.save()
    expect(saved(project), before, "the files after two steps of undo")


@scene
def who_removes_what_is_named_is_told_where(day):
    day.start_with()
    table = day.go_to_table("Inputs")
    day.select_row(table, "SupplyTemp")
    day.choose("Points", "Remove Point")
    dialog = day.wait_for_dialog("Remove Point")
    texts = dialog.texts()
    for place in ("Program, line 1", "Controllers 1", "Logs 1", "Network Var Outputs 1"):
        expect_true(place in texts, f"{place} is among the places: {texts}")
    day.bench.keys("Escape")
    day.cell(table, "SupplyTemp")


@scene
def a_cell_is_changed(day):
    project = day.start_with()
    before = project.read_bytes()
    table = day.go_to_table("Inputs")
    day.choose("Points", "Edit Cells")
    day.bench.click(day.cell(table, "Supply air").centre)
    day.reader.heard()
    day.bench.keys("F2")
    day.reader.wait_for_focus("text")
    day.bench.keys("ctrl+a")
    day.bench.type("Behind the fan")
    day.bench.keys("Return")
    day.wait_until_changed()
    day.save()
    expect(saved(project)[0]["inputs"][0]["description"], "Behind the fan", "the description")
    day.bench.keys("ctrl+z")
    day.wait_until_changed()
    day.save()
    expect(project.read_bytes(), before, "the file after undo")


if __name__ == "__main__":
    run()
