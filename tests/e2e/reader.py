"""Reads the windows of a program like a screen reader: their parts by role and name, with places and states."""

import os

_atspi = None
Gone = None  # what is raised when a part of a window has vanished

def connect(environment):
    """Connects to the desk's message bus. Call it once in a process, before anything is read."""
    global _atspi, Gone
    os.environ.update(environment)
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
    Atspi.init()
    Atspi.set_timeout(5000, 30000)
    _atspi, Gone = Atspi, GLib.Error


class Thing:
    """One part of a window, as assistive technology sees it."""

    def __init__(self, accessible):
        self._accessible = accessible

    @property
    def name(self):
        return self._accessible.get_name()

    @property
    def role(self):
        return self._accessible.get_role_name()

    @property
    def children(self):
        count = self._accessible.get_child_count()
        found = (self._accessible.get_child_at_index(i) for i in range(count))
        return [Thing(child) for child in found if child is not None]

    @property
    def rectangle(self):
        """Left, top, width, height on the screen, in the program's own pixels: Qt reports places without the factor by
        which it enlarges a program."""
        place = self._accessible.get_component_iface().get_extents(_atspi.CoordType.SCREEN)
        return place.x, place.y, place.width, place.height

    @property
    def centre(self):
        left, top, width, height = self.rectangle
        return left + width // 2, top + height // 2

    def has(self, state):
        """Whether a state holds: "showing", "enabled", "checked", "focused", "selected"."""
        return self._accessible.get_state_set().contains(getattr(_atspi.StateType, state.upper()))

    @property
    def text(self):
        """The content of a text box; the name of anything else."""
        box = self._accessible.get_text_iface()
        return _atspi.Text.get_text(box, 0, -1) if box else self.name

    @property
    def value(self):
        return self._accessible.get_value_iface().get_current_value()

    def press(self):
        """Presses it like assistive technology."""
        self._accessible.get_action_iface().do_action(0)

    def below(self):
        """Itself and everything in it, from the top down; parts that disappear meanwhile are left out."""
        try:
            children = self.children
        except Gone:
            return
        yield self
        for child in children:
            yield from child.below()

    def outline(self, depth=0):
        """The whole tree as text, for debugging."""
        try:
            line = f"{'  ' * depth}[{self.role}] {self.name!r} {self.rectangle if self._accessible.get_component_iface() else ''}"
            shown = "" if self.has("showing") else " (hidden)"
            return "\n".join([line + shown, *(child.outline(depth + 1) for child in self.children)])
        except Gone as problem:
            return f"{'  ' * depth}({problem})"


def program(process_id):
    """The program with that process id, None while it isn't on the bus."""
    desktop = _atspi.get_desktop(0)
    desktop.clear_cache()
    for i in range(desktop.get_child_count()):
        found = desktop.get_child_at_index(i)
        if found is not None and found.get_process_id() == process_id:
            found.set_cache_mask(_atspi.Cache.NONE)
            return Thing(found)
    return None
