"""The checks of openarena.sh: openarena_check.py CLI SCRATCH

SCRATCH/game is the game folder. What must be found is taken from the packages
themselves with a reading of its own, as far as these packages need one: their
files use the usual padding and numbers of at most three decimals.
"""

import collections
import glob
import json
import os
import re
import subprocess
import sys
import zipfile

CLI, SCRATCH = sys.argv[1:]
GAME = os.path.join(SCRATCH, "game")
PROGRAM = os.path.join(SCRATCH, "program")
BOT_PACKAGE = "pak6-misc.pk3"
BOTS = 24
LEVELS = ("1", "4", "5")
# A quoted text that is the key of a word list becomes its variable.
WORDS = {"looser": "{LOSER}"}
# The one value in all these files that is no number ("0..30").
TEXT_VALUES = {("sergei", "1", "CHARACTERISTIC_AIM_SKILL"): "0..30"}

failures = []


def fail(text):
    failures.append(text)
    print("FAIL: " + text)


def run(*arguments, **options):
    """Runs one command; a failure of it ends everything."""
    done = subprocess.run([CLI, *arguments, "--program-folder", PROGRAM],
                          capture_output=True, timeout=120, **options)
    errors = done.stderr.decode("utf-8", "replace")
    if done.returncode != 0:
        sys.exit(f"FAIL: fragsmith-cli {' '.join(arguments)}: exit status "
                 f"{done.returncode}\n{errors}")
    return done.stdout.decode("utf-8"), errors


def make_program_folder():
    """A program folder of our own, so that no setting of the user counts."""
    os.makedirs(PROGRAM)
    with open(os.path.join(PROGRAM, "fgs.ini"), "w", newline="\r\n") as ini:
        ini.write(f"[Fragsmith settings]\nQ3Baseq3 = {GAME}\n"
                  f"WorkDir = {SCRATCH}\nWinZipDir = {os.path.dirname(CLI)}\n"
                  "\nUserName = \nEmail = \nHttp = \nBots = 0\n\n"
                  "BaseQ3Check = False\n")


def game_packages():
    return [zipfile.ZipFile(path) for path in
            sorted(glob.glob(os.path.join(GAME, "baseq3", "*.pk3")))
            if os.path.basename(path) != "pak0.pk3"]


def check_scan():
    """Returns the names of the bots that the scan found."""
    text, errors = run("scan", GAME, "--json")
    found = json.loads(text)

    skins = collections.Counter()
    for package in game_packages():
        for entry in package.namelist():
            # The expansion's icons lie a folder deeper, below "heads", which
            # so becomes a model with every skin twice.
            match = re.search(r"models/players/([^/]+)/.*?icon_([^.]*)\.tga$",
                              entry, re.IGNORECASE)
            if match:
                skins[match[1].lower(), match[2].lower(),
                      os.path.basename(package.filename)] += 1
    scanned = collections.Counter(
        (model["name"].lower(), skin["name"].lower(), skin["package"])
        for model in found["models"] for skin in model["skins"]
        if skin["package"] != "pak0.pk3")
    for skin, times in ((skins - scanned) + (scanned - skins)).items():
        fail(f"skin {skin}: {times} time(s) too many or too few")

    with zipfile.ZipFile(os.path.join(GAME, "baseq3", BOT_PACKAGE)) as package:
        bots = {match[1] for match in
                map(re.compile(r"botfiles/bots/(\w+)_c\.c$").match,
                    package.namelist()) if match}
    from_packages = [bot for bot in found["bots"]
                     if bot["package"] != "pak0.pk3"]
    if {bot["name"].lower() for bot in from_packages} != bots:
        fail("bots of the scan: " +
             ", ".join(bot["name"] for bot in from_packages))
    if len(bots) != BOTS:
        fail(f"{len(bots)} bots in {BOT_PACKAGE}, not {BOTS}")
    for bot in from_packages:
        # None of these packages has a description file.
        if (bot["package"], bot["status"]) != (BOT_PACKAGE, "No"):
            fail(f"bot of the scan: {bot}")

    notice = (f"Bots.txt found!: {BOT_PACKAGE} has an additional 'bots.txt' "
              "file!")
    if notice not in errors:
        fail("the scan does not tell of the additional bots.txt")
    print(f"scan: {sum(skins.values())} skins of "
          f"{len({skin[0] for skin in skins})} models and "
          f"{len(from_packages)} bots in "
          f"{len(game_packages())} packages besides pak0.pk3")
    return sorted(bot["name"] for bot in from_packages)


