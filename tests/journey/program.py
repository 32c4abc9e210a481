# SPDX-License-Identifier: MIT
"""The program as its user meets it: controls are found through the accessibility bus, by what they are called, and
worked by real keys and clicks only."""

import os
import signal

from stage import JourneyError, wait_until

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

# Characters that no key of the keyboard has are put on keys that have none, before the program starts. A key map that
# changes while the program runs would race with the keys.
FIRST_SPARE_KEY = 200
MESSAGE_BOX = object()


def put_on_keyboard(stage, characters):
    lines = [f"keycode {FIRST_SPARE_KEY + place} = U{ord(character):04X}"
             for place, character in enumerate(sorted(characters))]
    if FIRST_SPARE_KEY + len(lines) > 255:
        raise JourneyError("the keyboard has too few spare keys")
    path = stage.path("keyboard")
    with open(path, "w", encoding="utf-8") as keyboard:
        keyboard.write("\n".join(lines) + "\n")
    stage.run("xmodmap", path)


class Control:
    """What one look at the screen found."""

    def __init__(self, program, node):
        self._program = program
        self._node = node

    @property
    def name(self):
        return self._node.get_name() or ""

    @property
    def role(self):
        return self._node.get_role_name()

    @property
    def tip(self):
        return self._node.get_description() or ""

    @property
    def text(self):
        if self._node.get_text_iface() is None:
            return self.name
        return Atspi.Text.get_text(self._node, 0, -1)

    @property
    def box(self):
        extents = Atspi.Component.get_extents(self._node, Atspi.CoordType.SCREEN)
        return extents.x, extents.y, extents.width, extents.height

    def is_(self, state):
        return self._node.get_state_set().contains(getattr(Atspi.StateType, state.upper()))

    def is_top(self):
        """Whether it is a window of its own on the desktop."""
        parent = self._node.get_parent()
        return parent is not None and parent.get_role_name() == "application"

    def click(self, times=1):
        x, y, width, height = wait_until(self._steady_box, f"{self.name!r} to stand still")
        place = [str(self._program.on_screen(length)) for length in (x + width / 2, y + height / 2)]
        self._program.xdotool("mousemove", *place, "click", "--repeat", str(times), "--delay", "50", "1")

    def _steady_box(self):
        first, second = self.box, self.box
        return first if first == second and first[2] > 0 and first[3] > 0 and first[0] >= 0 else None


class Grid(Control):
    """A table whose cells are told by row and column, from 0 on and without its headings."""

    def row_count(self):
        return Atspi.Table.get_n_rows(self._node)

    def rows(self, count, columns):
        """The texts of the first rows, with None for a cell out of view."""
        return [[self._text_at(row, column) for column in range(columns)] for row in range(count)]

    def _text_at(self, row, column):
        cell = Control(self._program, Atspi.Table.get_accessible_at(self._node, row, column))
        return cell.name if cell.is_("showing") else None


