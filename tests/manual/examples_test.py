#!/usr/bin/env python3
"""Runs every console example of README.md, docs and the manual and compares what it prints.

    examples_test.py PROGRAM            compares
    examples_test.py PROGRAM --update   writes what was seen into the pages

PROGRAM is calvoro-cli; `./run` in an example stands for it too. The examples of a page run one after the other
in a folder that holds the files of docs/manual/files. Messages and results come in the order in which a terminal
shows them. Blanks at the end of a line do not count.
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

from pages import MANUAL, ROOT, all_pages, examples

LEAST_NUMBER = 150  # of examples in all: a search that finds none must not pass


class Bench:
    """A folder with the example files, and the shell that commands are typed into."""

    def __init__(self, program):
        self.program = pathlib.Path(program).resolve()

    def __enter__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="calvoro-examples-"))
        shutil.copytree(MANUAL / "files", self.folder, dirs_exist_ok=True)
        (self.folder / "run").symlink_to(self.program)
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

    def test_every_example_prints_what_its_page_says(self):
        number = 0
        for page in all_pages():
            with Bench(self.program) as bench:
                for example in examples(page.read_text()):
                    number += 1
                    with self.subTest(page=str(page.relative_to(ROOT)), line=example.line, command=example.command):
                        self.assertEqual(bench.run(example.command), without_trailing_blanks(example.output))
        self.assertGreater(number, LEAST_NUMBER)


def update(program):
    for page in all_pages():
        lines, old = [], page.read_text()
        inside = answered = False
        with Bench(program) as bench:
            for line in old.splitlines():
                if line.startswith("```"):
                    inside = line == "```console"
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
    if "--update" in sys.argv:
        update(Examples.program)
    else:
        unittest.main()
