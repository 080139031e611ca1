"""The examples do what they say, each a program of its own."""

import os
import subprocess
import sys

import pytest
from conftest import SOURCE

EXAMPLES = SOURCE / "examples/python"
EXPECTED = {
    "latebound": [
        "Variables, row 02: on", "Event 2 of the table", "ORVListView has no member Brightness",
        "ListItem.SubItem: There is no sub-item 99 (9)", "The program is open"],
    "whole": ["2 inputs, 2 points to pick", "IF (SupplyTemp < 18)"],
    "form": ["Valves and pumps, SupplyTemp"],
}

# The event loop ends soon, and forms are loaded by the plugin as it will be installed.
SOON = """
import runpy, sys
from PyQt6 import uic
from PyQt6.QtCore import QTimer
from PyQt6.QtWidgets import QApplication
uic.widgetPluginPath.append({plugins!r})
run = QApplication.exec
def soon(*arguments):
    QTimer.singleShot(500, QApplication.quit)
    return run()
QApplication.exec = soon
sys.argv = [{path!r}]
runpy.run_path({path!r}, run_name="__main__")
"""


def output(path):
    program = SOON.format(path=str(path), plugins=os.environ["ORVT_FORM_PLUGINS"])
    environment = {**os.environ, "PYTHONPATH": os.environ["ORVT_PYTHON_PATH"]}
    done = subprocess.run([sys.executable, "-X", "faulthandler", "-c", program], text=True,
                          env=environment, capture_output=True, timeout=120)
    assert done.returncode == 0, done.stdout + done.stderr
    assert "Traceback" not in done.stderr
    return done.stdout


@pytest.mark.parametrize("name", EXPECTED)
def test_example(name):
    told = output(EXAMPLES / f"{name}.py")
    for line in EXPECTED[name]:
        assert line in told


def test_a_compiled_form():
    program = f"""
from io import StringIO
from PyQt6 import uic
from PyQt6.QtWidgets import QApplication, QWidget
uic.widgetPluginPath.append({os.environ["ORVT_FORM_PLUGINS"]!r})
made = StringIO()
uic.compileUi({str(SOURCE / "examples/form/form.ui")!r}, made)
names = {{}}
exec(made.getvalue(), names)
application = QApplication([])
window, form = QWidget(), names["Ui_Form"]()
form.setupUi(window)
print(form.listView.Caption, form.listView.ListviewType.name, form.dataCombo.Text)
"""
    environment = {**os.environ, "PYTHONPATH": os.environ["ORVT_PYTHON_PATH"]}
    done = subprocess.run([sys.executable, "-c", program], text=True, env=environment,
                          capture_output=True, timeout=120)
    assert done.stdout == "Valves and pumps dsOutput SupplyTemp\n", done.stderr


def test_every_example_is_run():
    assert {each.stem for each in EXAMPLES.glob("*.py")} == set(EXPECTED)
