"""pictures.py PROGRAM-FOLDER PICTURE-FOLDER: pictures of the real windows, with
bots, a model and an icon of our own."""

import json
import os
import pathlib
import shutil
import struct
import subprocess
import sys
import time
import warnings
import zipfile

from screen import Editor, key, names, text, until, write, xdotool
from themes import write_themes

# The bus has two sets of names for the same calls.
warnings.simplefilter("ignore", DeprecationWarning)

TITLE = "Fragsmith 0.97b BETA"
# Its name can be read in the pictures.
HOME = pathlib.Path("/tmp/fragsmith-home")
WIDTH, HEIGHT = 1200, 780

FUN_NAME = "^1Cin^3der ^7the ^5Forge"
CHATS = {
    "game_enter": ["Who let the fire go out?", "{RANDOMOPP}, you are overdue.",
                   "I have been hammering on {LEVELTITLE} all week."],
    "level_end_victory": ["Tempered. Quenched. Undefeated."],
    "death_rail": ["Straight through the bellows, {ATTACKER}.",
                   "I felt a draught.",
                   "Put that {WEAPONUSED} down, it is not yours.",
                   "{{DEATHRAIL1}}"],
    "kill_insult": ["{TARGET}, back into the fire with you.",
                    "You bend too easily, {TARGET}."],
    "random_misc": ["Strike while the {FOOD} is hot."],
}
# What the other bots of the list are called, and by whom they are packed.
SERVER = "/usr/games/openarena-server"
OTHERS = {"Anvil": ("^7An^5vil", "Clinker", "blue"),
          "Bellows": ("^2Bellows", "Tinker", "default"),
          "Hammer": ("^1Ham^7mer", "Clinker", "red"),
          "Rivet": ("^6Ri^7vet", "Tinker", "red"),
          "Tongs": ("^4Tongs ^7of ^4Ice", "Cinder", "blue")}
# The glow of the heads: blue, green, red.
MODELS = {"Cinder": (0x2d, 0x8c, 0xf8), "Clinker": (0x9a, 0xb4, 0xc8),
          "Tinker": (0x5a, 0xc8, 0x6e)}
TEAMS = {"default": None, "red": (0x30, 0x30, 0xe0), "blue": (0xf0, 0x80, 0x40)}


def icon(glow):
    """A targa file: the glowing head of a bot."""
    ground, eye = (0x26, 0x20, 0x1b), (0, 0, 0)
    parts = [((20, 20, 44, 44), glow), ((30, 12, 34, 20), glow),
             ((14, 26, 18, 38), glow), ((46, 26, 50, 38), glow),
             ((26, 27, 30, 31), eye), ((34, 27, 38, 31), eye),
             ((26, 36, 38, 39), eye)]
    points = bytearray()
    for y in range(64):
        for x in range(64):
            color = ground
            for (left, top, right, bottom), its in parts:
                if left <= x < right and top <= y < bottom:
                    color = its
            points += bytes(color)
    head = struct.pack("<BBB5sHHHHBB", 0, 0, 2, bytes(5), 0, 0, 64, 64, 24,
                       0x20)
    return head + bytes(points)


def cinder(cli):
    """The document of the bot that the pictures show."""
    document = json.loads(subprocess.check_output(
        [cli, "new", "--preset", "average", "--name", "Cinder", "--seed", "1"]))
    document.update(funName=FUN_NAME, model="Cinder", skin="default",
                    gender="it")
    for level, share in (("1", 0.35), ("4", 0.65), ("5", 0.85)):
        values = document["levels"][level]
        for place, name in enumerate(values):
            values[name] = round(share + 0.05 * (place % 4 - 1), 2)
        values["CHARACTERISTIC_VIEW_MAXCHANGE"] = 240 + round(120 * share)
        values["CHARACTERISTIC_REACTIONTIME"] = {"1": 1.0, "4": 0.5}.get(
            level, 0.25)
    weapons = document["weaponWeights"]
    for place, name in enumerate(weapons):
        weapons[name] = 60 + place * 37 % 190
    weapons.update(W_GAUNTLET=10, W_ROCKETLAUNCHER=320, W_RAILGUN=260)
    document["chats"].update(CHATS)
    # Replies are the game's own words.
    document["chatCharacteristics"]["CHARACTERISTIC_CHAT_REPLY"] = 0
    return document


