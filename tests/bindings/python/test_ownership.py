"""Parents own; what was handed out is good or raises, and never crashes."""

import gc
import random
import threading
import time
import weakref

import pytest
from PyQt6 import sip
from PyQt6.QtCore import QMimeData, QPoint, Qt, QTimer
from PyQt6.QtGui import QDragEnterEvent, QDragMoveEvent
from PyQt6.QtWidgets import QApplication, QWidget

import orvtlistview
from orvtlistview import Error, ErrorNumber, LwType, Point, PointCollection, PointList


def gone(call):
    with pytest.raises(Error) as caught:
        call()
    assert caught.value.number == ErrorNumber.ObjectNotSet


def test_a_parent_owns():
    parent = QWidget()
    table = orvtlistview.ORVListView(parent)
    lives = weakref.ref(table)
    del table
    gc.collect()
    assert lives() is not None
    table = lives()
    assert table.parent() is parent
    sip.delete(parent)
    with pytest.raises(RuntimeError):
        table.Caption


def test_without_a_parent_python_owns():
    table = orvtlistview.ORVListView()
    destroyed = []
    table.destroyed.connect(lambda: destroyed.append(True))
    lives = weakref.ref(table)
    del table
    gc.collect()
    assert lives() is None
    assert destroyed == [True]


def test_a_component_with_receivers_is_no_cycle():
    table = orvtlistview.ORVListView()
    table.BeforeLabelEdit.connect(print)
    table.captionChanged.connect(print)
    lives = weakref.ref(table)
    del table
    gc.collect()
    assert lives() is None


def test_a_host_that_hears_of_its_own_component_is_no_cycle():
    class Host:
        def __init__(self):
            self.table = orvtlistview.ORVListView()
            self.heard = []
            orvtlistview.advise(self.table, self.hear)
            self.table.BeforeLabelEdit.connect(self.refuse)

        def hear(self, number, arguments):
            self.heard.append(number)

        def refuse(self, cancel):
            self.heard.append(cancel)

    host = Host()
    orvtlistview.raiseEvent(host.table, "Click")
    assert host.heard == [3]
    orvtlistview.unadvise(host.table, host.hear)
    orvtlistview.raiseEvent(host.table, "Click")
    assert host.heard == [3]
    orvtlistview.advise(host.table, host.hear)
    lives, table = weakref.ref(host), host.table
    del host
    gc.collect()
    assert lives() is None
    orvtlistview.raiseEvent(table, "Click")


def test_what_was_handed_out_raises_once_its_keeper_is_gone():
    table = orvtlistview.ORVListView()
    row = table.Add(Text="row")
    rows, columns, pictures = table.ListItems, table.ColumnHerders, table.GetImage
    column = columns.Item(1)
    view, grid, items, box = table.codeView, table.listView.grid, table.listView, table.RTextBox
    assert row.isAlive
    sip.delete(table)
    for call in (lambda: row.Text, lambda: rows.Count, lambda: column.Width,
                 lambda: columns.Item(1), lambda: pictures.Count):
        gone(call)
    assert row.isAlive is False
    for call in (lambda: view.zoom, lambda: grid.rowsShown, lambda: items.MultiSelect,
                 lambda: box.Text, items.isVisible):
        with pytest.raises(RuntimeError):
            call()
    other = orvtlistview.ORVListView()
    with pytest.raises(Error):
        other.SelectedItem = row


def test_a_row_that_was_removed_raises(table):
    row = table.ListItems.Item(2)
    table.ListItems.Remove(2)
    assert row.isAlive is False
    gone(lambda: row.Text)


def test_nodes_of_a_tree_that_is_gone():
    tree = orvtlistview.ORVTreeview()
    tree.setDesignMode(True)
    nodes = [tree.Nodes.Item(index) for index in range(1, tree.Nodes.Count + 1)]
    child = nodes[0].Child
    del tree
    gc.collect()
    for node in [*nodes, child]:
        gone(lambda node=node: node.Text)


def test_data_of_a_drag_is_good_during_the_event():
    kept = []
    table = orvtlistview.ORVListView()

    def over(data, effect, button, shift, x, y, state):
        kept.append(data)
        assert data.GetFormat(1)
        assert data.GetData(1) == "text"
        effect.value = 1

    table.OLEDragOver.connect(over)
    table.ListviewType = LwType.dsInput
    table.listView.setAcceptDrops(True)
    table.show()
    mime = QMimeData()
    mime.setText("text")
    event = QDragEnterEvent(QPoint(5, 5), Qt.DropAction.CopyAction, mime,
                            Qt.MouseButton.LeftButton, Qt.KeyboardModifier.NoModifier)
    viewport = table.listView.viewport()
    QApplication.sendEvent(viewport, event)  # only the move that follows is told
    QApplication.sendEvent(viewport, QDragMoveEvent(
        QPoint(5, 5), Qt.DropAction.CopyAction, mime, Qt.MouseButton.LeftButton,
        Qt.KeyboardModifier.NoModifier))
    assert len(kept) == 1
    gone(lambda: kept[0].GetFormat(1))


def test_lists_of_points_are_kept_by_what_they_were_given_to():
    tree = orvtlistview.ORVTreeview()
    tree.setDesignMode(True)
    inputs = PointList()
    inputs.Add("A")
    tree.SetCollectionRenamable(None, None, None, inputs, None, None)
    del inputs
    gc.collect()
    combo = orvtlistview.ORVDataCombo()
    combo.FillDataListview(LwType.dsInput, None)
    assert combo.ListCount == 1
    tree.SetCollectionRenamable(None, None, None, PointList(), None, None)
    combo.FillDataListview(LwType.dsInput, None)
    assert combo.ListCount == 0
    sip.delete(tree)
    del tree
    gc.collect()
    combo.FillDataListview(LwType.dsInput, None)


