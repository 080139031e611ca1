"""A form made in Designer, with all components on it: form.py [FORM]."""

import pathlib
import sys

from PyQt6.QtWidgets import QApplication
from PyQt6.uic import loadUi

from orvtlistview import LwType

FORM = pathlib.Path(__file__).resolve().parent.parent / "form" / "form.ui"


def main():
    application = QApplication(sys.argv)
    window = loadUi(sys.argv[1] if len(sys.argv) > 1 else FORM)

    def choose(node):
        if LwType.dsCode <= node.Tag <= LwType.dsOutputParam:
            window.listView.ListviewType = LwType(node.Tag)

    window.treeview.NodeClick.connect(choose)
    window.show()
    print(f"{window.listView.Caption}, {window.dataCombo.Text}", flush=True)
    return application.exec()


if __name__ == "__main__":
    sys.exit(main())