class Program:
    """One run of the program, from its start to its end."""

    def __init__(self, stage, binary, *arguments, **environment):
        self.stage = stage
        # The bus tells places in the program's own pixels, of which each may be several on the screen.
        self._scale = float(stage.environment.get("QT_SCALE_FACTOR", "1"))
        self._process = stage.start([binary, *arguments], environment)
        Atspi.init()
        self._root = wait_until(self._find_root, "the program on the accessibility bus")

    def _find_root(self):
        if self._process.poll() is not None:
            raise JourneyError(f"the program ended with {self._process.returncode} at its start")
        return self._application(lambda node: node.get_process_id() == self._process.pid)

    @staticmethod
    def _application(fits):
        desktop = Atspi.get_desktop(0)
        desktop.set_cache_mask(Atspi.Cache.NONE)
        for place in range(desktop.get_child_count()):
            node = desktop.get_child_at_index(place)
            if node is not None and fits(node):
                node.set_cache_mask(Atspi.Cache.NONE)
                return node
        return None

    def on_screen(self, length):
        return round(length * self._scale)

    def xdotool(self, *words):
        self.stage.run("xdotool", *words)

    # Looking

    @staticmethod
    def _children(node):
        for place in range(node.get_child_count()):
            child = node.get_child_at_index(place)
            if child is not None:
                yield child

    def _nodes(self, node):
        yield node
        for child in self._children(node):
            yield from self._nodes(child)

    def _screens(self):
        """The windows, and the screens in the area of the frame; nothing of what stands in them is asked."""
        for window in self._children(self._root):
            yield window
            for inner in self._children(window):
                if inner.get_role_name() != "filler":
                    continue
                for area in self._children(inner):
                    if area.get_role_name() == "layered pane":
                        yield from self._children(area)

    def _roots(self, within):
        if within is None:
            return [self._root]
        if within is MESSAGE_BOX:
            return [window for window in self._children(self._root) if window.get_role_name() == "alert"]
        return [screen for screen in self._screens() if screen.get_name() == within]

    def _looking(self, role=None, name=None, within=None, where=None, kind=Control):
        for root in self._roots(within):
            for node in self._nodes(root):
                if name is not None and node.get_name() != name:
                    continue
                if role is not None and node.get_role_name() != role:
                    continue
                if not node.get_state_set().contains(Atspi.StateType.SHOWING):
                    continue
                control = kind(self, node)
                if where is None or where(control):
                    yield control

    def look(self, role=None, name=None, **rest):
        """The first control in view that fits, or None. `within` names the screen or window that holds it."""
        try:
            return next(self._looking(role, name, **rest), None)
        except GLib.Error:
            return None  # a control went away while it was looked at

    def find_all(self, role=None, name=None, **rest):
        try:
            return list(self._looking(role, name, **rest))
        except GLib.Error:
            return []

    def find(self, role=None, name=None, **rest):
        return wait_until(lambda: self.look(role, name, **rest), f"{role} {name!r} {rest}")

    def gone(self, role=None, name=None, **rest):
        wait_until(lambda: self.look(role, name, **rest) is None, f"{role} {name} {rest} to go")

    def grid(self, name, within=None):
        return self.find("table", name, within=within, kind=Grid)

    def wait_for_focus(self, name, role="text", within=None):
        return wait_until(lambda: self.look(role, name, within=within, where=lambda control: control.is_("focused")),
                          f"the focus on {name!r}")

    def title(self):
        """The title of the program's window that the window manager shows as the active one."""
        return self.stage.run("xdotool", "getactivewindow", "getwindowname").strip()

    def wait_for_title(self, title):
        def is_active():
            try:
                return self.title() == title
            except JourneyError:
                return False  # between two windows none is active
        wait_until(is_active, f"the window {title!r}")

    def is_active(self):
        """Whether the program takes one of its windows for the active one."""
        try:
            return any(window.get_state_set().contains(Atspi.StateType.ACTIVE)
                       for window in self._children(self._root))
        except GLib.Error:
            return False

    def frame_size(self):
        """Width and height that the frame's window has on the screen."""
        found = self.stage.run("xdotool", "getactivewindow", "getwindowgeometry", "--shell")
        values = dict(line.split("=") for line in found.split())
        return int(values["WIDTH"]), int(values["HEIGHT"])

    def resize_frame(self, width, height):
        """Gives the active window another size, as its user does at its edges."""
        self.xdotool("getactivewindow", "windowsize", str(width), str(height))

    def covered(self):
        """The part of the screen that the windows in view cover, with their frames: left, top, right, bottom."""
        boxes = [[self.on_screen(length) for length in control.box] for control in self.find_all(where=lambda control: control.is_top())]
        window = self.stage.run("xdotool", "getactivewindow").strip()
        extents = self.stage.run("xprop", "-id", window, "_NET_FRAME_EXTENTS")
        left, right, top, bottom = (int(number) for number in extents.split("=")[1].split(","))
        return (max(0, min(box[0] for box in boxes) - left), max(0, min(box[1] for box in boxes) - top),
                max(box[0] + box[2] for box in boxes) + right, max(box[1] + box[3] for box in boxes) + bottom)

    # Working

    def key(self, *keys):
        self.xdotool("key", "--delay", "5", *keys)

    def type(self, text):
        self.xdotool("type", "--delay", "5", text)

    def fill(self, box, text):
        """Types into the box that has the focus over what it holds, and sees it there."""
        self.key("ctrl+a")
        self.type(text)
        wait_until(lambda: box.text == text, f"{text!r} in {box.name!r}; it holds {box.text!r}")

    def press(self, name, within=None):
        self.find("push button", name, within=within).click()

    def menu(self, menu, entry):
        """Clicks an entry of the menu bar."""
        head = self.find("menu item", menu)
        head.click()
        # An entry has its place only while its menu stands open, and that is below; it may be called like its menu.
        below = head.box[1]
        self.find("menu item", entry, where=lambda item: item.box[1] > below).click()

    def tab(self, name, within=None):
        """Turns to a page by its tab."""
        self.find("page tab", name, within=within).click()
        self.find("filler", name, within=within)

    def screen(self, name):
        """Waits for a screen or window to be there."""
        return wait_until(lambda: self.has_screen(name), f"the screen {name!r}")

    def no_screen(self, name):
        wait_until(lambda: not self.has_screen(name), f"the screen {name!r} to go")

    def has_screen(self, name):
        try:
            return any(screen.get_name() == name and screen.get_state_set().contains(Atspi.StateType.SHOWING)
                       for screen in self._screens())
        except GLib.Error:
            return False

    def message(self, text):
        """Waits for a message box with that text."""
        return self.find("label", text, within=MESSAGE_BOX)

    def answer(self, text, button):
        """Sees a message box with that text and presses one of its buttons."""
        self.message(text)
        self.press(button, within=MESSAGE_BOX)
        self.gone("label", text, within=MESSAGE_BOX)

    def wait_for_end(self):
        wait_until(lambda: self._process.poll() is not None, "the end of the program")
        if self._process.returncode != 0:
            raise JourneyError(f"the program ended with {self._process.returncode}")

    def stop(self):
        """Ends a program that hangs; only for use after a failure."""
        if self._process.poll() is None:
            os.kill(self._process.pid, signal.SIGTERM)

    def tree(self):
        """All that is in view, for the log of a failure."""
        lines = []

        def walk(node, depth):
            control = Control(self, node)
            mark = "*" if control.is_("focused") else " "
            if control.is_("showing"):
                lines.append(f"{mark}{'  ' * depth}{control.role} {control.name!r} {control.text!r} {control.box}")
            for place in range(node.get_child_count()):
                child = node.get_child_at_index(place)
                if child is not None:
                    walk(child, depth + 1)

        try:
            walk(self._root, 0)
        except GLib.Error as error:
            lines.append(f"({error.message})")
        return "\n".join(lines)


class HelpViewer(Program):
    """The help viewer that the program started."""

    def __init__(self, stage):
        self.stage = stage
        self._root = wait_until(self._find_root, "the help viewer on the accessibility bus")

    def _find_root(self):
        try:
            return self._application(lambda node: node.get_name() == "velmora-help")
        except GLib.Error:
            return None  # another application left the bus meanwhile

    def text_of(self, name):
        """What a text of it begins with."""
        text = self.look(name=name)
        return "" if text is None else text.text.strip()

    def wait_for_end(self):
        wait_until(lambda: self._find_root() is None, "the end of the help viewer")
