#!/usr/bin/env python3
"""Problems are found as one types and listed, and the list moves with the text; F8 walks
through them; to the point of a name and back, all its uses, and what the mouse is told."""

from day import PROGRAM, expect_soon, expect_true
from screen_reader import Gone
from stage import run, scene
from x_display import wait_until

PROBLEMS = {
    "nobody = 1": "nobody is not known",
    "SupplyTemp = 1": "SupplyTemp is an input, which no program can set",
    "SupplyMin = 1": "SupplyMin is a constant, which no program can set",
    "Valve = ( 1": "Nothing closes this bracket",
    "Valve = LIMIT ( 1 , 2 )": "LIMIT needs 3 values and has 2",
    "Valve =1": "Blanks are missing in =1",
    "ENDIF": "ENDIF without IF",
}


@scene
def problems_come_and_go_as_one_types(day):
    day.start_with(PROGRAM + "\n")
    day.bench.keys("F6")
    for line, problem in PROBLEMS.items():
        day.bench.keys("ctrl+2", "ctrl+End")
        day.bench.type(line)
        day.wait_until_listed(problem)
        day.bench.keys("shift+Home", "Delete")
        wait_until(lambda told=problem: not any(told in row for row in day.results()),
                   f"\"{problem}\" gone")


@scene
def the_list_moves_with_the_text(day):
    day.start_with(PROGRAM + "nobody = 1\n")
    day.bench.keys("F6")
    day.wait_until_listed("Line 4: nobody is not known")
    day.bench.keys("ctrl+2", "ctrl+Home")
    day.bench.type("REM one\nREM two\n")
    day.wait_until_listed("Line 6: nobody is not known")


@scene
def f8_walks(day):
    day.start_with("one = 1\n" + PROGRAM + "two = 2\n")
    day.bench.keys("F6")
    day.wait_until_listed("Line 5: two is")
    day.bench.keys("ctrl+2", "ctrl+End")
    for key, row in (("F8", 1), ("F8", 5), ("F8", 1), ("shift+F8", 5)):
        day.bench.keys(key)
        expect_soon(lambda: any(text.startswith(f"Row: {row},") for text in day.status()),
                    True, f"row {row} after {key}")


@scene
def to_the_point_and_back(day):
    day.start_with()
    day.bench.keys("ctrl+Home", *["Right"] * 5, "F12")
    table = day.window.wait_for("table", "Inputs")
    expect_soon(lambda: "selected" in table.wait_for("cell", "SupplyTemp").states, True,
                "the point's row is chosen")
    day.bench.keys("alt+Left")
    day.code.wait_for("text")
    expect_soon(lambda: "Row: 1, Col: 6" in day.status(), True, "the place before")
    day.bench.type("X")
    day.expect_code(PROGRAM.replace("SupplyTemp", "SuXpplyTemp"))


@scene
def all_uses(day):
    day.start_with()
    day.bench.keys("ctrl+Home", *["Right"] * 5, "shift+F12")
    for place in ("IF SupplyTemp < SupplyMin", "Controllers 1", "Logs 1", "Network Var Outputs 1"):
        day.wait_until_listed(place)
    row = next(item for item in day.window.wait_for("tree", "Results").find_all("tree item")
               if "Logs 1" in item.name)
    day.bench.click(row.centre)
    day.window.wait_for("table", "Logs")


@scene
def the_mouse_is_told_value_unit_and_description(day):
    day.start_with()
    day.bench.point(day.code.centre_of("SupplyTemp"))
    def told():
        for window in day.windows:
            try:
                if window.is_showing() and "Supply air" in window.name:
                    return window.name
            except Gone:
                pass
        return None
    text = wait_until(told, "a tip")
    for word in ("SupplyTemp", "19.4", "°C", "Supply air"):
        expect_true(word in text, f"{word} in {text!r}")


@scene
def a_long_program_takes_all_keys(day):
    day.start_with(PROGRAM * 2000)
    day.bench.keys("ctrl+Home")
    day.bench.type("Valve = Valve + 1\n" * 5)
    day.expect_code("Valve = Valve + 1\n" * 5 + PROGRAM * 2000)


if __name__ == "__main__":
    run()
