#!/usr/bin/env python3
"""The window bears any size, scale and language: nothing is cut, no English word is left in
a German window."""

from day import POINTS, expect
from stage import run, scene
from x_display import wait_until

# Words that are the same in both, and what is the user's own.
OWN = {"", "1", "Plant", "plant.prog", "plant.prog, lines: 4"}
LANGUAGES = {"Deutsch", "English", "Español", "Français"}
SHARED = {
    "de": OWN | LANGUAGES | {"Code", "Editor", "Trend"},
    "es": OWN | LANGUAGES | {"Editor", "Variables"},
    "fr": OWN | LANGUAGES | {"Code", "Points", "Variables"},
}


def size_of_window(day):
    _, _, width, height = day.window.rectangle
    return width, height


def resize(day, width, height):
    day.display.do("xdotool", "getactivewindow", "windowsize", "--sync",
                   str(width), str(height))


def cut_in(day):
    """What stands out of the window, or has no room for its text."""
    left, top, width, height = day.window.rectangle
    out = []
    for element in day.window.walk(not_into=("table", "tree", "list", "frame")):
        at = element.rectangle
        if at[2] and (at[0] < left or at[1] < top or at[0] + at[2] > left + width
                      or at[1] + at[3] > top + height):
            out.append(f"{element} {at}")
    return out


@scene
def sizes(day):
    day.start_with()
    for width, height in ((1200, 800), (640, 480), (300, 250)):
        resize(day, width, height)
        wait_until(lambda w=width, h=height: size_of_window(day) == (w, h),
                   f"a window of {width} by {height}")
        wait_until(lambda: not cut_in(day), f"all within {width} by {height}")
    day.bench.keys("ctrl+End")
    day.bench.type("REM")
    day.wait_until_changed()


def names_below(element):
    """Of all commands, whether their menu is open or not."""
    names = {element.name}
    for child in element.children:
        names |= names_below(child)
    return names


def words_of(day, language):
    day.start(day.write_project(), "--language", language, title=None)
    day.bench.wait_for_title_with("Plant")
    day.bench.keys("F6", "alt+1")
    names = names_below(day.window.wait_for("menu bar"))
    names |= {element.name for element in day.window.walk(not_into=("table",))}
    day.bench.quit()
    return names


@scene
def no_english_word_in_another_language(day):
    english = words_of(day, "en")
    own = {point["name"] for points in POINTS.values() for point in points if "name" in point}
    for language, shared in SHARED.items():
        left = (words_of(day, language) & english) - own
        expect(left - shared, set(), f"English words in {language}")


@scene
def large_scales(day):
    project = day.write_project()
    for scale in ("1.5", "2", "3"):
        day.start(project, "--scale", scale)
        wait_until(lambda: not cut_in(day), f"all within the window at {scale}")
        day.bench.quit()


if __name__ == "__main__":
    run()
