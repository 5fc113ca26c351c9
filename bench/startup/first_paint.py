#!/usr/bin/env python3
"""Measures how long programs take from their start to their first painted window.

first_paint.py [--pairs N] PROGRAM BASELINE

Both run in turn under an Xvfb of this script's own, which watches them from outside: a window counts as
painted when, after it was mapped, at least nine tenths of its area were drawn in one stroke, as a toolkit
does that shows a finished picture. Neither program knows that it is watched.
"""

import argparse
import ctypes
import os
import pathlib
import random
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import time

MAP_NOTIFY = 19
SUBSTRUCTURE_NOTIFY_MASK = 1 << 19
REPORT_RAW_RECTANGLES = 0
WIDEST_CARET = 4  # pixels
REST = 0.3  # seconds
SMALLEST_WINDOW = 100  # pixels; smaller ones are the toolkit's own, which nobody sees

# What an earlier session left: two boxes filled, twenty results.
SETTINGS = (
    '0\r\n2,45,44\r\n0,0,1\r\n0\r\n1\r\n1\r\n1\r\n1\r\n"Sun"\r\n"CE"\r\n"2021-03-04"\r\n"10"\r\n""\r\n"'
    + "2021-03-04 CE plus 10 days = 2021-03-01 JC, Sunday, excluding 1st date\r\n" * 20
    + '"\r\n0\r\n')

x11 = ctypes.CDLL("libX11.so.6")
xdamage = ctypes.CDLL("libXdamage.so.1")
x11.XOpenDisplay.restype = ctypes.c_void_p
x11.XDefaultRootWindow.restype = ctypes.c_ulong
x11.XPending.argtypes = [ctypes.c_void_p]


class Rectangle(ctypes.Structure):
    _fields_ = [("x", ctypes.c_short), ("y", ctypes.c_short),
                ("width", ctypes.c_ushort), ("height", ctypes.c_ushort)]


class MapEvent(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("event", ctypes.c_ulong), ("window", ctypes.c_ulong),
                ("override_redirect", ctypes.c_int)]


class DamageEvent(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("drawable", ctypes.c_ulong), ("damage", ctypes.c_ulong),
                ("level", ctypes.c_int), ("more", ctypes.c_int), ("timestamp", ctypes.c_ulong),
                ("area", Rectangle), ("geometry", Rectangle)]


class Event(ctypes.Union):
    _fields_ = [("type", ctypes.c_int), ("map", MapEvent), ("damage", DamageEvent),
                ("padding", ctypes.c_long * 24)]


class Watcher:
    def __init__(self, name):
        self.display = ctypes.c_void_p(x11.XOpenDisplay(name.encode()))
        assert self.display, "the display cannot be opened"
        root = ctypes.c_ulong(x11.XDefaultRootWindow(self.display))
        base, error_base = ctypes.c_int(), ctypes.c_int()
        assert xdamage.XDamageQueryExtension(self.display, ctypes.byref(base), ctypes.byref(error_base))
        self.damage_notify = base.value
        x11.XSelectInput(self.display, root, ctypes.c_long(SUBSTRUCTURE_NOTIFY_MASK))
        xdamage.XDamageCreate(self.display, root, ctypes.c_int(REPORT_RAW_RECTANGLES))
        x11.XSync(self.display, 0)

    def forget(self):
        """Drops the events of an earlier run."""
        x11.XSync(self.display, 1)

    def size(self, window):
        root, x, y = ctypes.c_ulong(), ctypes.c_int(), ctypes.c_int()
        width, height, border, depth = (ctypes.c_uint() for _ in range(4))
        x11.XGetGeometry(self.display, ctypes.c_ulong(window), *map(
            ctypes.byref, (root, x, y, width, height, border, depth)))
        return width.value, height.value

    def wait_for_paint(self):
        """Returns the moment of the next paint that is more than a blinking caret."""
        event = Event()
        while True:
            x11.XNextEvent(self.display, ctypes.byref(event))
            if event.type == self.damage_notify and event.damage.area.width > WIDEST_CARET:
                return time.monotonic()

    def wait_for_rest(self):
        """Drops events until a moment has gone by without a paint."""
        event = Event()
        end = time.monotonic() + REST
        while time.monotonic() < end:
            if not x11.XPending(self.display):
                time.sleep(0.005)
                continue
            x11.XNextEvent(self.display, ctypes.byref(event))
            if event.type == self.damage_notify and event.damage.area.width > WIDEST_CARET:
                end = time.monotonic() + REST

    def wait_for_first_paint(self):
        """Returns the moment of the first painted window on the monotonic clock, and its size."""
        window_size = None
        event = Event()
        while True:
            x11.XNextEvent(self.display, ctypes.byref(event))
            now = time.monotonic()
            if event.type == MAP_NOTIFY and not event.map.override_redirect:
                size = self.size(event.map.window)
                if min(size) >= SMALLEST_WINDOW:
                    window_size = size
                    self.painted_window = event.map.window
            elif event.type == self.damage_notify and window_size:
                area = event.damage.area
                if area.width * area.height >= 0.9 * window_size[0] * window_size[1]:
                    return now, window_size


