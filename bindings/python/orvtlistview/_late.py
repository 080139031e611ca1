"""Members by name and events by number, for what knows neither before it runs."""

import inspect
import weakref

from . import _native


class _Sink:
    """A method of an object, which it does not keep: an object that hears of its own
    component would else never go."""

    def __init__(self, method):
        self._method = weakref.WeakMethod(method)

    def __call__(self, number, arguments):
        if method := self._method():
            method(number, arguments)

    def __eq__(self, other):
        return self._method() == other


def _held(sink):
    return _Sink(sink) if inspect.ismethod(sink) else sink


class _Late:
    tables = {}


def members(owner):
    """Every member of an object or a class, as members.json tells of them."""
    known = owner if isinstance(owner, type) else type(owner)
    for each in known.__mro__:
        if each in _Late.tables:
            return _Late.tables[each]["members"]
    raise TypeError(f"{known.__name__} has no members")


def callLate(owner, name, *arguments):
    """Calls a method, reads a property (no argument) or sets it (one), by its name in any
    letter case."""
    for member in members(owner):
        if member["kind"] == "event" or member["name"].lower() != name.lower():
            continue
        if member["kind"] == "method":
            return getattr(owner, member["name"])(*arguments)
        if not arguments:
            return getattr(owner, member["name"])
        if len(arguments) > 1:
            raise TypeError(f"{name} takes one value at most")
        return setattr(owner, member["name"], arguments[0])
    raise AttributeError(f"{type(owner).__name__} has no member {name}")


def advise(owner, sink):
    """Has sink(number, arguments) called for every event of the object. What the event
    takes back is a Reference. A method is called as long as its object lives."""
    members(owner)
    _native.hear(owner, _held(sink), True)


def raiseEvent(owner, name, *arguments):
    """Raises an event as if the user had done what it tells of, for all who hear of it.
    Returns what it takes back, in order. For tests of programs."""
    for member in members(owner):
        if member["kind"] == "event" and member["name"] == name:
            values = list(arguments)
            _native.raiseEvent(owner, member["number"], values)
            return [values[place] for place, each in enumerate(member["arguments"])
                    if each["direction"] != "in"]
    raise AttributeError(f"{type(owner).__name__} has no event {name}")


def unadvise(owner, sink):
    """The sink hears no more."""
    _native.unhear(owner, sink)
