"""Reads the windows of a program as a screen reader does, over the accessibility bus."""

import contextlib
import os
import subprocess

from x_display import Failed, wait_until

try:
    from gi.repository import Gio, GLib
except ImportError:  # require_screen_reader() tells
    Gio = None

ACCESSIBLE = "org.a11y.atspi.Accessible"
ACTION = "org.a11y.atspi.Action"
COMPONENT = "org.a11y.atspi.Component"
REGISTRY = "org.a11y.atspi.Registry"
TEXT = "org.a11y.atspi.Text"
VALUE = "org.a11y.atspi.Value"

ROOT = "/org/a11y/atspi/accessible/root"
LABELLED_BY = 2
STATES = {
    1: "active", 3: "busy", 4: "checked", 6: "defunct", 7: "editable", 8: "enabled",
    10: "expanded", 11: "focusable", 12: "focused", 16: "modal", 23: "selected",
    24: "sensitive", 25: "showing", 30: "visible", 41: "checkable", 43: "read-only"}

# What has many children, by what these are: looked into only for them.
LISTS = {"cell": {"table"}, "column header": {"table", "tree"}, "list item": {"list"},
         "tree item": {"tree"}}
ALL_LISTS = {"table", "tree", "list"}


def missing_screen_reader():
    """What a screen reader needs and this machine has not."""
    parts = {"python3-gi": Gio is not None,
             "at-spi2-core": os.path.exists("/usr/libexec/at-spi-bus-launcher")}
    return [name for name, is_there in parts.items() if not is_there]


class Gone(Failed):
    """The element is no more."""


