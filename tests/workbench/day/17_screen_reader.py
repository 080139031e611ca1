#!/usr/bin/env python3
"""What a screen reader finds has role, name and state in every window; results and problems
are announced; after every dialog and list the focus is where it was."""

from day import PROGRAM, expect, expect_true
from screen_reader import Gone
from stage import run, scene
from x_display import wait_until

NAMED = {"push button", "check box", "radio button", "text", "spin box", "combo box", "table",
         "tree", "list", "page tab", "menu item", "column header", "progress bar", "dialog"}
PARTS = {"combo box", "spin box"}  # the name is theirs, not that of what is in them
DIALOGS = [
    ("ctrl+n", "New Project"), ("ctrl+o", "Open Project"), ("ctrl+comma", "Settings"),
    ("F1", "Keys"), ("ctrl+f", "Find"), ("ctrl+h", "Replace"), ("ctrl+alt+f", "Find In Programs"),
]
BY_MENU = [
    ("File", "Save As…"), ("File", "Export…"), ("Program", "Add Program…"),
    ("Program", "Rename Program…"), ("Program", "Export Statements…"),
    ("Controller", "Reading…"), ("Help", "About"),
]


def nameless(window):
    """What a user acts on and a screen reader has no word for."""
    found = []
    for element in window.walk(not_into=("table",)):
        try:
            role = element.role
            if (role in NAMED and not element.name and not element.is_labelled()
                    and element.parent.role not in PARTS):
                found.append(f"{role} in {element.parent}")
        except Gone:
            pass
    return found


def has_focus(element):
    try:
        return "focused" in element.states
    except Gone:
        return False


def any_dialog(day):
    """The window before the workbench's own, once it takes keys."""
    def found():
        for window in day.windows:
            try:
                if "active" in window.states and not any(
                        child.role == "menu bar" for child in window.children):
                    return window
            except Gone:
                pass
        return None
    return wait_until(found, "a dialog")


def shut(day, dialog):
    day.bench.keys("Escape")
    wait_until(lambda: not dialog.is_showing(), "the dialog shut")
    wait_until(lambda: has_focus(day.code), f"the focus in the program after {dialog}")


@scene
def the_windows_have_names(day):
    day.start_with()
    expect(nameless(day.window), [], "without a name in the window")
    day.bench.keys("F6")
    table = day.go_to_table("Inputs")
    day.select_row(table, "SupplyTemp")
    day.bench.keys("ctrl+r")
    day.window.wait_for("tree", "Drawn points")
    expect(nameless(day.window), [], "without a name with tables, results and trend")
    cells = table.find_all("cell")
    expect_true(any("selected" in cell.states for cell in cells), "a cell is told as chosen")


@scene
def dialogs_have_names_and_give_the_focus_back(day):
    day.start_with()
    wait_until(lambda: has_focus(day.code), "the focus in the program")
    found = []
    for key, _ in DIALOGS:
        day.bench.keys(key)
        dialog = any_dialog(day)
        found += [f"{key}: {fault}" for fault in nameless(dialog)]
        shut(day, dialog)
    for menu, command in BY_MENU:
        day.choose(menu, command)
        dialog = any_dialog(day)
        found += [f"{command}: {fault}" for fault in nameless(dialog)]
        shut(day, dialog)
    expect(found, [], "without a name")


@scene
def lists_give_the_focus_back(day):
    day.start_with()
    day.bench.type("Su")
    day.bench.keys("ctrl+space")
    wait_until(lambda: len(day.bench.visible_windows()) == 2, "the list of words")
    day.bench.keys("Escape")
    wait_until(lambda: has_focus(day.code), "the focus in the program after the list")
    for menu in ("File", "Edit", "Help"):
        day.choose(menu)
        wait_until(day.open_menus, "a menu")
        day.bench.keys("Escape", "Escape")
        wait_until(lambda m=menu: has_focus(day.code), f"the focus in the program after {menu}")


def wait_until_told(day, role, words):
    """That a screen reader is told of a new description."""
    def told():
        return any(arguments[0] == "accessible-description" and element.role == role
                   and words in element.description
                   for element, _, arguments in day.reader.heard())
    wait_until(told, f"\"{words}\" told")


@scene
def results_and_problems_are_announced(day):
    day.start_with(PROGRAM + "nobody = 1\n")
    day.reader.heard()
    day.bench.keys("F6")
    wait_until_told(day, "tree", "Line 4: nobody is not known")
    day.bench.keys("F8")
    wait_until_told(day, "text", "nobody is not known")


@scene
def words_are_told_where_they_stand(day):
    """In the lines in view, scrolled and not; a click there puts the caret into the word."""
    lines = [f"word{number} = {number}" for number in range(100, 200)]
    day.start_with("\n".join(lines) + "\n")

    def click_on(word):
        day.bench.click(day.code.centre_of(word))
        start = day.code.text.index(word)
        wait_until(lambda: start <= day.code.caret <= start + len(word), f"the caret in {word}")

    for word in ("word100", "word101", "word107"):
        click_on(word)
    day.bench.keys("ctrl+End")
    for word in ("word198", "word190"):
        click_on(word)


if __name__ == "__main__":
    run()
