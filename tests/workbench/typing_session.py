#!/usr/bin/env python3
"""Writes a program of twenty lines in the workbench, with real keys on a virtual
display: word list, undo and redo, block indent, a refused paste. Checks the file
that the workbench saves, and leaves pictures of the steps to be looked at. With --helped
the same program is written with all that the editor does on its own, as the workbench
has it at first; otherwise every key is the user's.

    typing_session.py --workbench PROGRAM --sample FOLDER --pictures FOLDER
                      [--scale N] [--dark] [--helped]
"""

import argparse
import os
import shutil
import sys
import tempfile

from workbench import Workbench
from x_display import Display, Failed, require_tools, wait_until

TITLE = "Air handling unit 1 — Workbench"
CHANGED_TITLE = "Air handling unit 1* — Workbench"

HEATING = """\
REM Heating coil of the supply air
IF SupplyTemp < SupplyMin
    HeatingPump = ON
    HeatingValve = HeatingValve + 5
    IF HeatingValve > 90
        AlarmLamp = ON
    ENDIF
ELSE
    HeatingPump = OFF
    HeatingValve = 0
ENDIF

"""
FANS = """\
REM Fans by the hour
IF HOUR >= 6 AND HOUR < 18
    SupplyFanSpeed = LIMIT ( ZoneHeatDemand , FanMinSpeed , 100 )
    ReturnFanSpeed = SupplyFanSpeed * 0.9
ELSE
    SupplyFanSpeed = 0
    ReturnFanSpeed = 0
ENDIF"""


class OpenProgram(Workbench):
    """The workbench with the program that is written."""

    def __init__(self, display, program, folder, options):
        super().__init__(
            display, program, os.path.join(folder, "air-handling-unit.json"), *options)
        self._program_file = os.path.join(folder, "air-handling-unit.prog")
        self.wait_for_window(TITLE)
        (self._window,) = self.visible_windows()

    def wait_for_popup(self, other_than=None):
        """The number of the list or menu that is open; a list may have its tip beside it."""
        def popup():
            others = self.visible_windows() - {self._window, other_than}
            return others.pop() if others else None
        return wait_until(popup, "a list or menu open")

    def wait_for_no_popup(self):
        wait_until(lambda: self.visible_windows() == {self._window}, "all lists and menus closed")

    def save(self, expected):
        """Saves and compares the file with the program expected."""
        self.keys("ctrl+s")
        try:
            wait_until(lambda: self.lives() and self._saved() == expected, "saved")
        except Failed as failure:
            raise Failed(f"{failure}:\n{expected}<\nbut:\n{self._saved()}<") from None
        self.wait_for_window(TITLE)

    def _saved(self):
        with open(self._program_file, encoding="utf-8", newline="") as file:
            return file.read()


