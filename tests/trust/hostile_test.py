#!/usr/bin/env python3
"""Scans hostile packages and loads every bot that is found in them.

    hostile_test.py BIN [COUNT [SEED]]

BIN is the folder of fragsmith-cli and wzunzip. No run may crash, take longer
than the 5 seconds that the unzip tool is given and 3 for the rest, or more
memory than MOST_MEMORY; nothing outside of the temporary folder may change,
and that is empty in the end. The honest bots among the others have to load.
"""

import concurrent.futures
import json
import os
import pathlib
import resource
import shutil
import subprocess
import sys
import tempfile
import threading
import time

import hostile_packages

MOST_SECONDS = 5 + 3
MOST_MEMORY = 1 << 30
MOST_ICONS = 3  # of one package

failures = []
figures = {"runs": 0, "slowest": (0, ""), "largest": (0, "")}
lock = threading.Lock()


def limit_memory():
    resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY, MOST_MEMORY))


class Trial:
    """A game's folder within a tree that is watched as a whole."""

    def __init__(self, bin_folder, tree):
        self.bin = bin_folder
        self.tree = tree
        self.packages = tree / "games" / "game" / "baseq3"
        self.packages.mkdir(parents=True)
        for name in ("program", "home", "tmp", "run", "icons"):
            (tree / name).mkdir()
        for folder in (tree, tree / "games", tree / "home", tree / "run"):
            for name in ("escaped", "escaped_c.c", "escaped.bot"):
                (folder / name).write_text("as it was")
        (tree / "program" / "fgs.ini").write_text(
            "[Fragsmith settings]\r\nQ3Baseq3 = \r\nWorkDir = \r\n"
            f"WinZipDir = {bin_folder}\r\n\r\nUserName = \r\nEmail = \r\n"
            "Http = \r\nBots = 0\r\n\r\nBaseQ3Check = False\r\n")
        self.environment = {
            "PATH": "/usr/bin:/bin", "LC_ALL": "C.UTF-8",
            "HOME": str(tree / "home"), "XDG_CONFIG_HOME": str(tree / "home"),
            "TMPDIR": str(tree / "tmp")}

    def snapshot(self):
        """All that there is, but for what is in the temporary folder and the
        one for icons, with size and time."""
        found = {}
        for path in self.tree.rglob("*"):
            if path.parent.name in ("tmp", "icons"):
                continue
            state = path.lstat()
            found[str(path.relative_to(self.tree))] = (
                state.st_mode, state.st_size, state.st_ino,
                0 if path.name in ("tmp", "icons") else state.st_mtime_ns)
        return found

    def run(self, what, command, statuses, most_seconds=MOST_SECONDS):
        start = time.monotonic()
        with tempfile.TemporaryFile() as out, tempfile.TemporaryFile() as err:
            process = subprocess.Popen(
                command, stdin=subprocess.DEVNULL, stdout=out, stderr=err,
                cwd=self.tree / "run", env=self.environment,
                preexec_fn=limit_memory)
            timer = threading.Timer(3 * most_seconds, process.kill)
            timer.start()
            _, status, usage = os.wait4(process.pid, 0)
            timer.cancel()
            process.returncode = os.waitstatus_to_exitcode(status)
            seconds = time.monotonic() - start
            out.seek(0)
            err.seek(0)
            text, errors = out.read(), err.read()
        with lock:
            figures["runs"] += 1
            figures["slowest"] = max(figures["slowest"], (seconds, what))
            figures["largest"] = max(figures["largest"],
                                     (usage.ru_maxrss / 1024, what))
            if process.returncode not in statuses:
                failures.append(f"{what}: ended with {process.returncode}")
            if b"bad_alloc" in errors or b"terminate called" in errors:
                failures.append(f"{what}: {errors[-200:]!r}")
            if seconds > most_seconds:
                failures.append(f"{what}: took {seconds:.1f} s")
        return process.returncode, text, errors

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


def try_all(trial, count, seed):
    hostile_packages.make_packages(trial.packages, count, seed)
    before = trial.snapshot()
    start = time.monotonic()
    listing = json.loads(trial.scan("--json"))
    print(f"scanned {count} packages in {time.monotonic() - start:.1f} s",
          flush=True)
    if any(letter < 32 and letter != 10 for letter in trial.scan()):
        failures.append("scan: control characters go to the terminal")
    work = wanted_work(trial, listing)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = [(task[0], pool.submit(*task)) for task in work]
    loaded = [result.result() for kind, result in results if kind == trial.load]
    # A tool that was left alone may be at its end only now.
    time.sleep(0.5)
    after = trial.snapshot()
    for name in sorted(set(before) | set(after)):
        if before.get(name) != after.get(name):
            failures.append(f"{name!r} was changed: {before.get(name)} became"
                            f" {after.get(name)}")
    left = list((trial.tree / "tmp").iterdir())
    if left:
        failures.append(f"left in the temporary folder: {left[:5]}")
    honest = sum(bot["name"].lower().startswith("honest")
                 for bot in listing["bots"])
    if honest != count // 40:
        failures.append(f"{honest} honest bots were found")
    print(f"{len(loaded)} loads, {loaded.count(0)} of them gave a bot;"
          f" {len(work) - len(loaded)} icons taken out;"
          f" {figures['runs']} runs in all")
    for key, unit in (("slowest", "s"), ("largest", "MiB")):
        print(f"{key}: {figures[key][0]:.1f} {unit}, {figures[key][1][:120]}")


def main():
    bin_folder = pathlib.Path(sys.argv[1]).resolve()
    count = int(sys.argv[2]) if len(sys.argv) > 2 else 1000
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else 8
    print(f"seed {seed}", flush=True)
    tree = pathlib.Path(tempfile.mkdtemp(prefix="fragsmith-hostile-"))
    try:
        try_all(Trial(bin_folder, tree), count, seed)
    finally:
        shutil.rmtree(tree)
    for failure in failures[:30]:
        print(f"FAILED: {failure}")
    if failures:
        sys.exit(f"{len(failures)} failures")
    print("no crash, no hang, no byte outside")


main()
