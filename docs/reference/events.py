#!/usr/bin/env python3
"""Writes the guide's page of events from members.json.

    events.py members.json PAGE           fails when the page tells otherwise
    events.py members.json PAGE --write   writes it anew
"""

import argparse
import json
import pathlib
import sys

HEAD = """# Events by their numbers

Every class that raises events, and every event with the number by which an `EventSink`
gets it and with its arguments in their order. What a sink puts into an argument with `&`
goes back to whoever raised the event. Numbers never change; new events get new ones. The
same list is installed for programs as `share/orvtlistview/members.json`.

The components' events are told to sinks that `Component::Advise` or `advise` was given;
those of the objects that a component hands out by `advise` alone. See
[events by number, members by name](late-binding.md).
"""


def argument(entry):
    reference = "" if entry["direction"] == "in" else " &"
    return f"{entry['type']}{reference} {entry['name']}"


def tables(classes):
    for each in sorted(classes, key=lambda one: (one["held"] != "component", one["name"])):
        events = [member for member in each["members"] if member["kind"] == "event"]
        if not events:
            continue
        yield f"\n## `{each['name']}`\n\n| number | event | arguments |\n|---|---|---|\n"
        for event in sorted(events, key=lambda one: one["number"]):
            arguments = ", ".join(map(argument, event["arguments"]))
            told = f"`{arguments}`" if arguments else ""
            yield f"| {event['number']} | `{event['name']}` | {told} |\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("members", type=pathlib.Path)
    parser.add_argument("page", type=pathlib.Path)
    parser.add_argument("--write", action="store_true")
    arguments = parser.parse_args()
    text = HEAD + "".join(tables(json.loads(arguments.members.read_text())["classes"]))
    if arguments.write:
        arguments.page.write_text(text, encoding="utf-8")
    elif not arguments.page.exists() or arguments.page.read_text(encoding="utf-8") != text:
        print(f"{arguments.page} tells of other events; write it anew with --write")
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