class Session:
    def __init__(self, workbench, take_picture):
        self._workbench = workbench
        self._picture = take_picture

    def run(self):
        self._picture("01-empty")
        self._switch_helps_off()
        self._word_list()
        self._block_indent()
        self._kept_indent()
        self._undo_and_redo()
        self._word_list_in_brackets()
        self._refused_paste()
        self._accepted_paste()
        self._analysis()
        self._compilation()
        self._point_and_back()
        self._tables()
        self._menus()
        self._unsaved_changes()
        self._workbench.quit()

    def _switch_helps_off(self):
        """What the editor does on its own; here every key is to be the user's."""
        bench = self._workbench
        for switch in "dhew":
            bench.keys("alt+v")
            menu = bench.wait_for_popup()
            bench.keys("e")
            bench.wait_for_popup(other_than=menu)
            bench.keys(switch)
            bench.wait_for_no_popup()

    def _word_list(self):
        bench = self._workbench
        bench.type("REM Heating coil of the supply air\nif supplytemp < supply")
        bench.keys("ctrl+space")
        bench.wait_for_popup()
        bench.type("m")
        bench.keys("Down")
        self._picture("02-word-list")
        bench.keys("Return")
        bench.wait_for_no_popup()
        bench.save("REM Heating coil of the supply air\nIF SupplyTemp < SupplyMin")

    def _block_indent(self):
        bench = self._workbench
        bench.type("\nheatingpump = on\nheatingvalve = heatingvalve + 5\n"
                   "if heatingvalve > 90\nalarmlamp = on\nendif")
        bench.keys("shift+Up", "shift+Up", "shift+Up", "shift+Up")
        self._picture("03-block-selected")
        bench.keys("Tab")
        self._picture("04-block-indented")
        bench.keys("Left", "Down", "Down", "Down", "shift+End", "Tab", "Tab", "shift+Tab")
        bench.keys("Down", "End")
        bench.save(HEATING[: HEATING.index("\nELSE")])

    def _kept_indent(self):
        bench = self._workbench
        bench.keys("Return", "BackSpace")
        bench.type("else\n    heatingpump = off\nheatingvalve = 0\n")
        bench.keys("BackSpace")
        bench.type("endif\n\n")
        bench.save(HEATING)

    def _undo_and_redo(self):
        bench = self._workbench
        before = HEATING + "REM Fans by the hour\nIF HOUR >= 6"
        bench.type("REM Fans by the hour\nif hour >= 6 and hour < 18")
        bench.keys("ctrl+z", "ctrl+z", "ctrl+z", "ctrl+z")
        self._picture("05-undone")
        bench.save(before)
        bench.keys("ctrl+y", "ctrl+y")
        bench.save(before + " AND HOUR")
        bench.keys("ctrl+y", "ctrl+y")
        bench.save(before + " AND HOUR < 18")

    def _word_list_in_brackets(self):
        bench = self._workbench
        bench.type("\n    supplyfanspeed = limit ( zonehea")
        bench.keys("ctrl+space")
        bench.wait_for_popup()
        bench.keys("Down", "Up")
        self._picture("06-word-list-in-brackets")
        bench.keys("Return")
        bench.wait_for_no_popup()
        bench.type(" , fanm")
        bench.keys("ctrl+space")
        bench.wait_for_popup()
        bench.keys("Tab")
        bench.wait_for_no_popup()
        bench.type(" , 100 )\nreturnfanspeed = supplyfanspeed * 0.9\n")
        bench.keys("BackSpace")
        bench.type("else\n    supplyfanspead = 0\n")
        bench.save(HEATING + FANS[: FANS.index("    SupplyFanSpeed = 0")]
                   + "    supplyfanspead = 0\n    ")

    def _refused_paste(self):
        bench = self._workbench
        bench.put_on_clipboard("ReturnFanSpeed\\Temp = 0")
        bench.keys("ctrl+v")
        bench.wait_for_window("Paste — Workbench")
        self._picture("07-refused-paste")
        bench.keys("Return")
        bench.wait_for_window(TITLE)
        bench.save(HEATING + FANS[: FANS.index("    SupplyFanSpeed = 0")]
                   + "    supplyfanspead = 0\n    ")

    def _accepted_paste(self):
        bench = self._workbench
        bench.put_on_clipboard("returnfanspeed = 0\nendif")
        bench.keys("ctrl+v", "Home", "End")
        bench.wait_for_window(CHANGED_TITLE)
        self._picture("08-pasted")
        bench.save(HEATING + FANS.replace("    SupplyFanSpeed = 0", "    supplyfanspead = 0"))

    def _analysis(self):
        bench = self._workbench
        self._picture("09-analysed", lambda: bench.keys("F6"))
        # Past the read button, and a variable that is never set.
        self._picture("10-finding-chosen", lambda: bench.keys(
            "ctrl+Tab", "Tab", "Home", "Down", "Return"))
        bench.type("supplyfanspeed")
        bench.keys("ctrl+End")
        bench.save(HEATING + FANS)

    def _compilation(self):
        self._picture("11-compiled", lambda: self._workbench.keys("ctrl+F6"))

    def _point_and_back(self):
        bench = self._workbench
        bench.keys("ctrl+Home", "Down", "End", "F12")
        self._picture("11-point")
        bench.keys("alt+Left")
        bench.type("2")
        bench.save(HEATING.replace("SupplyMin", "SupplyMin2", 1) + FANS)
        bench.keys("BackSpace", "ctrl+End")
        bench.save(HEATING + FANS)

    def _tables(self):
        """Through the tree by keyboard, to a table, a new name there, and back."""
        bench = self._workbench
        bench.keys("ctrl+shift+Tab", "Down", "Down", "Down")  # Inputs
        self._picture("12-inputs")
        bench.keys("Return", "Down", "Up", "F2")
        bench.type("supplyair")
        self._picture("13-name")
        bench.keys("Return")
        bench.wait_for_window("Rename — Workbench")
        bench.keys("space", "Return")  # not in the program
        bench.wait_for_window(CHANGED_TITLE)
        self._picture("14-reading", lambda: bench.keys("F5"))
        bench.keys("ctrl+1", "Home", "Down", "Down")  # Code
        bench.save(HEATING + FANS)
        self._picture("15-program-again")
        bench.keys("Return")

    def _menus(self):
        bench = self._workbench
        for number, name in ((16, "file"), (17, "edit"), (18, "program")):
            bench.keys("alt+" + name[0])
            bench.wait_for_popup()
            self._picture(f"{number}-{name}-menu")
            bench.keys("Escape")
            bench.wait_for_no_popup()
            bench.keys("Escape")
        bench.type(" ")
        bench.keys("alt+e")
        menu = bench.wait_for_popup()
        bench.keys("k")
        bench.wait_for_popup(other_than=menu)
        self._picture("19-known-words")
        bench.keys("Escape")
        bench.wait_for_no_popup()
        bench.keys("BackSpace")
        bench.save(HEATING + FANS)

    def _unsaved_changes(self):
        bench = self._workbench
        bench.type("x")
        bench.wait_for_window(CHANGED_TITLE)
        bench.keys("ctrl+q")
        bench.wait_for_window("Unsaved Changes — Workbench")
        self._picture("20-unsaved-changes")
        bench.keys("Escape")
        bench.wait_for_window(CHANGED_TITLE)
        bench.keys("BackSpace")
        bench.wait_for_window(TITLE)


