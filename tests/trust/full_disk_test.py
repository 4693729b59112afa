#!/usr/bin/env python3
"""Saves onto a disk of 64 KiB that is filled to various degrees.

    full_disk_test.py BIN SAVER

BIN is the folder of fragsmith-cli, SAVER the program test_trust_saver. A save
that fails has to name the file and the reason and to end with a status other
than 0; every file is whole, old or new, and no temporary file is left. Ends
with 77 where no disk can be mounted.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import zipfile

DISK_KIB = 64
PAGE = 4096
SIZE = 50
REASON = "No space left on device"


def contents(path, folder):
    """The bytes of a file without the folder's own name, which settings may
    hold; of a package its names and their bytes."""
    if path.suffix != ".pk3":
        return path.read_bytes().replace(os.fsencode(folder), b"FOLDER")
    with zipfile.ZipFile(path) as package:
        return [(name, package.read(name)) for name in package.namelist()]


def read_tree(folder):
    return {str(path.relative_to(folder)): contents(path, folder)
            for path in sorted(folder.rglob("*"))
            if path.is_file() and path.name != "filler"}


def run(command):
    return subprocess.run(command, capture_output=True, text=True,
                          env={**os.environ, "LC_ALL": "C"}, check=False)


def fill(disk, free_pages):
    """Leaves so many pages of the disk."""
    state = os.statvfs(disk)
    pages = state.f_bavail * state.f_frsize // PAGE - free_pages
    if pages > 0:
        (disk / "filler").write_bytes(b"f" * (pages * PAGE))


def clear(disk):
    for path in disk.iterdir():
        shutil.rmtree(path) if path.is_dir() else path.unlink()


class Trial:
    """One program that saves an old and then a new state onto the disk."""

    def __init__(self, name, disk, scratch, prepare, command):
        self.name, self.disk = name, disk
        self.prepare, self.command = prepare, command
        self.states = []
        for version in range(2):
            folder = scratch / f"{name}{version}"
            folder.mkdir()
            prepare(folder)
            for each in range(version + 1):
                if run(command(folder, each)).returncode:
                    sys.exit(f"FAILED: {name} does not even work on a large"
                             " disk")
            self.states.append(read_tree(folder))
        self.failed = set()

    def save(self, free_pages, has_old):
        """One save onto the disk with so much room; True when it failed."""
        what = f"{self.name}, {free_pages} pages free"
        clear(self.disk)
        self.prepare(self.disk)
        old = {}
        if has_old:
            run(self.command(self.disk, 0))
            old = read_tree(self.disk)
            if old != self.states[0]:
                sys.exit(f"FAILED: {what}: no room for the old files")
        fill(self.disk, free_pages)
        done = run(self.command(self.disk, 1 if has_old else 0))
        new = self.states[1 if has_old else 0]
        after = read_tree(self.disk)
        for name in set(old) | set(after):
            if name not in after:
                sys.exit(f"FAILED: {what}: {name} is lost")
            if after[name] not in (old.get(name), new.get(name)):
                sys.exit(f"FAILED: {what}: {name} is neither old nor new")
        if done.returncode == 0:
            if after != new:
                sys.exit(f"FAILED: {what}: done, it says, but is not")
            return False
        named = [line for line in done.stderr.splitlines()
                 if str(self.disk) in line and REASON in line]
        if done.returncode < 0 or not named:
            sys.exit(f"FAILED: {what}: ended with {done.returncode} and said"
                     f" {done.stderr!r}")
        place = re.match(re.escape(str(self.disk)) + r"/([^:]+): ",
                         named[0][named[0].index(str(self.disk)):])
        self.failed.add(place[1])
        # A folder that could not be made is no file.
        if (self.disk / place[1]).is_file() and \
                after[place[1]] != old.get(place[1]):
            sys.exit(f"FAILED: {what}: {place[1]} was written after all")
        return True


def trials(disk, scratch, bin_folder, saver):
    cli = bin_folder / "fragsmith-cli"
    documents = []
    for number in range(2):
        documents.append(scratch / f"document{number}.json")
        documents[number].write_bytes(subprocess.run(
            [cli, "new", "--preset", "average", "--name", "Rookie", "--seed",
             str(number)], capture_output=True, check=True).stdout)

    def prepare_cli(folder):
        (folder / "program").mkdir()

    def make(folder, version):
        return [cli, "make", documents[version], "--into", folder / "game",
                "--layout", "--pk3", "--program-folder", folder / "program"]

    def prepare_saver(folder):
        for name in ("game", "program"):
            (folder / name).mkdir()

    def save(folder, version):
        return [saver, folder, str(version), str(version), str(SIZE)]

    yield Trial("fragsmith-cli", disk, scratch, prepare_cli, make)
    yield Trial("saver", disk, scratch, prepare_saver, save)


def main():
    bin_folder, saver = (pathlib.Path(name) for name in sys.argv[1:3])
    scratch = pathlib.Path(tempfile.mkdtemp(prefix="fragsmith-disk-"))
    disk = scratch / "disk"
    disk.mkdir()
    try:
        mounted = run(["mount", "-t", "tmpfs", "-o", f"size={DISK_KIB}k",
                       "tmpfs", disk]) if os.geteuid() == 0 else None
        if mounted is None or mounted.returncode:
            print("skipped: mounting a disk needs root and its rights")
            return 77
        try:
            for trial in trials(disk, scratch, bin_folder, saver):
                failed = saved = 0
                for free_pages in range(DISK_KIB * 1024 // PAGE + 1):
                    for has_old in (True, False):
                        if trial.save(free_pages, has_old):
                            failed += 1
                        else:
                            saved += 1
                print(f"{trial.name}: {saved} saves had room, {failed} had"
                      f" none, at: {', '.join(sorted(trial.failed))}")
                if not failed or not saved:
                    sys.exit("FAILED: the disk was never full, or always")
        finally:
            run(["umount", disk])
    finally:
        shutil.rmtree(scratch)
    print("every file was whole after each save")
    return 0


sys.exit(main())
