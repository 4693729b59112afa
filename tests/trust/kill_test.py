#!/usr/bin/env python3
"""Kills programs that save, at random moments, and looks at what they leave.

    kill_test.py BIN SAVER [SEED]

BIN is the folder of fragsmith-cli, SAVER the program test_trust_saver. After
each of 200 kills every file has to be whole and of the round that was being
written or of the one before; other files may only be temporary ones under the
name that says so, and the next save an hour later takes those away.
"""

import os
import pathlib
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import zipfile

SAVER_KILLS = 150
CLI_KILLS = 50
VARIANTS = 8  # Rounds of the saver in one run before it is killed, at most.
SIZE = 2000
LEFT_OVER = re.compile(r"\.(.+)\.[0-9]+\.fgs-tmp")


def contents(path):
    """The bytes of a file; of a package its names and their bytes, since it
    holds the time of its making, too."""
    if path.suffix != ".pk3":
        return path.read_bytes()
    with zipfile.ZipFile(path) as package:
        return [(name, package.read(name)) for name in package.namelist()]


def read_tree(folder):
    """What lies below a folder, by name, and the left-over temporary files."""
    files, left_over = {}, []
    for path in sorted(folder.rglob("*")):
        if not path.is_file():
            continue
        name = str(path.relative_to(folder))
        match = LEFT_OVER.fullmatch(path.name)
        if match:
            left_over.append(path)
            if not (path.parent / match[1]).exists():
                sys.exit(f"FAILED: {name} belongs to no file")
        else:
            files[name] = contents(path)
    return files, left_over


def age(paths):
    two_hours_ago = time.time() - 7200
    for path in paths:
        os.utime(path, (two_hours_ago, two_hours_ago))


def adjust(latest, was_early, was_late):
    """The latest moment of the next kill: on a machine that is busy with
    something else a program takes longer than it was measured to."""
    return latest * (1.1 if was_early else 0.8 if was_late else 1)


def compare(kill, before, after, allowed):
    """Each file is as one of the allowed trees has it; gives how many of
    them are new."""
    for name in set(before) | set(after):
        if name not in after:
            sys.exit(f"FAILED: after kill {kill}, {name} is gone")
        if not any(tree.get(name) == after[name] for tree in allowed):
            size = len(after[name])
            sys.exit(f"FAILED: after kill {kill}, {name} ({size} bytes or"
                     " entries) is neither the old nor the new file")
    return sum(before.get(name) != after[name] for name in after)


def kill_saver(saver, scratch, generator):
    def prepare(folder):
        for name in ("game", "program"):
            (folder / name).mkdir(parents=True)

    def command(folder, first, last):
        return [saver, folder, str(first), str(last), str(SIZE)]

    references = []
    for number in range(VARIANTS):
        prepare(scratch / f"round{number}")
        subprocess.run(command(scratch / f"round{number}", number, number),
                       stdout=subprocess.DEVNULL, check=True)
        references.append(read_tree(scratch / f"round{number}")[0])
    if len(references[0]) != 10:
        sys.exit(f"FAILED: a round has {len(references[0])} files, not 10")
    for name in references[0]:
        if references[0][name] == references[1][name]:
            sys.exit(f"FAILED: {name} is the same in all rounds")

    folder = scratch / "saver"
    prepare(folder)
    start = time.monotonic()
    subprocess.run(command(folder, 0, VARIANTS - 1), check=True,
                   stdout=subprocess.DEVNULL)
    duration = (time.monotonic() - start) / VARIANTS
    before = references[VARIANTS - 1]
    amidst, most_left, latest = 0, 0, 2 * duration
    for kill in range(SAVER_KILLS):
        process = subprocess.Popen(command(folder, 0, VARIANTS - 1),
                                   stdout=subprocess.PIPE)
        process.stdout.readline()
        time.sleep(generator.uniform(0, latest))
        process.send_signal(signal.SIGKILL)
        done = process.stdout.read().split()
        process.wait()
        process.stdout.close()
        if process.returncode > 0:
            sys.exit(f"FAILED: the saver ended with {process.returncode}")
        after, left_over = read_tree(folder)
        written = len(done)
        old = references[written - 1] if written else before
        new = references[min(written, VARIANTS - 1)]
        changed = compare(kill, old, after, [old, new])
        amidst += 0 < changed < len(after)
        latest = adjust(latest, written == 0 and changed == 0,
                        written == VARIANTS)
        most_left = max(most_left, len(left_over))
        before = after
    age(left_over)
    subprocess.run(command(folder, 0, 0), check=True,
                   stdout=subprocess.DEVNULL)
    after, left_over = read_tree(folder)
    compare("and a whole save", references[0], after, [references[0]])
    return duration, amidst, most_left, left_over


