# SPDX-License-Identifier: MIT
"""Three ways through the same program: by touch alone, by keys alone, by accessibility alone."""

import socket
import struct

from desktop import Failed, wait
from tree import CHECKED, ENABLED, FOCUSED, SELECTED

_FIELDS = ("text", "combo box", "spin box", "check box", "radio button")
_LINES = ("cell", "tree item", "list item")
_VIEWS = ("table", "tree", "list")


class Driver:
    """What the ways have in common: to look. What is done is finished when its effect is seen."""

    shortcuts_only = False

    def __init__(self, desktop, tree):
        self.desktop, self.tree = desktop, tree
        self.environment = {}

    def seen(self, name, roles=None):
        """What is seen under a name, or a description, the frontmost first."""
        return (node for node in self.tree.all()
                if (roles is None or node.role in roles)
                and (name is None or name in (node.name, node.read("Accessible", "Description"))))

    def find(self, name, *roles):
        return wait(lambda: next(self.seen(name, roles or None), None), f"no {roles} “{name}”")

    def see(self, name, *roles):
        return self.find(name, *roles) is not None

    def gone(self, name, *roles):
        return wait(lambda: not any(self.seen(name, roles)), f"“{name}” stays")

    def at(self, page):
        """Waits for a page, by its title."""
        titles = (page, f"{page} – Quillory")
        return wait(lambda: self.tree.windows()[0].name in titles,
                    f"not at “{page}” but “{self.tree.windows()[0].name}”")

    def lines(self):
        """The first text of each line of the view that is seen."""
        view = self.find(None, *_VIEWS)
        return [view.cell(row, 0).name for row in range(view.read("Table", "NRows"))]

    def line(self, row):
        return self.find(None, *_VIEWS).cell(row, 0)

    def focus(self):
        """What has the keyboard, and its name."""
        def it():
            node = self.tree.focus()
            return node if node and FOCUSED in node.states else None
        node = wait(it, "nothing has the keyboard")
        return node, node.name

    def await_focus(self, name, *roles):
        def is_there():
            node, now = self.focus()
            return node if now == name and (not roles or node.role in roles) else None
        return wait(is_there, f"the keyboard is not at “{name}”")

    def key(self, *keys):
        self.desktop.run("xdotool", "key", *keys)

    def type(self, text):
        """Types where the keyboard is, in place of what is there."""
        node, name = self.focus()
        if node.role != "text":
            raise Failed(f"nothing can be typed into {node.role} “{name}”")
        self.clear(node)
        self.desktop.run("xdotool", "type", "--delay", "1", "--", text)
        wait(lambda: node.text == text, f"“{node.text}” in “{name}” instead of “{text}”")

    def clear(self, node):
        """A field that the keyboard was led to is selected as a whole."""


class Touch(Driver):
    """Real touches, which the toolkit takes from a socket; text by a keyboard on the screen."""

    name = "touch"

    def __init__(self, desktop, tree):
        super().__init__(desktop, tree)
        self.socket = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as free:
            free.bind(("127.0.0.1", 0))
            self.port = free.getsockname()[1]
        self.environment = {"QT_QPA_GENERIC_PLUGINS": f"tuiotouch:udp={self.port}"}
        self.frame = 0

    def send(self, *finger):
        """Where the finger is, in parts of the active window; nowhere if it is lifted."""
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

    def tap(self, node):
        if ENABLED not in node.states:
            raise Failed(f"“{node.name}” cannot be used")
        self.touch(node)
        self.send()

    def press(self, button):
        self.tap(self.find(button, "push button"))

    answer = accept_by = press

    def accept(self):
        self.press("OK")

    def menu(self):
        self.press("Menu")

    def context(self, line):
        self.touch(self.find(line, *_LINES))
        self.find(None, "popup menu")
        self.send()

    def pick(self, entry):
        self.tap(self.find(entry, "menu item"))

    def select(self, line):
        self.tap(self.find(line, *_LINES))

    open = select

    def tab(self, name):
        self.tap(self.find(name, "page tab"))

    def clear(self, node):
        self.key("End", *["BackSpace"] * len(node.text))

    def fill(self, field, text):
        self.tap(self.find(field, "text", *_LINES))
        self.await_focus(field, "text")
        self.type(text)

    def write(self, text):
        self.await_focus("Name", "text")
        self.type(text)
        self.key("Return")

    def file(self, path, button):
        dialog = self.find(None, "dialog")
        self.tap(next(node for node in dialog.walk() if node.role == "text"))
        self.type(path)
        self.key("Return")
        try:
            wait(lambda: not any(self.seen(None, ("dialog",))), "the dialog stays", 1)
        except Failed:
            # The names that the toolkit suggests below the field, at times late, took the first one.
            self.key("Return")

    def choose(self, field, choice):
        self.tap(self.find(field, "combo box", *_LINES))
        box = self.find(field, "combo box")
        if not any(self.seen(choice, ("list item",))):
            self.tap(box)
        self.tap(self.find(choice, "list item"))
        wait(lambda: box.text == choice, f"“{field}” is not “{choice}”")

    def colour(self, button, colour):
        self.press(button)
        self.tap(self.find(colour, "check box"))
        self.find(colour, "push button")

    def tick(self, box):
        node = self.find(box, "check box", "radio button")
        self.tap(node)
        wait(lambda: CHECKED in node.states, f"“{box}” is not ticked")