class Server:
    def __enter__(self):
        read_end, write_end = os.pipe()
        self.process = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1280x1000x24", "-nolisten", "tcp",
             "-noreset"], pass_fds=[write_end], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            self.name = ":" + pipe.readline().strip()
        assert self.name != ":", "Xvfb did not start"
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()


def measure(watcher, program, environment):
    """Seconds from start to first paint, and the processor's seconds until then."""
    watcher.forget()
    began = time.monotonic()
    process = os.posix_spawn(program, [program], environment)
    painted, size = watcher.wait_for_first_paint()
    os.kill(process, signal.SIGKILL)
    _, _, usage = os.wait4(process, 0)
    return painted - began, usage.ru_utime + usage.ru_stime, size


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program")
    parser.add_argument("baseline")
    parser.add_argument("--pairs", type=int, default=40)
    options = parser.parse_args()

    folder = pathlib.Path(tempfile.mkdtemp(prefix="calvoro-startup-"))
    try:
        (folder / "runtime").mkdir(mode=0o700)
        settings = folder / ".config" / "Calvoro"
        settings.mkdir(parents=True)
        (settings / "calvoro.usr").write_bytes(SETTINGS.encode())
        with Server() as server:
            environment = {"DISPLAY": server.name, "HOME": str(folder), "LC_ALL": "C.UTF-8",
                           "XDG_RUNTIME_DIR": str(folder / "runtime"), "PATH": os.environ["PATH"]}
            watcher = Watcher(server.name)
            programs = {"calvoro": options.program, "empty window": options.baseline}
            times = {name: [] for name in programs}
            processor = {name: [] for name in programs}
            sizes = {}
            for pair in range(-2, options.pairs):  # the first two warm the caches
                for name in random.sample(list(programs), 2):
                    elapsed, used, sizes[name] = measure(watcher, programs[name], environment)
                    if pair >= 0:
                        times[name].append(elapsed)
                        processor[name].append(used)
    finally:
        shutil.rmtree(folder)

    for name, (width, height) in sizes.items():
        low, middle, high = statistics.quantiles(times[name], n=4)
        print(f"{name:13} {middle * 1000:7.1f} ms to the first paint of {width} x {height} "
              f"(quartiles {low * 1000:.1f} and {high * 1000:.1f}), "
              f"{statistics.median(processor[name]) * 1000:.0f} ms of processor time")
    ratios = [own / other for own, other in zip(times["calvoro"], times["empty window"])]
    differences = [own - other for own, other in zip(times["calvoro"], times["empty window"])]
    print(f"median of {options.pairs} pairs: ratio {statistics.median(ratios):.2f}, "
          f"difference {statistics.median(differences) * 1000:.1f} ms")


if __name__ == "__main__":
    sys.exit(main())
