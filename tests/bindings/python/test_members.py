"""Members do in Python what they do in C++."""

import pytest
from PyQt6.QtCore import Qt
from PyQt6.QtGui import QColor, QUndoStack
from PyQt6.QtWidgets import QLabel, QTableView, QWidget

import orvtlistview
from orvtlistview import CellRule, Error, ErrorNumber, LwType, PointList, Problem


def test_property_is_read_and_set(table):
    assert table.ListviewType is LwType.dsInput
    table.Caption = "Sensors"
    assert table.Caption == "Sensors"
    table.setCaption("By a method, as forms do it")
    assert table.Caption == "By a method, as forms do it"


def test_texts_of_every_kind_come_back(table):
    for text in ("", "plain", "Gerät", "温度", "𝄞 beyond", "a\0b", "\ud800"):
        table.Caption = text
        assert table.Caption == text


def test_property_that_is_only_read_or_only_set(table):
    with pytest.raises(AttributeError):
        table.Key = "other"
    with pytest.raises(AttributeError):
        table.IsWait
    table.IsWait = True


def test_rows_columns_and_cells(table):
    rows = table.ListItems
    assert rows.Count == 4
    row = rows.Item(2)
    row.Text = "02"
    row.setSubItem(3, "21.5")
    assert (row.Index, row.Text, row.SubItem(3)) == (2, "02", "21.5")
    row.Key = "second"
    assert rows.Item("second") == row
    assert rows.Item(2) == row and hash(rows.Item(2)) == hash(row)
    assert rows.Item(1) != row
    assert table.ColumnHerders.Item(1).Width > 0


def test_arguments_by_name_and_left_out(table):
    row = table.Add(Text="last", Key="k")
    assert (row.Index, row.Key, row.Text) == (5, "k", "last")
    assert table.Add().Index == 6
    assert table.Add(1, Text="first").Index == 1


def test_wrong_arguments_are_python_s_errors(table):
    row = table.ListItems.Item(1)
    for arguments in ((), ("x",), (1, 2, 3), (None,), (1.5,)):
        with pytest.raises(TypeError):
            row.SubItem(*arguments)
    with pytest.raises(TypeError, match="no place"):
        table.Add(Colour="red")
    with pytest.raises(TypeError, match="no place"):
        table.Add(1, Index=1)
    with pytest.raises(OverflowError):
        table.ChangeListviewNumber(40000)
    with pytest.raises(OverflowError):
        row.SubItem(1 << 70)
    with pytest.raises(OverflowError):
        table.HitTest(1e300, 0)
    assert table.ListItems.Count == 4


def test_failure_is_an_exception_with_number_and_source(table):
    with pytest.raises(Error) as caught:
        table.ListItems.Item(1).SubItem(99)
    assert caught.value.number == ErrorNumber.SubscriptOutOfRange
    assert caught.value.source == "ListItem.SubItem"
    assert caught.value.description
    assert "ListItem.SubItem" in str(caught.value)
    with pytest.raises(Error) as caught:
        table.ListItems.Item("nowhere")
    assert caught.value.number == ErrorNumber.InvalidCall


def test_what_goes_both_ways_comes_back(editor):
    editor.CodeText = "alpha beta"
    word, start, where, colour = editor.GetWholeWord(8)
    assert (word, start, where) == ("beta", 8, 7)
    assert isinstance(colour, int)
    assert editor.Undo() == ""
    assert editor.Undo("as it was") == "as it was"
    assert editor.TryToPopupList() in (True, False)


def test_a_method_of_another_class_is_refused(table):
    with pytest.raises(TypeError):
        orvtlistview.ORVListView.Add(QLabel())
    with pytest.raises(TypeError):
        orvtlistview.ListItem.SubItem(table.ListItems, 1)
    with pytest.raises(TypeError):
        orvtlistview.ListItem.SubItem()


