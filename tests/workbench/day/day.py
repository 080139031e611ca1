"""What the tests of the working day have in common: a project, the workbench, and what its
user does and sees."""

import contextlib
import json
import pathlib
import shutil
import sys

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent))

# pylint: disable=wrong-import-position
from screen_reader import ACCESSIBLE, Gone
from workbench import Workbench
from x_display import Failed, wait_until

POINTS = {
    "inputs": [
        {"name": "SupplyTemp", "mode": "Auto", "value": 19.4, "units": "°C",
         "description": "Supply air"},
        {"name": "ReturnTemp", "mode": "Auto", "value": 22.1, "units": "°C",
         "description": "Return air"}],
    "outputs": [
        {"name": "Fan", "mode": "Auto", "value": "On", "description": "Supply fan"},
        {"name": "Valve", "mode": "Auto", "value": 20, "units": "%"}],
    "variables": [{"name": "Demand", "value": 3}],
    "constants": [{"name": "SupplyMin", "value": 14}],
    "controllers": [{"input": "SupplyTemp"}],
    "logs": [{"data": "SupplyTemp"}],
    "networkOutputs": [{"name": "Out", "dataSource": "SupplyTemp"}],
}
PROGRAM = """\
IF SupplyTemp < SupplyMin
    Valve = Valve + 5
ENDIF
"""


def expect(found, expected, what):
    if found != expected:
        raise Failed(f"{what}: expected\n{expected!r}\nbut found\n{found!r}")


def expect_soon(ask, expected, what):
    """What is asked for comes to be what is expected."""
    try:
        wait_until(lambda: ask() == expected, what)
    except Failed:
        expect(ask(), expected, what)


def expect_true(fact, what):
    if not fact:
        raise Failed(f"not so: {what}")


def is_active(window):
    try:
        return "active" in window.states
    except Gone:
        return False


