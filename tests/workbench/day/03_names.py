#!/usr/bin/env python3
"""A name that cannot be one is refused with a sentence, and what was typed stays."""

from day import PROGRAM, expect, expect_soon, expect_true
from stage import run, scene


def edit(day, table, name):
    """Opens the name for typing; gives the field."""
    day.select_row(table, name)
    day.reader.heard()
    day.bench.keys("F2")
    field = day.reader.wait_for_focus("text")
    expect(field.name, name, "what a screen reader calls the field")
    return field


def refuse(day, field, name):
    """Types it as a name; gives the sentence, and the field with what was typed."""
    day.bench.keys("ctrl+a")
    day.bench.type(name)
    expect_soon(lambda: field.text, name, "the field")
    day.reader.heard()
    day.bench.keys("Return")
    sentence = day.wait_for_dialog("Rename").texts()
    day.bench.keys("Return")
    day.wait_for_no_dialog("Rename")
    field = day.reader.wait_for_focus("text")
    expect(field.text, name, "what was typed stays")
    return sentence, field


@scene
def what_cannot_be_a_name_is_refused(day):
    project = day.start_with()
    before = project.read_bytes()
    table = day.go_to_table("Inputs")
    field = edit(day, table, "SupplyTemp")
    for name in ("IF", "12", "Return Temp", "a(b", "ReturnTemp", "Fan"):
        sentence, field = refuse(day, field, name)
        expect_true(name in sentence and len(sentence.split()) > 3, f"why not {name}: {sentence!r}")
    day.bench.keys("Escape")
    day.cell(table, "SupplyTemp")
    day.bench.keys("ctrl+1")
    day.expect_code(PROGRAM)
    day.save()
    expect(project.read_bytes(), before, "the project's file")
    expect(project.with_suffix(".prog").read_text(), PROGRAM, "the program's file")


@scene
def after_correction_it_is_taken(day):
    day.start_with()
    table = day.go_to_table("Inputs")
    refuse(day, edit(day, table, "ReturnTemp"), "IF")
    day.bench.keys("End")
    day.bench.type("Temp")
    day.bench.keys("Return")
    day.wait_until_changed()
    day.cell(table, "IFTemp")
    day.bench.keys("ctrl+z")
    day.cell(table, "ReturnTemp")


if __name__ == "__main__":
    run()
