#!/usr/bin/env python3
"""Holds members.json to its form and to the published headers: every public function,
property and signal of a class that it lists has its entry, and headers that list events
by number list the same."""

import argparse
import json
import pathlib
import re
import sys

# What late-bound calls do not reach, and why.
CPP_ONLY = {
    "Members": "the table itself",
    "ReadProperties": "takes an interface that C++ hosts implement",
    "WriteProperties": "takes an interface that C++ hosts implement",
    "readColumnLayouts": "takes an interface that C++ hosts implement",
    "writeColumnLayouts": "takes an interface that C++ hosts implement",
    "setPictureProvider": "takes a function",
    "setPointNames": "takes a function",
    "setUndoHistory": "takes functions",
    "sizeHint": "the toolkit's", "minimumSizeHint": "the toolkit's",
    "visualRect": "the toolkit's", "indexAt": "the toolkit's", "scrollTo": "the toolkit's",
    "mimeData": "the toolkit's object",
    "setColoured": "takes the house's own type", "setSelColoured": "takes the house's own type",
    "replacePieces": "takes the house's own type", "recolour": "takes the house's own type",
    "coloured": "gives the house's own type",
    "commands": "gives the house's own type", "setCommands": "takes the house's own type",
    "keepsText": None,  # of RichTextBox: true only while it changes; CodeView has a member
    "removeBeside": "for the box's commands", "textOf": "for the box's commands",
    "moveFocus": "for the box's commands", "edited": "for the control around the box",
    "find": "gives a pointer into the collection", "isSharedWith": "compares two collections",
    "operator==": "compares two values",
}
SHARED = {"Node": "ViewElement", "ListItem": "ViewElement", "ColumnHeader": "ViewElement",
          "Nodes": "ViewCollection", "ListItems": "ViewCollection",
          "ColumnHeaders": "ViewCollection", "ORVListView": "InputComponent",
          "ORVTreeview": "InputComponent", "ORVDataCombo": "InputComponent",
          "ORVRichText": "InputComponent", "KeyedCollection<QString>": "KeyedCollection",
          "KeyedCollection<qint32>": "KeyedCollection"}
# Published by name as a property, written in C++ with another prefix.
OTHER_NAMES = {"hasCheckBoxes": "checkBoxes", "isHeaderVisible": "headerVisible",
               "enabled": "Enabled"}
KINDS = {
    "property": {"kind": str, "name": str, "type": str, "get": bool, "put": bool},
    "method": {"kind": str, "name": str, "arguments": list, "result": str},
    "event": {"kind": str, "name": str, "number": int, "arguments": list},
}
MAY = {"unit": str, "range": str, "failures": list, "changed": str, "default": object}
ARGUMENT = {"name": str, "type": str, "direction": str}


def form_faults(where, entry, must, may):
    for key, kind in must.items():
        if not isinstance(entry.get(key), kind):
            yield f"{where}: {key} is no {kind.__name__}"
    for key in entry:
        if key not in must and key not in may:
            yield f"{where}: {key} is not of the form"
        elif key in may and not isinstance(entry[key], may[key]):
            yield f"{where}: {key} is no {may[key].__name__}"


def member_faults(owner, entry):
    where = f"{owner}.{entry.get('name')}"
    if entry.get("kind") not in KINDS:
        yield f"{where}: a kind that is none"
        return
    yield from form_faults(where, entry, KINDS[entry["kind"]], MAY)
    for argument in entry.get("arguments", ()):
        yield from form_faults(where, argument, ARGUMENT, {"default": object})
        if argument.get("direction") not in ("in", "out", "in/out"):
            yield f"{where}: {argument.get('name')} goes nowhere"
    if entry["kind"] == "property" and not (entry.get("get") or entry.get("put")):
        yield f"{where}: neither to be read nor to be set"


def number_faults(each):
    numbers = [entry.get("number") for entry in each["members"] if entry["kind"] == "event"]
    if numbers != list(range(1, len(numbers) + 1)):
        yield f"{each['name']}: its events are numbered {numbers}"


def type_faults(file):
    """Every record and enumeration that a member names is told of."""
    known = {entry["name"] for kind in ("records", "enumerations") for entry in file[kind]}
    known |= {each["type"].removesuffix("*") for each in file["classes"]}
    for each in file["classes"]:
        for entry in each["members"]:
            types = [entry.get("type", ""), entry.get("result", "")]
            types += [argument["type"] for argument in entry.get("arguments", ())]
            for name in re.findall(r"(?<![\w:])[A-Z]\w+(?:::\w+)?", " ".join(types)):
                if not name.startswith("Q") and name not in known and \
                        not any(one.startswith(name + "<") for one in known):
                    yield f"{each['name']}.{entry['name']}: nothing is said of {name}"