def kill_command_line(bin_folder, scratch, generator):
    cli = bin_folder / "fragsmith-cli"
    program = scratch / "program"
    program.mkdir()

    def command(document, folder):
        return [cli, "make", document, "--into", folder, "--layout", "--pk3",
                "--program-folder", program]

    documents, references = [], []
    for number in range(2):
        documents.append(scratch / f"document{number}.json")
        made = subprocess.run(
            [cli, "new", "--preset", "average", "--name", "Rookie", "--seed",
             str(number)], capture_output=True, check=True, text=True).stdout
        documents[number].write_text(
            made.replace('"comment": ""', f'"comment": "bot {number}"'))
        into = scratch / f"made{number}"
        subprocess.run(command(documents[number], into), check=True,
                       capture_output=True)
        references.append(read_tree(into)[0])
    if references[0] == references[1] or len(references[0]) != 6:
        sys.exit("FAILED: the two bots do not serve for the test")

    folder = scratch / "cli"
    start = time.monotonic()
    subprocess.run(command(documents[1], folder), check=True,
                   capture_output=True)
    duration = time.monotonic() - start
    settings = program / "fgs.ini"

    def count():
        match = re.fullmatch(
            rb"\[Fragsmith settings\]\r\n(?:.*\r\n){7}"
            rb"Bots = ([0-9]+)\r\n\r\nBaseQ3Check = False\r\n",
            settings.read_bytes())
        if not match:
            sys.exit(f"FAILED: {settings.read_bytes()!r} are no settings")
        return int(match[1])

    before, bots, amidst, most_left = read_tree(folder)[0], count(), 0, 0
    latest = duration
    for kill in range(CLI_KILLS):
        number = kill % 2
        process = subprocess.Popen(command(documents[number], folder),
                                   stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)
        time.sleep(generator.uniform(0, latest))
        process.send_signal(signal.SIGKILL)
        process.wait()
        if process.returncode > 0:
            sys.exit(f"FAILED: the program ended with {process.returncode}")
        after, left_over = read_tree(folder)
        changed = compare(kill, before, after, [before, references[number]])
        amidst += 0 < changed < len(after)
        latest = adjust(latest, changed == 0, process.returncode == 0)
        most_left = max(most_left, len(left_over))
        if count() not in (bots, bots + 1):
            sys.exit(f"FAILED: {bots} bots were counted, then {count()}")
        before, bots = after, count()
    age(left_over + read_tree(program)[1])
    subprocess.run(command(documents[0], folder), check=True,
                   capture_output=True)
    after, left_over = read_tree(folder)
    compare("and a whole save", references[0], after, [references[0]])
    return duration, amidst, most_left, left_over + read_tree(program)[1]


def main():
    bin_folder = pathlib.Path(sys.argv[1])
    saver = pathlib.Path(sys.argv[2])
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else 8
    print(f"seed {seed}", flush=True)
    generator = random.Random(seed)
    scratch = pathlib.Path(tempfile.mkdtemp(prefix="fragsmith-kill-"))
    try:
        for name, kills, outcome in (
                ("test_trust_saver", SAVER_KILLS,
                 lambda: kill_saver(saver, scratch, generator)),
                ("fragsmith-cli make", CLI_KILLS,
                 lambda: kill_command_line(bin_folder, scratch, generator))):
            duration, amidst, most_left, left_over = outcome()
            print(f"{name}: {kills} kills, {amidst} of them between two files"
                  f" of a save of {duration * 1000:.0f} ms; at most"
                  f" {most_left} temporary files left", flush=True)
            if left_over:
                sys.exit(f"FAILED: left over for good: {left_over}")
            if amidst < kills / 25:
                sys.exit("FAILED: too few kills came amidst a save")
    finally:
        shutil.rmtree(scratch)
    print("every file was whole after each kill")


main()
