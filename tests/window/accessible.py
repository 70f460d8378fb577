# SPDX-License-Identifier: GPL-3.0-or-later
"""What assistive tools see of a window: its widgets by name and role, where they are, what they say, in what state.
Asked over D-Bus, as those tools do, with the little of its protocol that this takes; plain standard library."""
import os
import socket
import struct
import time

ACCESSIBLE, COMPONENT, TEXT, EDITABLE_TEXT, ACTION, VALUE = (
    f"org.a11y.atspi.{name}" for name in ("Accessible", "Component", "Text", "EditableText", "Action", "Value"))
PROPERTIES = "org.freedesktop.DBus.Properties"
ROOT = "/org/a11y/atspi/accessible/root"
CHECKED, ENABLED, FOCUSABLE, FOCUSED, SHOWING = 4, 8, 11, 12, 25  # bits of the state set


class Failure(Exception):
    """The other side answered with an error: most often, that the widget is gone."""


def _padding(position, alignment):
    return -position % alignment


ALIGNMENTS = {"y": 1, "g": 1, "v": 1, "n": 2, "q": 2, "b": 4, "i": 4, "u": 4, "s": 4, "o": 4, "a": 4, "x": 8, "t": 8,
              "d": 8, "(": 8, "{": 8}
NUMBERS = {"y": "B", "n": "h", "q": "H", "b": "I", "i": "i", "u": "I", "x": "q", "t": "Q", "d": "d"}


def _whole(signature, start):
    """The end of the complete type that begins here."""
    if signature[start] == "a":
        return _whole(signature, start + 1)
    if signature[start] in "({":
        place = start + 1
        while signature[place] not in ")}":
            place = _whole(signature, place)
        return place + 1
    return start + 1


class _Reader:
    def __init__(self, data):
        self.data, self.place = data, 0

    def number(self, kind):
        code = NUMBERS[kind]
        size = struct.calcsize(code)
        self.place += _padding(self.place, size)
        self.place += size
        return struct.unpack("<" + code, self.data[self.place - size:self.place])[0]

    def value(self, signature):
        kind = signature[0]
        self.place += _padding(self.place, ALIGNMENTS[kind])
        if kind in NUMBERS:
            return self.number(kind)
        if kind in "sog":
            length = self.number("y" if kind == "g" else "u")
            self.place += length + 1
            return self.data[self.place - length - 1:self.place - 1].decode("utf-8", "surrogateescape")
        if kind == "v":
            return self.value(self.value("g"))
        if kind == "a":
            length = self.number("u")
            self.place += _padding(self.place, ALIGNMENTS[signature[1]])
            end, items = self.place + length, []
            while self.place < end:
                items.append(self.value(signature[1:]))
            return items
        return self.values(signature[1:-1])

    def values(self, signature):
        found, start = [], 0
        while start < len(signature):
            end = _whole(signature, start)
            found.append(self.value(signature[start:end]))
            start = end
        return found


def _text(value, code="I"):
    data = value.encode()
    return struct.pack("<" + code, len(data)) + data + b"\0"


