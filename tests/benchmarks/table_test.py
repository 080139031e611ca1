"""The table of the benchmarks: what it shows, and its exit status."""

import json
import subprocess
import sys
import unittest

TABLE = sys.argv.pop()


def side(what, cost, least):
    return {"what": what, "cost": cost, "least": least, "repetitions": 9}


def row(cost=3e6, peers_cost=2e6, **more):
    return {"row": "A key", "unit": "time", "ours": side("ours", cost, 1e3),
            "peers": side("theirs", peers_cost, 5), **more}


def run(*records):
    lines = "".join(json.dumps(record) + "\n" for record in records)
    done = subprocess.run([sys.executable, TABLE], input=lines, text=True,
                          capture_output=True, check=False)
    return done.returncode, done.stdout.split("\n")


class TableTest(unittest.TestCase):
    def test_a_row_shows_both_sides_and_their_ratio(self):
        status, lines = run(row(bound=2))
        self.assertEqual(status, 0)
        self.assertEqual(lines[1].split("  "), [
            "A key", "ours 3.00 ms (1.00 µs)", "theirs 2.00 ms (5.00 ns)",
            " 1.50", " 2.00", "ok"])
        self.assertIn("1 of 1 bounds are kept.", lines)

    def test_a_ratio_above_the_bound_is_missed(self):
        status, lines = run(row(bound=1.4), row(bound=2))
        self.assertEqual(status, 1)
        self.assertTrue(lines[1].endswith("MISSED"))
        self.assertTrue(lines[2].endswith("ok"))
        self.assertIn("1 of 2 bounds are kept.", lines)

    def test_without_a_peer_the_bound_is_a_time(self):
        alone = row(bound=2e6)
        del alone["peers"]
        status, lines = run(alone)
        self.assertEqual(status, 1)
        self.assertIn("2.00 ms  MISSED", lines[1])

    def test_without_a_bound_nothing_is_missed(self):
        status, lines = run(row())
        self.assertEqual(status, 0)
        self.assertTrue(lines[1].endswith("1.50"))

    def test_a_cost_that_is_no_number_is_missed(self):
        status, _ = run(row(cost=float("nan"), bound=2))
        self.assertEqual(status, 1)

    def test_rates_are_in_millions_of_characters(self):
        _, lines = run(row(cost=40, peers_cost=20, unit="characters/s"))
        self.assertIn("ours 25.0 M/s", lines[1])

    def test_a_failed_check_is_told_instead_of_a_table(self):
        status, lines = run({"check": "the text", "ok": False, "found": "1 instead of 2"},
                            {"check": "the colours", "ok": True, "found": ""})
        self.assertEqual(status, 2)
        self.assertEqual(lines, ["WRONG: the text: 1 instead of 2", ""])

    def test_nothing_measured_is_a_failure(self):
        status, _ = run()
        self.assertEqual(status, 2)


if __name__ == "__main__":
    unittest.main()
