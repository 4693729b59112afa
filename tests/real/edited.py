"""The games of edited.sh: edited.py CLI"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time
import zipfile

DATA = pathlib.Path("/usr/share/games/openarena/baseoa")
SERVER = "/usr/games/openarena-server"
BOTS = 24
AT_ONCE = 12
SKILLS = (1, 3, 5)
# What a server may say of a bot's files; all else is about other things.
MESSAGES = re.compile(
    rb"Error:|Warning:|Fatal:|couldn't|counldn't|default skill|too large|"
    rb"characteristic \d+ is not|exceeded|keys or values|Missing \{|"
    rb"Unexpected end|BotAISetupClient failed|not defined|no aifile")
ENTERED = re.compile(rb'print "(\w+)\^7 entered the game')


class Home:
    """A home folder of the game with loose files of the bots in it."""

    def __init__(self, folder, names):
        self.folder = folder
        self.game = folder / ".openarena" / "baseoa"
        self.files = self.game / "botfiles" / "bots"
        self.files.mkdir(parents=True)
        with zipfile.ZipFile(DATA / "pak6-misc.pk3") as package:
            for entry in package.infolist():
                path = pathlib.PurePosixPath(entry.filename.lower())
                if path.parent == pathlib.PurePosixPath("botfiles/bots"):
                    (self.files / path.name).write_bytes(package.read(entry))
        scripts = self.game / "scripts"
        scripts.mkdir()
        for name in names:
            (scripts / f"my{name}.bot").write_text(
                f"{{\nname My{name}\nmodel sarge\n"
                f"aifile bots/{name}_c.c\n}}\n", encoding="ascii")

    def start(self, log, *commands):
        """The server, which plays with the bots until it is ended."""
        return subprocess.Popen(
            [SERVER, "+set", "dedicated", "1", "+set", "net_enabled", "0",
             "+set", "sv_pure", "0", "+set", "bot_enable", "1",
             "+set", "sv_maxclients", "32", *commands],
            stdin=subprocess.DEVNULL, stdout=log, stderr=subprocess.STDOUT,
            env={"HOME": str(self.folder), "PATH": os.environ["PATH"]})

    def messages(self, names, skill):
        """Who entered, and what the server said, without its line numbers."""
        path = self.folder / "log"
        with open(path, "wb") as log:
            commands = ["+devmap", "oa_dm1"]
            for name in names:
                commands += ["+addbot", f"My{name}", str(skill)]
            server = self.start(log, *commands)
            try:
                # All are in, or for some time nobody came any more.
                entered, last = 0, time.monotonic() + 15
                while entered < len(names) and time.monotonic() < last:
                    time.sleep(0.5)
                    count = len(set(ENTERED.findall(path.read_bytes())))
                    if count > entered:
                        entered, last = count, time.monotonic() + 6
                time.sleep(2)
            finally:
                server.kill()
                server.wait()
        said = path.read_bytes()
        lines = {re.sub(rb"\d+", b"N", line) for line in said.splitlines()
                 if MESSAGES.search(line)}
        return set(ENTERED.findall(said)), lines

    def match(self, minutes):
        """How often Grism killed with rockets in a fast match."""
        (self.game / "fast.cfg").write_text(
            "devmap oa_dm1\nset timescale 50\nset nextmap quit\n"
            "addbot Mygrism 5\naddbot Mygargoyle 5\naddbot Mysarge 5\n",
            encoding="ascii")
        games = self.game / "games.log"
        games.unlink(missing_ok=True)
        with open(self.folder / "log", "wb") as log:
            server = self.start(
                log, "+set", "sv_fps", "1000", "+set", "g_doWarmup", "0",
                "+set", "fraglimit", "0", "+set", "timelimit", str(minutes),
                "+set", "com_hunkMegs", "256", "+set", "g_log", "games.log",
                "+set", "g_logsync", "1", "+exec", "fast.cfg")
            try:
                server.wait(timeout=300)
            finally:
                server.kill()
                server.wait()
        said = games.read_text(encoding="latin-1")
        grism = re.search(r"ClientUserinfoChanged: (\d+) n\\(?:\^\d)*Mygrism",
                          said)
        if not grism or "Exit: Timelimit hit" not in said:
            sys.exit("FAIL: the match was not played to its end")
        kills = re.findall(rf"Kill: {grism[1]} \d+ \d+: .* by (MOD_\w+)", said)
        return len(kills), sum(kind.startswith("MOD_ROCKET") for kind in kills)


def edit(cli, home, game, program, name, *values):
    """Whether the edit was made."""
    words = [word for value in values for word in ("--set", value)]
    return subprocess.run(
        [cli, "edit", home.files, name, *words, "--no-description", "--game",
         game, "--program-folder", program],
        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
        check=False).returncode == 0


def compare_games(names, before, after):
    """How many games differ in who enters and what is said."""
    failures = 0
    for skill in SKILLS:
        for first in range(0, len(names), AT_ONCE):
            group = names[first:first + AT_ONCE]
            entered, known = before.messages(group, skill)
            still, said = after.messages(group, skill)
            for name in sorted(entered - still):
                failures += 1
                print(f"FAIL: skill {skill}: {name.decode()} stays outside")
            for line in sorted(said - known):
                failures += 1
                print(f"FAIL: skill {skill}: new: {line.decode('latin-1')}")
            print(f"skill {skill}: {len(still)} of {len(group)} enter, "
                  f"{len(entered)} did before", flush=True)
            if not still:
                failures += 1
                print("FAIL: the server took none")
    return failures


def compare_matches(before, after):
    """Tells of rockets; true when the edit shows."""
    for _ in range(3):
        all_kills, rockets = before.match(5)
        print(f"Grism as he is: {all_kills} kills, {rockets} with rockets")
        if rockets:
            break
    edited_kills, edited_rockets = after.match(5)
    print(f"Grism with his rocket launcher at 0: {edited_kills} kills, "
          f"{edited_rockets} with rockets")
    return rockets > 0 and edited_rockets == 0


def main():
    cli = sys.argv[1]
    failures = 0
    with tempfile.TemporaryDirectory() as scratch_name:
        scratch = pathlib.Path(scratch_name)
        game = scratch / "game"
        (game / "baseq3").mkdir(parents=True)
        for file in DATA.glob("*.pk3"):
            (game / "baseq3" / file.name).symlink_to(file)
        program = scratch / "program"
        program.mkdir()
        with zipfile.ZipFile(DATA / "pak6-misc.pk3") as package:
            names = sorted(
                match[1] for match in map(
                    re.compile(r"botfiles/bots/(\w+)_c\.c$").match,
                    map(str.lower, package.namelist())) if match)
        if len(names) != BOTS:
            sys.exit(f"FAIL: {len(names)} bots, not {BOTS}")
        before = Home(scratch / "before", names)
        after = Home(scratch / "after", names)
        for name in names:
            for value in ("weaponWeights.W_RAILGUN=123",
                          "levels.4.CHARACTERISTIC_ATTACK_SKILL=0.625",
                          'chats.kill_insult=["so much for you"]'):
                if edit(cli, after, game, program, name, value):
                    continue
                print(f"{name}: not edited: {value}")
                # The default character has weights of no kind.
                failures += name != "default"
        failures += compare_games(names, before, after)
        shutil.copy(before.files / "grism_w.c", after.files / "grism_w.c")
        if not edit(cli, after, game, program, "grism",
                    "weaponWeights.W_ROCKETLAUNCHER=0"):
            sys.exit("FAIL: Grism was not edited")
        failures += not compare_matches(before, after)
    if failures:
        sys.exit(f"{failures} failure(s)")
    print("a real game takes the bots that were edited in place")


main()