class Ten(PointCollection):
    """A host's own points."""

    def __init__(self, fails=False):
        super().__init__()
        self.fails = fails

    def Count(self):
        if self.fails:
            raise Error(77, "Ten.Count", "No connection")
        return 10

    def Item(self, index):
        return Point(f"P{index}", index) if 1 <= index <= 10 else None

    def Find(self, key):
        return next((self.Item(i) for i in range(1, 11) if f"P{i}" == key), None)


def test_points_of_a_class_of_python():
    tree = orvtlistview.ORVTreeview()
    tree.setDesignMode(True)
    own = Ten()
    tree.SetCollectionRenamable(None, None, None, own, None, None)
    combo = orvtlistview.ORVDataCombo()
    assert combo.FillDataListview(LwType.dsInput, None) == ""
    assert combo.ListCount == 10
    own.fails = True
    assert "No connection" in combo.FillDataListview(LwType.dsInput, None)
    assert combo.ListCount == 10


def test_what_is_handed_out_only_is_not_made():
    for name in ("ListItem", "Node", "Nodes", "DataObject", "ColumnHeaders"):
        with pytest.raises(TypeError):
            getattr(orvtlistview, name)()
    for name in ("CodeView", "ListGrid"):
        with pytest.raises(TypeError):
            getattr(orvtlistview, name)()


def test_python_runs_in_other_threads_while_a_member_waits(editor):
    count, stop = [0], threading.Event()

    def work():
        while not stop.is_set():
            count[0] += 1
            time.sleep(0.001)

    seen = []
    thread = threading.Thread(target=work)
    thread.start()

    def close():
        seen.append(count[0])
        QTimer.singleShot(100, finish)

    def finish():
        seen.append(count[0])
        for window in QApplication.topLevelWidgets():
            if window is not editor and window.isVisible():
                window.close()

    QTimer.singleShot(0, close)
    editor.FindInRichtext("")
    stop.set()
    thread.join()
    assert seen[1] > seen[0]


def test_a_derived_class_is_the_component(application):
    class Mine(orvtlistview.ORVListView):
        shown = 0

        def showEvent(self, event):
            Mine.shown += 1
            super().showEvent(event)

    parent = QWidget()
    mine = Mine(parent)
    mine.Caption = "mine"
    del mine
    gc.collect()
    found = parent.findChild(orvtlistview.ORVListView)
    assert type(found) is Mine and found.Caption == "mine"
    parent.show()
    assert Mine.shown == 1


def test_a_class_whose_constructor_calls_no_base():
    class Wrong(orvtlistview.ORVListView):
        def __init__(self):
            pass

    with pytest.raises(RuntimeError):
        Wrong().Caption


KINDS = (orvtlistview.ORVListView, orvtlistview.ORVTreeview, orvtlistview.ORVDataCombo,
         orvtlistview.ORVRichText, orvtlistview.ReportList, orvtlistview.RichTextBox, PointList,
         orvtlistview.HoverAnswer)


def handed(thing, chance):
    """Something that it hands out, often held for longer than it lives."""
    if isinstance(thing, orvtlistview.ORVListView):
        return chance.choice((thing.ListItems, thing.codeView, thing.listView.grid, thing.Add(),
                              thing.ColumnHerders, thing.RTextBox, thing.GetImage))
    if isinstance(thing, orvtlistview.ORVTreeview):
        return chance.choice((thing.Nodes, thing.Nodes.Item(1), thing.GetLWTypeKeyCollection()))
    if isinstance(thing, orvtlistview.ReportList):
        return chance.choice((thing.Add(), thing.grid, thing.ColumnHeaders))
    return thing


def touch(thing):
    """Whatever it is, it answers or raises."""
    for name in ("Text", "Count", "zoom", "rowsShown", "Caption", "isAlive"):
        try:
            getattr(thing, name, None)
        except (Error, RuntimeError):
            pass


def drop(thing, chance):
    if isinstance(thing, QWidget) and not sip.isdeleted(thing):
        way = chance.randrange(3)
        if way == 0:
            sip.delete(thing)
        elif way == 1:
            thing.deleteLater()


def test_a_thousand_creations_and_deletions():
    chance = random.Random(17)
    living, parents, held = [], [], []
    for step in range(1000):
        kind = chance.choice(KINDS)
        if issubclass(kind, QWidget) and chance.random() < 0.5:
            parents.append(QWidget())
            thing = kind(parents[-1])
        else:
            thing = kind()
        if isinstance(thing, orvtlistview.ORVTreeview):
            thing.setDesignMode(True)
        if chance.random() < 0.3 and hasattr(thing, "KeyDown"):
            thing.KeyDown.connect(lambda code, shift: None)
        living.append(thing)
        held.append(handed(thing, chance))
        if chance.random() < 0.9:
            drop(living.pop(chance.randrange(len(living))), chance)
        if parents and chance.random() < 0.4:
            sip.delete(parents.pop(chance.randrange(len(parents))))
        for each in chance.sample(held, min(3, len(held))):
            touch(each)
        if step % 50 == 0:
            QApplication.processEvents()
            gc.collect()
    living.clear()
    parents.clear()
    gc.collect()
    for each in held:
        touch(each)