class ScreenReader:
    """The accessibility bus of a session of its own, and the programs on it."""

    def __init__(self, display):
        self._display = display
        session = self._start_session_bus()
        self._bus = self._connect(self._address_of_accessibility(session))
        self._heard = []
        self._bus.signal_subscribe(
            None, "org.a11y.atspi.Event.Object", None, None, None,
            Gio.DBusSignalFlags.NONE, self._hear)
        # What programs on this bus tell of from the beginning.
        self.call((REGISTRY, "/org/a11y/atspi/registry"), REGISTRY, "RegisterEvent",
                  "(sass)", "object:", [], "")

    def _hear(self, _, sender, path, _interface, event, arguments):
        self._heard.append((Element(self, (sender, path)), event, arguments.unpack()))

    def _start_session_bus(self):
        daemon = self._display.start(
            "dbus-daemon", "--session", "--nofork", "--nosyslog", "--print-address=1",
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        address = daemon.stdout.readline().strip()
        if not address:
            raise Failed("no session bus")
        self._display.environment.update(
            DBUS_SESSION_BUS_ADDRESS=address, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        return self._connect(address)

    @staticmethod
    def _connect(address):
        flags = Gio.DBusConnectionFlags
        return Gio.DBusConnection.new_for_address_sync(
            address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None)

    @staticmethod
    def _address_of_accessibility(session):
        return session.call_sync(
            "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
            Gio.DBusCallFlags.NONE, 20000, None).unpack()[0]

    def call(self, place, interface, method, signature="()", *arguments):
        name, path = place
        try:
            answer = self._bus.call_sync(
                name, path, interface, method, GLib.Variant(signature, arguments), None,
                Gio.DBusCallFlags.NONE, 20000, None)
        except GLib.Error as error:
            raise Gone(f"{interface}.{method}: {error.message}") from None
        values = answer.unpack()
        return values[0] if len(values) == 1 else values

    @property
    def registry(self):
        return Element(self, (REGISTRY, ROOT))

    def programs(self):
        places = self.call(self.registry.place, ACCESSIBLE, "GetChildren")
        return [Element(self, tuple(place)) for place in places]

    def heard(self):
        """The events since the last call: element, name of the event, arguments."""
        while GLib.MainContext.default().iteration(False):
            pass
        heard, self._heard = self._heard, []
        return heard

    def wait_for_focus(self, role):
        """The element of that role that comes to have the focus."""
        def focused():
            for element, event, (kind, is_set, *_) in self.heard():
                if (event, kind, is_set) == ("StateChanged", "focused", 1):
                    with contextlib.suppress(Gone):
                        if element.role == role:
                            return element
            return None
        return wait_until(focused, f"a {role} with the focus")


class Element:
    """What a screen reader knows of a part of a window."""

    def __init__(self, reader, place):
        self._reader = reader
        self.place = place

    def __eq__(self, other):
        return isinstance(other, Element) and self.place == other.place

    def __hash__(self):
        return hash(self.place)

    def __repr__(self):
        try:
            return f"{self.role} \"{self.name}\""
        except Gone:
            return "what is gone"

    def _call(self, interface, method, signature="()", *arguments):
        return self._reader.call(self.place, interface, method, signature, *arguments)

    def _property(self, interface, name):
        return self._call("org.freedesktop.DBus.Properties", "Get", "(ss)", interface, name)

    @property
    def name(self):
        return self._property(ACCESSIBLE, "Name")

    @property
    def description(self):
        return self._property(ACCESSIBLE, "Description")

    @property
    def role(self):
        return self._call(ACCESSIBLE, "GetRoleName")

    @property
    def states(self):
        low, high = self._call(ACCESSIBLE, "GetState")
        bits = low | high << 32
        return {name for bit, name in STATES.items() if bits >> bit & 1}

    @property
    def parent(self):
        return Element(self._reader, tuple(self._property(ACCESSIBLE, "Parent")))

    @property
    def children(self):
        return [Element(self._reader, tuple(place))
                for place in self._call(ACCESSIBLE, "GetChildren")]

    @property
    def rectangle(self):
        """Left, top, width and height on the screen."""
        return self._call(COMPONENT, "GetExtents", "(u)", 0)

    @property
    def centre(self):
        left, top, width, height = self.rectangle
        return left + width // 2, top + height // 2

    @property
    def text(self):
        return self._call(TEXT, "GetText", "(ii)", 0, -1)

    @property
    def caret(self):
        return self._property(TEXT, "CaretOffset")

    @property
    def value(self):
        return self._property(VALUE, "CurrentValue")

    def attributes_at(self, offset):
        """The attributes of the text there, by their names."""
        found, _, _ = self._call(TEXT, "GetAttributeRun", "(ib)", offset, False)
        return found

    def centre_of(self, word, nth=1):
        """Where the nth such word of the text is on the screen."""
        offset = -1
        for _ in range(nth):
            offset = self.text.index(word, offset + 1)
        left, top, width, height = self._call(
            TEXT, "GetCharacterExtents", "(iu)", offset + len(word) // 2, 0)
        return left + width // 2, top + height // 2

    def is_labelled(self):
        """Whether another element stands for its name."""
        relations = self._call(ACCESSIBLE, "GetRelationSet")
        return any(kind == LABELLED_BY for kind, _ in relations)

    def is_showing(self):
        try:
            return "showing" in self.states
        except Gone:
            return False

    def walk(self, not_into=()):
        """It and what is shown in it, from outside to inside, but for what is in
        elements of some roles."""
        if not self.is_showing():
            return
        yield self
        try:
            children = [] if not_into and self.role in not_into else self.children
        except Gone:
            return
        for child in children:
            yield from child.walk(not_into)

    def find_all(self, role, name=None):
        found = []
        for element in self.walk(not_into=ALL_LISTS - LISTS.get(role, set())):
            try:
                if element.role == role and (name is None or element.name == name):
                    found.append(element)
            except Gone:
                pass
        return found

    def wait_for(self, role, name=None):
        """The one of that role and name, once it is shown."""
        found = wait_until(lambda: self.find_all(role, name),
                           f"a {role} \"{name}\"" if name else f"a {role}")
        return found[0]

    def texts(self):
        """What its labels say."""
        return "\n".join(label.name for label in self.find_all("label"))
