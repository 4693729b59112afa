"""contrast.py PROGRAM-FOLDER: measures on the screen, on a light and on a dark
desktop, how far texts and the outlines of controls stand out from what is
around them. Fails where a text has less than 4.5 to 1 or an outline less than
3 to 1; what is disabled may be faint."""

import collections
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import warnings

from screen import (Atspi, Editor, is_showing, key, walk, with_picture,
                    write, xdotool)
from themes import GROUNDS, write_themes

# The bus has two sets of names for the same calls.
warnings.simplefilter("ignore", DeprecationWarning)

TEXT, OUTLINE = 4.5, 3.0
# A text's strokes are blurred where they are thin: the colour that is meant is
# one that this share of its inked pixels has at least.
MIN_SHARE = 0.01
PAGES = ["General characteristics", "Chat texts"]
# A check box that is an arrow, without a box.
UNBOXED = "More"
# A row is a cell of its view.
ROWS = {"list item", "table cell", "tree item", "table column header"}
TEXTS = ROWS | {"label", "push button", "check box", "radio button", "text",
                "page tab"}
# A push button is known by its text, whatever is around it.
OUTLINED = {"check box", "text", "combo box", "list", "tree", "table",
            "spin button"}
# The keys that open each dialog, and its title.
DIALOGS = [
    (["alt+t", "b"], "Bot library"), (["ctrl+f"], "Find"),
    (["ctrl+comma"], "Fragsmith options"),
    (["ctrl+shift+s"], "Make botfiles for Vixen"),
    (["alt+t", "p", "z"], "Compare with All zeros"),
    (["alt+t", "f"], "Check a bot's files"), (["alt+t", "s"], "Show changes"),
    (["F5"], "Try Vixen in game"), (["F6"], "Play it out"),
    (["F1"], "Fragsmith manual"), (["alt+p", "a"], "About vexlor's Fragsmith"),
    ([], "Choose a model and skin")]
# The shades of a button's ground do not count as its text.
MIN_INK = 1.5


class Screen:
    """What the X server shows, from the file it keeps it in."""

    def __init__(self):
        path = pathlib.Path(os.environ["XDG_RUNTIME_DIR"], "Xvfb_screen0")
        data = path.read_bytes()
        words = [int.from_bytes(data[at:at + 4], "big")
                 for at in range(0, 100, 4)]
        # Of the X window dump's head: its size, width, height, bytes of a row
        # and the number of colours that follow it.
        head, self.width, self.height = words[0], words[4], words[5]
        self.row, colors = words[12], words[19]
        self.points = data[head + 12 * colors:]

    def line(self, left, right, y):
        """The colours of a row, as bytes blue, green, red."""
        start = y * self.row
        return [self.points[at:at + 3] for at in
                range(start + 4 * left, start + 4 * right, 4)]

    def rows(self, box):
        left, right = max(box.x, 0), min(box.x + box.width, self.width)
        return [self.line(left, right, y) for y in
                range(max(box.y, 0), min(box.y + box.height, self.height))]


def luminance(color):
    parts = [part / 255 for part in color]
    blue, green, red = [part / 12.92 if part <= 0.04045 else
                        ((part + 0.055) / 1.055) ** 2.4 for part in parts]
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def contrast(one, other):
    dark, light = sorted((luminance(one), luminance(other)))
    return (light + 0.05) / (dark + 0.05)


def text_contrast(rows):
    """Between the ground and what stands out most from it among what is not
    just the blurred edge of a stroke; None where nothing is written."""
    counts = collections.Counter(point for row in rows for point in row)
    if len(counts) < 2:
        return None
    (ground, _), *others = counts.most_common()
    inks = [(contrast(ground, color), count) for color, count in others]
    inks = [ink for ink in inks if ink[0] >= MIN_INK]
    inked = sum(count for _, count in inks)
    figures = [figure for figure, count in inks if count >= MIN_SHARE * inked]
    return max(figures, default=None)


def outline_contrast(screen, box):
    """Of the upper and of the lower edge, the fainter one: between what lies
    outside and the line of one colour that stands out most from it."""
    def common(y):
        quarter = box.width // 4
        line = screen.line(box.x + quarter, box.x + box.width - quarter, y)
        return collections.Counter(line).most_common(1)[0][0]

    top, bottom = box.y, box.y + box.height - 1
    return min(max(contrast(common(edge - 3 * step), common(edge + at * step))
                   for at in range(-1, 4))
               for edge, step in ((top, 1), (bottom, -1)))


class Box:
    """Where something lies on the screen."""

    def __init__(self, node, inset=0):
        extents = node.get_component_iface().get_extents(
            Atspi.CoordType.SCREEN)
        self.x, self.y = extents.x + inset, extents.y + inset
        self.width = extents.width - 2 * inset
        self.height = extents.height - 2 * inset


