#!/usr/bin/env python3
"""members_file.py sees what it is there to see: each change of a right file is a fault."""

import argparse
import copy
import json
import pathlib
import sys

from members_file import faults


def entry(file, owner, name):
    members = next(each["members"] for each in file["classes"] if each["name"] == owner)
    return members, next(one for one in members if one["name"] == name)


def without_a_row(file):
    members, row = entry(file, "ListItem", "setSubItem")
    members.remove(row)


def without_an_inherited_row(file):
    members, row = entry(file, "Node", "Key")
    members.remove(row)


def without_an_event(file):
    members, row = entry(file, "ORVListView", "QueryCompile")
    members.remove(row)


def with_another_number(file):
    entry(file, "ORVTreeview", "Expand")[1]["number"] = 60


def with_an_unknown_direction(file):
    entry(file, "ORVDataCombo", "KeyDown")[1]["arguments"][0]["direction"] = "both"


def without_a_type(file):
    del entry(file, "CodeView", "zoom")[1]["type"]


def without_a_record(file):
    file["records"] = [one for one in file["records"] if one["name"] != "Problem"]


def without_an_enumeration(file):
    file["enumerations"] = [one for one in file["enumerations"] if one["name"] != "LwType"]


CHANGES = (without_a_row, without_an_inherited_row, without_an_event, with_another_number,
           with_an_unknown_direction, without_a_type, without_a_record, without_an_enumeration)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--source", type=pathlib.Path, required=True)
    parser.add_argument("members", type=pathlib.Path)
    arguments = parser.parse_args()
    right = json.loads(arguments.members.read_text(encoding="utf-8"))
    unseen = []
    for change in CHANGES:
        wrong = copy.deepcopy(right)
        change(wrong)
        if not faults(wrong, arguments.source):
            unseen.append(change.__name__)
    print("\n".join(unseen))
    return 1 if unseen else 0


if __name__ == "__main__":
    sys.exit(main())
