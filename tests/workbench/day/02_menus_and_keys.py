#!/usr/bin/env python3
"""Cut and Paste of the menu are those of the keys; access keys and names of commands are
the same in all menus."""

from day import expect_soon, expect_true
from stage import run, scene

CONTEXT = {"Undo", "Redo", "Cut", "Copy", "Paste", "Select All"}


def select_first_word(day):
    day.bench.keys("ctrl+Home", *["shift+Right"] * len("SupplyTemp"))


@scene
def cut_and_paste_by_the_mouse_can_be_undone(day):
    day.start_with("SupplyTemp\n")
    select_first_word(day)
    day.choose("Edit", "Cut")
    day.expect_code("\n")
    expect_soon(day.bench.clipboard, "SupplyTemp", "the clipboard")
    day.choose("Edit", "Undo")
    day.expect_code("SupplyTemp\n")
    day.bench.keys("ctrl+End")
    day.choose("Edit", "Paste")
    day.expect_code("SupplyTemp\nSupplyTemp")
    day.bench.keys("ctrl+z")
    day.expect_code("SupplyTemp\n")


def by_access_keys(day, opener):
    """C copies and T cuts."""
    day.bench.put_on_clipboard("something else")
    select_first_word(day)
    opener("c")
    expect_soon(day.bench.clipboard, "SupplyTemp", "the clipboard after C")
    day.expect_code("SupplyTemp = 1\n")
    opener("t")
    day.expect_code(" = 1\n")
    day.bench.keys("ctrl+z")
    day.expect_code("SupplyTemp = 1\n")
    day.bench.keys("ctrl+End")
    opener("p")
    day.expect_code("SupplyTemp = 1\nSupplyTemp")


def by_menu(day, key):
    day.bench.keys("alt+e")
    day.wait_for_entry("Undo")
    day.bench.keys(key)


def by_context_menu(day, key):
    day.context_menu()
    day.bench.keys(key)


@scene
def access_keys_of_the_menu(day):
    day.start_with("SupplyTemp = 1\n")
    by_access_keys(day, lambda key: by_menu(day, key))


@scene
def access_keys_of_the_context_menu(day):
    day.start_with("SupplyTemp = 1\n")
    by_access_keys(day, lambda key: by_context_menu(day, key))


def names_in_context_menu(day):
    names = {name.split("\t")[0] for name in day.context_menu() if name}
    day.bench.keys("Escape")
    return names


def names_in_edit_menu(day):
    bar = day.window.wait_for("menu bar").children
    day.bench.click(bar[1].centre)
    menu = day.open_menus()[0]
    names = {item.name for item in menu.children if item.name}
    day.bench.keys("Escape", "Escape")
    return names


def compare_names(day, language):
    day.start(day.write_project(), "--language", language, title=None)
    day.bench.wait_for_title_with("Plant")
    context, edit = names_in_context_menu(day), names_in_edit_menu(day)
    expect_true(len(context & edit) >= len(CONTEXT), f"{context} are commands of {edit}")
    day.bench.quit()


@scene
def one_name_for_a_command_in_every_language(day):
    for language in ("en", "de", "es", "fr"):
        compare_names(day, language)


if __name__ == "__main__":
    run()
