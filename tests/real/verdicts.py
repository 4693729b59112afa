#!/usr/bin/env python3
"""verdicts.py MAKER CLI CASES: lets a real game judge the bots of CASES.

MAKER puts them into folders and packages, see verdicts_maker.cpp. Each is added
to Debian's openarena-server at four skills; what becomes of it must be what the
table and what our own reading of the files say, and the game's first message
must be the table's. Then "fragsmith-cli try" gets a sample of them, or each with
--try-all. --write puts the game's verdicts and messages into the table.
Everything stays on the loopback device.
"""

import concurrent.futures
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
# A game mostly waits for its own time.
AT_ONCE = 4
# The game keeps what it has read of a bot that it then refuses, and has room
# for 64 characters until the next map. A bot can take six: three of them at
# skill 2.
BOTS_ON_A_MAP = 9
# Whose files the default characters of the table name.
DEFAULTS = {"gargoyle", "dflt", "default"}
MESSAGE = re.compile(
    r"Error|Warning|Fatal|not defined|no aifile|couldn|counldn|failed")
# What a bot says as it plays, or not, as the time allows, and what the server
# says as it starts or had to tell earlier bots, in the list that it prints when too much waits.
CHATTER = re.compile(
    r"is not initialized|used before being setup|weapon number out of range|"
    r"^cmd +\d+: ")


def unpack(folder):
    """The game's own botfiles and list of bots; of two files of one name the
    last counts."""
    for package in sorted(DATA.glob("*.pk3")):
        with zipfile.ZipFile(package) as file:
            for entry in file.infolist():
                name = entry.filename.lower()
                if ((name.startswith("botfiles/") and not entry.is_dir())
                        or name == "scripts/bots.txt"):
                    place = folder / name
                    place.parent.mkdir(parents=True, exist_ok=True)
                    place.write_bytes(file.read(entry))
    return folder


def play(home, cases):
    """The log of a game that gets each bot at each skill, alone. The folders
    of the cases go into one."""
    game = home / ".openarena" / "baseoa"
    game.mkdir(parents=True)
    for folder in [home / "game"] + [home / case["number"] for case in cases]:
        if folder.exists():
            shutil.copytree(folder, game, dirs_exist_ok=True)
    lines = []
    for number, case in enumerate(cases):
        if number % BOTS_ON_A_MAP == 0:
            lines += ["map oa_dm1", "wait 5"]
        for skill in SKILLS:
            lines += [f"echo @@@ {case['number']} {skill}",
                      f'addbot "{case["add"]}" {skill}',
                      "wait 1", "echo @@@ end", "kick allbots", "wait 1"]
    (game / "cases.cfg").write_text("\n".join(lines + ["quit", ""]),
                                    encoding="latin-1")
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
    shutil.rmtree(home / ".openarena")
    return result.stdout.decode("latin-1").replace("\r", "")


def verdict_of(lines, own):
    """W as written, O with files of another bot, D with the default character,
    R refused or another bot in its place."""
    loaded = re.findall(r"^loaded (.*)$", lines, re.M)
    # Not so in the list of commands when there are too many to be sent.
    if not re.search('^broadcast: print ".* entered the game', lines, re.M):
        return "R"
    named = "\n".join(loaded).lower()
    # "default skill 4 from bots/x_c.c": of x nothing was loaded.
    named = re.sub(r"^default skill .*$", "", named, flags=re.M)
    characters = set(re.findall(r"skill \S+ from (?:\S*/)?(\S+)_c\.c$", named,
                                re.M)) - {"default"}
    files = set(re.findall(r"(?:^|[ /])(\w+)_[wit]\.c$", named, re.M))
    if characters - {own}:
        return "R"
    if (any(line.startswith("default skill") for line in loaded)
            or files & DEFAULTS):
        return "D"
    return "O" if files - {own} else "W"


def message_of(lines, own):
    """The first thing that the game says against it: part, line and words."""
    for line in lines.splitlines():
        line = re.sub(r"\^\d", "", line)
        if not MESSAGE.search(line) or CHATTER.search(line):
            continue
        line = line.replace(own.upper(), "BOTX").replace(own, "botx")
        line = re.sub(r"^(Error|Warning|Fatal): ", "", line)
        line = re.sub(r"^file (\S+), line (\d+): ", r"\1:\2: ", line)
        line = re.sub(r"^bots/botx_([cwit])\.c:", r"\1:", line)
        return re.sub(r"[\t\\]|[^ -~]", "?", line)
    return ""


def judge(log, cases):
    """Fills in what the game makes of each case."""
    said = dict(((number, skill), lines) for number, skill, lines in re.findall(
        r"^@@@ (\d+) (\d)\n(.*?)^@@@ end$", log, re.M | re.S))
    for case in cases:
        all_said = [said.get((case["number"], skill)) for skill in SKILLS]
        case["game"] = "".join(
            "?" if lines is None else verdict_of(lines, case["name"])
            for lines in all_said)
        messages = [(verdict == "W", index, message_of(lines, case["name"]))
                    for index, (verdict, lines)
                    in enumerate(zip(case["game"], all_said)) if lines]
        case["says"] = next((message for _, _, message in sorted(messages)
                             if message), "")
    return bool(said)


