#!/usr/bin/env python3
"""Settings show what they do before they hold; theme and language change at run time and
are there at the next start."""

from day import expect, expect_soon, expect_true
from stage import run, scene
from x_display import wait_until


def choose_in(day, dialog, label, entry):
    field = day.field_beside(dialog, label)
    day.bench.click(field.centre)
    day.bench.type(entry)
    day.bench.keys("Return")
    expect_soon(lambda: field.name, entry, f"the field {label}")


def open_settings(day):
    day.bench.keys("ctrl+comma")
    return day.wait_for_dialog("Settings")


def ground_of(day):
    """The colour below the program, right of a dialog, as a picture has it."""
    left, top, width, height = day.code.rectangle
    return day.display.colour_at(left + width * 3 // 4, top + height - 30)


def is_dark(colour):
    return sum(colour) < 3 * 100


@scene
def the_theme_at_run_time(day):
    project = day.start_with(editor={"backColour": "system:window"})
    expect_true(not is_dark(ground_of(day)), "a light ground at first")
    dialog = open_settings(day)
    choose_in(day, dialog, "Theme:", "Dark")
    day.press(dialog, "OK")
    wait_until(lambda: is_dark(ground_of(day)), "a dark ground")
    day.bench.quit()
    day.start(project)
    wait_until(lambda: is_dark(ground_of(day)), "a dark ground at the next start")


@scene
def the_language_at_run_time(day):
    project = day.start_with()
    dialog = open_settings(day)
    choose_in(day, dialog, "Language:", "Deutsch")
    day.press(dialog, "OK")
    menus = ["Datei", "Bearbeiten"]
    def shown():
        bar = day.window.wait_for("menu bar")
        return [item.name for item in bar.children][:2]
    expect_soon(shown, menus, "the menus")
    day.bench.quit()
    day.start(project, title=None)
    day.bench.wait_for_title_with("Plant")
    expect_soon(shown, menus, "the menus at the next start")


@scene
def a_set_of_colours_is_shown_before_it_holds(day):
    day.start_with()
    before = ground_of(day)
    dialog = open_settings(day)
    left, top, width, height = dialog.rectangle
    def picture():
        return day.display.colours_in(left, top, width, height)
    first = picture()
    choose_in(day, dialog, "Colours:", "Dark")
    wait_until(lambda: picture() != first, "another preview")
    expect(ground_of(day), before, "the program's ground, before OK")
    day.press(dialog, "Cancel")
    day.wait_for_no_dialog("Settings")
    expect(ground_of(day), before, "the program's ground, after Cancel")
    dialog = open_settings(day)
    choose_in(day, dialog, "Colours:", "Dark")
    day.press(dialog, "OK")
    wait_until(lambda: is_dark(ground_of(day)), "a dark ground after OK")


if __name__ == "__main__":
    run()
