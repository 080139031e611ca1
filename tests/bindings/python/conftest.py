"""What every test of the package for Python has: an application, and no settings of a user."""

import faulthandler
import gc
import os
import pathlib
import sys

import pytest

faulthandler.enable()
os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")
os.environ.setdefault("ORVT_SETTINGS_FILE", "/dev/null/none")
sys.path.insert(0, os.environ["ORVT_PYTHON_PATH"])

from PyQt6.QtWidgets import QApplication  # noqa: E402

import orvtlistview  # noqa: E402

MEMBERS_JSON = pathlib.Path(os.environ["ORVT_MEMBERS_JSON"])
SOURCE = pathlib.Path(os.environ["ORVT_SOURCE_DIR"])


@pytest.fixture(scope="session", autouse=True)
def application():
    """The one of the process."""
    yield QApplication.instance() or QApplication([])


@pytest.fixture(autouse=True)
def raised(monkeypatch):
    """The exceptions that receivers let go, which else would end the program. A test that
    expects them takes them out."""
    seen = []
    monkeypatch.setattr(sys, "excepthook", lambda kind, value, trace: seen.append(value))
    yield seen
    assert not seen


@pytest.fixture
def table():
    """A table of four inputs that is shown."""
    made = orvtlistview.ORVListView()
    made.ListviewType = orvtlistview.LwType.dsInput
    made.ChangeListviewNumber(4)
    made.resize(640, 300)
    made.show()
    QApplication.processEvents()
    yield made
    made.close()
    del made
    gc.collect()


@pytest.fixture
def tree():
    """A project tree that saves nothing."""
    made = orvtlistview.ORVTreeview()
    made.setDesignMode(True)
    made.resize(300, 400)
    made.show()
    QApplication.processEvents()
    yield made
    made.close()


@pytest.fixture
def editor():
    """An editor that is ready for programs."""
    made = orvtlistview.ORVListView()
    made.ListviewType = orvtlistview.LwType.dsCode
    made.Init_RichTextBox({"BackColor": 0xFFFFFF})
    made.resize(640, 300)
    made.show()
    QApplication.processEvents()
    yield made
    made.close()
