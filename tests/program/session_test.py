#!/usr/bin/env python3
"""The whole program on a display, driven by keys, and ended in every way.

session_test.py --list                    names every case
session_test.py PROGRAM WINDOW_KEYS CASE  runs one
"""

import pathlib
import shutil
import signal
import time
import unittest

import cases
from desktop import Desktop, settings_text, wait_for

# The program under test, and the one that tells which keys press its buttons.
PROGRAM, WINDOW_KEYS = cases.programs(2)

PLUS_TEN_DAYS = "2021-03-04 CE plus 10 days = 2021-03-01 JC, Sunday, excluding 1st date\r\n"


class Session(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop(PROGRAM, WINDOW_KEYS))

    def settings(self):
        return self.desktop.settings_file.read_bytes()

    def quit(self, process):
        self.assertEqual(self.desktop.quit(process), 0)

    def test_what_was_typed_computed_and_left_is_found_again(self):
        self.desktop.put_settings(settings_text(calendars="0,0,1"))
        process = self.desktop.start()
        self.desktop.type("2021-03-04")
        self.desktop.keys("Tab")
        self.desktop.type("10")
        self.desktop.keys("Return")
        self.quit(process)
        left = settings_text("2021-03-04", "10", "", PLUS_TEN_DAYS, calendars="0,0,1")
        self.assertEqual(self.settings(), left)

        # Found again: the second run saves what it restored, and computes with it.
        process = self.desktop.start()
        self.quit(process)
        self.assertEqual(self.settings(), left)
        process = self.desktop.start()
        self.desktop.keys("Return")
        self.quit(process)
        self.assertEqual(self.settings(),
                         settings_text("2021-03-04", "10", "", PLUS_TEN_DAYS * 2, calendars="0,0,1"))

    def test_every_setting_comes_back(self):
        rows = [
            settings_text("31/12/2024", "-1.000", "2024-W05-3", "one\r\n\"two\"\r\n", language=1,
                          formats="1,47,46", calendars="6,1,6", checks=(1, 0, 0, 1, 1), month=("Mon", "JC"),
                          unit=1),
            settings_text("12.31.2024", "5", "2024075", "x", formats="0,46,0", calendars="8,0,4",
                          checks=(0, 0, 1, 0, 1)),
            settings_text('a "quoted" text', '"', "\u00e4", '"\r\n1', calendars="2,7,8"),
            settings_text(language=1, formats="1,46,0", checks=(1, 0, 0, 0, 0)),
            settings_text("\ufeff\ufeff1", "a\rb\n", "\u2029\u2028\uffff\0",
                          "\ufeff\r\r\n\n\u2029\ufdd0\ufdd1\U0010ffff\0" + "x" * 5000 + "\n"),
            settings_text("\n\r", "1" * 40_000, "\u0301", "\r\n\n\r", checks=(1, 1, 1, 1, 1)),
        ]
        for number, row in enumerate(rows):
            with self.subTest(number):
                self.desktop.put_settings(row)
                self.quit(self.desktop.start())
                self.assertEqual(self.settings(), row)

    def test_a_damaged_file_gives_the_factory_settings_silently(self):
        for damage in (b"", b"1\r\n", b"\x00" * 1000, settings_text("1")[:-5], b"3" + settings_text()[1:]):
            with self.subTest(damage):
                self.desktop.put_settings(damage)
                process = self.desktop.start()
                self.assertEqual(list(self.desktop.windows().values()).count("Calvoro 13.0"), 1)
                self.quit(process)
                self.assertEqual(self.settings(), settings_text())

    def test_a_deleted_folder_is_made_again(self):
        self.desktop.put_settings(settings_text(language=1))
        shutil.rmtree(self.desktop.settings_file.parent)
        self.quit(self.desktop.start())
        self.assertEqual(self.settings(), settings_text())

    def test_texts_that_are_not_to_be_saved_are_not(self):
        self.desktop.put_settings(settings_text(checks=(0, 1, 1, 1, 0), formats="1,46,0"))
        process = self.desktop.start()
        self.desktop.type("04.03.2021")
        self.desktop.keys("Return")
        self.quit(process)
        self.assertEqual(self.settings(), settings_text(checks=(0, 1, 1, 1, 0), formats="1,46,0"))

    def test_the_result_can_be_copied(self):
        self.desktop.put_settings(settings_text("2021-03-04", "10", calendars="0,0,1"))
        process = self.desktop.start()
        self.desktop.keys("Return")

        def copied():
            # The button is enabled by the clock's next tick after the result.
            self.desktop.press("frmMain.cmdCopyToClipboard")
            return self.desktop.clipboard() == PLUS_TEN_DAYS.replace("\r\n", "\n")
        wait_for("the result on the clipboard", copied)
        self.quit(process)

    def press_the_makers_name(self):
        self.press_a_link(58)

    def press_a_link(self, from_the_right):
        # The links stand in the lower right corner, above the line that tells how a box is read.
        window = self.desktop.main_window()
        width, height = self.desktop.size(window)
        self.desktop.tool("xdotool", "mousemove", "--window", window, str(width - from_the_right),
                          str(height - 44), "click", "1")

    def browser(self):
        """Puts a browser on the path that writes down the address; gives the path and what was opened."""
        opener = self.desktop.folder / "bin" / "xdg-open"
        opened = self.desktop.folder / "opened"
        opener.parent.mkdir(exist_ok=True)
        opener.write_text(f'#!/bin/sh\nprintf "%s\\n" "$@" >"{opened}"\n')
        opener.chmod(0o755)
        return f"{opener.parent}:/usr/bin:/bin", opened

    def test_a_link_opens_the_browser(self):
        path, opened = self.browser()
        process = self.desktop.start(PATH=path)
        self.press_the_makers_name()
        wait_for("the browser", lambda: opened.exists() and opened.read_text())
        self.assertEqual(opened.read_text(), "https://vantorel.example/\n")
        self.quit(process)

    def test_the_manual_beside_the_program_is_opened(self):
        path, opened = self.browser()
        for number, language in enumerate(("en", "de")):
            page = pathlib.Path(PROGRAM).resolve().parent / "manual" / language / "index.html"
            self.assertTrue(page.is_file())
            self.desktop.put_settings(settings_text(language=number))
            process = self.desktop.start(PATH=path)
            self.press_a_link(200)
            wait_for("the browser", lambda: opened.exists() and opened.read_text())
            self.assertEqual(opened.read_text(), page.as_uri() + "\n")
            opened.unlink()
            self.quit(process)

    def test_the_installed_manual_is_opened_and_without_one_the_online_page(self):
        path, opened = self.browser()
        installed = self.desktop.folder / "usr" / "lib" / "calvoro" / "calvoro"
        installed.parent.mkdir(parents=True)
        shutil.copy2(PROGRAM, installed)
        shutil.copy2(pathlib.Path(PROGRAM).parent / "calvoro.dat", installed.parent)
        self.desktop.program = str(installed)
        page = self.desktop.folder / "usr" / "share" / "doc" / "calvoro" / "html" / "en" / "index.html"
        for address in ("https://vantorel.example/calvoro/manual/en/", page.as_uri()):
            if address.startswith("file:"):
                page.parent.mkdir(parents=True)
                page.touch()
            process = self.desktop.start(PATH=path)
            self.press_a_link(200)
            wait_for("the browser", lambda: opened.exists() and opened.read_text())
            self.assertEqual(opened.read_text(), address + "\n")
            opened.unlink()
            self.quit(process)

    def test_a_link_without_a_browser_ends_in_a_message(self):
        process = self.desktop.start(PATH=str(self.desktop.folder))
        self.press_the_makers_name()
        self.desktop.dismiss(self.desktop.window("Cannot launch web browser"))
        self.quit(process)

    def test_an_opener_that_finds_no_browser_ends_in_a_message(self):
        opener = self.desktop.folder / "bin" / "xdg-open"
        opener.parent.mkdir()
        opener.write_text("#!/bin/sh\nexit 3\n")
        opener.chmod(0o755)
        process = self.desktop.start(PATH=f"{opener.parent}:/usr/bin:/bin")
        self.press_the_makers_name()
        self.desktop.dismiss(self.desktop.window("Cannot launch web browser"))
        self.quit(process)

    def test_up_and_down_step_a_date(self):
        self.desktop.put_settings(settings_text("2024-02-28", "7"))
        process = self.desktop.start()
        self.desktop.keys("Up", "Up", "Up", "Down")
        self.quit(process)
        self.assertEqual(self.settings(), settings_text("2024-03-01"))

    def test_closing_from_the_frame_saves_and_ends_with_other_windows_open(self):
        self.desktop.put_settings(settings_text("2024-02-29", output="line\r\n" * 50))
        process = self.desktop.start()
        for button, title in (("cmdHelp", "Calvoro Help"), ("cmdDisplayMonth", "Display month"),
                              ("cmdEnlarge", "Output window")):
            def opened():
                # Some buttons are enabled by the clock's next tick.
                self.desktop.focus(self.desktop.main_window())
                self.desktop.press("frmMain." + button)
                time.sleep(0.3)
                return title in self.desktop.windows().values()
            wait_for(f"the window that {button} opens", opened)
        self.desktop.focus(self.desktop.main_window())
        self.desktop.keys("Home", "Delete")
        self.desktop.close_from_frame(self.desktop.main_window())
        self.assertEqual(self.desktop.end(process), 0)
        self.assertEqual(self.settings(), settings_text("024-02-29", output="line\r\n" * 50))

    def test_an_open_message_does_not_keep_a_signal_from_saving(self):
        process = self.desktop.start()
        self.desktop.type("2021-02-30")
        self.desktop.keys("Return")
        wait_for("the message", lambda: len(self.desktop.windows()) > 1)
        process.send_signal(signal.SIGTERM)
        self.assertEqual(self.desktop.end(process), 0)
        self.assertEqual(self.settings(), settings_text("2021-02-30"))

    def test_a_signal_to_end_saves(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(number.name):
                self.desktop.put_settings(settings_text())
                process = self.desktop.start()
                self.desktop.type("2460370")
                time.sleep(0.2)
                process.send_signal(number)
                self.assertEqual(self.desktop.end(process), 0)
                self.assertEqual(self.settings(), settings_text("2460370"))

    def test_a_signal_that_was_ignored_stays_ignored(self):
        process = self.desktop.start(ignoring=signal.SIGHUP)  # as nohup does
        process.send_signal(signal.SIGHUP)
        time.sleep(0.5)
        self.assertIsNone(process.poll())
        self.quit(process)

    def test_a_signal_while_starting_loses_nothing(self):
        before = settings_text("31/12/2024", "5", "x", "out\r\n", formats="1,47,46", language=1)
        for step in range(25):
            self.desktop.put_settings(before)
            process = self.desktop.launch(quiet=True)
            time.sleep(step * 0.02)
            process.send_signal(signal.SIGTERM)
            # Before it can save, the program ends as every program does.
            self.assertIn(self.desktop.end(process), (0, -signal.SIGTERM))
            self.assertEqual(self.settings(), before, f"signalled after {step * 20} ms")

    def test_the_end_of_the_display_saves(self):
        process = self.desktop.start(quiet=True)
        self.desktop.type("2021-03-04")
        time.sleep(0.2)
        self.desktop.stop_server()
        self.desktop.end(process)
        self.assertEqual(self.settings(), settings_text("2021-03-04"))

    def test_killed_while_saving_it_leaves_a_whole_file(self):
        after = settings_text("2021-03-04", output="line\r\n" * 100_000)
        before = after.replace(b"2,45,44", b" 2,45,44")  # the same settings, not as they are saved
        # How long a saving takes here: the moments of the kills are spread over twice of that.
        self.desktop.put_settings(before)
        process = self.desktop.start()
        began = time.monotonic()
        process.send_signal(signal.SIGTERM)
        wait_for("the settings", lambda: self.settings() == after)
        took = time.monotonic() - began
        self.assertEqual(self.desktop.end(process), 0)

        outcomes = []
        while len(outcomes) < 16 or (True not in outcomes and len(outcomes) < 100):
            self.desktop.put_settings(before)
            process = self.desktop.start()
            process.send_signal(signal.SIGTERM)
            delay = took * 2 * len(outcomes) / 16
            time.sleep(delay)
            process.kill()
            self.desktop.end(process)
            found = self.settings()
            self.assertIn(found, (before, after), f"killed after {delay:.3f} s")
            outcomes.append(found == after)
        self.assertEqual(set(outcomes), {False, True}, "the kills did not meet the saving")
        self.assertLessEqual(len(list(self.desktop.settings_file.parent.iterdir())), 2)

    def test_two_instances_that_end_together_leave_a_whole_file(self):
        texts = [settings_text("1" * (n + 1), output="x" * 100_000) for n in range(2)]
        processes = []
        for text in texts:
            self.desktop.put_settings(text)
            process = self.desktop.launch()
            processes.append(process)
            wait_for("one more window", lambda: list(self.desktop.windows().values()).count(
                "Calvoro 13.0") == len(processes))
            time.sleep(0.5)  # its settings are read right after it is shown
        for process in processes:
            process.send_signal(signal.SIGTERM)
        for process in processes:
            self.assertEqual(self.desktop.end(process), 0)
        self.assertIn(self.settings(), texts)


if __name__ == "__main__":
    cases.main(2)
