"""The keyboard of the X server, and waiting for what it brings about."""

import subprocess
import time

# Seconds until what is waited for does not come any more.
patience = 15
# Seconds behind each key.
pause = 0.05


def until(what, look):
    """What look() gives, once it is something. A function can say what it was
    that did not come."""
    end = time.monotonic() + patience
    while True:
        found = look()
        if found:
            return found
        if time.monotonic() > end:
            raise AssertionError(
                "waited in vain: " + (what() if callable(what) else what))
        time.sleep(0.05)


def xdotool(*words):
    return subprocess.run(["xdotool", *words], check=True, text=True,
                          stdout=subprocess.PIPE).stdout.strip()


def key(*names):
    for name in names:
        xdotool("key", "--clearmodifiers", name)
        time.sleep(pause)


def write(text):
    xdotool("type", "--clearmodifiers", "--delay", "8", "--", text)
    time.sleep(pause)
