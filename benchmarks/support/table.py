#!/usr/bin/env python3
"""Makes one table of the JSON lines that the benchmarks print (report.h).

Reads them from standard input. Exit status: 2 when a check of the work failed or
nothing was measured, 1 when a bound is missed, else 0.
"""

import json
import sys

UNITS = ((1e9, "s"), (1e6, "ms"), (1e3, "µs"), (1, "ns"))
HEADERS = ("", "ours", "peer", "ratio", "bound", "")


def three_digits(value):
    return f"{value:.{2 if value < 10 else 1 if value < 100 else 0}f}"


def time(nanoseconds):
    size, name = next((unit for unit in UNITS if nanoseconds >= unit[0]), UNITS[-1])
    return f"{three_digits(nanoseconds / size)} {name}"


def cost(nanoseconds, unit):
    if unit == "characters/s":
        return f"{three_digits(1e3 / nanoseconds)} M/s"
    if unit == "bytes":
        return f"{three_digits(nanoseconds / 1e6)} MB"
    return time(nanoseconds)


def side(row, name):
    """What was measured, its median and in brackets its best."""
    found = row.get(name)
    if not found:
        return ""
    unit = row["unit"]
    return f"{found['what']} {cost(found['cost'], unit)} ({cost(found['least'], unit)})"


def ratio(row):
    return row["ours"]["cost"] / row["peers"]["cost"] if "peers" in row else None


def is_missed(row):
    if "bound" not in row:
        return False
    measured = ratio(row) if "peers" in row else row["ours"]["cost"]
    return not measured <= row["bound"]


def cells(row):
    has_peer = "peers" in row
    bound = verdict = ""
    if "bound" in row:
        bound = three_digits(row["bound"]) if has_peer else time(row["bound"])
        verdict = "MISSED" if is_missed(row) else "ok"
    shown_ratio = three_digits(ratio(row)) if has_peer else ""
    return (row["row"], side(row, "ours"), side(row, "peers"), shown_ratio, bound, verdict)


def print_table(rows):
    lines = [HEADERS] + [cells(row) for row in rows]
    widths = [max(len(line[column]) for line in lines) for column in range(len(HEADERS))]
    for line in lines:
        texts = [text.ljust(width) for text, width in zip(line[:3], widths)]
        numbers = [text.rjust(width) for text, width in zip(line[3:5], widths[3:5])]
        print("  ".join(texts + numbers + [line[5]]).rstrip())


def main():
    records = [json.loads(line) for line in sys.stdin if line.strip()]
    failed = [record for record in records if record.get("ok") is False]
    for record in failed:
        print(f"WRONG: {record['check']}: {record['found']}")
    rows = [record for record in records if "row" in record]
    if not rows and not failed:
        print("A benchmark did not come to its end.")
    if failed or not rows:
        return 2
    print_table(rows)
    missed = sum(is_missed(row) for row in rows)
    bounds = sum("bound" in row for row in rows)
    print(f"\n{bounds - missed} of {bounds} bounds are kept.")
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
