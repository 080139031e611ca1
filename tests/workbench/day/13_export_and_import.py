#!/usr/bin/env python3
"""Programs and tables leave the workbench in paper colours, whatever the theme; points come
in from a text after a preview."""

import json

from day import PROGRAM, expect, expect_soon, expect_true
from stage import run, scene

PAPER = "800080"  # a colour that no theme has by itself
EDITOR = {"inputColour": "#" + PAPER, "backColour": "#ffffff"}


def export(day, shown, name):
    """What is shown, as the dialog's title calls it."""
    file = day.folder / name
    day.choose("File", "Export…")
    day.answer_with_file(f"Export {shown}", file)
    expect_soon(lambda: file.exists() and file.stat().st_size > 0, True, f"the file {name}")
    return file.read_bytes()


@scene
def programs_in_paper_colours(day):
    day.start(day.write_project(editor=EDITOR), "--dark")
    page = export(day, "plant.prog", "program.html").decode()
    expect_true("<pre" in page and PAPER in page.lower(), f"the page: {page}")
    rich = export(day, "plant.prog", "program.rtf").decode()
    expect_true(rich.startswith("{\\rtf1") and "\\red128\\green0\\blue128" in rich,
                f"the document: {rich}")
    expect(export(day, "plant.prog", "program.pdf")[:5], b"%PDF-", "the beginning of the PDF")


@scene
def copy_with_colours(day):
    day.start(day.write_project(editor=EDITOR), "--dark")
    day.bench.keys("ctrl+a")
    day.choose("Edit", "Copy with Colours")
    expect_soon(lambda: day.bench.clipboard() == PROGRAM, True, "the text")
    expect_true(PAPER in day.bench.clipboard("text/html").lower(), "paper colours in HTML")
    expect_true("\\red128\\green0\\blue128" in day.bench.clipboard("text/rtf"),
                "paper colours in RTF")


@scene
def tables_as_text(day):
    day.start_with()
    day.go_to_table("Inputs")
    commas = export(day, "Inputs", "table.csv").decode("utf-8-sig").splitlines()
    expect_true("SupplyTemp,Auto,19.4,°C,Supply air" in commas[1], f"a row: {commas}")
    tabs = export(day, "Inputs", "table.tsv").decode("utf-8-sig").splitlines()
    expect_true("SupplyTemp\tAuto\t19.4\t°C\tSupply air" in tabs[1], f"a row: {tabs}")


@scene
def points_come_in_after_a_preview(day):
    project = day.start_with()
    before = json.loads(project.read_text())
    table = day.go_to_table("Inputs")
    source = day.folder / "points.csv"
    source.write_text("Label,Value,Description\nSupplyTemp,20.5,Supply air\n"
                      "NewTemp,1,New\nIF,2,No name\n", encoding="utf-8")
    day.choose("Points", "Import…")
    day.wait_for_dialog("Import Points")
    day.bench.keys("ctrl+a")
    day.bench.type(str(source))
    day.bench.keys("Return")
    expect_soon(lambda: "Added: 1. Changed: 1." in preview_of(day).texts(), True, "the summary")
    dialog = preview_of(day)
    expect_true("Not possible: 1." in dialog.texts(), dialog.texts())
    expect_soon(lambda: len(table.find_all("cell", "NewTemp")), 0, "no new point yet")
    day.press(dialog, "Import")
    day.wait_until_changed()
    day.cell(table, "NewTemp")
    day.save()
    inputs = json.loads(project.read_text())["inputs"]
    expect([(point["name"], point["value"]) for point in inputs],
           [("SupplyTemp", 20.5), ("ReturnTemp", 22.1), ("NewTemp", 1)], "the inputs")
    day.bench.keys("ctrl+z")
    day.wait_until_changed()
    day.save()
    expect(json.loads(project.read_text()), before, "the file after one step of undo")


def preview_of(day):
    return day.wait_for_dialog("Import Points")


if __name__ == "__main__":
    run()
