"""Nothing of the library's tables is missing in Python, nor in the type stubs."""

import ast
import enum
import json
import keyword
import re

import pytest
from conftest import MEMBERS_JSON, SOURCE

import orvtlistview
from orvtlistview import _native
from orvtlistview._classes import HIDDEN
from orvtlistview._events import Change, Event
from orvtlistview._types import class_name, field_name

TABLES = json.loads(MEMBERS_JSON.read_text(encoding="utf-8"))
CLASSES = {class_name(each["name"]): each for each in TABLES["classes"]}
MEMBERS = [(name, member) for name, each in CLASSES.items() for member in each["members"]]


def reached(path):
    value = orvtlistview
    for name in path.split("::"):
        value = getattr(value, name)
    return value


@pytest.mark.parametrize("name, member", MEMBERS,
                         ids=[f"{name}.{member['name']}" for name, member in MEMBERS])
def test_member_is_there(name, member):
    there = vars(getattr(orvtlistview, name))[member["name"]]
    if member["kind"] == "property":
        assert isinstance(there, property)
        assert (there.fget is not None, there.fset is not None) == (member["get"], member["put"])
        assert member["name"] in there.__doc__
    elif member["kind"] == "event":
        assert isinstance(there, Event)
        assert there.number == member["number"]
    else:
        assert there.__qualname__ == f"{CLASSES[name]['name']}.{member['name']}"


@pytest.mark.parametrize("name", CLASSES)
def test_changes_are_told(name):
    for member in CLASSES[name]["members"]:
        if "changed" in member:
            signal = vars(getattr(orvtlistview, name))[member["changed"]]
            assert isinstance(signal, (Change, Event))


def test_classes_are_named_as_of_the_package():
    for name in CLASSES:
        known = getattr(orvtlistview, name)
        assert (known.__module__, known.__name__) == ("orvtlistview", name)
        assert name in orvtlistview.__all__


@pytest.mark.parametrize("entry", TABLES["enumerations"], ids=lambda entry: entry["name"])
def test_enumeration_has_its_values(entry):
    known = reached(entry["name"])
    assert issubclass(known, enum.IntEnum)
    assert {name: int(value) for name, value in known.__members__.items()} == {
        each["name"]: each["value"] for each in entry["values"]}


@pytest.mark.parametrize("entry", TABLES["records"], ids=lambda entry: entry["name"])
def test_record_has_its_fields_as_they_are_at_first(entry):
    fresh = reached(entry["name"])()
    for field in entry["fields"]:
        value = getattr(fresh, field_name(field["name"]))
        if field["default"] is not None:
            assert value == field["default"]


def test_numbers_of_errors_are_those_of_the_header():
    header = (SOURCE / "src/base/published/Error.h").read_text(encoding="utf-8")
    body = re.search(r"enum ErrorNumber : qint32 \{(.*?)\};", header, re.S)[1]
    numbers = {name: int(value) for name, value in re.findall(r"(\w+) = (-?\d+),", body)}
    assert {name: int(value) for name, value in
            orvtlistview.ErrorNumber.__members__.items()} == numbers


def test_columns_of_types_are_there():
    assert orvtlistview.LWNB.Sep_Input == 3
    assert orvtlistview.LWNB["Sep_Controler"] == 11


@pytest.mark.parametrize("name, header", [
    ("ReportList", "src/widgets/list/published/ReportList.h"),
    ("RichTextBox", "src/widgets/box/published/RichTextBox.h")])
def test_what_the_headers_hide_is_hidden(name, header):
    text = (SOURCE / header).read_text(encoding="utf-8")
    own = set(re.findall(r"^    using Q\w+::(\w+);", text, re.M))
    assert set(HIDDEN[name]) == own
    made = getattr(orvtlistview, name)()
    for member in own:
        with pytest.raises(TypeError, match="own affair"):
            getattr(made, member)()


def stubs():
    path = f"{orvtlistview.__path__[0]}/__init__.pyi"
    with open(path, encoding="utf-8") as file:
        return ast.parse(file.read())


def told(body):
    """The names that a class's or the module's stubs have."""
    for each in body:
        if isinstance(each, (ast.FunctionDef, ast.ClassDef)):
            yield each.name
        elif isinstance(each, ast.AnnAssign):
            yield each.target.id
        elif isinstance(each, ast.Assign):
            yield each.targets[0].id


def test_stubs_have_every_member():
    module = stubs()
    classes = {each.name: set(told(each.body)) for each in module.body
               if isinstance(each, ast.ClassDef)}
    for name, member in MEMBERS:
        assert member["name"] in classes[name]
    for each in TABLES["records"]:
        assert {field_name(field["name"]) for field in each["fields"]} <= classes[each["name"]]


def test_stubs_have_every_name_of_the_package():
    assert set(orvtlistview.__all__) - set(told(stubs().body)) == set()


def test_fields_with_names_that_python_takes():
    names = [field["name"] for each in TABLES["records"] for field in each["fields"]]
    assert [name for name in names if keyword.iskeyword(name)] == ["from"]
    assert orvtlistview.Problem(from_=3).from_ == 3


def test_typing_is_announced():
    with open(f"{orvtlistview.__path__[0]}/py.typed", encoding="utf-8"):
        pass


def test_the_native_part_has_nothing_but_what_is_used():
    public = {name for name in vars(_native) if not name.startswith("_")}
    widgets = {name for name, each in CLASSES.items() if each["held"] in ("component", "object")}
    assert widgets <= public
