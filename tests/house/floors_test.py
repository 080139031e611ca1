#!/usr/bin/env python3
"""floors.py passes on a small house and fails on each way to break its order."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

FLOORS = pathlib.Path(__file__).with_name("floors.py")
HOUSE = {
    "floors.txt": "# lowest first\ncore base\ncore editor/rules\n"
                  "widgets widgets/look\nwidgets editor find\n",
    "base/Error.h": "#include <QtCore/QString>\n",
    "base/Text.h": "",
    "editor/rules/Words.h": '#include "base/Error.h"\n',
    "editor/rules/Words.cpp": '#include "editor/rules/Words.h"\n#include <vector>\n',
    "widgets/look/published/Image.h": "#include <QtWidgets/QWidget>\n",
    "editor/Editor.h": "#include <ORVTListview/Image.h>\n",
    "editor/Editor.cpp": '#include "editor/Editor.h"\n#include "editor/rules/Words.h"\n',
    "find/Find.h": '#include "editor/rules/Words.h"\n',
}
PAGE = ("<!-- floors -->\n\n```\nwidgets editor find\nwidgets widgets/look\n"
        "core editor/rules\ncore base\n```\n")


class FloorsTest(unittest.TestCase):
    def faults(self, changes, page=PAGE):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            (root / "page.md").write_text(page)
            for name, text in {**HOUSE, **changes}.items():
                (root / "src" / name).parent.mkdir(parents=True, exist_ok=True)
                (root / "src" / name).write_text(text)
            run = subprocess.run(
                [sys.executable, FLOORS, root / "src", "--circles", "--page", root / "page.md"],
                capture_output=True, text=True, check=False)
            self.assertEqual(run.stderr, "")
            self.assertEqual(run.returncode, 1 if run.stdout else 0)
            return [line.replace(str(root / "src") + "/", "").replace(str(root) + "/", "")
                    for line in run.stdout.splitlines()]

    def test_a_house_in_order(self):
        self.assertEqual(self.faults({}), [])

    def test_up(self):
        self.assertEqual(self.faults({"base/Error.h": '#include "editor/rules/Words.h"\n'}),
                         ["a circle of units: base/Error, editor/rules/Words",
                          "base/Error.h: goes up to editor/rules/Words.h"])

    def test_up_by_the_published_name(self):
        self.assertEqual(self.faults({"base/Text.h": "#include <ORVTListview/Image.h>\n"}),
                         ["base/Text.h: goes up to widgets/look/published/Image.h"])

    def test_sideways(self):
        self.assertEqual(self.faults({"find/Find.h": '#include "editor/Editor.h"\n'}),
                         ["find/Find.h: goes sideways to editor/Editor.h"])

    def test_a_circle_in_a_room(self):
        self.assertEqual(self.faults({"base/Error.h": '#include "base/Text.h"\n',
                                      "base/Text.h": '#include "base/Error.h"\n'}),
                         ["a circle of units: base/Error, base/Text"])

    def test_a_widget_in_the_core(self):
        self.assertEqual(self.faults({"base/Text.h": "#include <QtGui/QColor>\n"}),
                         ["base/Text.h: a widget in the core: QtGui/QColor"])

    def test_a_room_without_a_floor(self):
        self.assertEqual(self.faults({"cellar/Wine.h": ""}),
                         ["cellar/Wine.h: no floor has the room cellar"])

    def test_a_path_that_tells_another_library(self):
        floors = HOUSE["floors.txt"].replace("core editor/rules", "widgets editor/rules")
        self.assertIn("editor/rules/Words.h: its path and its floor tell different libraries",
                      self.faults({"floors.txt": floors}))

    def test_a_published_header_that_needs_the_house(self):
        image = '#include "editor/rules/Words.h"\n'
        self.assertEqual(self.faults({"widgets/look/published/Image.h": image}),
                         ["widgets/look/published/Image.h: published, needs the house's own "
                          "editor/rules/Words.h"])

    def test_a_page_that_draws_other_floors(self):
        page = PAGE.replace("core base\n", "")
        self.assertEqual(self.faults({}, page),
                         ["page.md: draws other floors than floors.txt, top floor first"])


if __name__ == "__main__":
    unittest.main()
