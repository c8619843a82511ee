# SPDX-License-Identifier: MIT
"""What assistive technology is told of the program, read from its bus without a cache."""

import contextlib
import os

import gi
from desktop import Failed, wait

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib

ATSPI, BUS, REGISTRY = "org.a11y.atspi.", "org.freedesktop.DBus", "org.a11y.atspi.Registry"
ROOT = "/org/a11y/atspi/accessible/root"
# Numbers of AT-SPI's states.
ACTIVE, CHECKED, ENABLED, FOCUSED, SELECTED, SHOWING = 1, 4, 8, 12, 23, 25


class Node:
    """An object of the program's; each question asks the program anew."""

    def __init__(self, tree, path):
        self.tree, self.path = tree, path

    def __eq__(self, other):
        return isinstance(other, Node) and self.path == other.path

    def call(self, interface, method, signature=None, *arguments):
        return self.tree.ask(self.tree.program, self.path, ATSPI + interface, method, signature,
                             *arguments)

    def read(self, interface, name):
        return self.tree.ask(self.tree.program, self.path, BUS + ".Properties", "Get", "(ss)",
                             ATSPI + interface, name)[0]

    name = property(lambda self: self.read("Accessible", "Name"))
    role = property(lambda self: self.call("Accessible", "GetRoleName")[0])
    parent = property(lambda self: Node(self.tree, self.read("Accessible", "Parent")[1]))
    # What a field holds.
    text = property(lambda self: self.call("Text", "GetText", "(ii)", 0, -1)[0])
    # x, y, width and height on the screen.
    place = property(lambda self: self.call("Component", "GetExtents", "(u)", 0)[0])
    # How many lines a table, tree or list has.
    lines = property(lambda self: self.read("Table", "NRows"))

    @property
    def states(self):
        low, high = self.call("Accessible", "GetState")[0]
        return {state for state in range(64) if (low | high << 32) >> state & 1}

    @property
    def children(self):
        return [Node(self.tree, path) for _, path in self.call("Accessible", "GetChildren")[0]
                if not path.endswith("/null")]

    def cell(self, line, column=0):
        path = self.call("Table", "GetAccessibleAt", "(ii)", line, column)[0][1]
        return Node(self.tree, path)

    def act(self, *actions):
        """Does the first of these actions that there is."""
        offered = []
        if ATSPI + "Action" in self.call("Accessible", "GetInterfaces")[0]:
            offered = [name for name, *_ in self.call("Action", "GetActions")[0]]
        for action in actions:
            if action in offered:
                return self.call("Action", "DoAction", "(i)", offered.index(action))
        raise Failed(f"{self.role} “{self.name}” has no action {actions}, only {offered}")

    def walk(self):
        """This object and all below it that can be seen, in depth."""
        with contextlib.suppress(Failed):
            if SHOWING in self.states:
                yield self
                for child in self.children:
                    yield from child.walk()


class Tree:
    """The objects of the program that runs."""

    def __init__(self):
        self.program = None
        # By the program: a new one may have said much before it is known.
        self.focused, self.showing = {}, {}
        self.bus = self._connect(os.environ["DBUS_SESSION_BUS_ADDRESS"])
        launcher = ("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress")
        self.bus = self._connect(wait(lambda: self.ask(*launcher)[0], "no accessibility bus"))
        # What nobody listens to is not told.
        self.ask(REGISTRY, "/org/a11y/atspi/registry", REGISTRY, "RegisterEvent", "(sass)",
                 "object:state-changed", [], "")
        self.bus.signal_subscribe(None, ATSPI + "Event.Object", "StateChanged", None, None,
                                  Gio.DBusSignalFlags.NONE, self._note)

    @staticmethod
    def _connect(address):
        flags = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
                 | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
        connection = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
        connection.set_exit_on_close(False)
        return connection

    def ask(self, owner, path, interface, method, signature=None, *arguments):
        try:
            return self.bus.call_sync(
                owner, path, interface, method,
                GLib.Variant(signature, arguments) if signature else None, None,
                Gio.DBusCallFlags.NONE, 5000, None).unpack()
        except GLib.Error as error:
            raise Failed(f"{path} {method}: {error.message}") from None

    def _note(self, _bus, sender, path, _interface, _signal, arguments):
        state, is_set = arguments.unpack()[:2]
        if state == "focused" and is_set:
            self.focused[sender] = Node(self, path)
        elif state == "showing":
            shown = [node for node in self.showing.get(sender, []) if node.path != path]
            self.showing[sender] = shown + [Node(self, path)] if is_set else shown

    @staticmethod
    def _hear():
        while GLib.MainContext.default().pending():
            GLib.MainContext.default().iteration(False)

    def meet(self, process):
        """Waits for a program that was started."""
        def find():
            for owner, _ in self.ask(REGISTRY, ROOT, ATSPI + "Accessible", "GetChildren")[0]:
                with contextlib.suppress(Failed):
                    if process.pid == self.ask(BUS, "/", BUS, "GetConnectionUnixProcessID", "(s)",
                                               owner)[0]:
                        return owner
            return None
        self.program = wait(find, "the program is not on the accessibility bus", 10)

    def focus(self):
        """What has the keyboard, by the latest that was told; None while nothing has it."""
        self._hear()
        node = self.focused.get(self.program)
        return node if node is not None and FOCUSED in node.states else None

    def windows(self):
        """The windows of the program, the active one first. Pop-ups are not among them."""
        windows = [window for window in Node(self, ROOT).children if SHOWING in window.states]
        return sorted(windows, key=lambda window: ACTIVE not in window.states)

    def apart(self):
        """What no window leads to and only its coming up tells of, the latest first: pop-ups, and
        the editors that stand in the place of cells."""
        self._hear()
        for node in reversed(self.showing.get(self.program, [])):
            with contextlib.suppress(Failed):
                if node.role != "notification" and node not in node.parent.children:
                    yield node

    def front(self):
        """The window or pop-up that is used now."""
        for node in [*self.apart(), *self.windows()]:
            if ACTIVE in node.states:
                return node
        raise Failed("no window is active")

    def all(self):
        """All that can be seen, from the front to the back."""
        for front in [*self.apart(), *self.windows()]:
            yield from front.walk()
