#!/usr/bin/env python3
"""Whether rest.py tells processes at rest from those at work, and finds their descendants."""

import pathlib
import subprocess
import sys
import time
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
from rest import at_rest, family  # noqa: E402

PATIENCE = 60  # seconds
SLEEPS = "import time; time.sleep(1000)"
WORKS = "while True: pass"
STARTS = "import subprocess, sys; print(subprocess.Popen([sys.executable, '-c', sys.argv[1]]).pid, flush=True); input()"


class Rest(unittest.TestCase):
    def start(self, *program):
        process = subprocess.Popen([sys.executable, "-c", *program], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                   text=True)
        self.addCleanup(process.communicate)
        self.addCleanup(process.kill)
        return process

    def start_child(self, program):
        parent = self.start(STARTS, program)
        child = int(parent.stdout.readline())
        self.addCleanup(subprocess.run, ["kill", "-KILL", str(child)], check=True)
        return parent, child

    def comes_to_rest(self, *roots):
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            if at_rest(roots):
                return True
            time.sleep(0.05)
        return False

    def test_a_family_is_all_that_was_started(self):
        parent, child = self.start_child(SLEEPS)
        self.assertEqual(family([parent.pid]), {parent.pid, child})

    def test_a_sleeping_family_is_at_rest(self):
        parent, _ = self.start_child(SLEEPS)
        self.assertTrue(self.comes_to_rest(parent.pid))

    def test_a_working_child_keeps_its_family_from_rest(self):
        parent, _ = self.start_child(WORKS)
        self.assertTrue(all(not at_rest([parent.pid]) for _ in range(20)))

    def test_others_do_not_matter(self):
        self.start(WORKS)
        sleeper = self.start(SLEEPS)
        self.assertTrue(self.comes_to_rest(sleeper.pid))

    def test_what_has_ended_is_at_rest(self):
        ended = self.start("pass")
        ended.wait()
        self.assertTrue(at_rest([ended.pid]))


if __name__ == "__main__":
    unittest.main()
