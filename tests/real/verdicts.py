#!/usr/bin/env python3
"""verdicts.py MAKER CASES: lets a real game judge the bots of CASES.

MAKER writes them, see verdicts_maker.cpp. Each is added to Debian's
openarena-server at four skills; what becomes of it must be what the table and
what our own reading of the files say. --write puts the game's verdicts into
the table. Everything stays on the loopback device.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import zipfile

DATA = pathlib.Path("/usr/share/games/openarena/baseoa")
SKILLS = ["1", "2", "4", "5"]
SECONDS_FOR_A_HOME = 240
# The game keeps what it has read of a bot that it then refuses, and has room
# for 64 characters until the next map. A bot can take six: three of them at
# skill 2.
BOTS_ON_A_MAP = 9


def unpack(folder):
    """The game's own botfiles; of two files of one name the last counts."""
    for package in sorted(DATA.glob("*.pk3")):
        with zipfile.ZipFile(package) as file:
            for entry in file.infolist():
                name = entry.filename.lower()
                if name.startswith("botfiles/") and not entry.is_dir():
                    place = folder / name
                    place.parent.mkdir(parents=True, exist_ok=True)
                    place.write_bytes(file.read(entry))
    return folder / "botfiles"


def play(home, names):
    """The log of a game that gets each bot at each skill, alone."""
    game = home / ".openarena" / "baseoa"
    game.parent.mkdir()
    game.mkdir()
    for part in ("botfiles", "scripts"):
        if (home / part).exists():
            (home / part).rename(game / part)
    lines = []
    for number, name in enumerate(names):
        if number % BOTS_ON_A_MAP == 0:
            lines += ["map oa_dm1", "wait 5"]
        for skill in SKILLS:
            lines += [f"echo @@@ {name} {skill}", f"addbot {name} {skill}",
                      "wait 1", "echo @@@ end", "kick allbots", "wait 1"]
    (game / "cases.cfg").write_text("\n".join(lines + ["quit", ""]))
    settings = {"dedicated": 1, "net_enabled": 1, "net_ip": "127.0.0.1",
                "sv_pure": 0, "sv_maxclients": 16, "bot_nochat": 1,
                "bot_reloadcharacters": 1}
    command = ["timeout", str(SECONDS_FOR_A_HOME), "openarena-server"]
    for key, value in settings.items():
        command += ["+set", key, str(value)]
    command += ["+exec", "cases.cfg"]
    result = subprocess.run(
        command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT, check=False,
        env={"HOME": str(home), "PATH": "/usr/games:/usr/bin:/bin"})
    return result.stdout.decode("latin-1").replace("\r", "")


def judge(log):
    """By bot and skill: W as written, D with the default character, R."""
    verdicts = {}
    for name, skill, lines in re.findall(
            r"^@@@ (e\d+) (\d)\n(.*?)^@@@ end$", log, re.M | re.S):
        loaded = re.findall(r"^loaded (.*)$", lines, re.M)
        files = re.findall(r"bots/(\w+)_[wit]\.c$", "\n".join(loaded), re.M)
        # Not so in the list of commands when there are too many to be sent.
        if not re.search('^broadcast: print ".* entered the game', lines, re.M):
            verdict = "R"
        elif (any(line.startswith("default skill") for line in loaded)
              or set(files) - {name}):
            verdict = "D"
        else:
            verdict = "W"
        verdicts[name, skill] = verdict
    return verdicts


def main():
    write = "--write" in sys.argv
    maker, table = (arg for arg in sys.argv[1:] if arg != "--write")
    with tempfile.TemporaryDirectory() as scratch:
        scratch = pathlib.Path(scratch)
        botfiles = unpack(scratch)
        made = subprocess.run([maker, table, botfiles, scratch / "homes"],
                              stdout=subprocess.PIPE, check=True, text=True)
        cases = [line.split("\t") for line in made.stdout.splitlines()]
        verdicts = {}
        for home in dict.fromkeys(case[0] for case in cases):
            names = [case[1] for case in cases if case[0] == home]
            log = play(scratch / "homes" / home, names)
            if not judge(log):
                print(log[-3000:])
                sys.exit("the game does not start here")
            for (name, skill), verdict in judge(log).items():
                verdicts[home, name, skill] = verdict
            shutil.rmtree(scratch / "homes" / home)
    wrong = 0
    all_of_game = []
    for home, name, kept, ours, title in cases:
        game = "".join(verdicts.get((home, name, skill), "?")
                       for skill in SKILLS)
        all_of_game.append(game)
        if len({kept, ours, game}) > 1:
            wrong += 1
            print(f"FAIL: {title}: game {game}, ours {ours}, table {kept}")
    if write:
        lines = pathlib.Path(table).read_bytes().splitlines(keepends=True)
        games = iter(all_of_game)
        pathlib.Path(table).write_bytes(b"".join(
            line if line.startswith(b"#")
            else next(games).encode() + line[4:] for line in lines))
    print(f"{len(cases)} bots at {len(SKILLS)} skills, {wrong} disagree")
    sys.exit(wrong > 0)


main()
