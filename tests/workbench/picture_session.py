#!/usr/bin/env python3
"""Goes through the windows of the workbench, with the keys that all languages share, and leaves
a picture of each to be looked at: pages, dialogs, tables, results, trend, recovery.

    picture_session.py --workbench PROGRAM --sample FOLDER --pictures FOLDER
                       [--scale N] [--dark] [--language CODE]
"""

import argparse
import os
import pathlib
import shutil
import sys
import tempfile

from workbench import Workbench
from x_display import Display, Failed, require_tools, wait_until

NAME = "air-handling-unit"


class Walk:
    def __init__(self, arguments, display, folder):
        self._arguments = arguments
        self._display = display
        self._project = pathlib.Path(folder) / "project" / f"{NAME}.json"
        shutil.copytree(arguments.sample, self._project.parent)
        self._bench = None
        self._window = None
        self._number = 0

    def run(self):
        for scene in (self._pages, self._program, self._tables, self._results, self._dialogs,
                      self._sides, self._several, self._recovery, self._broken):
            scene()

    def _start(self, *options):
        scale = self._arguments.scale
        settings = ["--language", self._arguments.language, "--scale", str(scale)]
        settings += ["--dark"] if self._arguments.dark else []
        self._bench = Workbench(self._display, self._arguments.workbench, *settings,
                                *map(str, options))
        windows = wait_until(lambda: self._bench.lives() and self._bench.visible_windows(),
                             "a window")
        (self._window,) = windows
        self._display.settled_pixels(1)

    def _picture(self, name, *keys):
        """What comes after the keys."""
        self._number += 1
        path = os.path.join(self._arguments.pictures, f"{self._number:02}-{name}.png")
        self._display.write_picture(path, (lambda: self._bench.keys(*keys)) if keys else None)

    def _others(self):
        return self._bench.visible_windows() - {self._window}

    def _dialog(self, name, *keys, first=()):
        """A window that opens with the keys and closes with Escape."""
        self._bench.keys(*keys)
        wait_until(self._others, f"a window for {name}")
        self._display.settled_pixels(0.5)  # its frame may come before what is in it
        self._picture(name, *first)
        self._close()

    def _close(self):
        def closed():
            if self._others():
                self._bench.keys("Escape")
                self._display.settled_pixels()
            return not self._others()
        wait_until(closed, "all dialogs closed")

    def _end(self):
        self._bench.kill()
        wait_until(lambda: not self._bench.visible_windows(), "no window")

    def _pages(self):
        self._start()
        self._picture("first-steps")
        self._dialog("new-project", "ctrl+n")
        self._bench.keys("ctrl+w")
        self._end()

    def _program(self):
        self._start(self._project)
        self._picture("program")
        self._bench.keys("ctrl+Home", *["Down"] * 14, "Home", *["Right"] * 3)
        self._picture("uses", "shift+F12")
        self._picture("menu-of-the-program", "shift+F10")
        self._bench.keys("Escape")
        self._picture("point-of-a-name", "F12")
        self._bench.keys("alt+Left")
        self._bench.point(self._place(0.365, 0.49))
        self._display.settled_pixels(2)
        self._picture("tip-of-a-name")
        self._bench.point((0, 0))
        self._picture("find-bar", "ctrl+shift+f")
        self._bench.type("temp")
        self._picture("found-while-typing")
        self._bench.keys("Escape")
        self._dialog("find", "ctrl+f")
        self._dialog("replace", "ctrl+h")
        self._picture("go-to-line", "ctrl+g")
        self._bench.keys("Escape")

    def _place(self, across, down):
        width, height = self._display.size
        return int(width * across), int(height * down)

    def _tables(self):
        bench = self._bench
        bench.keys("ctrl+1", "Home", "Down", "Down", "Down", "Down", "Down")
        self._picture("table", "Return")
        bench.keys("Down", "Up")
        self._picture("menu-of-a-table", "shift+F10")
        bench.keys("Escape", "F2")
        bench.type("IF\n")
        wait_until(self._others, "the reason why it is no name")
        self._picture("no-name")
        self._close()
        bench.keys("Escape", "F2")
        bench.type("SupplyAir\n")
        wait_until(self._others, "the places of a name")
        self._picture("places-of-a-name")
        self._close()
        self._picture("reading", "F5")
        self._display.settled_pixels(1.5)
        self._picture("trend", "ctrl+r")

    def _results(self):
        bench = self._bench
        bench.keys("ctrl+2", "ctrl+End")
        bench.type("\nsupplytmp = 1\nif supplytemp=3\n")
        bench.keys("F6")
        self._display.settled_pixels(1.5)
        self._picture("problems")
        bench.keys("ctrl+2")
        self._picture("problem-of-the-walk", "F8")
        self._picture("compiled-with-errors", "ctrl+F6")

    def _dialogs(self):
        self._dialog("settings", "ctrl+comma")
        self._dialog("keys", "F1")
        self._dialog("print", "ctrl+p")
        self._dialog("find-in-programs", "ctrl+alt+f")
        self._dialog("unsaved", "ctrl+q")

    def _sides(self):
        self._bench.keys("ctrl+3")
        self._picture("beside", "F11")
        self._picture("below", "shift+F11")
        self._picture("in-tabs-again", "ctrl+F11")
        self._end()

    def _several(self):
        """Two programs, of which one is chosen to be printed."""
        json = self._project.read_text(encoding="utf-8")
        self._project.write_text(
            json.replace('"format": 1', '"format": 2').replace(
                f'"program": "{NAME}.prog"',
                f'"programs": [{{"file": "{NAME}.prog"}}, {{"name": "Night", "file": "b.prog"}}]'),
            encoding="utf-8")
        self._project.with_name("b.prog").write_text("REM Night\n", encoding="utf-8")
        self._start(self._project)
        self._close()
        self._picture("several-programs", "ctrl+Page_Down")
        self._dialog("which-program", "ctrl+p")
        self._end()

    def _recovery(self):
        self._start(self._project)
        self._close()
        self._bench.type("REM lost in a crash\n")
        self._display.settled_pixels(6)
        self._end()
        self._start(self._project)
        wait_until(self._others, "the offer")
        self._picture("recovery")
        self._end()

    def _broken(self):
        self._project.write_text("{", encoding="utf-8")
        self._start(self._project)
        self._picture("broken-project")
        self._end()


def run_walk(arguments):
    require_tools()
    os.makedirs(arguments.pictures, exist_ok=True)
    scale = arguments.scale
    with tempfile.TemporaryDirectory(prefix="project") as folder, \
            Display(int(1140 * scale), int(780 * scale)) as display:
        display.environment["XDG_CONFIG_HOME"] = os.path.join(folder, "config")
        walk = Walk(arguments, display, folder)
        try:
            walk.run()
        except Failed:
            display.write_picture(os.path.join(arguments.pictures, "failed.png"))
            raise


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    for name in ("--workbench", "--sample", "--pictures"):
        parser.add_argument(name, required=True)
    parser.add_argument("--scale", type=float, default=1)
    parser.add_argument("--language", default="en")
    parser.add_argument("--dark", action="store_true")
    try:
        run_walk(parser.parse_args())
    except Failed as failure:
        print(failure, file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
