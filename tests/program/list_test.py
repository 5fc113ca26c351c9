#!/usr/bin/env python3
"""Lists in the real program: pasted, dropped, read from files, copied and saved.

list_test.py --list                                names every case
list_test.py PROGRAM WINDOW_KEYS DRAG_SOURCE CASE  runs one
"""

import subprocess
import time
import unittest

import cases
from desktop import Desktop, settings_text, wait_for

# The program under test, the one that tells which keys press its buttons, and the one that things are dragged
# from.
PROGRAM, WINDOW_KEYS, DRAG_SOURCE = cases.programs(3)

THREE_LINES = "1582-10-04\nnonsense\n1900-02-29\n"
NOT_VALID = "First date is not valid in specified calendar using specified date format."
# Julian dates as Common Era dates.
THREE_ROWS = ("1582-10-04\t1582-10-04\t1582-10-14\tThursday\t\n"
              f"nonsense\t\t\t\t{NOT_VALID}\n"
              "1900-02-29\t1900-02-29\t1900-03-13\tTuesday\t\n")


class Lists(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop(PROGRAM, WINDOW_KEYS))
        self.desktop.put_settings(settings_text(calendars="0,1,0"))

    # ---- hands

    def drag(self, kind, content, window, x, y):
        """Drags something from another program to a place in a window."""
        source = subprocess.Popen([DRAG_SOURCE, kind, content], env=self.desktop.environment())
        self.desktop.started.append(source)
        begin = self.desktop.window("Drag source")
        move = lambda number, x, y: self.desktop.tool("xdotool", "mousemove", "--window", number, str(x), str(y))
        time.sleep(0.3)
        move(begin, 50, 20)
        self.desktop.tool("xdotool", "mousedown", "1")
        # Both programs talk about every step, so there must be several, and time between them.
        for step in range(6):
            move(begin, 50 - 5 * step, 20 + 3 * step)
            time.sleep(0.1)
        for step in range(5, -1, -1):
            move(window, x + 3 * step, y + 2 * step)
            time.sleep(0.15)
        time.sleep(0.5)
        self.desktop.tool("xdotool", "mouseup", "1")
        time.sleep(0.5)
        source.kill()
        source.wait()

    def list_window(self):
        return self.desktop.window("Calvoro List")

    def copied(self, *keys):
        """What is on the clipboard after all rows were selected and copied."""
        window = self.list_window()

        def copied():
            self.desktop.focus(window)
            self.desktop.keys("ctrl+a", "ctrl+c")
            time.sleep(0.3)
            return self.desktop.clipboard()
        return copied

    def wait_for_rows(self, rows):
        copied = self.copied()
        wait_for(f"the rows {rows!r}", lambda: copied() == rows)

    def save_as(self, path):
        self.desktop.focus(self.list_window())
        self.desktop.keys("ctrl+s")
        dialog = self.desktop.window("Save list as")
        self.desktop.focus(dialog)
        self.desktop.type(str(path))
        self.desktop.keys("Return")

    # ---- cases

    def test_a_pasted_column_is_copied_with_its_results(self):
        process = self.desktop.start()
        self.desktop.type("5")
        self.desktop.put_on_clipboard(THREE_LINES)
        self.desktop.keys("BackSpace", "ctrl+v")
        self.wait_for_rows(THREE_ROWS)
        self.assertEqual(self.desktop.quit(process), 0)
        self.assertEqual(self.desktop.settings_file.read_bytes(), settings_text(calendars="0,1,0"))

    def test_a_text_that_is_dropped_on_the_main_window_becomes_a_list(self):
        process = self.desktop.start()
        self.drag("text", THREE_LINES, self.desktop.main_window(), 300, 600)
        self.wait_for_rows(THREE_ROWS)
        self.assertEqual(self.desktop.quit(process), 0)

    def test_a_text_that_is_dropped_on_a_box_becomes_a_list(self):
        process = self.desktop.start()
        self.drag("text", THREE_LINES, self.desktop.main_window(), 100, 75)
        self.wait_for_rows(THREE_ROWS)
        self.assertEqual(self.desktop.quit(process), 0)
        self.assertEqual(self.desktop.settings_file.read_bytes(), settings_text(calendars="0,1,0"))

    def test_a_file_that_is_dropped_on_the_table_takes_the_place_of_the_list(self):
        file = self.desktop.folder / "dates.csv"
        file.write_text('name,born\n"Doe, Jane",1582-10-04\n')
        process = self.desktop.start()
        self.desktop.keys("ctrl+l")
        self.drag("file", str(file), self.list_window(), 200, 250)
        self.wait_for_rows(f"name\tborn\t\t\t\t{NOT_VALID}\nDoe, Jane\t1582-10-04\t\t\t\t{NOT_VALID}\n")
        # Enter in a column makes it the one with the dates.
        self.desktop.keys("Right", "Return")
        self.wait_for_rows(f"name\tborn\t\t\t\t{NOT_VALID}\n"
                           "Doe, Jane\t1582-10-04\t1582-10-04\t1582-10-14\tThursday\t\n")
        self.assertEqual(self.desktop.quit(process), 0)

    def test_what_is_saved_can_be_opened_again(self):
        process = self.desktop.start()
        self.desktop.put_on_clipboard(THREE_LINES)
        self.desktop.keys("ctrl+v")
        self.wait_for_rows(THREE_ROWS)
        file = self.desktop.folder / "saved.csv"
        self.save_as(file)
        saved = THREE_ROWS.replace("\t", ",")
        wait_for("the file", lambda: file.exists() and file.read_text() == saved)
        self.assertEqual([path.name for path in self.desktop.folder.glob("saved*")], ["saved.csv"])
        self.desktop.focus(self.list_window())
        self.desktop.keys("ctrl+o")
        self.desktop.focus(self.desktop.window("List from file"))
        self.desktop.type(str(file))
        self.desktop.keys("Return")
        self.wait_for_rows("".join(
            f"{line}\t{line.split(chr(9))[0] if 'nonsense' not in line else ''}\t{result}\n"
            for line, result in zip(THREE_ROWS.splitlines(),
                                    ("1582-10-14\tThursday\t", f"\t\t{NOT_VALID}", "1900-03-13\tTuesday\t"))))
        self.assertEqual(self.desktop.quit(process), 0)

    def test_a_full_disk_leaves_the_old_file(self):
        limited = self.desktop.folder / "calvoro-with-little-room"
        limited.write_text(f"#!/bin/sh\nulimit -f 200\nexec '{PROGRAM}'\n")
        limited.chmod(0o755)
        self.desktop.program = str(limited)
        process = self.desktop.start()
        self.desktop.put_on_clipboard("2000-01-01\n" * 20_000)
        self.desktop.keys("ctrl+v")
        window = self.list_window()
        file = self.desktop.folder / "old.tsv"
        file.write_text("old")
        self.save_as(file)
        # First the toolkit asks whether the file may be replaced, then the program tells that it was not.
        before = set(self.desktop.windows())
        self.desktop.keys("alt+y")
        message = wait_for("the message", lambda: next(
            (number for number, name in self.desktop.windows().items()
             if name == "Calvoro List" and number != window), None))
        self.assertNotIn(message, before)
        self.assertEqual(file.read_text(), "old")
        self.assertEqual([path.name for path in self.desktop.folder.glob("old*")], ["old.tsv"])
        self.desktop.dismiss(message)
        self.assertEqual(self.desktop.quit(process), 0)

    def test_a_million_lines_open_and_are_saved(self):
        process = self.desktop.start()
        file = self.desktop.folder / "million.txt"
        file.write_text("1582-10-04\n" * 1_000_000)
        self.drag("file", str(file), self.desktop.main_window(), 300, 600)
        saved = self.desktop.folder / "saved.tsv"
        self.list_window()
        self.save_as(saved)
        row = THREE_ROWS.splitlines(True)[0]
        wait_for("the file", saved.exists)
        self.assertEqual(saved.read_text(), row * 1_000_000)
        self.assertEqual(self.desktop.quit(process), 0)


if __name__ == "__main__":
    cases.main(3)