class Day:
    """One scene: a folder with a project, and the workbench once it is started."""

    def __init__(self, arguments, display, reader, folder):
        self.folder = pathlib.Path(folder)
        self.display = display
        self.reader = reader
        self.bench = None
        self._arguments = arguments
        self._window = None
        home = self.folder / "home"
        home.mkdir()
        display.environment.update(
            HOME=str(home), ORVT_SETTINGS_FILE=str(home / "settings.ini"))

    # The project

    def write_project(self, program=PROGRAM, name="plant", **members):
        """A project "Plant" of one program; gives its file."""
        folder = self.folder / "project"
        folder.mkdir(exist_ok=True)
        (folder / f"{name}.prog").write_bytes(
            program if isinstance(program, bytes) else program.encode())
        project = {"format": 1, "name": name.capitalize(), "program": f"{name}.prog",
                   **POINTS, **members}
        path = folder / f"{name}.json"
        path.write_text(json.dumps(project, indent=2, ensure_ascii=False), encoding="utf-8")
        return path

    def copy_of_sample(self):
        folder = self.folder / "sample"
        shutil.copytree(self._arguments.sample, folder)
        return folder / "air-handling-unit.json"

    # The workbench

    def start(self, *arguments, title="Plant — Workbench"):
        self._window = None
        self.bench = Workbench(
            self.display, self._arguments.workbench, *map(str, arguments),
            settle=self._settle)
        if title:
            self.bench.wait_for_window(title)
        wait_until(lambda: self.bench.lives() and any(map(is_active, self.windows)),
                   "a window that takes keys")
        return self.bench

    def start_with(self, program=PROGRAM, **members):
        """The workbench with a project of its own; gives the project's file."""
        project = self.write_project(program, **members)
        self.start(project)
        return project

    def _settle(self):
        """The program hands each key to the registry and acts on it when it has the answer;
        shortcuts and clicks go before keys that wait for theirs. Messages do not overtake
        each other, so these come back when all is done."""
        with contextlib.suppress(Gone):
            for program in self.programs_of_reader():
                for asked in (program, program, self.reader.registry, program, program):
                    self.reader.call(asked.place, ACCESSIBLE, "GetRole")

    def programs_of_reader(self):
        own = [program for program in self.reader.programs() if program.name == "workbench"]
        return own[-1:]

    @property
    def windows(self):
        """All windows, menus and lists, as a screen reader has them."""
        with contextlib.suppress(Gone):
            return [child for program in self.programs_of_reader() for child in program.children]
        return []

    @property
    def window(self):
        """The workbench's own window."""
        if not self._window or not self._window.is_showing():
            self._window = wait_until(self._find_window, "the window")
        return self._window

    def _find_window(self):
        for window in self.windows:
            with contextlib.suppress(Gone):
                if any(child.role == "menu bar" for child in window.children):
                    return window
        return None

    @property
    def code(self):
        """The program's text."""
        views = self.window.wait_for("frame", "Views")
        return wait_until(
            lambda: [text for text in views.find_all("text") if text.name.endswith(".prog")],
            "a program")[0]

    def status(self):
        """What the status bar says."""
        return [label.name for label in
                self.window.wait_for("status bar").find_all("label") if label.name]

    def message(self):
        """What the status bar says for a while."""
        return self.window.wait_for("status bar").name

    def results(self):
        """The rows of the list of results, each with its cells behind each other."""
        rows = {}
        try:
            for item in self.window.wait_for("tree", "Results").find_all("tree item"):
                rows.setdefault(item.rectangle[1], []).append(item.name)
        except Gone:
            return []
        return [" ".join(cells) for _, cells in sorted(rows.items())]

    def wait_until_listed(self, text):
        wait_until(lambda: any(text in row for row in self.results()),
                   f"\"{text}\" in the list of results")

    def find_dialog(self, title):
        for window in self.windows:
            with contextlib.suppress(Gone):
                if window.name == title and window.is_showing():
                    return window
        return None

    def wait_for_dialog(self, title):
        wait_until(lambda: self.bench.lives() and self.bench.active_title().startswith(title),
                   f"a dialog \"{title}\" active")
        dialog = wait_until(lambda: self.find_dialog(title), f"a dialog \"{title}\"")
        wait_until(lambda: is_active(dialog), f"the dialog \"{title}\" takes keys")
        return dialog

    def wait_for_no_dialog(self, title):
        wait_until(lambda: not self.find_dialog(title), f"the dialog \"{title}\" closed")

    @staticmethod
    def field_beside(dialog, label):
        """What the label names. A combo box's own name is what is chosen in it."""
        left, top, width, height = dialog.wait_for("label", label).rectangle
        for element in dialog.walk():
            at = element.rectangle
            if (at[0] >= left + width and at[1] <= top + height // 2 <= at[1] + at[3]
                    and "focusable" in element.states):
                return element
        raise Failed(f"no field beside \"{label}\"")

    # What the mouse does

    def choose(self, *names):
        """Commands of menus, from outside to inside."""
        bar = self.window.wait_for("menu bar")
        self.bench.click(bar.wait_for("menu item", names[0]).centre)
        for name in names[1:]:
            self.bench.click(self.wait_for_entry(name).centre)

    def wait_for_entry(self, name, seconds=10.0):
        """The entry of that name of a menu that is open."""
        def entry():
            for menu in self.open_menus():
                for item in menu.children:
                    with contextlib.suppress(Gone):
                        if item.name == name:
                            return item
            return None
        return wait_until(entry, f"a menu with \"{name}\"", seconds)

    def open_menus(self):
        """The menu that is open, and what is open of its own menus."""
        found = []
        with contextlib.suppress(Gone):
            above = self.window.wait_for("menu bar")
            while above:
                popups = [popup for item in above.children for popup in item.children
                          if popup.is_showing()]
                found += popups[:1]
                above = popups[0] if popups else None
        return found

    def context_menu(self):
        """What the menu of the keyboard's menu key offers, of what has the focus."""
        self.reader.heard()
        self.bench.keys("Menu")
        self.bench.keys("Down")
        return [item.name for item in self.reader.wait_for_focus("menu item").parent.children]

    def go_to_table(self, name):
        """By the tree; the table has the focus then."""
        self.bench.click(self.window.wait_for("tree item", name).centre)
        self.bench.keys("Return")
        return self.window.wait_for("table", name)

    def cell(self, table, name):
        return table.wait_for("cell", name)

    def select_row(self, table, name):
        self.bench.click(table.wait_for("cell", name).centre)

    def press(self, dialog, button):
        self.bench.click(dialog.wait_for("push button", button).centre)

    def answer_with_file(self, title, path):
        """The file dialog of that title gets the path."""
        self.wait_for_dialog(title)
        self.bench.keys("ctrl+a")
        self.bench.type(str(path))
        self.bench.keys("Return")
        self.wait_for_no_dialog(title)

    # What is to come true

    def wait_for_title(self, title):
        self.bench.wait_for_window(title)

    def wait_until_changed(self, name="Plant"):
        self.bench.wait_for_window(f"{name}* — Workbench")

    def wait_until_saved(self, name="Plant"):
        self.bench.wait_for_window(f"{name} — Workbench")

    def save(self, name="Plant"):
        self.bench.keys("ctrl+s")
        self.wait_until_saved(name)

    def expect_code(self, text):
        expect_soon(lambda: self.code.text, text, "the program")

    def expect_untouched_code(self, text):
        """Nor is there a change on its way: what is typed now comes behind it."""
        expect(self.bench.active_title(), "Plant — Workbench", "the title")
        self.bench.keys("ctrl+2", "ctrl+End")
        self.bench.type("x")
        self.expect_code(text + "x")
