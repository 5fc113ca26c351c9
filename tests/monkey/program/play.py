#!/usr/bin/env python3
"""Random events on the real program under Xvfb, by mouse, keys, clipboard and assistive actions.

play.py PROGRAM [--seed N] [--events N]

After each event the program must live, answer, and have said nothing on its standard error but the toolkit's own
lines; after every fiftieth what it shows in the main window must fit together; and whenever it has ended, what it
saved must be what it showed. It is ended and started again after every thousandth event, and whenever an event
ended it. Run by the distribution's Python, which has the modules for the accessibility bus.
"""

import argparse
import collections
import contextlib
import os
import pathlib
import random
import signal
import subprocess
import sys
import time

sys.dont_write_bytecode = True
HERE = pathlib.Path(__file__).resolve().parent
sys.path[:0] = [str(HERE), str(HERE.parent.parent / "accessibility"), str(HERE.parent.parent / "program")]
from reader import ReaderDesktop  # noqa: E402
from screen import Screen  # noqa: E402
from touch import Touch  # noqa: E402

MAIN = "Calvoro 13.0"
LOOK_EVERY, FOCUS_EVERY, END_EVERY = 50, 10, 1000
LAST_TOLD = 12  # events, of what is found
# Of fonts that lack a script, and of cells of a table that a tool asks for when they are gone.
TOOLKIT_LINES = ("OpenType support missing for", "QAccessibleTable::child: Invalid index", "qt.accessibility.atspi")


def boxes_and_checks(content):
    """Language, boxes and check boxes of a settings file, as Seen tells them."""
    lines = content.decode("utf-8", "replace").split("\r\n")
    return {"language": int(lines[0]), "boxes": [line[1:-1] for line in lines[10:13]],
            "checks": sorted(int(line) for line in lines[3:8])}


