#!/usr/bin/env python3
"""Programs that run at once, on one display.

together_test.py --list                    names every case
together_test.py PROGRAM WINDOW_KEYS CASE  runs one
"""

import itertools
import re
import signal
import time
import unittest

import cases
from desktop import Desktop, settings_text, wait_for

# The program under test, and the one that tells which keys press its buttons.
PROGRAM, WINDOW_KEYS = cases.programs(2)


class Together(unittest.TestCase):
    """Programs that run at once: none of them loses a result of another one."""

    START = "kept from before\r\n"

    def setUp(self):
        self.desktop = self.enterContext(Desktop(PROGRAM, WINDOW_KEYS))

    def compute(self, day, start=START):
        """Starts one more program, lets it compute from that day of March, and returns it with its window."""
        known = set(self.desktop.windows())
        self.desktop.put_settings(settings_text(f"2021-03-0{day}", "10", output=start, calendars="0,0,1"))
        process = self.desktop.launch()
        window = wait_for("one more window", lambda: next(
            (number for number, name in self.desktop.windows().items()
             if number not in known and name == "Calvoro 13.0"), None))
        self.desktop.focus(window)
        self.desktop.keys("Return")
        return process, window

    def quit(self, process, window):
        self.assertEqual(self.desktop.quit(process, window), 0)

    def output(self):
        """The saved output, its lines, and the first date that was saved with it."""
        text = self.desktop.settings_file.read_bytes().decode()
        output = re.fullmatch(r'(?s)(?:[^"]*\r\n){8}(?:"[^"]*"\r\n){5}"(.*)"\r\n[01]\r\n', text)
        self.assertTrue(output, text[:1000])
        return output[1]

    def check_every_order(self, count):
        for order in itertools.permutations(range(1, count + 1)):
            with self.subTest(order):
                running = {day: self.compute(day) for day in range(1, count + 1)}
                for day in order:
                    self.quit(*running[day])
                lines = self.output().split("\r\n")
                self.assertEqual(lines[0] + "\r\n", self.START)
                self.assertEqual([line[:26] for line in lines[1:-1]],
                                 [f"2021-03-0{day} CE plus 10 days" for day in order])
                # Of the boxes those of the last one stay.
                self.assertIn(f'"2021-03-0{order[-1]}"'.encode(), self.desktop.settings_file.read_bytes())

    def test_two_that_are_closed_in_every_order(self):
        self.check_every_order(2)

    def test_three_that_are_closed_in_every_order(self):
        self.check_every_order(3)

    def test_one_that_is_killed_while_saving(self):
        long_start = "an earlier line\r\n" * 100_000
        for step in range(6):
            with self.subTest(step):
                killed, _ = self.compute(1, long_start)
                second = self.compute(2, long_start)
                third = self.compute(3, long_start)
                killed.send_signal(signal.SIGTERM)
                time.sleep(step * 0.02)
                killed.kill()
                self.desktop.end(killed)
                self.quit(*third)
                self.quit(*second)
                output = self.output()
                self.assertTrue(output.startswith(long_start))
                lines = output[len(long_start):].split("\r\n")[:-1]
                days = [line[9:10] for line in lines]
                self.assertIn(days, (["3", "2"], ["1", "3", "2"]))
                self.assertEqual(list(self.desktop.settings_file.parent.iterdir()), [self.desktop.settings_file])

    def test_one_that_saves_no_texts(self):
        saving = self.compute(1)
        self.desktop.put_settings(settings_text("2021-03-02", "10", output=self.START, checks=(0, 1, 1, 1, 0)))
        known = set(self.desktop.windows())
        process = self.desktop.launch()
        window = wait_for("one more window", lambda: next(iter(set(self.desktop.windows()) - known), None))
        self.quit(*saving)
        self.quit(process, window)
        # The start was this one's to drop, the other's result was not.
        self.assertEqual([line[:26] for line in self.output().split("\r\n")],
                         ["2021-03-01 CE plus 10 days", ""])


if __name__ == "__main__":
    cases.main(2)
