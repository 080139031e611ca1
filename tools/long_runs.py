"""What became of the runs for which ./check has no time: a line each, kept with the
sources in tests/long_runs, so that they add up from one machine to the next.

    tools/long_runs.py TARGET SECONDS STATUS LOG     keeps a run of a fuzz target, whose exit
                                                     status is 0 when it found nothing

The tools write the lines, nobody else; tools/trust puts what they come to into
docs/trust.md."""

import datetime
import json
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDER = ROOT / "tests" / "long_runs"
SURVIVED, REFUSED, OUT_OF_TIME = "survived", "not compiled", "out of time"
INPUTS = re.compile(r"^stat::number_of_executed_units:\s+(\d+)", re.MULTILINE)


def keep(name, **outcome):
    head = subprocess.run(["git", "rev-parse", "--short", "HEAD"], cwd=ROOT, check=False,
                          capture_output=True, text=True).stdout.strip()
    run = {"day": datetime.date.today().isoformat(), "commit": head, **outcome}
    FOLDER.mkdir(exist_ok=True)
    with (FOLDER / f"{name}.jsonl").open("a") as file:
        file.write(json.dumps(run) + "\n")


def kept(name):
    file = FOLDER / f"{name}.jsonl"
    return [json.loads(line) for line in file.read_text().splitlines()] if file.exists() else []


def soak(runs):
    hours = sum(run["minutes"] for run in runs) / 60
    steps = sum(run["steps"] for run in runs)
    growth = max(100 * (run["most"] / run["settled"] - 1) for run in runs)
    pieces = "1 piece" if len(runs) == 1 else f"{len(runs)} pieces"
    return (f"{hours:.1f} hours in {pieces}, {steps:,} steps, at most {growth:.0f} % more memory"
            " than after 10 minutes")


def fuzz(runs):
    seconds = {}
    for run in runs:
        seconds[run["target"]] = seconds.get(run["target"], 0) + run["seconds"]
    inputs = sum(run["inputs"] for run in runs)
    return (f"{len(seconds)} targets, {min(seconds.values()) / 60:.0f} minutes each at least,"
            f" {sum(seconds.values()) / 3600:.1f} hours, {inputs:,} inputs")


def coverage(runs):
    return ", ".join(f"{part} {lines:.1f} % of lines, {branches:.1f} % of branches"
                     for part, (lines, branches) in runs[-1]["parts"].items())


def mutate(runs):
    """Of each mutant the last outcome, if the line is still there."""
    sources = {}
    latest = {}
    for run in runs:
        path = ROOT / run["file"]
        if run["file"] not in sources:
            sources[run["file"]] = set(path.read_text().split("\n")) if path.exists() else set()
        if run["before"] in sources[run["file"]]:
            latest[run["file"], run["line"], run["before"], run["after"]] = run["outcome"]
    outcomes = list(latest.values())
    refused, late = outcomes.count(REFUSED), outcomes.count(OUT_OF_TIME)
    tried = len(outcomes) - refused
    noticed = tried - late - outcomes.count(SURVIVED)
    return (f"{noticed} of {tried} mutants noticed, {refused} did not compile"
            + (f", {late} not tried to the end" if late else ""))


FIGURES = {"tools/soak": soak, "tools/fuzz": fuzz, "tools/coverage": coverage,
           "tools/mutate": mutate}


def counted(runs):
    """Those since something failed and was mended, of each fuzz target by itself."""
    since = {}
    for run in runs:
        own = since.setdefault(run.get("target"), [])
        if not all(each.get("passed", True) for each in (*own[-1:], run)):
            own.clear()
        own.append(run)
    return [run for own in since.values() for run in own]


def figure(tool):
    """What the tool's runs came to and the day of the first that counts; none without any."""
    runs = kept(tool.rpartition("/")[2])
    if not runs:
        return None
    runs = runs[-1:] if tool == "tools/coverage" else counted(runs)
    failed = "" if all(run.get("passed", True) for run in runs) else "FAILED, "
    return failed + FIGURES[tool](runs), min(run["day"] for run in runs)


def main():
    target, seconds, status, log = sys.argv[1:]
    text = pathlib.Path(log).read_text(errors="replace")
    keep("fuzz", target=target, seconds=int(seconds), passed=status == "0",
         inputs=sum(int(number) for number in INPUTS.findall(text)))


if __name__ == "__main__":
    main()