class Player:
    def __init__(self, desktop, seed):
        self.desktop, self.seed = desktop, seed
        self.counts = collections.Counter()
        self.stopping = False
        signal.signal(signal.SIGTERM, self.stop)
        self.ends = 0
        self.screen = Screen(desktop.display)
        self.errors = open(desktop.folder / "errors", "w+b")
        # Nothing is opened in a browser.
        tools = desktop.folder / "bin"
        tools.mkdir()
        (tools / "xdg-open").write_text("#!/bin/sh\nexit 0\n")
        (tools / "xdg-open").chmod(0o755)
        self.path = f"{tools}:{os.environ['PATH']}"

    def stop(self, *_):
        """What was seen so far is told."""
        self.stopping = True

    # ---- the program

    def start(self):
        from events import Hands
        from seen import Seen
        self.process = subprocess.Popen([self.desktop.program], stdin=subprocess.DEVNULL, stderr=self.errors,
                                        cwd=self.desktop.home,
                                        env=self.desktop.environment() | {"PATH": self.path})
        self.desktop.started.append(self.process)
        self.desktop.main_window()
        self.seen = Seen(self.process.pid)
        self.hands = Hands(self.desktop, self.screen, self.touch, self.seen)
        self.hands.look()
        self.refocus(random.Random(0))

    def refocus(self, dice):
        """What a window manager does: the window in front has the focus, a question before all others."""
        windows = self.screen.windows()
        self.desktop.shown = [place for _, _, place in windows]
        if not windows:
            return
        named = [number for number, title, _ in windows if title not in (MAIN, "")]
        front = dice.choice(named) if named and dice.random() < 0.6 else dice.choice(windows)[0]
        self.touch.focus(front)

    def said(self):
        """What is on the standard error that is not the toolkit's own."""
        self.errors.flush()
        text = pathlib.Path(self.errors.name).read_text(errors="replace")
        return [line for line in text.splitlines() if not line.startswith(TOOLKIT_LINES)]

    def close_others(self, end):
        """Leaves every window but the main one, from the last on."""
        from seen import Broken
        while any(title != MAIN for _, title, _ in self.screen.windows()):
            for number, _, _ in reversed(self.screen.windows()):
                self.touch.focus(number)
                self.touch.keys("Escape")
                self.touch.keys("Escape")
            if time.monotonic() > end:
                raise Broken(f"windows that do not close: {self.screen.windows()}")
            time.sleep(0.2)

    def settled(self, end):
        """What the main window shows when the last keys have reached it: they and questions take different ways."""
        from seen import Broken, check
        self.touch.wait()
        before, shown = None, check(self.seen)
        while shown != before:
            if time.monotonic() > end:
                raise Broken(f"what is shown does not settle: {before}, {shown}")
            time.sleep(0.5)
            before, shown = shown, check(self.seen)
        return shown

    def end(self):
        """Ends the program and holds what it saved against what it showed."""
        from seen import Broken
        if self.process.poll() is None:
            end = time.monotonic() + 60
            self.close_others(end)
            self.seen.answers()
            shown = self.settled(end)
            while self.process.poll() is None:
                if time.monotonic() > end:
                    raise Broken(f"it does not end, with {self.screen.windows()}")
                # A window that an event has asked for may come late.
                self.close_others(end)
                for number, _, _ in self.screen.windows():
                    self.touch.focus(number)
                    self.touch.keys("ctrl+q")
                with contextlib.suppress(subprocess.TimeoutExpired):
                    self.process.wait(timeout=1)
            code = self.process.returncode
            saved = boxes_and_checks(self.desktop.settings_file.read_bytes())
            if not shown["checks"][-1]:
                shown["boxes"] = saved["boxes"]
            shown["checks"] = sorted(int(value) for value in shown["checks"])
            if saved != shown:
                raise Broken(f"saved {saved}, shown {shown}")
        else:
            code = self.process.returncode
        if code != 0:
            raise Broken(f"the program ended with {code}")
        self.ends += 1

    # ---- the play

    def unless_ended(self, look):
        """Looks at the program; what cannot be seen because an event has just ended it is not missed."""
        from seen import Broken, GLib
        try:
            look()
        except (Broken, GLib.Error):
            try:
                self.process.wait(timeout=5)
            except subprocess.TimeoutExpired:
                look()

    def event(self, number):
        """Does one event; returns it in words."""
        from events import KINDS
        dice = random.Random(self.seed * 1_000_003 + number)
        if number % FOCUS_EVERY == 0:
            self.refocus(dice)
        kind, _, act = dice.choices(KINDS, weights=[share for _, share, _ in KINDS])[0]
        self.counts[kind] += 1
        return act(self.hands, dice)

    def play(self, events):
        from seen import Broken, GLib, check
        last = collections.deque(["the start"], maxlen=LAST_TOLD)
        number = 0
        try:
            self.start()
            for number in range(1, events + 1):
                if self.stopping:
                    events = number - 1
                    break
                last.append(self.event(number))
                self.unless_ended(self.seen.answers)
                if self.said():
                    raise Broken(f"on the standard error: {self.said()[:3]}")
                if number % LOOK_EVERY == 0:
                    self.unless_ended(lambda: check(self.seen))
                    self.unless_ended(self.hands.look)
                if self.process.poll() is not None or number % END_EVERY == 0:
                    self.end()
                    self.start()
            self.end()
        except (Broken, AssertionError, GLib.Error) as broken:
            print(f"seed {self.seed}, event {number}:", *last, broken, sep="\n")
            return False
        kinds = ", ".join(f"{kind} {count}" for kind, count in sorted(self.counts.items()))
        print(f"seed {self.seed}: {events} events, nothing found, {self.ends} ends: {kinds}")
        return True


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program")
    parser.add_argument("--seed", type=int, default=20261121)
    parser.add_argument("--events", type=int, default=20_000)
    arguments = parser.parse_args()
    with ReaderDesktop(pathlib.Path(arguments.program).resolve(), None) as desktop:
        os.environ.update(desktop.environment())
        player = Player(desktop, arguments.seed)
        player.touch = Touch(desktop)
        sys.exit(0 if player.play(arguments.events) else 1)


if __name__ == "__main__":
    main()