def is_there(name, members):
    """A function of the headers has its own entry, or sets a property that has one."""
    if any(entry["name"] == OTHER_NAMES.get(name, name) for entry in members):
        return True
    if not name.startswith("set"):
        return False
    read = name.removeprefix("set")
    names = {read, read[:1].lower() + read[1:]}
    return any(entry["kind"] == "property" and entry["put"] and entry["name"] in names
               for entry in members)


def header_faults(file, headers):
    for each in file["classes"]:
        changes = {entry["name"] + "Changed" for entry in each["members"]}
        changes |= {entry["changed"] for entry in each["members"] if "changed" in entry}
        plain = each["name"].split("<")[0]
        if plain not in headers.declared:
            yield f"{each['name']}: no header declares it"
        for name in headers.declared.get(plain, set()) | headers.declared.get(
                SHARED.get(each["name"]), set()):
            if name.startswith("~") or name in CPP_ONLY or name in (plain, SHARED.get(each["name"])):
                continue
            if name not in changes and not is_there(name, each["members"]):
                yield f"{each['name']}.{name}: is in a header and not in the tables"


def listed_faults(file, headers):
    for each in file["classes"]:
        events = [(entry["number"], entry["name"]) for entry in each["members"]
                  if entry["kind"] == "event"]
        listed = headers.listed.get(each["name"])
        if listed is not None and listed != events:
            yield f"{each['name']}: its header lists other events: {sorted(set(listed) ^ set(events))}"
        if each["held"] == "component" and listed is None:
            yield f"{each['name']}: its header lists no events by number"


def values_of(body):
    values, next_value = [], 0
    for name, value in re.findall(r"(\w+)(?: = (-?\d+))?\s*(?:,|$)", body.strip()):
        next_value = int(value) if value else next_value
        values.append((name, next_value))
        next_value += 1
    return values


def enumeration_faults(file, headers):
    for each in file["enumerations"]:
        told = [(value["name"], value["value"]) for value in each["values"]]
        declared = headers.enumerations.get(each["name"].split("::")[-1])
        if not told or declared != told:
            yield f"{each['name']}: its header has other values: {declared}"


class Headers:
    def __init__(self, source):
        sys.path.insert(0, str(source / "docs/reference"))
        from comments import Header, Tables
        self.declared = {}
        self.listed = {}
        self.enumerations = {}
        for path in sorted((source / "src").rglob("published/*.h")):
            text = path.read_text(encoding="utf-8")
            header = Header(text, Tables(None))
            header.filtered()
            for owner, name in header.members:
                self.declared.setdefault(owner, set()).add(name)
            for name, body in re.findall(r"\benum (?:class )?(\w+)[^;{]*\{(.*?)\}", text, re.DOTALL):
                self.enumerations[name] = values_of(re.sub(r"//[^\n]*", "", body))
            plain = re.sub(r"\n\s*//", "", text)
            listed = re.search(r"By number[^:]*:((?:\s+\d+ \w+[,.])+)", plain)
            if listed:
                self.listed[path.stem] = [(int(number), name) for number, name in
                                          re.findall(r"(\d+) (\w+)", listed[1])]


def faults(file, source):
    headers = Headers(source)
    for key in ("format", "library", "version", "classes", "records", "enumerations"):
        if key not in file:
            return [f"there is no {key}"]
    found = [fault for each in file["classes"] for entry in each["members"]
             for fault in member_faults(each["name"], entry)]
    if found:
        return found
    found += [fault for each in file["classes"] for fault in number_faults(each)]
    return [*found, *type_faults(file), *header_faults(file, headers),
            *listed_faults(file, headers), *enumeration_faults(file, headers)]


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--source", type=pathlib.Path, required=True)
    parser.add_argument("members", type=pathlib.Path)
    arguments = parser.parse_args()
    file = json.loads(arguments.members.read_text(encoding="utf-8"))
    found = faults(file, arguments.source)
    print("\n".join(found) or f"{len(file['classes'])} classes, "
          f"{sum(len(each['members']) for each in file['classes'])} members")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
