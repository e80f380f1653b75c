"""What a screen reader sees of a program: its tree of named things, read over AT-SPI."""

import time

from gi.repository import Gio, GLib

PATIENCE_MS = 5000
CHECKED, ENABLED, FOCUSABLE, SHOWING = 1 << 4, 1 << 8, 1 << 11, 1 << 25
SCREEN_COORDINATES = 0
HEARD = ("object:children-changed", "object:property-change", "object:state-changed",
         "object:text-changed", "object:announcement")
LEAVES = ("check box", "label", "list item", "push button", "radio button", "text")
"""Roles of what has no children."""


def connect(address):
    flags = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
             | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
    return Gio.DBusConnection.new_for_address_sync(address, flags, None, None)


class AccessibilityBus:
    def __init__(self, session_bus_address):
        session = connect(session_bus_address)
        address = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress",
                                    None, None, Gio.DBusCallFlags.NONE, PATIENCE_MS, None)
        self._connection = connect(address.unpack()[0])
        self._roles = {}

    def program(self, pid):
        """The root of the tree of the program with that process, or None before it registers."""
        programs = Accessible(self._connection, "org.a11y.atspi.Registry",
                              "/org/a11y/atspi/accessible/root", self._roles).children()
        return next((program for program in programs if program.process_id == pid), None)

    def listen(self, program):
        return Listener(self._connection, program)

    def box_button(self, pid):
        """The OK button of the program's message box, or None; None too while the box or another
        part of the tree is coming or going."""
        try:
            program = self.program(pid)
            return program and program.box_button()
        except GLib.Error:
            return None


class Listener:
    """What a program tells of itself, unasked."""

    def __init__(self, connection, program):
        self._program = program
        self._things = []
        connection.signal_subscribe(program.owner, "org.a11y.atspi.Event.Object", None, None, None,
                                    Gio.DBusSignalFlags.NONE, self._hear)
        for event in HEARD:
            connection.call_sync(
                "org.a11y.atspi.Registry", "/org/a11y/atspi/registry", "org.a11y.atspi.Registry",
                "RegisterEvent", GLib.Variant("(sass)", (event, [], "")), None,
                Gio.DBusCallFlags.NONE, PATIENCE_MS, None)

    def _hear(self, _connection, _owner, path, _interface, event, arguments):
        detail, is_so, *_ = arguments.unpack()
        self._things.append((event, detail, is_so, self._program.thing_at(path)))

    def events(self):
        """What was heard since the last question: (event, detail, 1 where it came, the thing)."""
        context = GLib.MainContext.default()
        while context.iteration(False):
            pass
        heard, self._things = self._things, []
        return heard

    def announcements(self):
        """The texts of the notifications that came up since the last question."""
        return [thing.children()[0].name for event, detail, is_so, thing in self.events()
                if (event, detail, is_so) == ("StateChanged", "showing", 1)
                and thing.role == "notification"]


class Accessible:
    """One thing of a program's tree. Every question goes to the program anew, but for the role,
    which a thing keeps: `roles` has those that were asked."""

    def __init__(self, connection, owner, path, roles):
        self._connection = connection
        self._owner = owner
        self._path = path
        self._roles = roles

    def _call(self, interface, method, arguments=None):
        try:
            return self._connection.call_sync(
                self._owner, self._path, interface, method, arguments, None,
                Gio.DBusCallFlags.NONE, PATIENCE_MS, None).unpack()
        except GLib.Error as failure:
            if failure.matches(Gio.io_error_quark(), Gio.IOErrorEnum.TIMED_OUT):
                raise AssertionError(f"the program hangs: {method} was not answered within "
                                     f"{PATIENCE_MS} ms") from None
            raise

    def _ask(self, interface, method, arguments=None):
        return self._call("org.a11y.atspi." + interface, method, arguments)

    def _property(self, name):
        wanted = GLib.Variant("(ss)", ("org.a11y.atspi.Accessible", name))
        return self._call("org.freedesktop.DBus.Properties", "Get", wanted)[0]

    @property
    def owner(self):
        return self._owner

    def thing_at(self, path):
        """Another thing of the same program."""
        return Accessible(self._connection, self._owner, path, self._roles)

    @property
    def process_id(self):
        owner = GLib.Variant("(s)", (self._owner,))
        return self._connection.call_sync(
            "org.freedesktop.DBus", "/", "org.freedesktop.DBus", "GetConnectionUnixProcessID",
            owner, None, Gio.DBusCallFlags.NONE, PATIENCE_MS, None).unpack()[0]

    @property
    def name(self):
        return self._property("Name")

    @property
    def description(self):
        return self._property("Description")

    @property
    def role(self):
        me = self._owner, self._path
        if me not in self._roles:
            self._roles[me] = self._ask("Accessible", "GetRoleName")[0]
        return self._roles[me]

    def _is(self, state):
        return bool(self._ask("Accessible", "GetState")[0][0] & state)

    @property
    def is_checked(self):
        return self._is(CHECKED)

    @property
    def is_enabled(self):
        return self._is(ENABLED)

    @property
    def is_focusable(self):
        return self._is(FOCUSABLE)

    @property
    def is_showing(self):
        return self._is(SHOWING)

    @property
    def place(self):
        """(x, y, width, height) on the screen."""
        where = GLib.Variant("(u)", (SCREEN_COORDINATES,))
        return self._ask("Component", "GetExtents", where)[0]

    def actions(self):
        return [name for name, _, _ in self._ask("Action", "GetActions")[0]]

    def perform(self, action):
        number = self.actions().index(action)
        return self._ask("Action", "DoAction", GLib.Variant("(i)", (number,)))[0]

    def write(self, text):
        """In the place of all that stands in it."""
        return self._ask("EditableText", "SetTextContents", GLib.Variant("(s)", (text,)))[0]

    def children(self):
        return [Accessible(self._connection, owner, path, self._roles)
                for owner, path in self._ask("Accessible", "GetChildren")[0]]

    def descendants(self):
        for child in self.children():
            yield child
            if child.role not in LEAVES:
                yield from child.descendants()

    def lines(self):
        """What is shown of it and below it, a line for each thing: role, name, state, actions."""
        actions = ", ".join(action for action in self.actions() if action != "SetFocus")
        yield (f'{self.role} "{self.name}"' + ("" if self.is_enabled else ", off")
               + (", checked" if self.is_checked else "") + (f": {actions}" if actions else ""))
        for child in self.children():
            if child.is_showing:
                yield from ("  " + line for line in child.lines())

    def box_button(self):
        """The OK button of a message box, or None; None too before it stands where it stays: a
        window manager moves what has just appeared."""
        boxes = [window for window in self.children() if window.role == "alert message"]
        button = next(filter(None, (box.find("push button", "OK") for box in boxes)), None)
        if button is None:
            return None
        place = button.place
        time.sleep(0.2)
        return button if button.is_showing and button.place == place else None

    def find(self, role, name, is_wanted=lambda _: True):
        """The first such thing below, or None; None too while the tree is being rebuilt."""
        try:
            return next((thing for thing in self.descendants()
                         if thing.role == role and thing.name == name and is_wanted(thing)), None)
        except GLib.Error:
            return None
