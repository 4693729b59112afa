#!/usr/bin/env python3
"""Shows hostile packages in the editor's window.

    hostile_window_test.py BIN [COUNT [SEED]]

BIN is the folder of wzunzip; test_trust_window is in ../tests, seen from there.
A window searches a game's folder with BATCH packages in it and opens, paints
and saves each of them. No window may crash, hang, need more than MOST_SECONDS
of the processor for one package or more memory than the other test allows,
take a name for markup, or write anything but its own files into its program
folder and bots into the folder that it saves to; the temporary folder is empty
in the end, and the lists that a window leaves are those that the next one
reads. The honest bots among the others have to load and to show their icons.
"""

import concurrent.futures
import os

import hostile_packages
import hostile_trial
from hostile_trial import failures

BATCH = 50
MOST_SECONDS = 5
BOT_FILES = ("_c.c", "_w.c", "_i.c", "_t.c", ".bot")
OWN_FILES = {"fgs.ini", "fgs_models", "fgs_bots", "fgs_synonyms", "fgs.window"}


class WindowTrial(hostile_trial.Trial):
    def __init__(self, bin_folder, tree):
        super().__init__(bin_folder, tree)
        self.program = bin_folder.parent / "tests" / "test_trust_window"
        self.programs = tree / "programs"
        self.programs.mkdir()
        # Qt takes only a folder that is closed to others.
        runtime = tree / "runtime"
        runtime.mkdir(mode=0o700)
        self.environment["XDG_RUNTIME_DIR"] = str(runtime)
        self.figures = {"loads": 0, "icons": 0, "boxes": 0, "saved": 0,
                        "scan": 0.0,
                        "slowest": (0.0, "")}

    def make_batches(self, count, seed):
        """Puts the packages into game folders of BATCH each. They are made
        in one place, since the paths in them aim at what is above it."""
        hostile_packages.make_packages(self.packages, count, seed)
        packages = sorted(self.packages.iterdir())
        batches = []
        for first in range(0, count, BATCH):
            game = self.packages.parent.parent / f"from{first}"
            (game / "baseq3").mkdir(parents=True)
            (game / "quake3.exe").touch()
            program_folder, saves = self.programs / game.name, game / "saves"
            program_folder.mkdir()
            saves.mkdir()
            self.free_folders += [program_folder, saves]
            self.write_settings(program_folder, game, saves)
            batches.append((program_folder, [
                path.rename(game / "baseq3" / path.name)
                for path in packages[first:first + BATCH]]))
        return batches

    def show(self, program_folder, packages):
        """Shows packages in one window; after a crash, those behind the one
        where it happened in another."""
        what = f"window {program_folder.name}"
        status, out, errors = self.run(
            what, [self.program, program_folder, *packages], (0,),
            most_seconds=60 + MOST_SECONDS * len(packages) // 2)
        begun, done = None, False
        for line in out.decode().splitlines():
            word, *rest = line.split(" ")
            if word == "scan":
                self.figures["scan"] = max(self.figures["scan"],
                                           float(rest[0]))
            elif word == "begin":
                begun = int(rest[0])
            elif word == "end":
                self.judge(packages[begun].name, *rest[1:])
            elif word == "done":
                done = True
            else:
                failures.append(f"{what}, {packages[begun or 0].name!r}: "
                                + line.removeprefix("FAILED: "))
        words = [line for line in errors.decode(errors="replace").splitlines()
                 if "propagateSizeHints" not in line]
        if words:
            failures.append(f"{what} says {words[:3]}")
        if not done and begun is not None:
            failures.append(f"{what} ended with {status} in"
                            f" {packages[begun].name!r}")
            self.show(program_folder, packages[begun + 1:])

    def judge(self, package, seconds, loads, icons, boxes, name):
        """What a window did with a package."""
        self.figures["loads"] += int(loads)
        self.figures["icons"] += int(icons)
        self.figures["boxes"] += int(boxes)
        self.figures["slowest"] = max(self.figures["slowest"],
                                      (float(seconds), package))
        if float(seconds) > MOST_SECONDS:
            failures.append(f"{package!r} took {seconds} s of the processor")
        if package.split("-")[1].startswith("honest") and not (
                name.startswith("honest") and loads == "1" and icons == "1"):
            failures.append(f"{package!r}: {loads} bots, the last {name!r},"
                            f" and {icons} icons were shown")

    def check_free_folders(self):
        for folder in self.free_folders:
            files = [path.name for path in folder.iterdir() if path.is_file()]
            if folder.parent == self.programs:
                strange = set(files) - OWN_FILES
            else:
                self.figures["saved"] += len(files)
                strange = [name for name in files
                           if not name.endswith(BOT_FILES)]
            if strange or not files or len(files) != len([*folder.iterdir()]):
                failures.append(f"in {folder} there are {strange or files}")


def try_all(bin_folder, tree, count, seed):
    trial = WindowTrial(bin_folder, tree)
    batches = trial.make_batches(count, seed)
    before = trial.snapshot()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        list(pool.map(lambda batch: trial.show(*batch), batches))
    trial.check_free_folders()
    trial.check_unchanged(before)
    figures = trial.figures
    print(f"{count} packages, {figures['loads']} loads and"
          f" {figures['icons']} icons shown, {figures['saved']} files saved,"
          f" {figures['boxes']} boxes;"
          f" a scan took up to {figures['scan']} s, a package up to"
          f" {figures['slowest'][0]} s: {figures['slowest'][1][:120]!r}")


if __name__ == "__main__":
    hostile_trial.run_test(__doc__, try_all)