class Bus:
    """A connection to a message bus at a "unix:" address, for calls with texts and numbers as arguments."""

    def __init__(self, address):
        fields = dict(field.split("=", 1) for field in address.split(":", 1)[1].split(","))
        self._socket = socket.socket(socket.AF_UNIX)
        self._socket.settimeout(20)
        self._socket.connect(fields["path"] if "path" in fields else "\0" + fields["abstract"])
        self._socket.sendall(b"\0AUTH EXTERNAL " + str(os.getuid()).encode().hex().encode() + b"\r\n")
        if not self._socket.recv(1000).startswith(b"OK"):
            raise Failure("the bus does not let us in")
        self._socket.sendall(b"BEGIN\r\n")
        self._serial = 0
        self.call("org.freedesktop.DBus", "/", "org.freedesktop.DBus", "Hello")

    def close(self):
        self._socket.close()

    def call(self, name, path, interface, member, *arguments):
        """The values of the answer. Texts go as s, whole numbers as i, fractions as a variant with a d, and ("u", 1) as
        what it says."""
        signature, body = "", b""
        for argument in arguments:
            kinds = {str: "s", int: "i", float: "v"}
            kind, value = argument if isinstance(argument, tuple) else (kinds[type(argument)], argument)
            signature += kind
            if kind == "v":
                body += b"\1d\0"
                body += bytes(_padding(len(body), 8)) + struct.pack("<d", value)
                continue
            body += bytes(_padding(len(body), 4)) + (_text(value) if kind == "s" else struct.pack("<" + NUMBERS[kind], value))
        self._serial += 1
        fields = b""
        for code, kind, value in ((1, "o", path), (6, "s", name), (2, "s", interface), (3, "s", member), (8, "g", signature)):
            if value:
                fields += bytes(_padding(len(fields), 8)) + struct.pack("<B", code) + _text(kind, "B")
                fields += _text(value, "B") if kind == "g" else bytes(_padding(len(fields), 4)) + _text(value)
        head = struct.pack("<4sIII", b"l\1\0\1", len(body), self._serial, len(fields)) + fields
        self._socket.sendall(head + bytes(_padding(len(head), 8)) + body)
        while True:
            kind, serial, found = self._receive()
            if serial == self._serial:
                if kind == 3:
                    raise Failure(f"{member}: {found}")
                return found

    def _exactly(self, count):
        data = b""
        while len(data) < count:
            piece = self._socket.recv(count - len(data))
            if not piece:
                raise Failure("the bus has gone")
            data += piece
        return data

    def _receive(self):
        head = self._exactly(16)
        kind, length, fields_length = head[1], *struct.unpack("<4xI4xI", head)
        head += self._exactly(fields_length + _padding(fields_length, 8))
        body = self._exactly(length)
        reader = _Reader(head)
        reader.place = 12
        fields = dict(reader.value("a(yv)"))
        return kind, fields.get(5), _Reader(body).values(fields.get(8, ""))


class Widget:
    def __init__(self, bus, owner, path):
        self._bus, self._owner, self.path = bus, owner, path

    def _call(self, interface, member, *arguments):
        return self._bus.call(self._owner, self.path, interface, member, *arguments)

    def _property(self, interface, name):
        return self._call(PROPERTIES, "Get", interface, name)[0]

    @property
    def name(self):
        return self._property(ACCESSIBLE, "Name")

    @property
    def role(self):
        return self._call(ACCESSIBLE, "GetRoleName")[0]

    @property
    def children(self):
        return [Widget(self._bus, *child) for child in self._call(ACCESSIBLE, "GetChildren")[0]]

    def has(self, state):
        low, _high = self._call(ACCESSIBLE, "GetState")[0]
        return bool(low >> state & 1)

    @property
    def extents(self):
        """x, y, width, height on the screen."""
        return tuple(self._call(COMPONENT, "GetExtents", ("u", 0))[0])

    @property
    def text(self):
        return self._call(TEXT, "GetText", 0, -1)[0]

    @property
    def interfaces(self):
        return self._call(ACCESSIBLE, "GetInterfaces")[0]

    @property
    def value(self):
        return self._property(VALUE, "CurrentValue")

    def set_value(self, value):
        self._call(PROPERTIES, "Set", VALUE, "CurrentValue", float(value))

    def set_text(self, text):
        self._call(EDITABLE_TEXT, "SetTextContents", text)

    @property
    def actions(self):
        return [action[0] for action in self._call(ACTION, "GetActions")[0]]

    def act(self, *names):
        """The first of these actions that it has."""
        known = self.actions
        found = next((name for name in names if name in known), None)
        if found is None:
            raise Failure(f"{self.name!r} has the actions {known}")
        self._call(ACTION, "DoAction", known.index(found))

    def press(self):
        self.act("Press", "Toggle")

    def walk(self):
        """Itself and all that is below, as far as it is shown."""
        yield self
        for child in self.children:
            try:
                if child.has(SHOWING):
                    yield from child.walk()
            except Failure:
                continue  # gone meanwhile

    def tree(self, indent=0):
        rows = ["  " * indent + f"{self.role} {self.name!r}"]
        return "\n".join(rows + [child.tree(indent + 1) for child in self.children if child.has(SHOWING)])


def application(bus, pid, patience=20):
    """What a process shows, once it is on the bus."""
    end = time.monotonic() + patience
    while time.monotonic() < end:
        for name in bus.call("org.freedesktop.DBus", "/", "org.freedesktop.DBus", "ListNames")[0]:
            if not name.startswith(":"):
                continue
            try:
                found = bus.call("org.freedesktop.DBus", "/", "org.freedesktop.DBus",
                                 "GetConnectionUnixProcessID", name)[0]
                if found == pid:
                    widget = Widget(bus, name, ROOT)
                    if widget.children:
                        return widget
            except Failure:
                continue
        time.sleep(0.1)
    raise Failure(f"process {pid} shows nothing")