class Keys(Driver):
    """Key presses, and where the keyboard is then."""

    name = "keys"

    def step(self, key, is_there, most=40):
        """Presses a key until something is so; each time it waits until the keyboard has moved."""
        for _ in range(most):
            before = self.focus()
            if is_there(*before):
                return before[0]
            self.key(key)
            wait(lambda before=before: self.focus() != before,
                 f"{key} leads nowhere from “{before[1]}”")
        raise Failed(f"{key} does not lead there")

    def go(self, name, *roles):
        return self.step("Tab", lambda node, now: now == name and node.role in roles)

    def press(self, button):
        self.find(button, "push button")
        self.go(button, "push button")
        self.key("space")

    answer = press

    def accept(self):
        self.key("ctrl+Return")

    def menu(self):
        self.key("F10")

    def context(self, line):
        self.select(line)
        self.key("Menu")

    def pick(self, entry):
        self.find(entry, "menu item")
        self.key("Down")
        wait(lambda: self.focus()[0].role == "menu item", "Down chooses no entry")
        self.step("Down", lambda _node, now: now == entry)
        self.key("Return")

    def select(self, line):
        self.find(line, *_LINES)
        self.step("Tab", lambda node, _now: node.role in (*_LINES, *_VIEWS))
        target = self.lines().index(line)
        while (current := self.current()) != target:
            self.key("Up" if current > target else "Down")
            wait(lambda current=current: self.current() != current, "the arrows lead nowhere")
        # A view that the keyboard was given to has a current line before it has a selected one.
        if SELECTED not in self.line(target).states:
            self.key("space")
            wait(lambda: SELECTED in self.line(target).states, f"“{line}” is not selected")

    def current(self):
        """The line that has the keyboard; -1 if none has."""
        view = self.find(None, *_VIEWS)
        rows, columns = view.read("Table", "NRows"), view.read("Table", "NColumns")
        return next((row for row in range(rows) for column in range(columns)
                     if FOCUSED in view.cell(row, column).states), -1)

    def open(self, line):
        self.select(line)
        self.key("Return")

    def tab(self, name):
        tab = self.find(name, "page tab")
        while FOCUSED not in tab.states:
            names = self.focus()
            self.key("ctrl+Tab")
            wait(lambda names=names: self.focus() != names, "Ctrl+Tab leads nowhere")

    def fill(self, field, text):
        self.go(field, "text")
        self.type(text)

    def write(self, text):
        self.await_focus("Name", "text")
        self.type(text)
        self.key("Return")

    def file(self, path, button):
        self.find(button, "push button")
        wait(lambda: self.focus()[0].role == "text", "no file name can be typed")
        self.type(path)
        self.key("Return")

    def choose(self, field, choice):
        box = self.go(field, "combo box")
        self.key("alt+Down")
        wait(lambda: self.focus()[0].role in (*_LINES, *_VIEWS), "no choices come up")
        self.step("Down", lambda _node, now: now == choice)
        self.key("Return")
        wait(lambda: box.text == choice, f"“{field}” is not “{choice}”")

    def colour(self, button, colour):
        self.press(button)
        self.await_focus(button, "check box")
        self.step("Down", lambda _node, now: now == colour)
        self.key("Return")
        self.find(colour, "push button")

    def tick(self, box):
        node = self.find(box, "check box", "radio button")
        if node.role == "radio button":
            first = self.step("Tab", lambda at, _now: at.role == "radio button")
            way = "Down" if node.place[1] > first.place[1] else "Up"
            self.step(way, lambda _node, now: now == box)
        else:
            self.go(box, "check box")
            self.key("space")
        wait(lambda: CHECKED in node.states, f"“{box}” is not ticked")


class Accessibility(Driver):
    """The actions, texts and values that the program offers to assistive technology."""

    name = "accessibility"

    def act(self, action, name, *roles):
        node = self.find(name, *roles)
        if ENABLED not in node.states:
            raise Failed(f"“{name}” cannot be used")
        node.act(action)

    def press(self, button):
        self.act("Press", button, "push button")

    answer = press

    def accept(self):
        self.press("OK")

    def menu(self):
        self.act("ShowMenu", "Menu", "push button")

    def page(self):
        return self.find(self.tree.windows()[0].name.removesuffix(" – Quillory"), "panel")

    def context(self, line):
        self.select(line).act("ShowMenu")

    def open(self, line):
        self.select(line).act("Press")

    def select(self, line):
        """Selects a line; gives the page that it stands on."""
        self.find(line, *_LINES)
        view = self.find(None, *_VIEWS)
        view.call("Table", "AddRowSelection", "(i)", self.lines().index(line))
        return next(node for node in self.tree.all() if node.role == "panel")

    def pick(self, entry):
        self.act("Press", entry, "menu item")

    def tab(self, name):
        self.act("Press", name, "page tab")

    def field(self, name, *roles):
        """A field of a form, or of the line of a table in which it comes up."""
        if not any(self.seen(name, roles)):
            self.select(name)
        return self.find(name, *roles)

    def set(self, node, text):
        node.call("EditableText", "SetTextContents", "(s)", text)
        wait(lambda: node.text == text, f"“{node.text}” instead of “{text}”")

    def fill(self, field, text):
        self.set(self.field(field, "text"), text)

    def write(self, text):
        self.set(self.await_focus("Name", "text"), text)
        # The text is taken where the keyboard leaves it.
        self.act("SetFocus", "Menu", "push button")

    def file(self, path, button):
        dialog = self.find(None, "dialog")
        self.set(next(node for node in dialog.walk() if node.role == "text"), path)
        self.press(button)

    def choose(self, field, choice):
        box = self.field(field, "combo box")
        while box.text != choice:
            before = box.text
            box.act("Increase")
            wait(lambda before=before: box.text != before, f"“{field}” has no “{choice}”")

    def colour(self, button, colour):
        self.press(button)
        self.act("Toggle", colour, "check box")
        self.find(colour, "push button")

    def tick(self, box):
        node = self.find(box, "check box", "radio button")
        node.act("Toggle")
        wait(lambda: CHECKED in node.states, f"“{box}” is not ticked")
