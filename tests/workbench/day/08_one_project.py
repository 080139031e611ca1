#!/usr/bin/env python3
"""One project with one history: New, Open, Recent, Save, Save As, Close, several programs,
and a file whose form has a number."""

import json

from day import PROGRAM, expect, expect_soon
from stage import run, scene


@scene
def a_new_project(day):
    day.start_with()
    day.choose("File", "New Project…")
    dialog = day.wait_for_dialog("New Project")
    day.bench.type("Boiler")
    fields = dialog.find_all("text")
    day.bench.click(fields[-1].centre)
    day.bench.keys("ctrl+a")
    day.bench.type(str(day.folder))
    day.press(dialog, "Create")
    day.wait_until_saved("Boiler")
    day.bench.type("REM new")
    day.save("Boiler")
    project = next(day.folder.glob("**/Boiler.orvt.json"))
    expect(json.loads(project.read_text())["name"], "Boiler", "the name in the file")
    expect(next(day.folder.glob("**/Boiler.prog")).read_text(), "REM new", "the program")


@scene
def open_recent_and_close(day):
    project = day.start_with()
    other = day.write_project("REM other\n", "other")
    day.bench.keys("ctrl+o")
    day.answer_with_file("Open Project", other)
    day.wait_until_saved("Other")
    day.expect_code("REM other\n")
    day.choose("File", "Open Recent")
    entry = next(item for menu in day.open_menus() for item in menu.children
                 if project.name in item.name)
    day.bench.click(entry.centre)
    day.wait_until_saved("Plant")
    day.expect_code(PROGRAM)
    day.bench.keys("ctrl+w")
    day.wait_for_title("Workbench")
    expect_soon(lambda: "No project is open" in day.window.texts(), True, "the start page")
    day.bench.quit()
    day.start(title="Plant — Workbench")  # the last one
    day.expect_code(PROGRAM)


@scene
def save_as_goes_on_there(day):
    project = day.start_with()
    day.bench.type("REM more\n")
    day.choose("File", "Save As…")
    place = day.folder / "copy.json"
    day.answer_with_file("Save Elsewhere", place)
    day.wait_until_saved()
    expect(project.with_suffix(".prog").read_text(), PROGRAM, "the first place")
    program = day.folder / json.loads(place.read_text())["program"]
    expect(program.read_text(), "REM more\n" + PROGRAM, "the other place")
    day.bench.type("REM again\n")
    day.save()
    expect(program.read_text(), "REM more\nREM again\n" + PROGRAM, "work goes on there")


@scene
def changes_are_asked_for(day):
    project = day.start_with()
    day.bench.type("REM x\n")
    day.bench.keys("ctrl+w")
    day.press(day.wait_for_dialog("Unsaved Changes"), "Cancel")
    day.wait_until_changed()
    day.bench.keys("ctrl+q")
    day.press(day.wait_for_dialog("Unsaved Changes"), "Discard")
    day.bench.wait_for_end()
    expect(project.with_suffix(".prog").read_text(), PROGRAM, "the file")


@scene
def several_programs(day):
    project = day.start_with()
    day.choose("Program", "Add Program…")
    day.wait_for_dialog("Add Program")
    day.bench.type("Night")
    day.bench.keys("Return")
    day.wait_until_changed()
    expect_soon(lambda: {tab.name for tab in day.window.find_all("page tab")},
                {"plant.prog", "Night"}, "the tabs")
    day.bench.type("REM at night")
    day.save()
    saved = json.loads(project.read_text())
    expect(saved["format"], 2, "the form of the file")
    names = [program.get("name", program["file"]) for program in saved["programs"]]
    expect(names, ["plant.prog", "Night"], "the programs of the file")
    night = project.parent / saved["programs"][1]["file"]
    expect(night.read_text(), "REM at night", "the program's file")
    expect(project.with_suffix(".prog").read_text(), PROGRAM, "the first one's file")


@scene
def a_later_form_is_refused(day):
    project = day.write_project(format=99)
    before = project.read_bytes()
    day.start(project, title="Workbench")
    expect_soon(lambda: "99" in day.window.texts(), True, "the form's number is told")
    expect(project.read_bytes(), before, "the file")


@scene
def table_edits_and_typing_share_a_history(day):
    day.start_with()
    day.bench.keys("ctrl+Home")
    day.bench.type("REM first\n")
    table = day.go_to_table("Inputs")
    day.select_row(table, "ReturnTemp")
    day.reader.heard()
    day.bench.keys("F2")
    day.reader.wait_for_focus("text")
    day.bench.keys("ctrl+a")
    day.bench.type("Exhaust")
    day.bench.keys("Return")
    day.cell(table, "Exhaust")
    day.bench.keys("ctrl+2", "ctrl+z")
    day.cell(day.window.wait_for("table", "Inputs"), "ReturnTemp")
    day.bench.keys("ctrl+2", "ctrl+z", "ctrl+z", "ctrl+z")
    day.expect_code(PROGRAM)


if __name__ == "__main__":
    run()
