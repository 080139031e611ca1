#!/usr/bin/env python3
"""tools/mutate changes what is code, one place at a time, and believes no single failure."""

import importlib.machinery
import importlib.util
import pathlib
import sys
import tempfile
import types
import unittest

sys.dont_write_bytecode = True
TOOL = pathlib.Path(__file__).resolve().parents[2] / "tools" / "mutate"
sys.path.insert(0, str(TOOL.parent))


def load():
    loader = importlib.machinery.SourceFileLoader("mutate", str(TOOL))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader("mutate", loader))
    loader.exec_module(module)
    return module


class MutateTest(unittest.TestCase):
    def setUp(self):
        self.mutate = load()

    def changed(self, line):
        with tempfile.TemporaryDirectory() as folder:
            self.mutate.ROOT = pathlib.Path(folder)
            (self.mutate.ROOT / "file.cpp").write_text(f"before\n{line}\nbehind\n")
            mutants = list(self.mutate.mutants_of("file.cpp"))
            for mutant in mutants:
                self.assertEqual(mutant.line, 2)
                self.assertEqual(mutant.text(), f"before\n{mutant.after}\nbehind\n")
            return {mutant.after.strip() for mutant in mutants}

    def test_conditions(self):
        self.assertEqual(self.changed("    if (a < b && c)"),
                         {"if (a <= b && c)", "if (a < b || c)", "if (!(a < b && c))"})
        self.assertEqual(self.changed("    return !a;"), {"return a;"})

    def test_arithmetic_and_constants(self):
        self.assertEqual(self.changed("    x = a + 7;"), {"x = a - 7;", "x = a + 8;"})
        self.assertEqual(self.changed("    return true;"), {"return false;"})

    def test_calls_are_left_out(self):
        self.assertEqual(self.changed("    m_box.setText(kept);"), {";"})
        self.assertEqual(self.changed('    note(u"a < b 1"_s);'), {";"})

    def test_texts_and_comments_stay(self):
        self.assertEqual(self.changed('    name = u"a < b 1 true"_s; // a == 1'), set())
        self.assertEqual(self.changed("    sign = u'1';"), set())
        self.assertEqual(self.changed('    if (a.contains(u"1"_s))'),
                         {'if (!(a.contains(u"1"_s)))'})

    def test_what_is_no_code_stays(self):
        for line in ("// a < b", "#if 1 < 2", "    case 1:", "template <int i = 1>",
                     "    static_assert(1 < 2);", "using A = B<1>;"):
            self.assertEqual(self.changed(line), set(), line)

    def test_a_file_that_has_changed_gives_none(self):
        with tempfile.TemporaryDirectory() as folder:
            self.mutate.ROOT = pathlib.Path(folder)
            (self.mutate.ROOT / "file.cpp").write_text("    return 2;\n")
            mutant = self.mutate.Mutant("file.cpp", 1, "    return 1;", "    return 2;")
            self.assertIsNone(mutant.text())

    def noticed(self, *outcomes, is_sound=True):
        """Whether a mutant is, with which a test ends so, time after time."""
        build = types.SimpleNamespace(is_sound=lambda *test: is_sound)
        trial = self.mutate.Trial(build, None, None)
        left = list(outcomes)
        trial.passes = lambda *test: left.pop(0)
        return trial.notices({}, "", "")

    def test_only_a_failure_that_comes_again_is_the_mutants(self):
        self.assertTrue(self.noticed(False, False))
        self.assertTrue(self.noticed(None), "it goes on for ever")
        self.assertFalse(self.noticed(False, True))
        self.assertFalse(self.noticed(True))
        self.assertFalse(self.noticed(False, False, is_sound=False))


if __name__ == "__main__":
    unittest.main()
