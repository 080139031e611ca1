"""A host that knows names and numbers only: every member is reached by its name, every
event arrives by its number, and what a call hands out is called on."""

import sys

from PyQt6.QtWidgets import QApplication

from orvtlistview import Error, LwType, ORVListView, advise, callLate

BEFORE_LABEL_EDIT = 2  # the numbers are published: docs/guide/events.md lists them
OPENING_PROGRESS = 1


def table_event(number, arguments):
    print(f"Event {number} of the table")
    if number == BEFORE_LABEL_EDIT:
        arguments[0].value = 1  # Cancel


def editor_event(number, arguments):
    if number == OPENING_PROGRESS and arguments[0] == 100:
        print("The program is open", flush=True)


def tried(owner, name, *arguments):
    try:
        return callLate(owner, name, *arguments)
    except (Error, AttributeError) as error:
        print(error)


def main():
    application = QApplication(sys.argv)
    table = ORVListView()
    advise(table, table_event)
    callLate(table, "listviewtype", LwType.dsVariable)
    callLate(table, "ChangeListviewNumber", 3)
    value = callLate(callLate(table, "ColumnHerders"), "Item", "Value")
    place = callLate(value, "Index") - 1  # sub-items begin behind the first column
    callLate(table, "UpdateSubItems", "on", "", place)
    second = callLate(callLate(table, "ListItems"), "Item", 2)
    print(f"{callLate(table, 'Key')}, row {callLate(second, 'Text')}: "
          f"{callLate(second, 'SubItem', place)}")
    table.show()
    callLate(table, "SelectedItem", second)
    callLate(table, "StartLabelEdit")  # cancelled by the sink
    tried(table, "Brightness", 100)
    tried(second, "SubItem", 99)

    callLate(table, "ListviewType", LwType.dsCode)
    callLate(table, "Init_RichTextBox", {"BackColor": 0xFFFFFF, "ReservedWordColor": 0xA00000})
    view = callLate(table, "codeView")
    advise(view, editor_event)
    callLate(view, "lineNumbersVisible", True)
    callLate(view, "openProgram", "IF 1 = 1\nENDIF")
    return application.exec()


if __name__ == "__main__":
    sys.exit(main())
