#!/usr/bin/env python3
"""Measures how the window bears a long saved output: start, typing, end.

long_output.py [--rounds N | --largest] PROGRAM

Under an Xvfb of this script's own, in turn with an empty output: from the start of the process to the first
painted window, from a key to its paint (in the first date box and in the output box), and from SIGTERM to the
end, after which the file must hold the same bytes. Fails when a bar is missed.
"""

import argparse
import ctypes
import os
import pathlib
import resource
import shutil
import signal
import statistics
import sys
import tempfile
import time

from first_paint import Server, Watcher, x11

KEY_PRESS_BUTTON = 1
REVERT_TO_PARENT = 2

OUTPUTS = {
    "empty": "",
    "5 MB in lines of 80": ("x" * 78 + "\r\n") * 62_500,
    "1 MB unbroken": "x" * 1_000_000,
    "1 MB of NUL": "\0" * 1_000_000,
    "4 MB unbroken": "x" * 4_000_000,
}
LARGEST = "x\r\n" * 16_000_000
MORE_SECONDS_TO_START = {"4 MB unbroken": 10}  # than twice the start with an empty output; 2 for the others
MOST_SECONDS_LATER = 0.05
MOST_SECONDS_TO_END = 2

xtst = ctypes.CDLL("libXtst.so.6")


def settings(output):
    return ('0\r\n2,45,44\r\n0,0,0\r\n0\r\n1\r\n1\r\n1\r\n1\r\n"Sun"\r\n"CE"\r\n""\r\n""\r\n""\r\n"' + output
            + '"\r\n0\r\n').encode()


class Hand:
    """Keys and clicks for the window that is watched."""

    def __init__(self, watcher):
        self.watcher = watcher
        self.display = watcher.display
        x11.XKeysymToKeycode.restype = ctypes.c_ubyte
        self.key = x11.XKeysymToKeycode(self.display, ctypes.c_ulong(ord("1")))

    def focus(self, window):
        x11.XSetInputFocus(self.display, ctypes.c_ulong(window), REVERT_TO_PARENT, 0)
        x11.XSync(self.display, 0)

    def click(self, x, y):
        xtst.XTestFakeMotionEvent(self.display, 0, x, y, 0)
        for pressed in (1, 0):
            xtst.XTestFakeButtonEvent(self.display, KEY_PRESS_BUTTON, pressed, 0)
        x11.XSync(self.display, 0)

    def seconds_to_paint_a_key(self):
        self.watcher.wait_for_rest()
        began = time.monotonic()
        for pressed in (1, 0):
            xtst.XTestFakeKeyEvent(self.display, self.key, pressed, 0)
        x11.XFlush(self.display)
        return self.watcher.wait_for_paint() - began


class Session:
    def __init__(self, program, folder, server):
        self.program = program
        self.file = folder / ".config" / "Calvoro" / "calvoro.usr"
        self.environment = {"DISPLAY": server.name, "HOME": str(folder), "LC_ALL": "C.UTF-8",
                            "XDG_RUNTIME_DIR": str(folder / "runtime"), "PATH": os.environ["PATH"]}
        self.watcher = Watcher(server.name)
        self.hand = Hand(self.watcher)

    def start(self, output):
        """Returns the process, its window with its size, and the seconds to the first paint."""
        self.file.write_bytes(settings(output))
        self.watcher.forget()
        began = time.monotonic()
        process = os.posix_spawn(self.program, [self.program], self.environment)
        painted, size = self.watcher.wait_for_first_paint()
        return process, size, painted - began

    def end(self, process):
        began = time.monotonic()
        os.kill(process, signal.SIGTERM)
        _, status = os.waitpid(process, 0)
        if status != 0:
            sys.exit(f"the program ended with status {status}")
        return time.monotonic() - began

    def start_and_end(self, output):
        process, _, start = self.start(output)
        self.watcher.wait_for_rest()
        end = self.end(process)
        if self.file.read_bytes() != settings(output):
            sys.exit("other bytes were written back")
        return start, end

    def typing(self, output, in_output):
        process, (width, height), _ = self.start(output)
        self.hand.focus(self.watcher.painted_window)
        self.watcher.wait_for_rest()
        if in_output:
            self.hand.click(width // 2, height * 3 // 4)
        times = [self.hand.seconds_to_paint_a_key() for _ in range(12)][2:]
        os.kill(process, signal.SIGKILL)
        os.waitpid(process, 0)
        return statistics.median(times)


def measure_largest(session):
    start, end = session.start_and_end(LARGEST)
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    print(f"48 MB in 16 million lines: start {start:.0f} s, end {end:.0f} s, "
          f"{used.ru_utime + used.ru_stime:.0f} s of processor time in all, "
          f"{used.ru_maxrss / 1_000_000:.1f} GB; the same bytes were written back")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program")
    parser.add_argument("--rounds", type=int, default=5)
    parser.add_argument("--largest", action="store_true",
                        help="48 MB in 16 million lines, once and alone; that takes minutes and 8 GB")
    options = parser.parse_args()
    folder = pathlib.Path(tempfile.mkdtemp(prefix="calvoro-long-output-"))
    measured = {name: {"start": [], "end": [], "date box": [], "output box": []} for name in OUTPUTS}
    try:
        (folder / "runtime").mkdir(mode=0o700)
        (folder / ".config" / "Calvoro").mkdir(parents=True)
        with Server() as server:
            session = Session(options.program, folder, server)
            if options.largest:
                measure_largest(session)
                return
            for _ in range(options.rounds):
                for name, output in OUTPUTS.items():
                    start, end = session.start_and_end(output)
                    measured[name]["start"].append(start)
                    measured[name]["end"].append(end)
                    measured[name]["date box"].append(session.typing(output, False))
                    measured[name]["output box"].append(session.typing(output, True))
    finally:
        shutil.rmtree(folder)

    medians = {name: {what: statistics.median(times) for what, times in rows.items()}
               for name, rows in measured.items()}
    empty = medians["empty"]
    missed = False
    print("output                 start    key in date box  key in output   end    (medians, ms)")
    for name, row in medians.items():
        print(f"{name:20} {row['start'] * 1000:8.0f} {row['date box'] * 1000:15.1f} {row['output box'] * 1000:15.1f} "
              f"{row['end'] * 1000:8.0f}")
        missed |= row["start"] > 2 * empty["start"] + MORE_SECONDS_TO_START.get(name, 2)
        missed |= any(row[box] > empty[box] + MOST_SECONDS_LATER for box in ("date box", "output box"))
        missed |= row["end"] > MOST_SECONDS_TO_END
    print("a bar was MISSED" if missed else "every bar was kept; the same bytes were written back each time")
    sys.exit(missed)


if __name__ == "__main__":
    main()
