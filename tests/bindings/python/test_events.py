"""Every event is heard in Python, by its name and by its number; what it takes back goes
back."""

import json
import sys

import pytest
from conftest import MEMBERS_JSON
from PyQt6.QtCore import QObject, QPoint, Qt, pyqtSlot
from PyQt6.QtTest import QTest
from PyQt6.QtWidgets import QApplication, QLineEdit

import orvtlistview
from orvtlistview import LwType, Reference

TABLES = json.loads(MEMBERS_JSON.read_text(encoding="utf-8"))
EVENTS = [(each["name"], member) for each in TABLES["classes"] for member in each["members"]
          if member["kind"] == "event"]

# A value of each type that an event has, and another that a receiver gives back.
VALUES = {
    "bool": (True, False),
    "qint16": (7, -3),
    "qint32": (70000, -5),
    "float": (2.5, 1.0),
    "QString": ("Grün", "Rot"),
    "LwType": (LwType.dsInput, LwType.dsOutput),
    "QList<Pages>": ([], [orvtlistview.Pages(Name="one")]),
    "QList<qint32>": ([1, 2], [3]),
    "QList<CellChange>": ([orvtlistview.CellChange(column=1, text="x")], []),
    "QList<CellRefusal>": ([orvtlistview.CellRefusal(column=1)], []),
    "Problem": (orvtlistview.Problem(line=3, text="?"), None),
    "ListGrid::RowDeed": (orvtlistview.ListGrid.RowDeed.MoveRows, None),
}


def sources():
    """An object of each class that raises events."""
    list_view = orvtlistview.ORVListView()
    tree = orvtlistview.ORVTreeview()
    tree.setDesignMode(True)
    return {
        "ORVListView": list_view, "ORVTreeview": tree,
        "ORVDataCombo": orvtlistview.ORVDataCombo(), "ORVRichText": orvtlistview.ORVRichText(),
        "ReportList": orvtlistview.ReportList(), "RichTextBox": orvtlistview.RichTextBox(),
        "CodeView": list_view.codeView, "ListGrid": list_view.listView.grid, "kept": list_view,
    }


def given(member):
    return [VALUES.get(each["type"], (None,))[0] for each in member["arguments"]]


@pytest.mark.parametrize("name, member", EVENTS,
                         ids=[f"{name}.{member['name']}" for name, member in EVENTS])
def test_event_is_heard_by_name_and_number(name, member):
    objects = sources()
    source = objects[name]
    by_name, by_number = [], []
    values = given(member)
    plain = [value if each["direction"] == "in" else None
             for value, each in zip(values, member["arguments"])]

    def receiver(*arguments):
        by_name.append([None if isinstance(each, Reference) else each for each in arguments])
        for each, argument in zip(member["arguments"], arguments):
            if each["direction"] != "in":
                assert isinstance(argument, Reference)
                argument.value = VALUES[each["type"]][1]

    def sink(number, arguments):
        by_number.append(number)
        for each, argument in zip(member["arguments"], arguments):
            if each["direction"] != "in":
                assert argument.value == VALUES[each["type"]][1]

    getattr(source, member["name"]).connect(receiver)
    orvtlistview.advise(source, sink)
    back = orvtlistview.raiseEvent(source, member["name"], *values)
    assert by_name == [plain]
    assert by_number == [member["number"]]
    assert back == [VALUES[each["type"]][1] for each in member["arguments"]
                    if each["direction"] != "in"]
    getattr(source, member["name"]).disconnect(receiver)
    orvtlistview.unadvise(source, sink)
    orvtlistview.raiseEvent(source, member["name"], *values)
    assert len(by_name) == len(by_number) == 1


def test_cancel_keeps_the_label_s_editor_shut(table):
    table.SelectedItem = table.ListItems.Item(1)
    table.StartLabelEdit()
    QApplication.processEvents()
    fields = [each for each in table.findChildren(QLineEdit) if each.isVisible()]
    assert len(fields) == 1
    QTest.keyClick(fields[0], Qt.Key.Key_Escape)
    QApplication.processEvents()

    def refuse(cancel):
        cancel.value = 1

    table.BeforeLabelEdit.connect(refuse)
    table.StartLabelEdit()
    QApplication.processEvents()
    assert not [each for each in table.findChildren(QLineEdit) if each.isVisible()]


def test_a_click_on_a_row_hands_out_the_row(table):
    clicked = []
    table.ItemClick.connect(clicked.append)
    view = table.listView
    place = view.visualRect(view.model().index(1, 1)).center()
    QTest.mouseClick(view.viewport(), Qt.MouseButton.LeftButton, pos=place)
    assert clicked == [table.ListItems.Item(2)]


def test_a_key_is_swallowed(editor):
    keys = []

    def swallow(code, shift):
        keys.append((code.value, shift))  # the box's own event does not take Shift back
        code.value = 0

    box = editor.RTextBox
    box.KeyDown.connect(swallow)
    QTest.keyClick(box, Qt.Key.Key_A)
    assert keys == [(ord("A"), 0)]
    assert editor.CodeText == ""


