#!/usr/bin/env python3
"""Writes the type stubs of the package from members.json and the enumerations of a header:

    stubs.py --out STUBS MEMBERS_JSON HEADER...
"""

import argparse
import importlib.util
import json
import pathlib
import re

HERE = pathlib.Path(__file__).resolve().parent

# By its file, as the package itself cannot be loaded while it is built.
_found = importlib.util.spec_from_file_location("_types", HERE / "orvtlistview" / "_types.py")
types = importlib.util.module_from_spec(_found)
_found.loader.exec_module(types)

HEAD = '''\
# Made from the library's tables.

import dataclasses
import enum
from typing import Any, Callable, Generic, NoReturn, TypeVar

from PyQt6 import QtCore, QtGui, QtWidgets

T = TypeVar("T")

class Reference(Generic[T]):
    value: T

class Error(Exception):
    number: int
    source: str
    description: str
    def __init__(self, number: int, source: str, description: str) -> None: ...

class ORVTListview: ...

def advise(owner: Any, sink: Callable[[int, list[Any]], None]) -> None: ...
def unadvise(owner: Any, sink: Callable[[int, list[Any]], None]) -> None: ...
def callLate(owner: Any, name: str, *arguments: Any) -> Any: ...
def raiseEvent(owner: Any, name: str, *arguments: Any) -> list[Any]: ...
def members(owner: Any) -> list[dict[str, Any]]: ...
'''

WIDGETS = {"ReportList": "QtWidgets.QTableView", "RichTextBox": "QtWidgets.QPlainTextEdit"}
BASES = {"PointList": "PointCollection", "IndexedNameList": "IndexedNameCollection"}


def base(entry):
    name = entry["name"]
    if entry["held"] == "component":
        return "QtWidgets.QWidget"
    if entry["held"] == "object":
        return WIDGETS.get(name, "QtCore.QObject")
    return BASES.get(name, "")


def constructor(entry):
    if entry["held"] == "component" or entry["name"] in WIDGETS:
        return "    def __init__(self, parent: QtWidgets.QWidget | None = ...) -> None: ..."
    return None


def property_lines(member, owner):
    kind = types.written(member["type"])
    if not member["put"] and member["type"] != f"{owner}*":
        kind = kind.removesuffix(" | None")  # a part of it; only neighbours may be missing
    name = member["name"]
    read = kind if member["get"] else "NoReturn"
    lines = ["    @property", f"    def {name}(self) -> {read}: ..."]
    if member["put"]:
        lines += [f"    @{name}.setter", f"    def {name}(self, value: {kind}) -> None: ..."]
        setter = f"set{name[0].upper()}{name[1:]}"
        lines.append(f"    def {setter}(self, value: {kind}) -> None: ...")
    return lines


def event_line(member):
    kinds = []
    for each in member["arguments"]:
        kind = types.written(each["type"])
        kinds.append(kind if each["direction"] == "in" else f"Reference[{kind}]")
    return [f"    {member['name']}: QtCore.pyqtBoundSignal  # ({', '.join(kinds)})"]


def member_lines(member, owner):
    if member["kind"] == "property":
        return property_lines(member, owner)
    if member["kind"] == "event":
        return event_line(member)
    texts = ", ".join(filter(None, ["self", types.arguments(member)]))
    return [f"    def {member['name']}({texts}) -> {types.result(member)}: ..."]


def enumeration_lines(entry, indent=""):
    name = entry["name"].split("::")[-1]
    lines = [f"{indent}class {name}(enum.IntEnum):"]
    return lines + [f"{indent}    {each['name']} = {each['value']}" for each in entry["values"]]


def nested(entry, enumerations):
    lines = []
    for each in enumerations:
        if each["name"].startswith(f"{entry['name']}::"):
            lines += enumeration_lines(each, "    ")
    return lines


def class_lines(entry, enumerations):
    name = types.class_name(entry["name"])
    above = base(entry)
    lines = [f"class {name}({above}):" if above else f"class {name}:"]
    lines += nested(entry, enumerations)
    lines += filter(None, [constructor(entry)])
    members = entry["members"]
    for change in dict.fromkeys(each["changed"] for each in members if "changed" in each):
        if all(each["name"] != change for each in members):
            lines.append(f"    {change}: QtCore.pyqtBoundSignal  # ()")
    for member in members:
        lines += member_lines(member, entry["name"])
    return lines


def record_lines(entry, enumerations):
    lines = ["@dataclasses.dataclass", f"class {entry['name']}:"]
    lines += nested(entry, enumerations)
    for each in entry["fields"]:
        lines.append(f"    {types.field_name(each['name'])}: {types.written(each['type'])} = ...")
    return lines


def plain_enumerations(header):
    """Those of a header with their values, told or counted."""
    found = []
    for name, body in re.findall(r"\benum (\w+) : qint32 \{(.*?)\};", header, re.S):
        values = re.findall(r"^\s*(\w+) = (-?\d+),", body, re.M)
        found.append({"name": name, "values": [{"name": n, "value": int(v)} for n, v in values]})
    return found


def stubs(tables, headers):
    enumerations = tables["enumerations"]
    for header in headers:
        known = {each["name"] for each in enumerations}
        others = plain_enumerations(header.read_text(encoding="utf-8"))
        enumerations = enumerations + [each for each in others if each["name"] not in known]
    parts = [HEAD]
    parts += ["\n".join(enumeration_lines(each)) for each in enumerations
              if "::" not in each["name"]]
    parts += ["\n".join(record_lines(each, enumerations)) for each in tables["records"]]
    parts += ["\n".join(class_lines(each, enumerations)) for each in tables["classes"]]
    return "\n\n".join(parts) + "\n"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--out", type=pathlib.Path, required=True)
    parser.add_argument("members", type=pathlib.Path)
    parser.add_argument("headers", type=pathlib.Path, nargs="*")
    arguments = parser.parse_args()
    tables = json.loads(arguments.members.read_text(encoding="utf-8"))
    arguments.out.write_text(stubs(tables, arguments.headers), encoding="utf-8")


if __name__ == "__main__":
    main()
