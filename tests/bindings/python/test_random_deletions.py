"""Components that come and go at random, and what they handed out with them, never crash."""

import gc
import random

from PyQt6 import sip
from PyQt6.QtWidgets import QApplication, QWidget

import orvtlistview
from orvtlistview import Error, PointList

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
