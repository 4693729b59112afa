"""The running editor as a user meets it: windows and controls are found by
their names through the accessibility bus, used with the X server's mouse and
keyboard."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import time

import gi
from keyboard import key, patience, until, write, xdotool  # noqa: F401

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402


def walk(node):
    yield node
    for place in range(node.get_child_count()):
        child = node.get_child_at_index(place)
        if child is not None:
            yield from walk(child)


def is_showing(node):
    return node.get_state_set().contains(Atspi.StateType.SHOWING)


def names(node):
    """Its own name and those of its labels; a combo box has only these."""
    yield node.get_name().replace("&", "")
    if node.get_role_name() == "combo box":
        for relation in node.get_relation_set():
            if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
                for place in range(relation.get_n_targets()):
                    yield relation.get_target(place).get_name().replace("&", "")


def without_bot(title):
    """The title of the main window without the name of the bot."""
    return re.sub(r"^(Fragsmith \S+ BETA) - .*?(\*?)$", r"\1\2", title)


def click_on(node):
    place = node.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
    xdotool("mousemove", str(place.x + min(place.width // 2, 60)),
            str(place.y + place.height // 2), "click", "1")
    time.sleep(0.1)


class Editor:
    """A running fragsmith."""

    def __init__(self, program, *arguments):
        self.process = subprocess.Popen([program, *arguments])
        self.application = until("the program on the bus", self._find)
        self.window("Fragsmith 0.97b BETA")

    def _find(self):
        assert self.process.poll() is None, "the program has ended"
        desktop = Atspi.get_desktop(0)
        for place in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(place)
            if child and child.get_process_id() == self.process.pid:
                return child
        return None

    def titles(self):
        self.application.clear_cache()
        windows = [self.application.get_child_at_index(place)
                   for place in range(self.application.get_child_count())]
        return {without_bot(window.get_name()): window
                for window in windows if window and is_showing(window)}

    def window(self, title):
        """The window of this title, active, so that keys go to it."""
        def look():
            window = self.titles().get(title)
            if window and window.get_state_set().contains(
                    Atspi.StateType.ACTIVE):
                return window
            return None
        return until(f"the window {title!r}; there are {list(self.titles())}",
                     look)

    def gone(self, title):
        until(f"the end of {title!r}", lambda: title not in self.titles())

    def controls(self, role=None):
        self.application.clear_cache()
        for node in walk(self.application):
            if is_showing(node) and role in (None, node.get_role_name()):
                yield node

    def find(self, name, role=None):
        def look():
            for node in self.controls(role):
                if name in names(node):
                    return node
            return None
        return until(f"the {role or 'control'} {name!r}", look)

    def click(self, name, role=None):
        node = self.find(name, role)
        click_on(node)
        return node

    def focus(self, name, role=None):
        node = self.find(name, role)
        assert node.get_component_iface().grab_focus(), name
        until(f"the focus on {name!r}", lambda: node.get_state_set().contains(
            Atspi.StateType.FOCUSED))
        return node

    def end(self, status=0):
        assert self.process.wait(patience) == status, self.process.returncode


def value(node):
    node.clear_cache()
    return round(node.get_value_iface().get_current_value(), 4)


def text(node):
    node.clear_cache()
    return node.get_text_iface().get_text(0, -1)


def with_picture(main):
    """Runs main; where it fails a picture of the screen stays beside the folder
    of the programs, the first argument."""
    try:
        main()
    except BaseException:
        picture = (pathlib.Path(sys.argv[1]).resolve().parent /
                   "window-failed.png")
        if shutil.which("import"):
            subprocess.run(["import", "-window", "root", str(picture)],
                           check=False)
            print("the screen:", picture, file=sys.stderr)
        raise
