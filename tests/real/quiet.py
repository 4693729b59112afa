"""The counting of quiet.sh: quiet.py CLI"""

import collections
import json
import pathlib
import re
import statistics
import subprocess
import sys
import tempfile
import zipfile

DATA = pathlib.Path("/usr/share/games/openarena/baseoa")
PACKAGE = DATA / "pak6-misc.pk3"
BOTS = 24
# Three of them are no bots of the game: no list has them.
NOT_IN_GAME = {"default", "sly", "widowe"}
# The most that the bot in the middle may get.
MEDIANS = {"error": 0, "warning": 3, "hint": 6}


def findings_of(cli, name, game, program):
    """What check says of one bot, a kind a line."""
    done = subprocess.run(
        [cli, "check", PACKAGE, name, "--json", "--game", game,
         "--program-folder", program],
        stdout=subprocess.PIPE, check=False)
    return json.loads(done.stdout)


def main():
    with zipfile.ZipFile(PACKAGE) as package:
        names = sorted(match[1] for match in map(
            re.compile(r"botfiles/bots/(\w+)_c\.c$").match, package.namelist())
            if match)
    if len(names) != BOTS:
        sys.exit(f"FAIL: {len(names)} bots, not {BOTS}")
    counts = {severity: [] for severity in MEDIANS}
    failures = 0
    with tempfile.TemporaryDirectory() as scratch:
        game = pathlib.Path(scratch) / "game"
        (game / "baseq3").mkdir(parents=True)
        for file in DATA.glob("*.pk3"):
            (game / "baseq3" / file.name).symlink_to(file)
        program = pathlib.Path(scratch) / "program"
        program.mkdir()
        for name in names:
            of_bot = collections.Counter(
                finding["severity"] for finding
                in findings_of(sys.argv[1], name, game, program))
            for severity, list_of in counts.items():
                list_of.append(of_bot[severity])
            if bool(of_bot["error"]) != (name in NOT_IN_GAME):
                failures += 1
                print(f"FAIL: {name}: {of_bot['error']} error(s)")
    for severity, list_of in counts.items():
        median = statistics.median(list_of)
        print(f"{severity}s: median {median}, most {max(list_of)}")
        if median > MEDIANS[severity]:
            failures += 1
            print(f"FAIL: more than {MEDIANS[severity]}")
    sys.exit(failures > 0)


main()
