#!/usr/bin/env python3
"""Runs every console example of README.md, docs and the manual and compares what it prints.

    examples_test.py PROGRAM            compares
    examples_test.py PROGRAM --update   writes what was seen into the pages
    examples_test.py PROGRAM --others   the same two for the commands of other programs, in blocks named "shell",
                                        which need these programs (scripts/comparison)

PROGRAM is calvoro-cli; `./run` in an example stands for it too. The examples of a page run one after the other
in a folder that holds the files of docs/manual/files, and docs itself. Messages and results come in the order in which a terminal
shows them. Blanks at the end of a line do not count.
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

from pages import MANUAL, ROOT, all_pages, examples, window_results

LEAST_NUMBER = {"console": 150, "shell": 50}  # a search that finds none must not pass


class Bench:
    """A folder with the example files, and the shell that commands are typed into."""

    def __init__(self, program):
        self.program = pathlib.Path(program).resolve()

    def __enter__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="calvoro-examples-"))
        shutil.copytree(MANUAL / "files", self.folder, dirs_exist_ok=True)
        (self.folder / "run").symlink_to(self.program)
        (self.folder / "docs").symlink_to(ROOT / "docs")
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.folder)

    def run(self, command):
        environment = os.environ | {"LC_ALL": "C.UTF-8", "TZ": "UTC",
                                    "PATH": f"{self.program.parent}:{os.environ['PATH']}"}
        done = subprocess.run(["bash", "-o", "pipefail", "-c", command], cwd=self.folder, env=environment,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              timeout=60, check=False)
        return without_trailing_blanks(done.stdout.decode())


def without_trailing_blanks(text):
    return "".join(line.rstrip() + "\n" for line in text.splitlines())


class Examples(unittest.TestCase):
    maxDiff = None
    program = None
    kind = "console"

    def test_every_example_prints_what_its_page_says(self):
        self.compare(lambda text: examples(text, self.kind), LEAST_NUMBER[self.kind])

    def test_what_the_window_shows_is_what_the_command_line_prints(self):
        if self.kind == "console":
            self.compare(window_results, 5)

    def compare(self, examples_of, least):
        number = 0
        for page in all_pages():
            with Bench(self.program) as bench:
                for example in examples_of(page.read_text()):
                    number += 1
                    with self.subTest(page=str(page.relative_to(ROOT)), line=example.line, command=example.command):
                        self.assertEqual(bench.run(example.command), without_trailing_blanks(example.output))
        self.assertGreater(number, least)


def update(program, kind):
    for page in all_pages():
        lines, old = [], page.read_text()
        inside = answered = False
        with Bench(program) as bench:
            for line in old.splitlines():
                if line.startswith("```"):
                    inside = line == f"```{kind}"
                    answered = False
                elif inside and line.startswith("$ "):
                    lines += [line, *bench.run(line[2:]).splitlines()]
                    answered = True
                    continue
                elif inside and answered:
                    continue
                lines.append(line)
        new = "\n".join(lines) + "\n"
        if new != old:
            page.write_text(new)
            print(page.relative_to(ROOT))


if __name__ == "__main__":
    Examples.program = sys.argv.pop(1)
    if "--others" in sys.argv:
        sys.argv.remove("--others")
        Examples.kind = "shell"
    if "--update" in sys.argv:
        update(Examples.program, Examples.kind)
    else:
        unittest.main()
