#!/usr/bin/env python3
"""The whole program at its start: what it answers without a display, and how it misses its texts.

start_test.py --list        names every case
start_test.py PROGRAM CASE  runs one
"""

import os
import pathlib
import re
import shutil
import signal
import subprocess
import tempfile
import unittest

import cases
from desktop import PATIENCE, Desktop, wait_for

[PROGRAM] = cases.programs(1)


def run_without_display(arguments=(), **environment):
    return subprocess.run([PROGRAM, *arguments], env={"LC_ALL": "C.UTF-8", **environment},
                          capture_output=True, text=True, timeout=PATIENCE, check=False)


def catches(process, number):
    """Whether a process has a handler for a signal, so that its start is behind it."""
    status = pathlib.Path(f"/proc/{process}/status").read_text()
    return int(re.search(r"SigCgt:\s*(\w+)", status)[1], 16) >> (number - 1) & 1


class WithoutDisplay(unittest.TestCase):
    def test_the_version_is_told(self):
        result = run_without_display(["--version"])
        version = "calvoro 13.0.1\nCopyright (c) 2026 the Calvoro authors, MIT licence\n"
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, version, ""))
        self.assertEqual(run_without_display(["-V"]).stdout, version)

    def test_help_is_given_whatever_stands_beside_it(self):
        for arguments in (["--help"], ["-h"], ["-platform", "xcb", "--help"], ["--nonsense", "--help"]):
            with self.subTest(arguments):
                result = run_without_display(arguments)
                self.assertEqual((result.returncode, result.stderr), (0, ""))
                self.assertTrue(result.stdout.startswith("Usage: calvoro"), result.stdout)
                self.assertIn("--version", result.stdout)

    def test_what_is_not_known_is_refused_in_one_line(self):
        for arguments in (["--nonsense"], ["-x"], ["file"], ["-"], ["--"], ["-platform"], [""],
                          ["-style", "fusion", "-y"]):
            with self.subTest(arguments):
                result = run_without_display(arguments)
                self.assertEqual((result.returncode, result.stdout), (2, ""))
                self.assertEqual(len(result.stderr.splitlines()), 1)
                self.assertIn(f"'{arguments[-1]}'", result.stderr)
                self.assertIn("--help", result.stderr)

    def test_what_a_terminal_would_obey_is_not_repeated(self):
        result = run_without_display(["--\x1b[31m\u202e"])
        self.assertEqual(result.returncode, 2)
        self.assertIn(r"'--\x1B[31m\xE2\x80\xAE'", result.stderr)

    def test_a_full_disk_is_reported(self):
        with open("/dev/full", "w") as full:
            result = subprocess.run([PROGRAM, "--version"], stdout=full, timeout=PATIENCE, check=False)
        self.assertEqual(result.returncode, 1)

    def test_what_the_toolkit_says_while_starting_is_passed_on(self):
        with tempfile.TemporaryDirectory() as home:
            environment = {**os.environ, "HOME": home, "XDG_CONFIG_HOME": home, "QT_QPA_PLATFORM": "offscreen",
                           "QT_DEBUG_PLUGINS": "1"}
            log = pathlib.Path(home, "said")
            with log.open("w") as said, subprocess.Popen([PROGRAM], env=environment, stderr=said) as program:
                wait_for("the signals", lambda: catches(program.pid, signal.SIGTERM))
                program.terminate()
                self.assertEqual(program.wait(PATIENCE), 0)
            said = log.read_text()
        self.assertTrue(said.startswith("qt.core.plugin"), said)

    def test_the_window_is_refused_in_one_sentence(self):
        with Desktop(PROGRAM) as desktop:
            home = {"HOME": str(desktop.home), "XDG_RUNTIME_DIR": str(desktop.folder / "runtime")}
            gone = desktop.display
            desktop.stop_server()
            cases = {
                "no display": ([], {}),
                "empty display": ([], {"DISPLAY": ""}),
                "dead display": ([], {"DISPLAY": gone}),
                "malformed display": ([], {"DISPLAY": "nonsense"}),
                "dead display by option": (["-display", gone], {}),
                "dead Wayland": ([], {"WAYLAND_DISPLAY": "wayland-7", "XDG_SESSION_TYPE": "wayland"}),
                "X11 asked for": (["-platform", "xcb"], {}),
                "unknown platform": (["-platform", "nonsense"], {}),
                "platform by environment": ([], {"QT_QPA_PLATFORM": "xcb"}),
            }
            for name, (arguments, environment) in cases.items():
                with self.subTest(name):
                    result = run_without_display(arguments, **home, **environment)
                    self.assertEqual((result.returncode, result.stdout), (1, ""))
                    self.assertEqual(len(result.stderr.splitlines()), 1, result.stderr)
                    self.assertIn("./run convert", result.stderr)
                    self.assertIn("./run compute", result.stderr)
            self.assertEqual(list(desktop.home.iterdir()), [], "nothing may be written")


class ProgramTexts(unittest.TestCase):
    """The numbered texts lie beside the program; without them it ends after one message."""

    def start_with_texts(self, desktop, content):
        folder = desktop.folder / "program"
        folder.mkdir()
        shutil.copy(PROGRAM, folder / "calvoro")
        if content is not None:
            (folder / "calvoro.dat").write_bytes(content)
        desktop.program = str(folder / "calvoro")

    def check_message_then_end(self, desktop):
        process = desktop.launch()
        box = wait_for("the message box", lambda: next(iter(desktop.windows()), None))
        self.assertNotIn("Calvoro 13.0", desktop.windows().values())
        desktop.dismiss(box)
        self.assertEqual(desktop.end(process), 1)
        self.assertFalse(desktop.settings_file.exists(), "no settings are saved")

    def test_a_missing_file_ends_the_program_after_a_message(self):
        with Desktop(PROGRAM) as desktop:
            self.start_with_texts(desktop, None)
            self.check_message_then_end(desktop)

    def test_a_faulty_file_ends_the_program_after_a_message(self):
        with Desktop(PROGRAM) as desktop:
            self.start_with_texts(desktop, b"1\tone\teins\n1\tagain\tnochmal\n")
            self.check_message_then_end(desktop)

    def test_they_are_found_through_a_link_to_the_program(self):
        with Desktop(PROGRAM) as desktop:
            link = desktop.folder / "bin" / "calvoro"
            link.parent.mkdir()
            link.symlink_to(PROGRAM)
            desktop.program = str(link)
            self.assertEqual(desktop.quit(desktop.start()), 0)


if __name__ == "__main__":
    cases.main(1)
