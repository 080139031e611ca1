#!/usr/bin/env python3
"""The simulated controller is slow, fails and answers wrongly as it is told to; reading,
its end and its faults are seen; cyclic reading keeps values fresh, and a trend is drawn."""

from day import expect, expect_soon, expect_true
from stage import run, scene
from x_display import wait_until


def behave(day, label, entry):
    """Types into a field of the dialog; of a combo box the beginning of an entry."""
    day.choose("Controller", "Reading…")
    dialog = day.wait_for_dialog("Reading")
    field = day.field_beside(dialog, label)
    day.bench.click(field.centre)
    if field.role == "combo box":
        day.bench.type(entry)
        day.bench.keys("Return")
        expect_soon(lambda: field.name.startswith(entry), True, f"{entry} is chosen")
    else:
        day.bench.keys("ctrl+a")
        day.bench.type(entry)
    day.press(dialog, "OK")
    day.wait_for_no_dialog("Reading")


def values(table):
    return [cell.name for cell in table.find_all("cell") if "." in cell.name]


def status(day):
    return " ".join(day.status())


@scene
def values_are_read(day):
    day.start_with()
    table = day.go_to_table("Inputs")
    before = values(table)
    day.bench.keys("F5")
    expect_soon(lambda: values(table) != before, True, "another value")


@scene
def slow_and_stopped(day):
    day.start_with()
    behave(day, "Time for an answer:", "5000")
    day.go_to_table("Inputs")
    day.bench.keys("F5")
    wait_until(lambda: "Reading values: 0 of" in status(day), "how far it is")
    bar = day.window.wait_for("status bar")
    day.press(bar, "Stop")
    wait_until(lambda: "Stopped" in status(day), "that it was stopped")


@scene
def it_fails_with_a_sentence(day):
    day.start_with()
    table = day.go_to_table("Inputs")
    before = values(table)
    for failure, read in (("Cannot be reached", "0"), ("Refuses", "0")):
        behave(day, "Failure:", failure)
        day.bench.keys("F5")
        wait_until(lambda count=read: f"Values read: {count} of" in status(day), "what failed")
        expect_true(len(status(day).split(".")[0].split()) > 1, f"a sentence: {status(day)}")
        expect(values(table), [value + ", Old" for value in before], "the values")


@scene
def wrong_answers_change_nothing_wrongly(day):
    day.start_with()
    behave(day, "Wrong answers:", "A text for a number")
    table = day.go_to_table("Inputs")
    day.bench.keys("F5")
    wait_until(lambda: "is not a number" in status(day), "what was wrong")
    expect(values(table), ["19.4, Old", "22.1, Old"], "the values")


@scene
def cyclic_reading_is_off_at_first(day):
    day.start_with()
    behave(day, "Pause between readings:", "1")
    table = day.go_to_table("Inputs")
    before = values(table)
    day.choose("Controller", "Read Cyclically")
    seen = {tuple(before)}
    def fresh():
        seen.add(tuple(values(table)))
        return len(seen) > 2
    wait_until(fresh, "values that go on changing", 20)


@scene
def a_trend(day):
    day.start_with()
    table = day.go_to_table("Inputs")
    day.select_row(table, "SupplyTemp")
    day.bench.keys("ctrl+r")
    legend = day.window.wait_for("tree", "Drawn points")
    legend.wait_for("tree item", "SupplyTemp")
    day.bench.keys("F5")
    wait_until(lambda: any(item.name.startswith("1") or item.name.startswith("2")
                           for item in legend.find_all("tree item")), "a value in the legend")


if __name__ == "__main__":
    run()
