"""What the tests with hostile packages have in common."""

import os
import pathlib
import resource
import shutil
import subprocess
import sys
import tempfile
import threading
import time

MOST_SECONDS = 8  # of the processor's time
PATIENCE = 300  # Seconds after which a run counts as hanging.
MOST_MEMORY = 1 << 30

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
        self.free_folders = []
        self.packages = tree / "games" / "game" / "baseq3"
        self.packages.mkdir(parents=True)
        for name in ("program", "home", "tmp", "run", "icons"):
            (tree / name).mkdir()
        for folder in (tree, tree / "games", tree / "home", tree / "run"):
            for name in ("escaped", "escaped_c.c", "escaped.bot"):
                (folder / name).write_text("as it was")
        self.write_settings(tree / "program")
        self.environment = {
            "PATH": "/usr/bin:/bin", "LC_ALL": "C.UTF-8",
            "HOME": str(tree / "home"), "XDG_CONFIG_HOME": str(tree / "home"),
            "TMPDIR": str(tree / "tmp")}

    def write_settings(self, program_folder, game="", work_folder=""):
        (program_folder / "fgs.ini").write_text(
            f"[Fragsmith settings]\r\nQ3Baseq3 = {game}\r\n"
            f"WorkDir = {work_folder}\r\n"
            f"WinZipDir = {self.bin}\r\n\r\nUserName = \r\nEmail = \r\n"
            "Http = \r\nBots = 0\r\n\r\nBaseQ3Check = False\r\n")

    def snapshot(self):
        """All that there is, with size and time, but for what is in the
        folders where a run may write."""
        free = {self.tree / "tmp", self.tree / "icons", *self.free_folders}
        found = {}
        for path in self.tree.rglob("*"):
            if path.parent in free:
                continue
            state = path.lstat()
            found[str(path.relative_to(self.tree))] = (
                state.st_mode, state.st_ino) if path in free else (
                state.st_mode, state.st_ino, state.st_size, state.st_mtime_ns)
        return found

    def run(self, what, command, statuses, most_seconds=MOST_SECONDS):
        with tempfile.TemporaryFile() as out, tempfile.TemporaryFile() as err:
            process = subprocess.Popen(
                command, stdin=subprocess.DEVNULL, stdout=out, stderr=err,
                cwd=self.tree / "run", env=self.environment,
                preexec_fn=limit_memory)
            timer = threading.Timer(PATIENCE, process.kill)
            timer.start()
            _, status, usage = os.wait4(process.pid, 0)
            timer.cancel()
            process.returncode = os.waitstatus_to_exitcode(status)
            seconds = usage.ru_utime + usage.ru_stime
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
                failures.append(f"{what}: took {seconds:.1f} s of the processor")
        return process.returncode, text, errors

    def check_unchanged(self, before):
        # A tool that was left alone may be at its end only now.
        time.sleep(0.5)
        after = self.snapshot()
        for name in sorted(set(before) | set(after)):
            if before.get(name) != after.get(name):
                failures.append(f"{name!r} was changed: {before.get(name)}"
                                f" became {after.get(name)}")
        left = list((self.tree / "tmp").iterdir())
        if left:
            failures.append(f"left in the temporary folder: {left[:5]}")


def run_test(usage, try_all):
    """Calls try_all(bin folder, tree, count, seed) as the arguments of the
    command line say, and ends the script with what became of it."""
    if not 2 <= len(sys.argv) <= 4:
        sys.exit(usage)
    bin_folder = pathlib.Path(sys.argv[1]).resolve()
    count = int(sys.argv[2]) if len(sys.argv) > 2 else 1000
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else 8
    print(f"seed {seed}", flush=True)
    tree = pathlib.Path(tempfile.mkdtemp(prefix="fragsmith-hostile-"))
    try:
        try_all(bin_folder, tree, count, seed)
    finally:
        shutil.rmtree(tree)
    for key, unit in (("slowest", "s"), ("largest", "MiB")):
        print(f"{key}: {figures[key][0]:.1f} {unit}, {figures[key][1][:120]}")
    for failure in failures[:30]:
        print(f"FAILED: {failure}")
    if failures:
        sys.exit(f"{len(failures)} failures")
    print("no crash, no hang, no byte outside")