def data_for(scratch, home, homes):
    """A data folder for the plain engine: the free game's, and the default
    character that is in force in this home."""
    data = scratch / "plain" / home
    game = data / "baseoa"
    if game.exists():
        return data
    game.mkdir(parents=True)
    for folder in (DATA, pathlib.Path("/usr/lib/openarena-server/baseoa")):
        for file in folder.iterdir():
            if not (game / file.name).exists():
                (game / file.name).symlink_to(file)
    if (homes / home / "game").exists():
        shutil.copytree(homes / home / "game", game, dirs_exist_ok=True)
    return data


def try_case(cli, scratch, homes, case):
    """What "try" says, as a letter, at the first skill with a fault."""
    at = next((place for place, letter in enumerate(case["game"])
               if letter != "W"), 2)
    place = homes / case["home"] / case["number"]
    source = [place / f"bot-{case['name']}.pk3", case["name"]]
    if not source[0].exists():
        source[0] = place
    done = subprocess.run(
        [cli, "try", *source, "--skill", SKILLS[at], "--engine",
         "/usr/lib/ioquake3/ioq3ded", "--data",
         data_for(scratch, case["home"], homes), "--program-folder",
         scratch / "program"],
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    text = done.stdout.decode("utf-8", "replace")
    letter = {0: "W", 3: "O"}.get(done.returncode, "R")
    if "default character in place" in text.splitlines()[-1:][0]:
        letter = "D"
    return case["game"][at], letter


def write_table(table, cases):
    """Puts verdicts and messages into the table."""
    lines = pathlib.Path(table).read_bytes().splitlines()
    in_order = iter(cases)
    for place, line in enumerate(lines):
        if line.startswith(b"#"):
            continue
        case = next(in_order)
        columns = line.split(b"\t")
        columns += [b""] * (7 - len(columns))
        columns[0] = case["game"].encode()
        columns[6] = case["says"].encode("ascii")
        lines[place] = b"\t".join(columns)
    pathlib.Path(table).write_bytes(b"\n".join(lines) + b"\n")


# Each trial takes a second or more; a tenth of them is tried every day.
TRY_EVERY = 10


def main():
    options = {arg for arg in sys.argv[1:] if arg.startswith("--")}
    maker, cli, table = (arg for arg in sys.argv[1:] if arg not in options)
    wrong = 0
    with tempfile.TemporaryDirectory() as scratch:
        scratch = pathlib.Path(scratch)
        data = unpack(scratch / "data")
        homes = scratch / "homes"
        made = subprocess.run([maker, table, data, homes],
                              stdout=subprocess.PIPE, check=True)
        names = ("home", "number", "add", "kept", "ours", "kept_message",
                 "name", "title")
        cases = [dict(zip(names, line.split("\t"))) for line
                 in made.stdout.decode("latin-1").splitlines()]
        of_homes = {}
        for case in cases:
            of_homes.setdefault(case["home"], []).append(case)
        (scratch / "program").mkdir()
        for home in of_homes:
            data_for(scratch, home, homes)
        with concurrent.futures.ThreadPoolExecutor(AT_ONCE) as pool:
            for log, of_home in zip(
                    pool.map(lambda home: play(homes / home, of_homes[home]),
                             of_homes), of_homes.values()):
                if not judge(log, of_home):
                    print(log[-3000:])
                    sys.exit("the game does not start here")
            to_try = (cases if "--try-all" in options
                      else cases[::TRY_EVERY])
            tries = list(pool.map(
                lambda case: (case, *try_case(cli, scratch, homes, case)),
                to_try))
        for case in cases:
            if len({case["kept"], case["ours"], case["game"]}) > 1:
                wrong += 1
                print(f"FAIL: {case['title']}: game {case['game']}, ours "
                      f"{case['ours']}, table {case['kept']}: {case['says']}")
            elif (case["kept_message"] != case["says"]
                  and "--write" not in options):
                wrong += 1
                print(f"FAIL: {case['title']}: the game says {case['says']}")
        for case, game, ours in tries:
            # Whose files those of another bot are, the default character's or
            # those of one in its place, "try" cannot tell; it warns of all.
            if game != ours and (game, ours) not in (("D", "O"), ("R", "O")):
                wrong += 1
                print(f"FAIL: {case['title']}: game {game}, try {ours}")
    if "--write" in options:
        write_table(table, cases)
    print(f"{len(cases)} bots at {len(SKILLS)} skills, {len(tries)} tried, "
          f"{wrong} disagree")
    sys.exit(wrong > 0)


main()
