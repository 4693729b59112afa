"""new_user.py PROGRAM-FOLDER: somebody who never saw the editor makes a sniper
with two lines of their own and gets it into the game, by what stands on the
screen. It may not take more than 25 clicks, and no question may come that a
new user could not answer. Then the package is read by the command line and,
where a game is installed, played."""

import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import warnings

import screen
from screen import Editor, text, until, with_picture

# The bus has two sets of names for the same calls.
warnings.simplefilter("ignore", DeprecationWarning)

TITLE = "Fragsmith 0.97b BETA"
MAX_CLICKS = 25
NAME = "Newcomer"
LINES = ["Is this thing on?", "I read no manual."]
SET_UP = pathlib.Path(__file__).parents[1] / "real" / "set_up.sh"


class Person:
    """Uses the editor and counts what it takes: each click, each key and each
    text that is typed is one."""

    def __init__(self, editor):
        self.editor = editor
        self.clicks = 0

    def click(self, name, role):
        self.clicks += 1
        self.editor.click(name, role)

    def click_on(self, node):
        self.clicks += 1
        screen.click_on(node)

    def key(self, name):
        self.clicks += 1
        screen.key(name)

    def write(self, words):
        self.clicks += 1
        screen.write(words)


def button_of(editor, folder):
    """The button that takes the game in this folder; others may be found."""
    def look():
        for button in editor.controls("push button"):
            if button.get_description() == str(folder):
                return button
        return None
    return until(f"a button for the game in {folder}", look)


def say(person, words):
    box = "Text of the selected line"
    person.click("New line", "push button")
    until(f"the room for {words!r}", lambda: text(
        person.editor.find(box, "text")) == "")
    person.write(words)
    until(repr(words), lambda: text(
        person.editor.find(box, "text")) == words)


def install_a_sniper(editor, game):
    person = Person(editor)
    person.click_on(button_of(editor, game))
    editor.gone("Please stand by")
    person.click("Sniper", "push button")
    person.click("Name", "text")
    person.key("ctrl+a")
    person.write(NAME)
    person.click("Chat texts", "page tab")
    for words in LINES:
        say(person, words)
    person.click("Bots", "menu item")
    person.click("Install into game", "menu item")
    editor.find(f"bot-{NAME}.pk3 is in {game / 'baseq3'}.")
    person.click("Close", "push button")
    return person.clicks


def expect_the_sniper(cli, package, own):
    loaded = json.loads(subprocess.check_output(
        [cli, "load", str(package), "--program-folder", str(own)]))
    assert loaded["name"] == NAME, loaded["name"]
    said = [line for lines in loaded["chats"].values() for line in lines]
    missing = [line for line in LINES if line not in said]
    assert not missing, (missing, said)
    weapons = loaded["weaponWeights"]
    best = max(weapons, key=weapons.get)
    assert best == "W_RAILGUN", weapons


def is_game_installed():
    return subprocess.run(
        ["bash", "-c", 'source "$0"; need_installed "${server_packages[@]}"',
         str(SET_UP)], check=False).returncode == 0


def meet_in_game(cli, package, own):
    tried = subprocess.run(
        [cli, "try", str(package), "--engine", "/usr/games/openarena-server",
         "--program-folder", str(own)], check=False, text=True,
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    assert tried.returncode == 0 and f"{NAME} entered the game." in \
        tried.stdout, tried.stdout


def main():
    built = pathlib.Path(sys.argv[1]).resolve()
    program, cli = str(built / "fragsmith"), str(built / "fragsmith-cli")
    with tempfile.TemporaryDirectory() as scratch:
        home, own = pathlib.Path(scratch), pathlib.Path(scratch) / "own"
        game = home / "Games" / "quake3"
        for folder in (own, game / "baseq3"):
            folder.mkdir(parents=True)
        (game / "quake3").touch(0o755)
        for file in [*built.glob("*.tga"), built / "fgs.ini"]:
            shutil.copy(file, own)
        os.environ["HOME"] = str(home)
        editor = Editor(program, "--program-folder", str(own))
        clicks = install_a_sniper(editor, game)
        editor.window(TITLE + "*")
        screen.key("ctrl+q", "alt+y")
        editor.end()
        assert clicks <= MAX_CLICKS, f"{clicks} clicks"
        print(f"a new user's sniper is in the game after {clicks} clicks")

        package = game / "baseq3" / f"bot-{NAME}.pk3"
        expect_the_sniper(cli, package, own)
        print("it has its name, its lines and its railgun")
        if is_game_installed():
            meet_in_game(cli, package, own)
            print("it was met in the game")


with_picture(main)
