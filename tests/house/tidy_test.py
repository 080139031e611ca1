#!/usr/bin/env python3
"""tidy.py reads files together, keeps apart what has the same local names, and fails on
a finding in any of them."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

TIDY = pathlib.Path(__file__).with_name("tidy.py")
GOOD = "namespace {\n\nint one()\n{\n    return 1;\n}\n\n} // namespace\nint %s() { return one(); }\n"
BAD = "int *none() { return 0; }\n"


class TidyTest(unittest.TestCase):
    def run_on(self, files):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            (root / ".clang-tidy").write_text("Checks: '-*,modernize-use-nullptr'\n")
            (root / "src").mkdir()
            paths = []
            for name, text in files.items():
                paths.append(root / "src" / name)
                paths[-1].write_text(text)
            return subprocess.run([sys.executable, TIDY, "--includes", "", root, *paths],
                                  capture_output=True, text=True, check=False)

    def test_local_names_do_not_meet(self):
        run = self.run_on({"First.cpp": GOOD % "first", "Second.cpp": GOOD % "second"})
        self.assertEqual((run.returncode, run.stdout), (0, ""))

    def test_a_finding_fails(self):
        run = self.run_on({"First.cpp": GOOD % "first", "Bad.cpp": BAD})
        self.assertEqual(run.returncode, 1)
        self.assertIn("Bad.cpp:1:", run.stdout)

    def test_a_file_that_does_not_compile_fails(self):
        self.assertEqual(self.run_on({"Broken.cpp": "int broken(\n"}).returncode, 1)


if __name__ == "__main__":
    unittest.main()
