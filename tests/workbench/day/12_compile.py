#!/usr/bin/env python3
"""Compile lists the statements with their lines, which can be exported; errors are problems."""

from day import PROGRAM, expect_soon, expect_true
from stage import run, scene


@scene
def statements_are_listed(day):
    day.start_with()
    day.bench.keys("ctrl+F6")
    expect_soon(lambda: [row.split()[0] for row in day.results()], ["1", "2", "3"], "the lines")
    rows = day.results()
    for row, words in zip(rows, ("Condition", "Assignment", "End of a condition")):
        expect_true(words in row, f"{words} in {rows}")


@scene
def statements_are_exported(day):
    day.start_with()
    for ending, first in (("txt", "1"), ("csv", "Line,Kind,Statement")):
        file = day.folder / f"list.{ending}"
        day.choose("Program", "Export Statements…")
        day.answer_with_file("Export Statements of plant.prog", file)
        expect_soon(file.exists, True, f"the file {file.name}")
        text = file.read_text(encoding="utf-8-sig")
        expect_true(text.startswith(first), f"{file.name} begins with {first}: {text!r}")
        expect_true("Valve = Valve + 5" in text, f"the statements in {text!r}")


@scene
def errors_are_problems(day):
    day.start_with(PROGRAM.replace("ENDIF", "ENDF"))
    day.bench.keys("ctrl+F6")
    expect_soon(lambda: any("IF without ENDIF" in row for row in day.results()), True,
                "the problem")


if __name__ == "__main__":
    run()
