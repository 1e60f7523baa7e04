"""The windows of a program as a screen reader meets them: a tree of nodes found through AT-SPI.

Needs a session bus (dbus-run-session) and the Debian packages at-spi2-core, python3-gi and
gir1.2-atspi-2.0. Extents are pixels of the screen.
"""

import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402


PATIENCE = 20  # seconds that a loaded machine may take for what a desktop does at once
Atspi.set_timeout(1000 * PATIENCE, 1000 * PATIENCE)  # for one answer of a program


def wait_for(condition, what, patience=PATIENCE):
    """Returns the first true result of condition(); fails with `what` after `patience` seconds."""
    end = time.monotonic() + patience
    context = GLib.MainContext.default()
    while True:
        while context.iteration(False):
            pass
        try:
            result = condition()
        except GLib.Error:  # a node that went away while it was read
            result = None
        if result:
            return result
        if time.monotonic() > end:
            raise AssertionError(f"waited {patience} s for {what}")
        time.sleep(0.02)


class Node:
    """One accessible object. Everything is read anew from the program at each call."""

    # Pixels of the screen per logical pixel of the program under test.
    scale = 1.0

    def __init__(self, raw):
        self.raw = raw

    def __repr__(self):
        return f"{self.role} {self.name!r}"

    @property
    def name(self):
        return self.raw.get_name()

    @property
    def description(self):
        return self.raw.get_description()

    @property
    def role(self):
        return self.raw.get_role_name()

    @property
    def text(self):
        return Atspi.Text.get_text(self.raw, 0, -1)

    def put(self, text):
        """Replaces the text of a field, as dictation does."""
        if not Atspi.EditableText.set_text_contents(self.raw, text):
            raise AssertionError(f"{self} takes no text")

    @property
    def value(self):
        return Atspi.Value.get_current_value(self.raw)

    @property
    def box(self):
        """(x, y, width, height) on the screen, in its pixels; the program tells logical ones."""
        extents = Atspi.Component.get_extents(self.raw, Atspi.CoordType.SCREEN)
        logical = extents.x, extents.y, extents.width, extents.height
        return tuple(round(Node.scale * value) for value in logical)

    @property
    def centre(self):
        x, y, width, height = self.box
        return x + width // 2, y + height // 2

    def has(self, *states):
        held = self.raw.get_state_set()
        return all(held.contains(getattr(Atspi.StateType, state.upper())) for state in states)

    @property
    def showing(self):
        return self.has("showing")

    @property
    def actions(self):
        if "Action" not in self.raw.get_interfaces():
            return []
        count = Atspi.Action.get_n_actions(self.raw)
        return [Atspi.Action.get_action_name(self.raw, i) for i in range(count)]

    def act(self, action):
        """Does what a screen reader's user asks of the control, without mouse or keyboard."""
        if not Atspi.Action.do_action(self.raw, self.actions.index(action)):
            raise AssertionError(f"{self} refuses {action}")

    @property
    def children(self):
        found = (self.raw.get_child_at_index(i) for i in range(self.raw.get_child_count()))
        return [Node(raw) for raw in found if raw]

    def walk(self, shown_only=False):
        """This node and all below it. What is not shown is left out with all below it if asked."""
        if shown_only and not self.showing and self.role != "application":
            return
        yield self
        for child in self.children:
            yield from child.walk(shown_only)

    def each(self, role=None, name=None, shown_only=True):
        """This node and those below it that have the role and the name, one at a time."""
        for node in self.walk(shown_only):
            if (role is None or node.role == role) and (name is None or node.name == name):
                yield node

    def all(self, role=None, name=None, shown_only=True):
        return list(self.each(role, name, shown_only))


class Focus:
    """What a screen reader says as the focus moves; the items of menus are heard only so."""

    def __init__(self):
        self.count = 0  # moves of the focus so far
        self.name = ""  # of what has it now
        self.listener = Atspi.EventListener.new(self._moved)
        self.listener.register("object:state-changed:focused")

    def _moved(self, event):
        if event.detail1:
            self.count += 1
            self.name = event.source.get_name()

    def close(self):
        self.listener.deregister("object:state-changed:focused")


def application(pid):
    """The accessible root of the process, once it has told the bus of itself."""

    def found():
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            raw = desktop.get_child_at_index(i)
            if raw and raw.get_process_id() == pid:
                # What is read must be what is, not what a cache remembers.
                raw.set_cache_mask(Atspi.Cache.NONE)
                return Node(raw)
        return None

    return wait_for(found, "the program on the accessibility bus")
