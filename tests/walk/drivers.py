# SPDX-License-Identifier: MIT
"""Three ways through the same program: by touch alone, by keys alone, by accessibility alone."""

import socket
import struct

from desktop import Failed, place, run, wait
from tree import CHECKED, ENABLED, FOCUSED, SELECTED

LINES = ("cell", "tree item", "list item")
VIEWS = ("table", "tree", "list")
BOXES = ("check box", "radio button")


class Driver:
    """Steps of a walk, by their effects alone: what is done is finished when that is seen. A way
    says by which means; what it does not say is done like the others'."""

    def __init__(self, tree):
        self.tree = tree
        self.environment = {}

    # What is seen.

    def find(self, name, *roles):
        """What has a name, or a description, and one of these roles; any name where there is none."""
        def first():
            for node in self.tree.all():
                if (not roles or node.role in roles) and (
                        name is None or name in (node.name, node.read("Accessible", "Description"))):
                    return node
            return None
        return wait(first, f"no {' or '.join(roles)} “{name}”")

    see = find

    def at(self, page):
        """Waits for a page, by its title."""
        wait(lambda: self.tree.windows()[0].name in (page, f"{page} – Quillory"),
             f"not at “{page}” but at “{self.tree.windows()[0].name}”")

    def lines(self):
        """The first text of each line of the view that is seen."""
        view = self.find(None, *VIEWS)
        return [view.cell(line).name for line in range(view.lines)]

    def holds(self, *lines):
        wait(lambda: self.lines() == list(lines), f"not {lines} but {self.lines()}")

    def focus(self):
        """What has the keyboard, and its name."""
        node = wait(self.tree.focus, "nothing has the keyboard")
        return node, node.name

    def await_focus(self, name, role):
        def is_there():
            node, now = self.focus()
            return node if now == name and node.role == role else None
        return wait(is_there, f"the keyboard is not at {role} “{name}”")

    # What is done in the same way by touch, with the keys of a screen's keyboard, and by keys.

    def key(self, *keys):
        run("xdotool", "key", *keys)

    def type(self, node, text):
        """Types into a field that has the keyboard, in place of what is there."""
        self.clear(node)
        run("xdotool", "type", "--delay", "1", "--", text)
        wait(lambda: node.text == text, f"“{node.text}” instead of “{text}”")

    def clear(self, node):
        """A field that the keyboard was led to is selected as a whole."""

    def press(self, button):
        self.use(self.find(button, "push button"))

    def menu(self):
        self.press("Menu")

    def pick(self, entry):
        self.use(self.find(entry, "menu item"))

    def tab(self, name):
        self.use(self.find(name, "page tab"))

    def accept(self):
        self.press("OK")

    def fill(self, field, text):
        self.type(self.enter(field, "text"), text)

    def choose(self, field, choice):
        box = self.enter(field, "combo box")
        self.open_choices(box)
        self.use(self.find(choice, "list item"))
        wait(lambda: box.text == choice, f"“{field}” is not “{choice}”")

    def tick(self, name):
        box = self.find(name, *BOXES)
        self.use(box)
        wait(lambda: CHECKED in box.states, f"“{name}” is not ticked")

    def colour(self, before, after):
        self.press(before)
        self.use(self.find(after, "check box"))
        self.find(after, "push button")

    def write(self, text):
        """Into an editor that has come up in the place of a name."""
        self.type(self.await_focus("Name", "text"), text)
        self.key("Return")

    def file(self, name):
        """Into a dialog for files, which begins with the field for the name."""
        dialog = self.find(None, "dialog")
        wait(lambda: self.focus()[0].role == "text", "no file name can be typed")
        self.type(self.focus()[0], place(name))
        self.key("Return")
        try:
            wait(lambda: dialog not in self.tree.windows(), "the dialog stays", 1)
        except Failed:
            # The names that the toolkit suggests below the field, at times late, took that one.
            self.key("Return")


class Touch(Driver):
    """Real touches, which the toolkit takes from a socket; text by a keyboard on the screen."""

    name = "touch"

    def __init__(self, tree):
        super().__init__(tree)
        self.socket = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as free:
            free.bind(("127.0.0.1", 0))
            self.port = free.getsockname()[1]
        self.environment = {"QT_QPA_GENERIC_PLUGINS": f"tuiotouch:udp={self.port}"}
        self.frame = 0

    def send(self, *finger):
        """Where the finger is, in parts of the window or pop-up in front; nowhere if it is lifted."""
        def padded(data):
            return data + b"\0" * (4 - len(data) % 4)

        def message(tags, *values):
            data = padded(b"/tuio/2Dcur") + padded(b"," + tags)
            for tag, value in zip(tags, values):
                data += padded(value) if tag == ord("s") else struct.pack(">" + chr(tag), value)
            return struct.pack(">i", len(data)) + data
        self.frame += 1
        bundle = b"#bundle\0" + struct.pack(">Q", 1)
        bundle += message(b"si", b"alive", 1) if finger else message(b"s", b"alive")
        if finger:
            bundle += message(b"sifffff", b"set", 1, *finger, 0, 0, 0)
        bundle += message(b"si", b"fseq", self.frame)
        self.socket.sendto(bundle, ("127.0.0.1", self.port))

    def touch(self, node):
        left, top, width, height = wait(self.tree.front, "nothing is in front").place
        x, y, across, down = node.place
        self.send((x - left + min(across, left + width - x) / 2) / width,
                  (y - top + down / 2) / height)

    def use(self, node):
        if ENABLED not in node.states:
            raise Failed(f"“{node.name}” cannot be used")
        self.touch(node)
        self.send()

    def select(self, line):
        self.use(self.find(line, *LINES))

    open = select

    def context(self, line):
        self.touch(self.find(line, *LINES))
        self.find(None, "popup menu")
        self.send()

    def enter(self, field, role):
        # The fields of a row come up where their line is tapped.
        self.use(self.find(field, role, *LINES))
        return self.find(field, role) if role == "combo box" else self.await_focus(field, role)

    def clear(self, node):
        self.key("End", *["BackSpace"] * len(node.text))

    def open_choices(self, box):
        if not any(node.role == "list" for node in self.tree.apart()):
            self.use(box)


