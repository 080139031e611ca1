"""Parents own; what was handed out is good or raises, and never crashes."""

import gc
import threading
import time
import weakref

import pytest
from PyQt6 import sip
from PyQt6.QtCore import QMimeData, QPoint, Qt, QTimer
from PyQt6.QtGui import QDragEnterEvent, QDragMoveEvent
from PyQt6.QtWidgets import QApplication, QWidget

import orvtlistview
from orvtlistview import Error, ErrorNumber, LwType


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