def test_reference_takes_only_what_the_argument_holds(table):
    seen = []

    def receiver(cancel, text):
        for wrong, error in (("x", TypeError), (1 << 20, OverflowError), (None, TypeError)):
            with pytest.raises(error):
                cancel.value = wrong
        with pytest.raises(TypeError):
            text.value = 3
        with pytest.raises(AttributeError):
            del cancel.value
        cancel.value = True
        seen.append((cancel.value, text.value, repr(text)))

    table.AfterLabelEdit.connect(receiver)
    assert orvtlistview.raiseEvent(table, "AfterLabelEdit", 0, "new") == [1, "new"]
    assert seen == [(1, "new", "Reference('new')")]
    with pytest.raises(TypeError):
        Reference()


def test_receivers_hear_in_their_order_and_see_what_was_changed(table):
    seen = []

    def add(text):
        seen.append(text.value)
        text.value += "+"

    table.StatusUpdate.connect(add)
    table.StatusUpdate.connect(add)
    assert orvtlistview.raiseEvent(table, "StatusUpdate", "a") == ["a++"]
    assert seen == ["a", "a+"]


def test_an_exception_in_a_receiver_goes_to_the_hook(table, raised):
    heard = []

    def fail(cancel):
        cancel.value = 1
        raise ValueError("in a receiver")

    table.BeforeLabelEdit.connect(fail)
    table.BeforeLabelEdit.connect(heard.append)
    assert orvtlistview.raiseEvent(table, "BeforeLabelEdit", 0) == [1]
    assert [type(raised.pop())] == [ValueError]
    assert len(heard) == 1


def test_an_exception_in_a_sink_is_reported_and_passed_over(table, monkeypatch):
    seen = []
    monkeypatch.setattr(sys, "unraisablehook", lambda told: seen.append(told.exc_type))

    def fail(number, arguments):
        arguments[0].value = 1
        raise ValueError("in a sink")

    orvtlistview.advise(table, fail)
    assert orvtlistview.raiseEvent(table, "BeforeLabelEdit", 0) == [1]
    assert seen == [ValueError]


def test_a_sink_that_cannot_be_compared_raises_what_it_raises(table):
    class Sink:
        def __call__(self, number, arguments):
            pass

        def __eq__(self, other):
            raise ValueError("not to be compared")

    orvtlistview.advise(table, Sink())
    with pytest.raises(ValueError):
        orvtlistview.unadvise(table, print)


@pytest.mark.parametrize("left", [[], [1], ["a", "b"]])
def test_a_sink_does_with_its_list_what_it_likes(table, left):
    def take(number, arguments):
        arguments[0].value = 1
        arguments[:] = left

    orvtlistview.advise(table, take)
    assert orvtlistview.raiseEvent(table, "BeforeLabelEdit", 0) == [1]


def test_a_receiver_that_is_gone_is_left_out(table):
    class Receiver(QObject):
        heard = 0

        @pyqtSlot(object)
        def hear(self, cancel):
            Receiver.heard += 1

    receiver = Receiver()
    table.BeforeLabelEdit.connect(receiver.hear)
    orvtlistview.raiseEvent(table, "BeforeLabelEdit", 0)
    del receiver
    orvtlistview.raiseEvent(table, "BeforeLabelEdit", 0)
    assert Receiver.heard == 1


def test_a_receiver_may_destroy_the_component(application):
    from PyQt6 import sip

    table = orvtlistview.ORVListView()
    row = table.Add(Text="row")
    table.BeforeLabelEdit.connect(lambda cancel: sip.delete(table))
    orvtlistview.raiseEvent(table, "BeforeLabelEdit", 0)
    with pytest.raises(RuntimeError):
        table.Caption
    with pytest.raises(orvtlistview.Error):
        row.Text


def test_changes_of_properties_are_told(table):
    told = []
    table.captionChanged.connect(lambda: told.append(table.Caption))
    table.Caption = "one"
    table.Caption = "two"
    assert told == ["one", "two"]
    signal = table.captionChanged
    assert signal is not None
    table.Caption = "three"
    assert told == ["one", "two", "three"]


def test_an_event_of_the_class_tells_of_itself():
    event = orvtlistview.ORVListView.BeforeLabelEdit
    assert repr(event) == "<event 2 BeforeLabelEdit>"


def test_an_unknown_event_is_refused(table):
    with pytest.raises(AttributeError):
        orvtlistview.raiseEvent(table, "Explode")
    with pytest.raises(TypeError):
        orvtlistview.raiseEvent(table, "BeforeLabelEdit")
    with pytest.raises(TypeError):
        orvtlistview.advise(object(), print)


def test_the_tree_s_nodes_come_with_clicks(tree):
    clicked = []
    tree.NodeClick.connect(lambda node: clicked.append(node.Key))
    tree.Nodes.Item(2).EnsureVisible()
    QApplication.processEvents()
    viewport = tree.findChildren(QObject, "TreeView1")[0].viewport()
    QTest.mouseClick(viewport, Qt.MouseButton.LeftButton, pos=QPoint(60, 8))
    assert clicked
