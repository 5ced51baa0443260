"""What the program tells a screen reader, read straight from the bus.

Every property is asked for by itself: asking for all at once ends a program
that uses Qt 6.4. Nothing is kept, so each answer is what is on show now.
"""

import re
from enum import IntEnum

from gi.repository import Gio, GLib

ACCESSIBLE = "org.a11y.atspi.Accessible"
_ID = re.compile(r" ?\[#([^\]]+)\]$")
_ANSWER_WITHIN = 20000  # ms; the program does not answer while a sound plays


class State(IntEnum):
    """Numbers of the AT-SPI state set."""

    ACTIVE = 1
    CHECKED = 4
    ENABLED = 8
    FOCUSABLE = 11
    FOCUSED = 12
    SELECTED = 23
    SHOWING = 25
    VISIBLE = 30


class Role(IntEnum):
    """Numbers of AT-SPI roles; their names differ between versions of Qt."""

    ALERT = 2
    DIALOG = 16
    FRAME = 23
    LABEL = 29
    LIST = 31
    LIST_ITEM = 32
    PUSH_BUTTON = 43
    TEXT = 61
    NOTIFICATION = 101


class Gone(Exception):
    """The control, or the whole program, is not there any more."""


class Node:
    """One accessible object."""

    def __init__(self, bus, owner, path):
        self._bus = bus
        self._owner = owner
        self._path = path

    def __eq__(self, other):
        return (self._owner, self._path) == (other._owner, other._path)

    def __hash__(self):
        return hash((self._owner, self._path))

    def _call(self, interface, method, arguments=None):
        try:
            answer = self._bus.call_sync(
                self._owner, self._path, interface, method, arguments, None,
                Gio.DBusCallFlags.NONE, _ANSWER_WITHIN, None,
            )
        except GLib.Error as problem:
            raise Gone(f"{interface}.{method}: {problem.message}") from problem
        return answer.unpack()

    def _get(self, interface, name):
        return self._call(
            "org.freedesktop.DBus.Properties", "Get", GLib.Variant("(ss)", (interface, name))
        )[0]

    @property
    def name(self):
        return self._get(ACCESSIBLE, "Name")

    @property
    def full_description(self):
        return self._get(ACCESSIBLE, "Description")

    @property
    def description(self):
        """The tool tip, as a person without the ids would get it."""
        return _ID.sub("", self.full_description)

    @property
    def id(self):
        found = _ID.search(self.full_description)
        return found.group(1) if found else None

    @property
    def role(self):
        return self._call(ACCESSIBLE, "GetRole")[0]

    @property
    def role_name(self):
        return self._call(ACCESSIBLE, "GetRoleName")[0]

    @property
    def states(self):
        low, high = self._call(ACCESSIBLE, "GetState")[0]
        bits = low | high << 32
        return {state for state in State if bits >> state & 1}

    def has(self, state):
        return state in self.states

    @property
    def children(self):
        found = self._call(ACCESSIBLE, "GetChildren")[0]
        return [Node(self._bus, owner, path) for owner, path in found]

    @property
    def place(self):
        """Left, top, width and height on the screen, in pixels."""
        return self._call(
            "org.a11y.atspi.Component", "GetExtents", GLib.Variant("(u)", (0,))
        )[0]

    @property
    def text(self):
        """The content of a text field."""
        return self._call("org.a11y.atspi.Text", "GetText", GLib.Variant("(ii)", (0, -1)))[0]

    @property
    def caret(self):
        return self._get("org.a11y.atspi.Text", "CaretOffset")

    def below(self):
        """Every object under this one, in reading order."""
        for child in self.children:
            yield child
            yield from child.below()


def applications(bus):
    """The programs that are on the accessibility bus."""
    desktop = Node(bus, "org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")
    return desktop.children
