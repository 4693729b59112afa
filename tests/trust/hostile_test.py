#!/usr/bin/env python3
"""Scans hostile packages and loads every bot that is found in them.

    hostile_test.py BIN [COUNT [SEED]]

BIN is the folder of fragsmith-cli and wzunzip. No run may crash, hang, take
more than MOST_SECONDS of the processor or more memory than MOST_MEMORY; nothing outside of the temporary folder may change,
and that is empty in the end. The honest bots among the others have to load.
"""

import concurrent.futures
import json
import os
import pathlib
import shutil
import tempfile

import hostile_packages
import hostile_trial
from hostile_trial import MOST_SECONDS, failures, figures

MOST_ICONS = 3  # of one package


class CommandLineTrial(hostile_trial.Trial):
    def command_line(self, what, arguments, statuses=(0, 1),
                     most_seconds=MOST_SECONDS):
        command, *rest = arguments
        return self.run(what, [self.bin / "fragsmith-cli", command,
                               "--program-folder", self.tree / "program",
                               *rest], statuses, most_seconds)

    def scan(self, *options):
        status, out, _ = self.command_line(
            "scan", ["scan", *options, "--", self.packages.parent],
            most_seconds=60)
        if status != 0:
            failures.append(f"the scan ended with {status}")
        return out

    def load(self, package, name):
        """Loads a bot, or with no name whatever the program makes of it."""
        what = f"load {package} {name!r}"
        # Without a name, several bots are a wrong usage.
        status, out, errors = self.command_line(
            what, ["load", "--", self.packages / package,
                   *([name] if name else [])], (0, 1) if name else (0, 1, 2))
        if status == 0 and "name" not in json.loads(out):
            failures.append(f"{what}: no bot was printed")
        if package.split("-")[1].startswith("honest") and status != 0:
            failures.append(f"{what}: {errors!r}")
        for letter in range(32):
            if letter not in (9, 10) and bytes([letter]) in errors:
                failures.append(f"{what}: control character {letter} goes to"
                                " the terminal")
        return status

    def unzip(self, package, path):
        folder = pathlib.Path(tempfile.mkdtemp(dir=self.tree / "icons"))
        self.run(f"wzunzip {package} {path!r}",
                 [self.bin / "wzunzip", "-o", self.packages / package,
                  os.fsencode(path), folder], (0, 1))
        shutil.rmtree(folder)


def wanted_work(trial, listing):
    """What is to be loaded, and which icons are to be taken out."""
    loads, icons = {}, {}
    for bot in listing["bots"]:
        if not bot["standard"]:
            loads.setdefault(bot["package"], []).append(bot["name"])
    for model in listing["models"]:
        for skin in model["skins"]:
            if not skin["original"]:
                icons.setdefault(skin["package"], []).append(skin["icon"])
    work = []
    for path in sorted(trial.packages.iterdir()):
        for name in loads.pop(path.name, [None]):
            work.append((trial.load, path.name, name))
        for icon in icons.pop(path.name, [])[:MOST_ICONS]:
            if "\0" not in icon:
                work.append((trial.unzip, path.name, icon))
    if loads or icons:
        failures.append(f"listed, but not there: {[*loads, *icons]}")
    return work


def try_all(bin_folder, tree, count, seed):
    trial = CommandLineTrial(bin_folder, tree)
    hostile_packages.make_packages(trial.packages, count, seed)
    before = trial.snapshot()
    listing = json.loads(trial.scan("--json"))
    print(f"scanned {count} packages", flush=True)
    if any(letter < 32 and letter != 10 for letter in trial.scan()):
        failures.append("scan: control characters go to the terminal")
    work = wanted_work(trial, listing)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = [(task[0], pool.submit(*task)) for task in work]
    loaded = [result.result() for kind, result in results if kind == trial.load]
    trial.check_unchanged(before)
    honest = sum(bot["name"].lower().startswith("honest")
                 for bot in listing["bots"])
    if honest != count // 40:
        failures.append(f"{honest} honest bots were found")
    print(f"{len(loaded)} loads, {loaded.count(0)} of them gave a bot;"
          f" {len(work) - len(loaded)} icons taken out;"
          f" {figures['runs']} runs in all")


hostile_trial.run_test(__doc__, try_all)
