"""under_wine.py LINUX-PROGRAMS WINDOWS-PROGRAMS PICTURES: makes the same bot by
the same keys and clicks in the window of Linux and, with wine, in that of
Windows, saves both in the game's folders with a package, and compares every
byte. WINDOWS-PROGRAMS is a folder or the program alone as it was installed.
Pictures of the window go into the folder PICTURES."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import zipfile

import keyboard
from keyboard import key, until, write, xdotool

TITLE = "Fragsmith 0.97b BETA"
# Wine starts slowly and takes its time over a key.
keyboard.patience = 60
keyboard.pause = 0.3


def active_title():
    """Empty where no window is active."""
    return subprocess.run(
        ["xdotool", "getactivewindow", "getwindowname"], check=False, text=True,
        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout.strip()


def window(title):
    until(lambda: f"the window {title!r}, not {active_title()!r}",
          lambda: active_title().startswith(title))
    time.sleep(0.5)


def settings(work, unzip):
    return "\r\n".join([
        "[Fragsmith settings]", "Q3Baseq3 = ", f"WorkDir = {work}",
        f"WinZipDir = {unzip}", "", "UserName = Tester",
        "Email = tester@example.org", "Http = ", "Bots = 4", "",
        "BaseQ3Check = False", ""])


def make_the_bot(command, made, picture):
    process = subprocess.Popen(command)
    window(TITLE)
    # No line of it is drawn by chance.
    key("ctrl+n")
    write("Winnie")
    key("Tab")
    write("Winnie ^1the ^7Pooh")
    key("ctrl+f")
    window("Find")
    write("game entry")
    key("Return")
    window(TITLE)
    key("alt+i")
    write("Who took {{the}} honey?")
    key("ctrl+f")
    window("Find")
    write("rocket launcher")
    key("Return")
    window(TITLE)
    key("End")
    if shutil.which("import"):
        subprocess.run(["import", "-window", "root", picture], check=False)
    # From the first menu, opened with the mouse, to the third.
    xdotool("mousemove", "--window", xdotool("getactivewindow"), "18", "10",
            "click", "1")
    time.sleep(0.5)
    key("Right", "Right", "m")
    window("Make botfiles for Winnie")
    key("alt+s", "alt+m", "Return")
    until("the package", lambda: list(made.rglob("*.pk3")))
    time.sleep(1)
    key("Return")
    window(TITLE)
    key("ctrl+q")
    status = process.wait(keyboard.patience)
    assert status == 0, status


def contents(folder):
    """The files with what they hold; of a package, what is packed in it."""
    found = {}
    for path in sorted(folder.rglob("*")):
        name = str(path.relative_to(folder))
        if path.suffix == ".pk3":
            with zipfile.ZipFile(path) as package:
                found[name] = [(entry, package.read(entry))
                               for entry in package.namelist()]
        elif path.is_file():
            found[name] = path.read_bytes()
    return found


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


def main():
    linux, windows, pictures = map(pathlib.Path, sys.argv[1:])
    pictures.mkdir(exist_ok=True)
    made = {}
    with tempfile.TemporaryDirectory() as scratch:
        for system, programs in (("linux", linux), ("windows", windows)):
            home = pathlib.Path(scratch) / system
            own, work = home / "own", home / "made"
            own.mkdir(parents=True)
            work.mkdir()
            for picture in linux.glob("*.tga"):
                shutil.copy(picture, own)
            if system == "linux":
                command = [programs / "fragsmith", "--program-folder", own]
                text = settings(work, programs.resolve())
            else:
                command = ["wine", programs / "fragsmith.exe",
                           "--program-folder", windows_path(own)]
                text = settings(windows_path(work), windows_path(programs))
            (own / "fgs.ini").write_bytes(text.encode())
            make_the_bot(command, work, pictures / f"{system}.png")
            made[system] = contents(work)
    assert len(made["linux"]) == 6, list(made["linux"])
    for name, wanted in made["linux"].items():
        assert made["windows"].get(name) == wanted, name
    assert len(made["windows"]) == 6, list(made["windows"])
    print("the window under wine writes what the window here writes")


main()
