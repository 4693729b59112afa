"""end_to_end.py PROGRAM-FOLDER: makes a bot in the real window with keyboard
and mouse, saves and packs it, loads it back out of its package, and compares
every file with what the command line makes of the same bot."""

import json
import pathlib
import shutil
import subprocess
import sys
import tempfile
import warnings
import zipfile

from screen import (Editor, key, names, text, until, value, with_picture,
                    write)

# The bus has two sets of names for the same calls.
warnings.simplefilter("ignore", DeprecationWarning)

PAGES = ["General characteristics", "Behavioural characteristics",
         "Weapon skills", "Weapon usage", "Weapon pickup", "Item pickup",
         "Chat characteristics", "Chat texts"]
TITLE = "Fragsmith 0.97b BETA"
CHANGED = TITLE + "*"


def program_folder(built, folder, work, game):
    """A folder with settings of its own beside the built pictures."""
    folder.mkdir()
    for picture in built.glob("*.tga"):
        shutil.copy(picture, folder)
    lines = ["[Fragsmith settings]", f"Q3Baseq3 = {game}", f"WorkDir = {work}",
             f"WinZipDir = {built}", "", "UserName = Tester",
             "Email = tester@example.org", "Http = ", "Bots = 4", "",
             "BaseQ3Check = False"]
    (folder / "fgs.ini").write_bytes("\r\n".join([*lines, ""]).encode())
    return ["--program-folder", str(folder)]


def every_control_can_be_found_and_set(editor):
    """What a screen reader needs: names, and values that can be set."""
    sliders = set()
    for page in PAGES:
        editor.find(page, "page tab")
        focusable = [node for node in editor.controls()
                     if node.get_role_name() in ("slider", "text", "combo box",
                                                 "check box", "push button",
                                                 "radio button", "list")]
        nameless = [node.get_role_name() for node in focusable
                    if not any(names(node))]
        assert not nameless, f"{page}: without a name: {nameless}"
        for slider in editor.controls("slider"):
            name = slider.get_name()
            assert name not in sliders, f"twice: {name}"
            sliders.add(name)
            numbers = slider.get_value_iface()
            middle = numbers.get_maximum_value() / 2
            numbers.set_current_value(middle)
            until(f"{name} at {middle}, not {value(slider)}",
                  lambda: abs(value(slider) - middle) < 1e-6)
        key("ctrl+Tab")
    assert len(sliders) == 29 * 3 + 50, len(sliders)
    assert "Attack skill, level 1" in sliders


def make_the_bot(editor):
    editor.focus("Name", "text")
    key("ctrl+a")
    write("Endtoend")
    key("Tab")
    write("End to end")
    key("Home", "Right", "Right", "Right")
    editor.click("Colour Red")
    until("the code in the fun name",
          lambda: text(editor.find("Funname", "text")) == "End^1 to end")
    editor.click("Female", "radio button")
    editor.click("More")
    key("alt+g", "Down", "Down", "Down")
    editor.click("Arenalord", "check box")
    editor.focus("Version, major", "text")
    key("ctrl+a")
    write("1")
    key("Tab", "ctrl+a")
    write("5")
    editor.focus("Comment", "text")
    write("Made by a script; 100% real")
    key("Tab")
    write("v")
    key("Return")

    slider = editor.focus("Attack skill, level 4", "slider")
    key(*["Right"] * 13)
    until("0.65 at level 4", lambda: value(slider) == 0.65)
    assert value(editor.find("Attack skill, level 5")) == 0.65
    editor.focus("Reaction time, level 1", "slider")
    key("End")
    key("ctrl+Tab", "ctrl+Tab", "ctrl+Tab")
    editor.click("Scale from 0 to 1000", "radio button")
    editor.focus("Railgun usage", "slider")
    key("End")
    key(*["ctrl+Tab"] * 4)
    editor.focus("Text of the selected line", "text")
    write("I am ")
    key("End")
    editor.click("Insert Any bot", "push button")
    until("the pointer's variable in the line", lambda: "{" in text(
        editor.find("Text of the selected line", "text")))


def the_same_bot(cli):
    """The document of the bot that make_the_bot makes."""
    document = json.loads(subprocess.check_output(
        [cli, "new", "--preset", "zeros", "--name", "Endtoend"]))
    document.update(
        funName="End^1 to end", gender="female", railColor=2, arenaLord=1,
        versionMajor=1, versionMinor=5, model="Visor", skin="Default",
        comment="Made by a script; 100% real")
    for level, skill in (("4", 0.65), ("5", 0.65)):
        document["levels"][level]["CHARACTERISTIC_ATTACK_SKILL"] = skill
    document["levels"]["1"]["CHARACTERISTIC_REACTIONTIME"] = 5
    document["weaponWeights"]["W_RAILGUN"] = 1000
    document["chats"]["game_enter"] = ["I am {ANYBOTNAME}"]
    return document


def contents(folder):
    return {str(path.relative_to(folder)): path.read_bytes()
            for path in sorted(folder.rglob("*")) if path.is_file()}


def packed(package):
    with zipfile.ZipFile(package) as archive:
        return {name: archive.read(name) for name in archive.namelist()}


def expect_same(found, wanted):
    assert list(found) == list(wanted), (list(found), list(wanted))
    for name, wanted_bytes in wanted.items():
        if name.endswith(".pk3"):
            continue
        assert found[name] == wanted_bytes, (
            name, found[name].decode("cp1252"), wanted_bytes.decode("cp1252"))