def marker(box):
    """The square of a check box, at the left of its text."""
    side = 14
    box.y += (box.height - side) // 2
    box.width = box.height = side
    return box


def is_whole(box, screen):
    return (box.width >= 8 and box.height >= 8 and box.x >= 0 and box.y >= 4 and
            box.x + box.width <= screen.width and
            box.y + box.height + 4 <= screen.height)


def is_in_sight(row):
    """A row may be scrolled away, or its list may not be there at all."""
    view = row.get_parent()
    if not is_showing(view) or view.get_component_iface() is None:
        return False
    own, whole = Box(row), Box(view)
    return (own.x >= whole.x and own.y >= whole.y and
            own.x + own.width <= whole.x + whole.width and
            own.y + own.height <= whole.y + whole.height)


def measure(nodes, page):
    """What is too faint of these, as lines of text; how many were measured."""
    xdotool("mousemove", "1279", "1023")
    time.sleep(0.5)
    screen = Screen()
    faint, measured = [], 0
    for node in nodes:
        role = node.get_role_name()
        states = node.get_state_set()
        if (role not in TEXTS | OUTLINED or
                not states.contains(Atspi.StateType.ENABLED) or
                states.contains(Atspi.StateType.FOCUSED) or
                role in ROWS and not is_in_sight(node)):
            continue
        figures = []
        inner = Box(node, 1 if role in ROWS else 5)
        if role in TEXTS and is_whole(inner, screen):
            figures.append(("text", TEXT, text_contrast(screen.rows(inner))))
        # The box in a combo box has none of its own.
        is_inner = node.get_parent().get_role_name() == "combo box"
        if (role in OUTLINED and node.get_name() != UNBOXED and
                not is_inner and is_whole(Box(node), screen)):
            box = Box(node)
            if role == "check box":
                box = marker(box)
            figures.append(("outline", OUTLINE,
                            outline_contrast(screen, box)))
        for what, least, figure in figures:
            if figure is None:
                continue
            measured += 1
            if figure < least:
                faint.append(f"{page}: {what} of {role} "
                             f"{node.get_name()!r}: {figure:.2f}")
    return faint, measured


def make_bots(cli, folder):
    """Two for the library."""
    folder.mkdir()
    for preset in ("average", "sniper"):
        made = subprocess.check_output(
            [cli, "new", "--preset", preset, "--name", preset.title()])
        subprocess.run([cli, "make", "-", "--into", str(folder)], input=made,
                       stdout=subprocess.DEVNULL, check=True)


def measure_dialogs(editor, ground):
    """One after the other, over the page that is in sight."""
    for keys, title in DIALOGS:
        if keys:
            key(*keys)
        else:
            editor.click("Choose a model and skin by its face",
                         "push button")
        window = editor.window(title)
        time.sleep(0.5)  # What comes behind the events.
        nodes = [node for node in walk(window) if is_showing(node)]
        yield measure(nodes, f"{ground}, {title}")
        key("Escape")
        editor.gone(title)


def main():
    built = pathlib.Path(sys.argv[1]).resolve()
    program = str(built / "fragsmith")
    os.environ.update(XDG_CURRENT_DESKTOP="KDE", KDE_SESSION_VERSION="5")
    faint, measured = [], 0
    with tempfile.TemporaryDirectory() as scratch:
        home = pathlib.Path(scratch)
        own = home / "own"
        own.mkdir()
        for file in built.glob("*.tga"):
            shutil.copy(file, own)
        make_bots(str(built / "fragsmith-cli"), home / "bots")
        settings = (built / "fgs.ini").read_text()
        (own / "fgs.ini").write_text(settings.replace(
            "WorkDir = ", f"WorkDir = {home}/bots"))
        write_themes(home)
        for ground in GROUNDS:
            os.environ["XDG_CONFIG_HOME"] = str(home / ground)
            editor = Editor(program, "--program-folder", str(own))
            # It covers other controls.
            welcome = [node for node in walk(editor.find("Welcome"))
                       if is_showing(node)]
            results = [measure(welcome, f"{ground}, welcome")]
            editor.click("Sniper", "push button")
            for page in PAGES:
                editor.click(page, "page tab")
                results.append(measure(list(editor.controls()),
                                       f"{ground}, {page}"))
            editor.focus("Name", "text")
            key("ctrl+a")
            write("Vixen")
            results += measure_dialogs(editor, ground)
            key("ctrl+q", "alt+y")
            editor.end()
            for lines, count in results:
                faint += lines
                measured += count
    for line in faint:
        print(line)
    assert measured > 100, f"only {measured} figures"
    assert not faint, f"{len(faint)} of {measured} are too faint"
    print(f"{measured} texts and outlines can be seen on light and dark")


with_picture(main)