def plain_bot(name):
    """A packed bot as read here: (document part, number of chat lines, those
    lines that are one piece of text)."""
    with zipfile.ZipFile(os.path.join(GAME, "baseq3", BOT_PACKAGE)) as package:
        def text(suffix):
            entry = f"botfiles/bots/{name.lower()}{suffix}"
            return package.read(entry).decode("latin-1")

        expected = {"levels": {level: {} for level in LEVELS}}
        level = None
        for line in text("_c.c").splitlines():
            if match := re.match(r"skill (\d)", line):
                level = match[1]
            elif match := re.match(r"\tCHARACTERISTIC_(\w+)\t+(\S+)", line):
                key, value = match.groups()
                if key == "NAME":
                    expected["name"] = value.strip('"')
                elif key == "GENDER":
                    expected["gender"] = value.strip('"')
                elif value[0] != '"' and not key.startswith(("CHAT_",
                                                             "WALKER")):
                    key = "CHARACTERISTIC_" + key
                    other = TEXT_VALUES.get((name.lower(), level, key))
                    expected["levels"][level][key] = (
                        float(value) if other is None else other)
        chat = text("_t.c")
        return (expected, len(re.findall(r'^\t\t *["\w].*;', chat, re.M)),
                set(re.findall(r'^\t\t *"([^"]+)";', chat, re.M)))


def differences(first, second, path=""):
    """The places in which two documents differ."""
    if isinstance(first, dict) and isinstance(second, dict):
        for key in sorted(first.keys() | second.keys()):
            yield from differences(first.get(key), second.get(key),
                                   f"{path}/{key}")
    elif first != second:
        yield f"{path}: {first!r}, then {second!r}"


def load(*arguments):
    text, errors = run("load", *arguments)
    if "Error" in errors or "failed" in errors:
        fail(f"load {' '.join(arguments)} says: {errors.strip()}")
    return text, errors


def check_bot(listed_name):
    before = len(failures)
    package = os.path.join(GAME, "baseq3", BOT_PACKAGE)
    first_text, notes = load(package, listed_name)
    first = json.loads(first_text)

    expected, chat_lines, texts = plain_bot(listed_name)
    for key in ("name", "gender"):
        if first[key] != expected[key]:
            fail(f"{listed_name}: {key} {first[key]}, not {expected[key]}")
    values = 0
    for level in LEVELS:
        for key, value in expected["levels"][level].items():
            values += 1
            if first["levels"][level][key] != value:
                fail(f"{listed_name}: level {level} {key} "
                     f"{first['levels'][level][key]!r}, not {value!r}")
    lines = [line for chat in first["chats"].values() for line in chat]
    if len(lines) != chat_lines:
        fail(f"{listed_name}: {len(lines)} chat lines, not {chat_lines}")
    for text in {WORDS.get(text, text) for text in texts}.difference(lines):
        fail(f"{listed_name}: no chat line {text!r}")

    into = os.path.join(SCRATCH, "made", listed_name)
    os.makedirs(into)
    made, _ = run("make", "-", "--into", into, "--layout",
                  input=first_text.encode())
    if len(made.splitlines()) != 5:
        fail(f"{listed_name}: make printed {made.splitlines()}")
    second_text, _ = load(os.path.join(into, "botfiles", "bots"),
                          first["name"], "--layout")
    for place in list(differences(first, json.loads(second_text)))[:5]:
        fail(f"{listed_name} made again: {place}")

    print(f"{listed_name:<12}{first['name']:<12}{values:>7}{len(lines):>7}"
          f"{len(notes.splitlines()):>7}  "
          f"{'same' if len(failures) == before else 'FAIL'}")


def main():
    make_program_folder()
    bots = check_scan()
    print(f"\n{'listed':<12}{'name':<12}{'values':>7}{'lines':>7}"
          f"{'notes':>7}  made again")
    for bot in bots:
        check_bot(bot)
    if failures:
        sys.exit(f"\n{len(failures)} failure(s)")
    print(f"\n{len(bots)} bots read, made and read again: all the same")


main()