def open_twin(editor, folder):
    key("ctrl+o")
    editor.window("Load bot")
    editor.focus("Path", "text")
    key("ctrl+a")
    write(str(folder))
    key("Return")
    editor.click("twin_c.c", "list item")
    key("Return")
    editor.window(TITLE)


def undone_load_is_saved_to_its_own_files(editor, cli, home, arguments):
    """Two bots of one name: load, load, undo, save."""
    key("ctrl+Tab")
    for place, skill in (("first", 0.25), ("second", 0.75)):
        document = json.loads(subprocess.check_output(
            [cli, "new", "--preset", "zeros", "--name", "Twin"]))
        document["levels"]["5"]["CHARACTERISTIC_ATTACK_SKILL"] = skill
        (home / place).mkdir()
        subprocess.run([cli, "make", "--into", str(home / place), *arguments,
                        "-"], input=json.dumps(document).encode(), check=True,
                       stdout=subprocess.DEVNULL)
        open_twin(editor, home / place)
    before = {place: contents(home / place) for place in ("first", "second")}
    key("ctrl+z")
    until("the first bot", lambda: value(
        editor.find("Attack skill, level 5", "slider")) == 0.25)
    slider = editor.focus("Attack skill, level 5", "slider")
    key("Right")
    until("0.3 at level 5", lambda: abs(value(slider) - 0.3) < 1e-6)
    key("ctrl+s")
    editor.window(TITLE)
    after = {place: contents(home / place) for place in ("first", "second")}
    assert after["second"] == before["second"], "the other bot's files"
    changed = [name for name in before["first"]
               if after["first"][name] != before["first"][name]]
    assert changed == ["twin_c.c"], changed
    print("load, load, undo, save: the files of the bot that is shown")


def main():
    built = pathlib.Path(sys.argv[1]).resolve()
    program, cli = str(built / "fragsmith"), str(built / "fragsmith-cli")
    with tempfile.TemporaryDirectory() as scratch:
        home = pathlib.Path(scratch)
        for name in ("made", "wanted", "again", "game/baseq3"):
            (home / name).mkdir(parents=True)
        game_program = home / "game" / "quake3.exe"
        game_program.touch()
        game_program.chmod(0o755)
        arguments = program_folder(built, home / "own", home / "made",
                                   home / "game")

        editor = Editor(program, *arguments)
        every_control_can_be_found_and_set(editor)
        key("ctrl+q")
        editor.find("The current bot has changed. Do you still want to exit "
                    "without saving?")
        key("Escape")
        editor.window(CHANGED)
        key("ctrl+q")
        editor.find("Yes", "push button")
        key("alt+y")
        editor.end()
        print("every control has its name and takes values")

        editor = Editor(program, *arguments)
        key("ctrl+n")
        make_the_bot(editor)
        key("ctrl+shift+s")
        editor.window("Make botfiles for Endtoend")
        editor.click("Save using the correct directory structure", "check box")
        editor.focus("Make *.pk3-file", "check box")
        key("space", "Return")
        editor.find(f"{home}/made/bot-Endtoend.pk3 created succesfully")
        key("Return")
        editor.window(TITLE)

        document = json.dumps(the_same_bot(cli)).encode()
        subprocess.run([cli, "make", "--into", str(home / "wanted"), "--layout",
                        "--pk3", *arguments, "-"], input=document,
                       stdout=subprocess.DEVNULL, check=True)
        wanted = contents(home / "wanted")
        expect_same(contents(home / "made"), wanted)
        assert len(wanted) == 6, list(wanted)
        expect_same(packed(home / "made" / "bot-Endtoend.pk3"),
                    packed(home / "wanted" / "bot-Endtoend.pk3"))
        print("the window's files are the command line's")

        shutil.copy(home / "made" / "bot-Endtoend.pk3",
                    home / "game" / "baseq3" / "bot-Endtoend.pk3")
        key("alt+t", "c")
        editor.gone("Please stand by")
        key("ctrl+n")
        assert text(editor.find("Name", "text")) == "Bot"
        key("ctrl+o")
        editor.window("Load bot")
        key("alt+b")
        write("endto")
        key("Return")
        editor.window(TITLE)
        until("the bot out of its package",
              lambda: text(editor.find("Name", "text")) == "Endtoend")
        for path in (home / "made").rglob("*"):
            if path.is_file():
                path.unlink()
        key("ctrl+shift+s")
        editor.window("Make botfiles for Endtoend")
        key("Return")
        editor.find(f"{home}/made/bot-Endtoend.pk3 created succesfully")
        key("Return")
        editor.window(TITLE)
        # Comment and version stand in headers alone, which no load reads.
        for path in (home / "wanted").rglob("*_[wi].c"):
            found = home / "made" / path.relative_to(home / "wanted")
            body = [file.read_bytes().split(b"//=", 2)[2]
                    for file in (found, path)]
            assert body[0] == body[1], found
        undone_load_is_saved_to_its_own_files(editor, cli, home, arguments)
        key("ctrl+q")
        editor.end()
        settings = (home / "own" / "fgs.ini").read_text().splitlines()
        assert len(settings) == 11 and settings[8] == "Bots = 6", settings
        assert settings[10] == "BaseQ3Check = True", settings
        assert (home / "own" / "fgs.window").is_file()
        assert not list((home / "own").glob("fgs.draft*"))
        print("scanned, loaded out of the package, saved again, all the same")


with_picture(main)