def make(cli, document, *arguments):
    subprocess.run([cli, "make", "-", *arguments],
                   input=json.dumps(document).encode(),
                   stdout=subprocess.DEVNULL, check=True)


def prepare(built, cli):
    write_themes(HOME)
    packages = HOME / "quake3" / "baseq3"
    own = HOME / "own"
    for folder in (packages, own, HOME / "bots"):
        folder.mkdir(parents=True)
    (HOME / "quake3" / "quake3.exe").touch()
    for picture in built.glob("*.tga"):
        shutil.copy(picture, own)
    lines = ["[Fragsmith settings]", f"Q3Baseq3 = {HOME}/quake3",
             f"WorkDir = {HOME}/bots", f"WinZipDir = {HOME}/tools", "",
             "UserName = Player", "Email = player@example.org", "Http = ",
             "Bots = 12", "", "BaseQ3Check = False"]
    (own / "fgs.ini").write_bytes("\r\n".join([*lines, ""]).encode())
    (HOME / "tools").symlink_to(built)
    with zipfile.ZipFile(packages / "md3-cinder.pk3", "w") as package:
        for model, glow in MODELS.items():
            for skin, color in TEAMS.items():
                package.writestr(f"models/players/{model}/icon_{skin}.tga",
                                 icon(color or glow))
    arguments = ["--program-folder", str(own)]
    document = cinder(cli)
    make(cli, document, "--into", str(HOME / "bots"), *arguments)
    for name, (fun_name, model, skin) in OTHERS.items():
        make(cli, {**document, "name": name, "funName": fun_name,
                   "model": model, "skin": skin},
             "--into", str(packages), "--layout", "--pk3", *arguments)
    return arguments


def take(name, folder, title, part=None):
    """A picture of the window of this title, which is active, or of a part of
    it and of what lies over that: its size and place, such as 9x9+1+1."""
    xdotool("mousemove", "1279", "1023")
    time.sleep(0.4)
    window = xdotool("getactivewindow")
    what = ["-frame", "-window", window]
    if part:
        place = dict(line.split("=") for line in xdotool(
            "getwindowgeometry", "--shell", window).splitlines())
        size, left, top = part.split("+")
        left, top = int(place["X"]) + int(left), int(place["Y"]) + int(top)
        what = ["-window", "root", "-crop", f"{size}+{left}+{top}", "+repage"]
    picture = folder / f"{name}.png"
    subprocess.run(
        ["import", *what, "-strip", "-depth", "8",
         "-quality", "91", "-define", "png:exclude-chunks=date,time",
         f"png24:{picture}"], check=True)
    print(f"{picture.name}: {title}, {picture.stat().st_size // 1024} KiB")


def resize():
    window = subprocess.check_output(["xdotool", "getactivewindow"],
                                     text=True).strip()
    xdotool("windowsize", window, str(WIDTH), str(HEIGHT))
    xdotool("windowmove", window, "30", "40")
    until("the size of the window", lambda: f"{WIDTH}x{HEIGHT}" in
          subprocess.check_output(["xdotool", "getwindowgeometry", window],
                                  text=True))
    time.sleep(0.3)


def start(program, ground, *arguments, kept=""):
    """Starts the editor with what it has kept of its windows."""
    os.environ["XDG_CONFIG_HOME"] = str(HOME / ground)
    (HOME / "own" / "fgs.window").write_text(kept)
    editor = Editor(program, *arguments)
    resize()
    return editor


def end(editor):
    key("ctrl+q")
    editor.end()


