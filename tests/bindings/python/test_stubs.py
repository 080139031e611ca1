"""The type stubs and the examples, as a type checker sees them."""

import os
import subprocess
import sys

import pytest
from conftest import SOURCE

import orvtlistview

pytest.importorskip("mypy", reason="mypy is not installed")
PACKAGE = orvtlistview.__path__[0]
EXAMPLES = sorted((SOURCE / "examples/python").glob("*.py"))


@pytest.fixture(scope="module")
def cache(tmp_path_factory):
    """What the checker has read of the toolkit's stubs."""
    return tmp_path_factory.mktemp("cache")


def checked(cache, *files):
    return subprocess.run(
        [sys.executable, "-m", "mypy", "--check-untyped-defs", f"--cache-dir={cache}",
         *map(str, files)],
        env={**os.environ, "MYPYPATH": os.path.dirname(PACKAGE)}, cwd=cache,
        capture_output=True, text=True, check=False)


def test_stubs_and_examples_have_no_error(cache):
    result = checked(cache, f"{PACKAGE}/__init__.pyi", *EXAMPLES)
    assert result.returncode == 0, result.stdout


def test_what_the_tables_forbid_is_an_error(cache, tmp_path):
    wrong = tmp_path / "wrong.py"
    wrong.write_text("from orvtlistview import ORVListView\n"
                     "def change(table: ORVListView) -> None:\n"
                     "    table.Caption = 5\n"
                     "    table.NumberItems = 'many'\n"
                     "    table.CurrentType = table.ListviewType\n"
                     "    table.Brightness()\n", encoding="utf-8")
    told = checked(cache, wrong).stdout
    for line in (3, 4, 5, 6):
        assert f"wrong.py:{line}: error" in told, told
