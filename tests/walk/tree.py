# SPDX-License-Identifier: MIT
"""What assistive technology is told of the program, read from its bus without a cache."""

import contextlib

import gi
from desktop import Failed, wait

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402 pylint: disable=wrong-import-position

_ATSPI = "org.a11y.atspi."
_ROOT = "/org/a11y/atspi/accessible/root"
_REGISTRY, _REGISTRY_PATH = _ATSPI + "Registry", "/org/a11y/atspi/registry"
_BUS = "org.freedesktop.DBus"
# Numbers of AT-SPI's states.
ACTIVE, CHECKED, ENABLED, FOCUSED, SELECTED, SHOWING = 1, 4, 8, 12, 23, 25


class Node:
    """An object of the program's; each question asks the program anew."""

    def __init__(self, tree, path):
        self.tree, self.path = tree, path

    def __eq__(self, other):
        return isinstance(other, Node) and self.path == other.path

    def call(self, interface, method, signature=None, *arguments):
        return self.tree.ask(self.tree.program, self.path, _ATSPI + interface, method, signature,
                             *arguments)

    def read(self, interface, name):
        return self.tree.ask(self.tree.program, self.path, _BUS + ".Properties", "Get", "(ss)",
                             _ATSPI + interface, name)[0]

    @property
    def name(self):
        return self.read("Accessible", "Name")

    @property
    def role(self):
        return self.call("Accessible", "GetRoleName")[0]

    @property
    def states(self):
        low, high = self.call("Accessible", "GetState")[0]
        bits = low | high << 32
        return {state for state in range(64) if bits >> state & 1}

    @property
    def children(self):
        return [Node(self.tree, path) for _, path in self.call("Accessible", "GetChildren")[0]
                if not path.endswith("/null")]

    @property
    def parent(self):
        return Node(self.tree, self.read("Accessible", "Parent")[1])

    @property
    def text(self):
        """What a field holds."""
        return self.call("Text", "GetText", "(ii)", 0, -1)[0]

    @property
    def place(self):
        """x, y, width and height on the screen."""
        return self.call("Component", "GetExtents", "(u)", 0)[0]

    def cell(self, row, column):
        """A cell of a table, tree or list."""
        path = self.call("Table", "GetAccessibleAt", "(ii)", row, column)[0][1]
        return Node(self.tree, path)

    @property
    def actions(self):
        interfaces = self.call("Accessible", "GetInterfaces")[0]
        if _ATSPI + "Action" not in interfaces:
            return []
        return [name for name, *_ in self.call("Action", "GetActions")[0]]

    def act(self, action):
        actions = self.actions
        if action not in actions:
            raise Failed(f"{self.role} “{self.name}” has no action {action}, only {actions}")
        self.call("Action", "DoAction", "(i)", actions.index(action))

    def walk(self):
        """This object and all below it that can be seen, in depth."""
        with contextlib.suppress(Failed):
            if self.path != _ROOT and SHOWING not in self.states:
                return
            yield self
            for child in self.children:
                yield from child.walk()


class Tree:
    """The objects of one program on a desktop."""

    def __init__(self, desktop):
        self.program = None
        # By the program: a new one may have said much before it is known.
        self.focused, self.showing = {}, {}
        session = self._connect(desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
        launcher = ("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress")
        self.bus = session
        self.bus = self._connect(wait(lambda: self.ask(*launcher)[0], "no accessibility bus"))
        # What nobody listens to is not told.
        self.ask(_REGISTRY, _REGISTRY_PATH, _REGISTRY, "RegisterEvent", "(sass)",
                 "object:state-changed", [], "")
        self.bus.signal_subscribe(None, _ATSPI + "Event.Object", "StateChanged", None, None,
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
        node = Node(self, path)
        if state == "focused" and is_set:
            self.focused[sender] = node
        elif state == "showing":
            shown = [other for other in self.showing.get(sender, []) if other != node]
            self.showing[sender] = shown + [node] if is_set else shown

    def focus(self):
        """What has the keyboard; None before the program has told."""
        self.hear()
        return self.focused.get(self.program)

    def meet(self, process):
        """Waits for a program that was started."""
        def find():
            if process.poll() is not None:
                raise Failed("the program ended")
            for owner, _ in self.ask(_REGISTRY, _ROOT, _ATSPI + "Accessible", "GetChildren")[0]:
                with contextlib.suppress(Failed):
                    if process.pid == self.ask(_BUS, "/", _BUS, "GetConnectionUnixProcessID",
                                               "(s)", owner)[0]:
                        return owner
            return None
        self.program = wait(find, "the program is not on the accessibility bus", 10)

    @staticmethod
    def hear():
        """Takes in what the program has told meanwhile."""
        context = GLib.MainContext.default()
        while context.pending():
            context.iteration(False)

    def windows(self):
        """The windows of the program, the active one first. Pop-ups are not among them."""
        windows = [window for window in Node(self, _ROOT).children if SHOWING in window.states]
        return sorted(windows, key=lambda window: ACTIVE not in window.states)

    def apart(self):
        """What no window leads to and only its coming up tells of, the latest first: pop-ups, and
        the editors that stand in the place of cells."""
        self.hear()
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
