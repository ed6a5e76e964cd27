"""Starts a program in a private session with a compositor, types to it, and tells from /proc what that cost.

usage: load.py PROGRAM
"""

import os
import subprocess
import sys
import time
from contextlib import contextmanager
from pathlib import Path

LISTENS = "tap thread running permanently!"
TYPING_SECONDS = 20
KEYS_A_SECOND = 15
QUIET_SECONDS = 30
LETTING_GO_SECONDS = 35  # until the sound server has its own pace again
KEYS = "a s d f g h j k l q w e r t y u i o p z x c v b n m space".split()


class Process:
    """What /proc tells of a process."""

    def __init__(self, process):
        self.folder = Path("/proc") / str(process.pid)

    def processor_seconds(self):
        fields = (self.folder / "stat").read_text().rpartition(")")[2].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")

    def wake_ups(self):
        return sum(self.number(thread / "status", "voluntary_ctxt_switches:") for thread in (self.folder / "task").iterdir())

    def resident_megabytes(self):
        return self.number(self.folder / "status", "VmRSS:") / 1024

    @staticmethod
    def number(file, name):
        return next(int(line.split()[1]) for line in file.read_text().splitlines() if line.startswith(name))


def press(*keys, delay=12):
    subprocess.run(["xdotool", "key", "--delay", str(delay), *keys], check=True)


def in_studio(*keys):
    """Presses keys in the Studio window."""
    subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--name", "Tocca Studio", "windowactivate", "--sync"],
                   check=True, stdout=subprocess.DEVNULL)
    press(*keys)


def type_for(seconds):
    count = seconds * KEYS_A_SECOND
    press(*(KEYS[i % len(KEYS)] for i in range(count)), delay=1000 // KEYS_A_SECOND)


@contextmanager
def measured(process, what):
    began, worked, woken = time.monotonic(), process.processor_seconds(), process.wake_ups()
    yield
    seconds = time.monotonic() - began
    print(f"| {what} | {(process.processor_seconds() - worked) / seconds * 100:.1f} % of a core, "
          f"{(process.wake_ups() - woken) / seconds:.0f} wake-ups a second, "
          f"{process.resident_megabytes():.0f} MB resident |", flush=True)


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    compositor = subprocess.Popen(["picom", "--backend", "xrender", "--config", "/dev/null"])
    program = subprocess.Popen([sys.argv[1]], stdout=subprocess.PIPE, text=True)
    try:
        if not any(LISTENS in line for line in program.stdout):
            sys.exit("load: the program does not listen")
        process = Process(program)
        in_studio("ctrl+w")  # it works in the tray for most of its life
        type_for(2)  # what is loaded once
        print("| what | cost |\n|---|---|")
        with measured(process, f"{KEYS_A_SECOND} keys a second, the glow"):
            type_for(TYPING_SECONDS)
        subprocess.run([sys.argv[1]], check=True)  # a second start brings the window back
        in_studio("ctrl+super+n", "ctrl+w")
        type_for(2)
        with measured(process, f"{KEYS_A_SECOND} keys a second, the glow and the HUD"):
            type_for(TYPING_SECONDS)
        time.sleep(LETTING_GO_SECONDS)
        with measured(process, "nobody types"):
            time.sleep(QUIET_SECONDS)
    finally:
        program.terminate()
        program.wait()
        compositor.terminate()
        compositor.wait()


if __name__ == "__main__":
    main()