class HelpedSession(Session):
    """Indents, words and the begin of a line are left to the editor."""

    def run(self):
        self._picture("01-empty")
        self._typed_through()
        self._words_from_the_list()
        self._list_shut()
        self._smart_home()
        self._undone()
        self._workbench.quit()

    def _typed_through(self):
        """One who does not look at the list is not disturbed by it."""
        bench = self._workbench
        comment, *lines = HEATING.splitlines()
        bench.type(comment + "\n" + "".join(line.strip().lower() + "\n" for line in lines))
        bench.wait_for_no_popup()
        self._picture("02-typed-through")
        bench.save(HEATING)

    def _words_from_the_list(self):
        bench = self._workbench
        bench.type("REM Fans by the hour\nif hour >= 6 and hour < 18\nsupplyfans")
        bench.wait_for_popup()
        self._picture("03-list-that-opens-itself")
        bench.keys("Return")
        bench.wait_for_no_popup()
        bench.type(" = limit ( zonehea")
        bench.wait_for_popup()
        bench.keys("Tab")
        bench.wait_for_no_popup()
        bench.type(" , fanm")
        bench.wait_for_popup()
        bench.keys("Down", "Up", "Return")
        bench.wait_for_no_popup()
        bench.type(" , 100 )\nreturnfanspeed = supplyfanspeed * 0.9\nelse\n"
                   "supplyfanspeed = 0\nreturnfanspeed = 0\nendif\n")
        bench.keys("BackSpace")
        self._picture("04-indented")
        bench.save(HEATING + FANS)

    def _list_shut(self):
        bench = self._workbench
        bench.type("\nret")
        bench.wait_for_popup()
        bench.keys("Escape")
        bench.wait_for_no_popup()
        bench.type("   \n")
        bench.keys("BackSpace")
        bench.save(HEATING + FANS + "\nret")
        bench.keys("BackSpace", "BackSpace", "BackSpace", "BackSpace")
        bench.save(HEATING + FANS)

    def _smart_home(self):
        bench = self._workbench
        bench.keys("Up", "End", "Home")
        bench.type("q ")
        place = FANS.rindex("ReturnFanSpeed")
        bench.save(HEATING + FANS[:place] + "q " + FANS[place:])
        bench.keys("BackSpace", "BackSpace", "Home")
        bench.type("q ")
        bench.keys("BackSpace", "BackSpace", "ctrl+End")
        bench.save(HEATING + FANS)

    def _undone(self):
        bench = self._workbench
        bench.type("\nif a\nb = 1")
        bench.keys("ctrl+z", "ctrl+z", "ctrl+z")
        self._picture("05-undone")
        bench.keys("ctrl+y", "ctrl+y", "ctrl+y", "ctrl+y")
        bench.save(HEATING + FANS + "\nIF a\n    b = 1")


def empty_copy_of(sample, folder):
    shutil.copytree(sample, folder, dirs_exist_ok=True)
    with open(os.path.join(folder, "air-handling-unit.prog"), "w", encoding="utf-8"):
        pass


def run_session(arguments):
    require_tools()
    os.makedirs(arguments.pictures, exist_ok=True)
    shown_failure = os.path.join(arguments.pictures, "failed.png")
    if os.path.exists(shown_failure):
        os.remove(shown_failure)
    scale = arguments.scale
    options = ["--scale", str(scale)] + (["--dark"] if arguments.dark else [])
    with tempfile.TemporaryDirectory(prefix="project") as folder, \
            Display(int(1140 * scale), int(780 * scale)) as display:
        empty_copy_of(arguments.sample, folder)
        workbench = OpenProgram(display, arguments.workbench, folder, options)

        def take_picture(name, after=None):
            display.write_picture(os.path.join(arguments.pictures, name + ".png"), after)

        try:
            kind = HelpedSession if arguments.helped else Session
            kind(workbench, take_picture).run()
        except Failed:
            take_picture("failed")
            raise


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    for name in ("--workbench", "--sample", "--pictures"):
        parser.add_argument(name, required=True)
    parser.add_argument("--scale", type=float, default=1)
    parser.add_argument("--dark", action="store_true")
    parser.add_argument("--helped", action="store_true")
    try:
        run_session(parser.parse_args())
    except Failed as failure:
        print(failure, file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