def play(program, folder, arguments, bot):
    """Pictures of a run in the real game, and of the search for a strength."""
    editor = start(program, "light", *arguments, bot,
                   kept=f"[match]\nengine={SERVER}\nmap=oa_dm1\ngame=baseoa\n")
    key(*["ctrl+Tab"] * 3)
    editor.focus("Rocket launcher usage", "slider")
    key("Home")
    key("F6")
    editor.window("Play it out")
    key("alt+s")
    editor.find("Stop", "push button")
    # Ten matches take longer than anything else here.
    while not any("Start" in names(button)
                  for button in editor.controls("push button")):
        time.sleep(1)
    # What the game itself let it say is not for a manual.
    key("alt+t")
    take("match", folder, "Play it out")
    key("Escape")
    editor.window(TITLE + "*")
    key("ctrl+z")
    editor.window(TITLE)
    end(editor)


def main():
    built, folder = (pathlib.Path(name).resolve() for name in sys.argv[1:3])
    folder.mkdir(exist_ok=True)
    program, cli = str(built / "fragsmith"), str(built / "fragsmith-cli")
    os.environ.update(XDG_CURRENT_DESKTOP="KDE", KDE_SESSION_VERSION="5")
    arguments = prepare(built, cli)
    bot = str(HOME / "bots" / "cinder_c.c")

    # The scan first, by itself: the bot's model is known from it.
    editor = start(program, "light", *arguments)
    key("alt+t", "c")
    editor.gone("Please stand by")
    end(editor)

    editor = start(program, "light", *arguments, bot)
    assert text(editor.find("Funname", "text")) == FUN_NAME
    editor.focus("Attack skill, level 1", "slider")
    take("window", folder, TITLE)

    key("F8")
    editor.find("What the game will do", "list")
    editor.focus("Reaction time, level 4", "slider")
    take("findings", folder, TITLE)
    key("F8")

    key(*["ctrl+Tab"] * 7)
    editor.click("Death by rail", "list item")
    take("chat", folder, TITLE)

    editor.focus("Text of the selected line", "text")
    key("End")
    write(" {")
    time.sleep(0.5)
    take("completion", folder, TITLE + "*", part="720x520+480+190")
    key("Escape")
    key("ctrl+z")
    editor.window(TITLE)

    key("alt+t", "b")
    editor.window("Bot library")
    time.sleep(2)  # Its faces and findings come behind the events.
    take("library", folder, "Bot library")
    key("Escape")
    editor.window(TITLE)

    editor.click("Choose a model and skin by its face", "push button")
    editor.window("Choose a model and skin")
    write("in")
    time.sleep(1)
    take("faces", folder, "Choose a model and skin")
    key("Escape")
    editor.window(TITLE)

    key("ctrl+f")
    editor.window("Find")
    write("rail")
    take("find", folder, "Find")
    key("Escape")
    editor.window(TITLE)

    key("ctrl+o")
    editor.window("Load bot")
    key("alt+b", "Down", "Down")
    take("open", folder, "Load bot")
    key("Escape")
    editor.window(TITLE)

    key("ctrl+comma")
    editor.window("Fragsmith options")
    take("options", folder, "Fragsmith options")
    key("Escape")
    editor.window(TITLE)

    key("ctrl+shift+s")
    editor.window("Make botfiles for Cinder")
    for option in ("Save using the correct directory structure",
                   "Make *.pk3-file"):
        editor.click(option, "check box")
    take("make", folder, "Make botfiles for Cinder")
    key("Return")
    editor.find(f"{HOME}/bots/bot-Cinder.pk3 created succesfully")
    key("Return")
    editor.window(TITLE)
    end(editor)

    if pathlib.Path(SERVER).exists():
        play(program, folder, arguments, bot)

    editor = start(program, "dark", *arguments, bot)
    editor.focus("Attack skill, level 1", "slider")
    take("window-dark", folder, TITLE)
    end(editor)


# Made here alone, so that nobody else's folder of that name is used.
HOME.mkdir(mode=0o700)
try:
    main()
finally:
    shutil.rmtree(HOME)
