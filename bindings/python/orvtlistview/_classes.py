"""The classes, records and enumerations of the library, made of what its tables tell."""

import dataclasses
import enum
import json

from . import _native
from ._events import Change, Event, companion_class
from ._texts import text
from ._types import class_name, field_name

MODULE = "orvtlistview"
# Handed out by the name of one, taken wherever the other is.
BASES = {"PointList": "PointCollection", "IndexedNameList": "IndexedNameCollection"}

# Of the toolkit's members those that the library keeps to itself, as its headers do: they
# know nothing of rows, colours and undo.
HIDDEN = {
    "ReportList": ("setModel", "setSelectionMode"),
    "RichTextBox": (
        "appendHtml", "appendPlainText", "copy", "createStandardContextMenu", "cut",
        "insertPlainText", "paste", "redo", "setDocument", "setPlainText",
        "setUndoRedoEnabled", "toPlainText", "undo"),
}


def _hidden(name):
    """What stands in a hidden member's place: without it the toolkit would find its own."""
    def refuse(*arguments, **named):
        raise TypeError(f"{name} is the library's own affair")
    return refuse


def _put(owner, path, value):
    """Into the class that its name in C++ says, or into the module."""
    *outer, name = path.split("::")
    value.__module__ = MODULE
    value.__qualname__ = path.replace("::", ".")
    if outer:
        setattr(owner[outer[0]], name, value)
    else:
        owner[name] = value


def _enumeration(entry):
    name = entry["name"].split("::")[-1]
    values = [(each["name"], each["value"]) for each in entry["values"]]
    return enum.IntEnum(name, values, module=MODULE)


def _field(name, value):
    """A field that is, in a fresh record, what it is in C++."""
    if value is None or isinstance(value, (int, float, str)):
        return name, type(value), dataclasses.field(default=value)
    return name, type(value), dataclasses.field(default_factory=type(value))


def _record(entry):
    names = tuple(field_name(each["name"]) for each in entry["fields"])
    fresh = _native.fresh(f"ORVTListview::{entry['name']}", names)
    fields = [_field(name, fresh[name]) for name in names]
    return dataclasses.make_dataclass(entry["name"], fields, namespace={"_fields": names})


def _class(entry, made):
    """One of the toolkit's kind is there already; others are handed out."""
    name = class_name(entry["name"])
    known = getattr(_native, name, None)
    if known is None:
        base = made.get(BASES.get(name), _native.Handed)
        known = type(name, (base,), {"__slots__": ()} if base is _native.Handed else {})
    known.__module__ = MODULE
    for hidden in HIDDEN.get(name, ()):
        setattr(known, hidden, _hidden(f"{name}.{hidden}"))
    return known


def _add_property(known, index, place, member):
    ways = {}
    if member["get"]:
        ways[False] = _native.member(index, place, False, text(member))
    if member["put"]:
        ways[True] = _native.member(index, place, True, text(member))
        # Forms, and those who write as the toolkit does, set it by a method.
        name = member["name"]
        setattr(known, f"set{name[0].upper()}{name[1:]}", ways[True])
    setattr(known, member["name"], property(ways.get(False), ways.get(True), doc=text(member)))


def _add_members(known, index, entry):
    members = entry["members"]
    events = [each for each in members if each["kind"] == "event"]
    changes = dict.fromkeys(each["changed"] for each in members if "changed" in each)
    companions = companion_class(known.__name__, events, changes) if events or changes else None
    for name in changes:
        setattr(known, name, Change(name, companions))
    for place, member in enumerate(members):
        if member["kind"] == "property":
            _add_property(known, index, place, member)
        elif member["kind"] == "method":
            setattr(known, member["name"], _native.member(index, place, False, text(member)))
        else:
            event = Event(member["name"], member["number"], companions, text(member))
            setattr(known, member["name"], event)


def _in_order(classes):
    """Those that others are derived from before them."""
    return sorted(enumerate(classes), key=lambda each: each[1]["name"] in BASES)


def _make_values(tables, made):
    """Records and enumerations; those that no member names are but in the module."""
    named = {each["name"]: _enumeration(each) for each in tables["enumerations"]}
    for name, value in named.items():
        _native.register(f"ORVTListview::{name}", value)
    for entry in tables["records"]:
        _put(made, entry["name"], _record(entry))
        _native.register(f"ORVTListview::{entry['name']}", made[entry["name"]])
    others = {each["name"]: _enumeration(each) for each in tables["shared"]}
    for name, value in {**others, **named}.items():
        _put(made, name, value)


def make():
    """All by name, and the classes' entries by class."""
    tables = json.loads(_native.describe())
    made, entries = {}, {}
    for index, entry in _in_order(tables["classes"]):
        known = _class(entry, made)
        made[known.__name__] = known
        entries[known] = entry
        _native.register(index, known)
        _add_members(known, index, entry)
    _make_values(tables, made)
    return made, entries


def as_in_forms(made):
    """All as a namespace that has the values of its enumerations too, as forms name them."""
    values = {}
    for known in made.values():
        if issubclass(known, enum.IntEnum):
            values.update(known.__members__)
    return type("ORVTListview", (), {**values, **made})
