"""trial_end_test.py BIN-FOLDER: starts "Try in game", then "Play it out", in
the real window and ends the editor in every way that there is while the engine
runs: nothing of the trial may stay. Asked to end, the editor keeps what was not
saved."""

import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "window"))
from keyboard import patience, until  # noqa: E402

# Starts a program of its own, and does not end by being asked.
ENGINE = """#!/bin/sh
trap '' TERM
sleep 1000 &
echo $$ $! >"$0.pids"
echo 'loaded skill 4 from bots/bot_c.c'
while :; do sleep 1; done
"""


# How each is opened, what its window is called, and how it is started there.
WINDOWS = {
    "try": ("F5", "Try Unsaved in game", "Return"),
    "match": ("F6", "Play it out", "alt+s"),
}


def is_running(pid):
    try:
        state = pathlib.Path(f"/proc/{pid}/stat").read_text().split()[2]
    except OSError:
        return False
    return state != "Z"


class Screen:
    """A screen of the test's own, which may go away."""

    def __init__(self, folder):
        reader, writer = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", "1280x1024x24",
             "-nolisten", "tcp"],
            pass_fds=[writer], stderr=subprocess.DEVNULL)
        os.close(writer)
        with os.fdopen(reader) as answer:
            self.name = ":" + answer.readline().strip()
        self.environment = {
            **os.environ, "DISPLAY": self.name, "QT_QPA_PLATFORM": "xcb",
            "TMPDIR": str(folder / "tmp"), "XDG_RUNTIME_DIR": str(folder),
            "HOME": str(folder)}
        self.environment.pop("WAYLAND_DISPLAY", None)
        ready = folder / "ready"
        self.manager = subprocess.Popen(
            ["openbox", "--startup", f"touch {ready}"], env=self.environment,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        until("the window manager", ready.exists)

    def run(self, *words):
        return subprocess.run(["xdotool", *words], env=self.environment,
                              capture_output=True, text=True)

    def window(self, title):
        def look():
            shown = self.run("getactivewindow", "getwindowname").stdout
            return title in shown
        until(f"the window {title!r}", look)

    def key(self, *names):
        for name in names:
            self.run("key", "--clearmodifiers", name)

    def end(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()


def try_end(bin_folder, group, how, end, status):
    opening, title, start = WINDOWS[group]
    with tempfile.TemporaryDirectory(prefix="fragsmith-trial-") as scratch:
        folder = pathlib.Path(scratch)
        for name in ("tmp", "program"):
            (folder / name).mkdir()
        engine = folder / "ioq3ded"
        engine.write_text(ENGINE)
        engine.chmod(0o755)
        (folder / "program" / "fgs.window").write_text(
            f"[{group}]\nengine={engine}\ngame=baseq3\nmap=q3dm1\nskill=4\n")
        screen = Screen(folder)
        editor = subprocess.Popen(
            [str(bin_folder / "fragsmith"), "--program-folder",
             str(folder / "program")],
            env=screen.environment, stderr=subprocess.DEVNULL)
        pids = []
        try:
            screen.window("Fragsmith 0.97b BETA")
            # The name of a new bot is selected, and none of it is saved.
            screen.key("ctrl+shift+n")
            screen.run("type", "--clearmodifiers", "--delay", "8", "Unsaved")
            screen.key(opening)
            screen.window(title)
            screen.key(start)
            written = folder / "ioq3ded.pids"
            until("the engine", lambda: written.exists() and
                  written.read_text().endswith("\n"))
            pids = [int(pid) for pid in written.read_text().split()]
            assert all(is_running(pid) for pid in pids)
            assert list((folder / "tmp").iterdir())
            end(screen, editor)
            if status is not None:
                assert editor.wait(patience) == status, editor.returncode
            if status is not None and status < 0:
                draft = folder / "program" / "fgs.draft"
                assert "Unsaved" in draft.read_text()
            until("the end of the engine and its own",
                  lambda: not any(is_running(pid) for pid in pids))
            until("an empty temporary folder",
                  lambda: not list((folder / "tmp").iterdir()))
        finally:
            for pid in pids:
                if is_running(pid):
                    os.kill(pid, signal.SIGKILL)
            editor.kill()
            editor.wait()
            screen.end()
    print(f"{group}, {how}: nothing stays", flush=True)


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    for tool in ("Xvfb", "openbox", "xdotool"):
        if shutil.which(tool) is None:
            print(f"skipped: there is no {tool}")
            sys.exit(77)
    bin_folder = pathlib.Path(sys.argv[1]).resolve()
    for group in WINDOWS:
        for name in ("TERM", "HUP", "INT"):
            number = getattr(signal, "SIG" + name)
            try_end(bin_folder, group, name,
                    lambda _, editor, number=number:
                    editor.send_signal(number), -number)
        try_end(bin_folder, group, "its window is closed",
                lambda screen, _: screen.key("Escape"), None)
        try_end(bin_folder, group, "the screen goes away",
                lambda screen, _: screen.server.terminate(), 1)


if __name__ == "__main__":
    main()
