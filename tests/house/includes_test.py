#!/usr/bin/env python3
"""includes.py passes on a small house and fails on a class that nobody includes."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

INCLUDES = pathlib.Path(__file__).with_name("includes.py")
HOUSE = {
    "cmake/PrecompiledHeaders.cmake": "set(headers <QtCore/QDir> <QtGui/QTextCursor>)\n",
    "src/box/Box.h": "#include <QtGui/QTextCursor>\nclass QDir;\n",
    "src/box/Box.cpp": '#include "box/Box.h"\nQTextCursor at() { return {}; }\n',
    "src/box/Named.cpp": "class QDir;\n// QTextCursor cursor;\nvoid read(const QDir &);\n"
                         'const char *name = "QDir()";\n',
}


class IncludesTest(unittest.TestCase):
    def faults(self, changes):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in {**HOUSE, **changes}.items():
                path = pathlib.Path(folder, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text)
            run = subprocess.run([sys.executable, INCLUDES, folder],
                                 capture_output=True, text=True, check=False)
            self.assertEqual(run.stderr, "")
            self.assertEqual(run.returncode, 1 if run.stdout else 0)
            return run.stdout.splitlines()

    def test_what_a_header_of_the_house_includes_is_there(self):
        self.assertEqual(self.faults({}), [])

    def test_a_class_by_value_is_included(self):
        self.assertEqual(self.faults({"src/box/Box.cpp": "QTextCursor at() { return {}; }\n"}),
                         ["src/box/Box.cpp: uses QTextCursor, includes it nowhere"])

    def test_a_forward_declaration_is_not_enough(self):
        self.assertEqual(
            self.faults({"src/box/Box.cpp": '#include "box/Box.h"\nQDir home() { return QDir(); }\n'}),
            ["src/box/Box.cpp: uses QDir, includes it nowhere"])

    def test_a_pointer_that_is_followed_needs_the_class(self):
        text = "class QDir;\nvoid clean(QDir *folder) { folder->refresh(); }\n"
        self.assertEqual(self.faults({"src/box/Box.cpp": text}),
                         ["src/box/Box.cpp: uses QDir, includes it nowhere"])


if __name__ == "__main__":
    unittest.main()