def test_records_are_objects_or_dicts(editor):
    view = editor.codeView
    editor.CodeText = "a\r\nb"
    view.setProblems([Problem(line=1, text="?"), {"line": 2, "text": "!"}])
    assert [(each.line, each.text) for each in view.problems()] == [(1, "?"), (2, "!")]
    assert isinstance(view.problems()[0], Problem)
    with pytest.raises(TypeError, match="no field"):
        view.setProblems([{"line": 1, "colour": 3}])
    with pytest.raises(TypeError):
        view.setProblems([{"line": "one"}])
    with pytest.raises(TypeError):
        view.setProblems([1])
    assert len(view.problems()) == 2


def test_maps_of_records(table):
    grid = table.listView.grid
    rule = CellRule(kind=CellRule.Kind.Number, minimum=-40.0, unit="°C")
    grid.setRules("dsInput", {"Value": rule})
    back = grid.rules("dsInput")
    assert list(back) == ["Value"]
    assert back["Value"] == rule
    assert back["Value"].kind is CellRule.Kind.Number
    assert back["Value"].maximum == float("inf")


def test_values_of_the_toolkit(table):
    row = table.ListItems.Item(1)
    row.foreground = QColor("teal")
    assert row.foreground == QColor("teal")
    column = table.ColumnHerders.Item(2)
    column.alignment = Qt.AlignmentFlag.AlignRight
    assert column.alignment == Qt.AlignmentFlag.AlignRight
    stack = QUndoStack()
    table.listView.grid.undoStack = stack
    assert table.listView.grid.undoStack is stack
    table.listView.grid.undoStack = None
    assert not table.GetImage.Picture(61).isNull()
    table.FormParent = QWidget()


def test_parts_are_widgets_of_the_toolkit(table):
    assert isinstance(table.listView, QTableView)
    assert isinstance(table.listView, orvtlistview.ReportList)
    assert table.listView is table.listView
    assert table.findChild(orvtlistview.ReportList) is table.listView
    assert isinstance(table.codeView, orvtlistview.CodeView)


def test_any_value_is_a_tag(tree):
    node = tree.Nodes.Item(1)
    for value in (3, "text", 2.5, True, None, [1, "a"], {"a": 1}):
        node.Tag = value
        assert node.Tag == value
    own = object()
    node.Tag = own
    assert node.Tag is own


def test_nodes(tree):
    device = tree.Nodes.Item("Device")
    assert device.Parent is None
    assert device.Child.Parent == device
    assert device.Children >= 1
    page = device.Child
    new = tree.Nodes.Add(page, orvtlistview.NodeRelationship.Child, "mine", "Mine")
    assert new.Parent == page
    new.MoveTo(device)
    assert new.Parent == device
    assert tree.Nodes.Item("mine") == new


def test_keyed_collections_are_values(tree):
    texts = tree.GetLWTypeKeyCollection()
    numbers = tree.GetLWTypeIndexCollection()
    assert texts.Count == numbers.Count == 13
    assert [numbers.Item(text) for text in map(texts.Item, texts.Keys)] == [
        numbers.Item(place) for place in range(1, 14)]
    own = orvtlistview.KeyedTexts()
    own.Add("item", "key")
    assert own.Item("KEY") == own.Item(1) == "item"
    assert own.Keys == ["key"]
    with pytest.raises(Error):
        own.Add("again", "Key")


def test_points_reach_the_combo(tree):
    inputs = PointList()
    inputs.Add("SupplyTemp", 101)
    inputs.Add("OutsideTemp", 102)
    tree.SetCollectionRenamable(None, None, None, inputs, None, None)
    combo = orvtlistview.ORVDataCombo()
    assert combo.FillDataListview(LwType.dsInput, None) == ""
    assert combo.ListCount == 2
    point = inputs.Find("SUPPLYTEMP")
    assert point == orvtlistview.Point(Name="SupplyTemp", Data=101)
    combo.SetListIndex("SupplyTemp")
    assert combo.ItemData(combo.ListIndex) == 101


def test_help_tells_what_the_tables_know():
    assert "SubItem" in orvtlistview.ListItem.SubItem.__doc__
    assert "Unit: twip" in orvtlistview.ColumnHeader.Width.__doc__
    assert "Event 2" in orvtlistview.ORVListView.BeforeLabelEdit.__doc__
