"""Events as signals of the toolkit.

Each object that is asked for one of its events gets a companion: an object of the toolkit,
its child, with a signal for each event. So receivers are connected, disconnected and left
out when they are gone as the toolkit's bindings do it.
"""

from PyQt6.QtCore import QObject, pyqtSignal

from . import _native


class _Companion(QObject):
    """The base of those of every class; NAMES is by number."""

    NAMES = {}

    def __init__(self, source):
        super().__init__(source)
        self.setObjectName("orvtlistview_events")

    def __call__(self, number, arguments):
        getattr(self, self.NAMES[number]).emit(*arguments)


def companion_class(name, events, changes):
    """The class of the companions of a class, of which `events` are the members that are
    events and `changes` the names of the signals that tell of properties' changes."""
    signals = {event["name"]: pyqtSignal(*[object] * len(event["arguments"])) for event in events}
    for change in changes:
        signals.setdefault(change, pyqtSignal())
    names = {event["number"]: event["name"] for event in events}
    return type(f"{name}Events", (_Companion,), {**signals, "NAMES": names})


def _companion(source, made):
    companion = _native.events(source)
    if companion is None:
        companion = made(source)
        _native.hear(source, companion, False)
    return companion


class Event:
    """An event of a class. Of an object it is a signal of the toolkit."""

    def __init__(self, name, number, companions, text):
        self.name = name
        self.number = number
        self._companions = companions
        self.__doc__ = text

    def __get__(self, instance, owner):
        if instance is None:
            return self
        companion = _companion(instance, self._companions)
        _native.want(instance, self.number)
        return getattr(companion, self.name)

    def __repr__(self):
        return f"<event {self.number} {self.name}>"


class Change:
    """A signal that tells of a property's change. Of an object it is one of the toolkit."""

    def __init__(self, name, companions):
        self.name = name
        self._companions = companions
        self.__doc__ = f"{name}(): the property has another value now, whoever changed it."

    def __get__(self, instance, owner):
        if instance is None:
            return self
        companion = _companion(instance, self._companions)
        _native.follow(instance, companion, self.name)
        return getattr(companion, self.name)

    def __repr__(self):
        return f"<signal {self.name}>"
