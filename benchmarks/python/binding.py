"""The package for Python beside the bindings of a text editor and of the toolkit's table:
what an event into Python costs, and how long 32,767 rows take that are filled from there.

Prints what support/report.h tells of; with --check it checks the work instead."""

import gc
import json
import statistics
import sys
import time

from PyQt6.Qsci import QsciScintilla
from PyQt6.QtCore import QEvent, Qt
from PyQt6.QtGui import QKeyEvent
from PyQt6.QtWidgets import QApplication, QTableWidget, QTableWidgetItem

from orvtlistview import LwType, ORVListView, ReportList

ROWS = 32767
EVENTS = 2000
CELLS = ("OutsideTemp", "21.5", "°C")


class OurEvents:
    """Keys that a table hears of; the key's code may be changed."""

    name = "table's KeyDown"

    def __init__(self):
        self.table = ORVListView()
        self.table.ListviewType = LwType.dsInput
        self.key = QKeyEvent(QEvent.Type.KeyPress, Qt.Key.Key_F9, Qt.KeyboardModifier.NoModifier)

    def connect(self, receiver):
        self.table.KeyDown.connect(receiver)

    def raise_one(self, number):
        QApplication.sendEvent(self.table.listView, self.key)


class EditorEvents:
    """Changes of an editor's text."""

    name = "QScintilla's textChanged"

    def __init__(self):
        self.editor = QsciScintilla()
        self.editor.setText("x" * 100)

    def connect(self, receiver):
        self.editor.textChanged.connect(receiver)

    def raise_one(self, number):
        if number % 2:
            self.editor.SendScintilla(QsciScintilla.SCI_DELETERANGE, 0, 1)
        else:
            self.editor.insertAt("x", 0, 0)


class TableEvents:
    """Moves of a table's current cell."""

    name = "QTableWidget's currentCellChanged"

    def __init__(self):
        self.table = QTableWidget(2, 1)
        self.table.setCurrentCell(1, 0)

    def connect(self, receiver):
        self.table.currentCellChanged.connect(receiver)

    def raise_one(self, number):
        self.table.setCurrentCell(number % 2, 0)


def timed(work):
    gc.collect()
    gc.disable()
    start = time.perf_counter_ns()
    work()
    spent = time.perf_counter_ns() - start
    gc.enable()
    return spent


def all_events(source):
    for number in range(EVENTS):
        source.raise_one(number)


class Events:
    """What one event costs: a source that has a receiver beside one that never had one."""

    def __init__(self, kind):
        self.name = kind.name
        self.plain, self.heard = kind(), kind()
        self.count = 0
        self.heard.connect(self.receive)

    def receive(self, *arguments):
        self.count += 1

    def __call__(self):
        before = self.count
        heard = timed(lambda: all_events(self.heard)) / EVENTS
        assert self.count - before == EVENTS, (self.name, self.count - before)
        return heard, timed(lambda: all_events(self.plain)) / EVENTS


def difference(costs):
    """Of medians and of the least, as single differences are as often below zero."""
    heard, plain = zip(*costs)
    return {"cost": statistics.median(heard) - statistics.median(plain),
            "least": min(heard) - min(plain)}


def fill_table():
    table = ORVListView()
    table.ListviewType = LwType.dsInput
    table.ChangeListviewNumber(ROWS)
    item = table.ListItems.Item
    for number in range(1, ROWS + 1):
        row = item(number)
        row.setSubItem(1, CELLS[0])
        row.setSubItem(2, CELLS[1])
        row.setSubItem(3, CELLS[2])
    return table


def fill_list():
    made = ReportList()
    for head in ("#", "Name", "Value", "Unit"):
        made.ColumnHeaders.Add(Text=head)
    made.setRows([{"text": str(number), "subItems": CELLS} for number in range(1, ROWS + 1)])
    return made


def fill_widget():
    table = QTableWidget(ROWS, 4)
    for number in range(ROWS):
        table.setItem(number, 0, QTableWidgetItem(str(number + 1)))
        table.setItem(number, 1, QTableWidgetItem(CELLS[0]))
        table.setItem(number, 2, QTableWidgetItem(CELLS[1]))
        table.setItem(number, 3, QTableWidgetItem(CELLS[2]))
    return table


def fill_editor():
    """As one text: line by line it takes the square of the lines."""
    editor = QsciScintilla()
    line = "\t".join(CELLS)
    editor.setText("".join(f"{number}\t{line}\n" for number in range(1, ROWS + 1)))
    return editor


def side(what, costs):
    told = difference(costs) if isinstance(costs[0], tuple) else {
        "cost": statistics.median(costs), "least": min(costs)}
    return {"what": what, "repetitions": len(costs), **told}


def row(name, ours, peers, unit="time", bound=1):
    told = {"row": name, "ours": side(*ours), "peers": side(*peers), "unit": unit}
    if bound:
        told["bound"] = bound
    print(json.dumps(told), flush=True)


def in_turns(repetitions, *contenders):
    costs = [[] for _ in contenders]
    for repetition in range(repetitions + 1):
        for each, contender in zip(costs, contenders):
            cost = contender()
            if repetition:  # the first warms up
                each.append(cost)
    return costs


def measure():
    sources = [Events(kind) for kind in (OurEvents, EditorEvents, TableEvents)]
    ours, *theirs = in_turns(31, *sources)
    for source, costs in zip(sources[1:], theirs):
        # For information: a person raises them, and ours brings back what receivers change.
        row("An event into Python", (sources[0].name, ours), (source.name, costs), "time each",
            bound=None)
    fills = (fill_table, fill_list, fill_widget, fill_editor)
    cells, list_, widget, editor = in_turns(
        7, *[lambda fill=each: timed(fill) for each in fills])
    row("32,767 rows are filled from Python cell by cell", ("table", cells),
        ("QTableWidget", widget))
    row("… at once", ("list", list_), ("QTableWidget", widget))
    row("… at once, beside one text of as many lines", ("list", list_),
        ("QScintilla", editor), bound=None)  # for information: a text has no cells


def check(what, found, expected):
    print(json.dumps({"check": what, "ok": found == expected, "found": repr(found)}), flush=True)
    return found == expected


def check_work():
    right = []
    for kind in (OurEvents, EditorEvents, TableEvents):
        events = Events(kind)
        all_events(events.heard)
        right.append(check(f"every {kind.name} is heard", events.count, EVENTS))
    table, made, widget = fill_table(), fill_list(), fill_widget()
    last = table.ListItems.Item(ROWS)
    right.append(check("the table's last row",
                       tuple(last.SubItem(place) for place in (1, 2, 3)), CELLS))
    last = made.ListItems.Item(ROWS)
    right.append(check("the list's last row",
                       (last.Text, *(last.SubItem(place) for place in (1, 2, 3))),
                       (str(ROWS), *CELLS)))
    right.append(check("the widget's last row",
                       tuple(widget.item(ROWS - 1, place).text() for place in range(4)),
                       (str(ROWS), *CELLS)))
    right.append(check("the editor's lines", fill_editor().lines(), ROWS + 1))
    return all(right)


def main():
    application = QApplication(sys.argv)
    if "--check" in sys.argv:
        return 0 if check_work() else 2
    measure()
    del application
    return 0


if __name__ == "__main__":
    sys.exit(main())
