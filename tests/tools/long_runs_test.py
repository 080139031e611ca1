#!/usr/bin/env python3
"""tools/long_runs.py keeps what runs came to, and adds them up right."""

import pathlib
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
TOOLS = pathlib.Path(__file__).resolve().parents[2] / "tools"
sys.path.insert(0, str(TOOLS))

import long_runs  # noqa: E402 (its folder is told above)


class LongRunsTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        for name in ("ROOT", "FOLDER"):
            self.addCleanup(setattr, long_runs, name, getattr(long_runs, name))
        long_runs.ROOT = pathlib.Path(self.folder.name)
        long_runs.FOLDER = long_runs.ROOT / "runs"

    def told(self, tool):
        return long_runs.figure(tool)[0]

    def test_none_is_none(self):
        for tool in long_runs.FIGURES:
            self.assertIsNone(long_runs.figure(tool))

    def test_soaks_add_up(self):
        for most in (101000, 104000):
            long_runs.keep("soak", minutes=45, steps=1000, passed=True, settled=100000, most=most)
        self.assertEqual(self.told("tools/soak"), "1.5 hours in 2 pieces, 2,000 steps,"
                         " at most 4 % more memory than after 10 minutes")
        long_runs.keep("soak", minutes=30, steps=1, passed=False, settled=1, most=2)
        self.assertEqual(self.told("tools/soak"), "FAILED, 0.5 hours in 1 piece, 1 steps,"
                         " at most 100 % more memory than after 10 minutes")
        long_runs.keep("soak", minutes=60, steps=10, passed=True, settled=100, most=101)
        self.assertTrue(self.told("tools/soak").startswith("1.0 hours in 1 piece"))

    def test_the_least_fuzzed_target_is_told(self):
        log = long_runs.ROOT / "A.log"
        log.write_text("stat::number_of_executed_units: 5000\nstat::average_exec_per_sec: 83\n")
        for target, seconds in (("A", 60), ("B", 600), ("A", 120)):
            arguments, sys.argv = sys.argv, ["", target, str(seconds), "0", str(log)]
            long_runs.main()
            sys.argv = arguments
        self.assertEqual(self.told("tools/fuzz"),
                         "2 targets, 3 minutes each at least, 0.2 hours, 15,000 inputs")
        self.assertTrue(all(run["passed"] for run in long_runs.kept("fuzz")))

    def test_the_last_coverage_counts(self):
        long_runs.keep("coverage", parts={"core": [50, 40]}, passed=False)
        long_runs.keep("coverage", parts={"core": [98.54, 93.5]}, passed=True)
        self.assertEqual(self.told("tools/coverage"), "core 98.5 % of lines, 93.5 % of branches")

    def test_the_last_outcome_of_a_mutant_counts(self):
        def tried(line, outcome, before="a"):
            long_runs.keep("mutate", file="f", line=line, before=before, after="b",
                           outcome=outcome)
        (long_runs.ROOT / "f").write_text("a\n")
        for line, outcome in ((1, "survived"), (2, "SomeTest"), (3, "not compiled"),
                              (1, "SomeTest")):
            tried(line, outcome)
        self.assertEqual(self.told("tools/mutate"), "2 of 2 mutants noticed, 1 did not compile")
        tried(2, "out of time")
        tried(4, "survived")
        tried(5, "survived", "a line that is gone")
        self.assertEqual(self.told("tools/mutate"), "1 of 3 mutants noticed, 1 did not compile,"
                         " 1 not tried to the end")


if __name__ == "__main__":
    unittest.main()