class Keys(Driver):
    """Key presses, and where the keyboard is then."""

    name = "keys"

    def step(self, key, is_there):
        """Presses a key until something is so; each time it waits until the keyboard has moved."""
        for _ in range(40):
            before = self.focus()
            if is_there(*before):
                return before[0]
            self.key(key)
            wait(lambda before=before: self.focus() != before,
                 f"{key} leads nowhere from “{before[1]}”")
        raise Failed(f"{key} does not lead there")

    def enter(self, field, role):
        return self.step("Tab", lambda node, name: name == field and node.role == role)

    def use(self, node):
        role, name = node.role, node.name
        if role == "menu item":
            # Nothing is chosen when a menu opens.
            self.key("Down")
            wait(lambda: self.focus()[0].role == role, "Down chooses no entry")
        if role in ("menu item", "list item"):
            self.step("Down", lambda _node, now: now == name)
            self.key("Return")
        elif role == "page tab":
            while FOCUSED not in node.states:
                before = self.focus()
                self.key("ctrl+Tab")
                wait(lambda before=before: self.focus() != before, "Ctrl+Tab leads nowhere")
        elif role == "radio button":
            first = self.step("Tab", lambda now, _name: now.role == role)
            self.step("Down" if node.place[1] > first.place[1] else "Up",
                      lambda _node, now: now == name)
        else:
            self.enter(name, role)
            self.key("space")

    def menu(self):
        self.key("F10")

    def accept(self):
        self.key("ctrl+Return")

    def open_choices(self, _box):
        self.key("alt+Down")
        wait(lambda: self.focus()[0].role in (*LINES, *VIEWS), "no choices come up")

    def current(self):
        """The line that has the keyboard; -1 if none has."""
        view = self.find(None, *VIEWS)
        return next((line for line in range(view.lines)
                     for column in range(view.read("Table", "NColumns"))
                     if FOCUSED in view.cell(line, column).states), -1)

    def select(self, line):
        self.find(line, *LINES)
        self.step("Tab", lambda node, _name: node.role in (*LINES, *VIEWS))
        target = self.lines().index(line)
        while (current := self.current()) != target:
            self.key("Up" if current > target else "Down")
            wait(lambda current=current: self.current() != current, "the arrows lead nowhere")
        # A view that the keyboard was given to has a current line before it has a selected one.
        cell = self.find(None, *VIEWS).cell(target)
        if SELECTED not in cell.states:
            self.key("space")
            wait(lambda: SELECTED in cell.states, f"“{line}” is not selected")

    def open(self, line):
        self.select(line)
        self.key("Return")

    def context(self, line):
        self.select(line)
        self.key("Menu")


class Accessibility(Driver):
    """The actions, texts and selections that the program offers to assistive technology."""

    name = "accessibility"

    def use(self, node):
        if ENABLED not in node.states:
            raise Failed(f"“{node.name}” cannot be used")
        node.act("Press", "Toggle")

    def select(self, line):
        """Selects a line; gives the page that it stands on."""
        self.find(line, *LINES)
        view = self.find(None, *VIEWS)
        view.call("Table", "AddRowSelection", "(i)", self.lines().index(line))
        return self.find(None, "panel")

    def open(self, line):
        self.select(line).act("Press")

    def context(self, line):
        self.select(line).act("ShowMenu")

    def enter(self, field, role):
        # The fields of a row come up where their line is selected.
        if self.find(field, role, *LINES).role != role:
            self.select(field)
        return self.find(field, role)

    def type(self, node, text):
        node.call("EditableText", "SetTextContents", "(s)", text)
        wait(lambda: node.text == text, f"“{node.text}” instead of “{text}”")

    def choose(self, field, choice):
        box = self.enter(field, "combo box")
        while (before := box.text) != choice:
            box.act("Increase")
            wait(lambda before=before: box.text != before, f"“{field}” has no “{choice}”")

    def write(self, text):
        self.type(self.await_focus("Name", "text"), text)
        # The text is taken where the keyboard leaves it.
        self.find("Menu", "push button").act("SetFocus")

    def file(self, name):
        dialog = self.find(None, "dialog")
        self.type(next(node for node in dialog.walk() if node.role == "text"),
                  place(name))
        self.use(next(node for node in dialog.walk() if node.name in ("Open", "Save")
                      and node.role == "push button"))
