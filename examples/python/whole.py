"""A host of the whole: the project tree chooses what the pane beside it shows, a table of
points or the program; the combo below offers the inputs."""

import sys

from PyQt6.QtCore import Qt
from PyQt6.QtWidgets import QApplication, QSplitter

from orvtlistview import (LwType, ORVDataCombo, ORVListView, ORVTreeview, PointList,
                          RichTextSettings)


def show_inputs(table, inputs):
    table.NumberItems = inputs.Count
    for number in range(1, inputs.Count + 1):
        table.ListItems.Item(number).setSubItem(1, inputs.Item(number).Name)


def points(**values):
    made = PointList()
    for name, value in values.items():
        made.Add(name, value)
    return made


def main():
    application = QApplication(sys.argv)
    inputs = points(SupplyTemp=101, OutsideTemp=102)
    outputs = points(HeatingValve=201)

    window = QSplitter()
    tree = ORVTreeview(window)
    pane = QSplitter(Qt.Orientation.Vertical, window)
    table, editor, combo = ORVListView(pane), ORVListView(pane), ORVDataCombo(pane)
    tree.SetCollectionRenamable(window, points(), points(), inputs, outputs, points())

    table.ListviewType = LwType.dsInput
    show_inputs(table, inputs)
    editor.ListviewType = LwType.dsCode
    editor.Init_RichTextBox(RichTextSettings(  # colours are 0x00BBGGRR
        BackColor=0xFFFFFF, InputColor=0x0000C0, OutputColor=0xFF0080))
    editor.openProgram("if (supplytemp < 18)\n  heatingvalve = 100\nendif")
    combo.FillDataListview(LwType.dsInput, None)

    def choose(node):
        kind = node.Tag  # -1 the device, 13 and up a page
        if not LwType.dsCode < kind <= LwType.dsOutputParam:
            return
        table.ListviewType = LwType(kind)
        if kind == LwType.dsInput:
            show_inputs(table, inputs)

    def pick():
        table.SelectedItem = table.FindItem(combo.Text, Where=1)

    tree.NodeClick.connect(choose)
    combo.picked.connect(pick)
    window.setStretchFactor(1, 1)
    window.resize(1000, 700)
    window.show()
    print(f"{table.ListItems.Count} inputs, {combo.ListCount} points to pick")
    print(editor.CodeText.splitlines()[0], flush=True)
    return application.exec()


if __name__ == "__main__":
    sys.exit(main())
