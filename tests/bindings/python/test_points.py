"""Lists of points that Python hands in: those that are ready, and those of a host's own."""

import gc

import pytest
from PyQt6 import sip

import orvtlistview
from orvtlistview import Error, LwType, Point, PointCollection, PointList


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


def test_points_whose_class_lacks_a_member_say_so():
    class Half(PointCollection):
        def Count(self):
            return 1

    half = Half()
    assert half.Count() == 1
    with pytest.raises(RuntimeError, match="Half has no Item of its own"):
        half.Item(1)
    with pytest.raises(RuntimeError, match="PointCollection has no Count of its own"):
        PointCollection().Count
