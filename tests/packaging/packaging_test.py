"""The packages in build/package: what validators say of them, and that what they hold runs from where it is put.

    python3 -B tests/packaging/packaging_test.py FOLDER_OF_PACKAGES CALVORO_CLI
"""

import os
import pathlib
import re
import stat
import struct
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
PACKAGING = ROOT / "packaging"
sys.path[:0] = [str(PACKAGING / "pages"), str(ROOT / "tests" / "program")]
from desktop import Desktop  # noqa: E402
from help import notations, read_program, toolkit_options  # noqa: E402

FOLDER = pathlib.Path(sys.argv[1]).resolve()
PROGRAM = pathlib.Path(sys.argv[2]).resolve()
PATIENCE = 120
NAMES = ["calvoro", "calvoro-cli", "libcalvoro-dev", "python3-calvoro"]


def run(*arguments, status=0, **more):
    result = subprocess.run([str(argument) for argument in arguments], capture_output=True, text=True,
                            timeout=PATIENCE, check=False, **more)
    if status is not None and result.returncode != status:
        raise AssertionError(f"{arguments}: exit status {result.returncode}\n{result.stdout}{result.stderr}")
    return result


def said(result):
    return (result.stdout + result.stderr).strip()


def package(name):
    found = list(FOLDER.glob(f"{name}_*.deb"))
    if len(found) != 1:
        raise AssertionError(f"{name}: {len(found)} packages in {FOLDER}")
    return found[0]


class Silent(unittest.TestCase):
    """Validators have nothing to say."""

    def test_lintian(self):
        for name in NAMES:
            with self.subTest(name):
                result = run("lintian", "--allow-root", "--fail-on", "error,warning",
                             package(name))
                self.assertEqual(said(result), "")

    def test_manual_pages(self):
        pages = sorted((PACKAGING / "man").rglob("*.1"))
        self.assertEqual(len(pages), 4)
        for page in pages:
            with self.subTest(page):
                result = run("man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", page,
                             env={**os.environ, "LC_ALL": "C.UTF-8", "MANWIDTH": "100"})
                self.assertEqual(result.stderr, "")
                self.assertGreater(len(result.stdout), 1000)

    def test_completions(self):
        for name in ("calvoro", "calvoro-cli"):
            with self.subTest(name):
                self.assertEqual(said(run("bash", "-n", PACKAGING / "completions" / f"{name}.bash")), "")
                self.assertEqual(said(run("zsh", "-n", PACKAGING / "completions" / f"_{name}")), "")
                self.assertEqual(said(run("fish", "--no-execute", PACKAGING / "completions" / f"{name}.fish")), "")


class Completion(unittest.TestCase):
    """The shells offer what the program knows."""

    @classmethod
    def setUpClass(cls):
        cls.whole, cls.commands = read_program(PROGRAM)

    def by_bash(self, *words):
        script = (f"source {PACKAGING / 'completions' / 'calvoro-cli.bash'}; COMP_WORDS=(\"$@\"); "
                  "COMP_CWORD=$(($# - 1)); _calvoro_cli; printf '%s\\n' \"${COMPREPLY[@]}\"")
        return run("bash", "-c", script, "bash", "calvoro-cli", *words).stdout.split()

    def by_fish(self, line):
        script = f"source {PACKAGING / 'completions' / 'calvoro-cli.fish'}; complete -C {line!r}"
        with tempfile.TemporaryDirectory() as home:
            answer = run("fish", "--no-config", "-c", script, env={**os.environ, "HOME": home}).stdout
        return [row.split("\t")[0] for row in answer.splitlines()]

    def test_every_option_of_every_command(self):
        self.assertGreaterEqual(len(self.commands), 6)
        for command in self.commands:
            options = re.findall(r"^  (?:-h,)?(--[a-z-]+)", run(PROGRAM, command.name, "--help").stdout, re.M)
            self.assertGreater(len(options), 4, command.name)
            for offered in (self.by_bash(command.name, "--"), self.by_fish(f"calvoro-cli {command.name} --")):
                self.assertEqual(set(options) - {"-h"}, set(offered) - {"-h"}, command.name)
            in_zsh = (PACKAGING / "completions" / "_calvoro-cli").read_text(encoding="utf-8")
            case = in_zsh.split(f"    {command.name})", 1)[1].split(";;", 1)[0]
            for option in options:
                self.assertIn(option + "[", case)

    def test_commands_and_notations(self):
        names = [command.name for command in self.commands] + ["help"]
        self.assertEqual(set(names), {word for word in self.by_bash("") if not word.startswith("-")})
        self.assertLessEqual(set(names), set(self.by_fish("calvoro-cli ")))
        tags = [tag for tag, _, _ in notations(self.whole)]
        self.assertEqual(len(tags), 7)
        for offered in (self.by_bash("convert", "--from", ""), self.by_fish("calvoro-cli convert --from ")):
            self.assertEqual(set(tags) | {"auto"}, set(offered))
        self.assertEqual({"CE,JDN", "CE,JC"}, set(self.by_bash("convert", "--to", "CE,J")))
        self.assertEqual(["JDN"], self.by_bash("convert", "--from", "=", "JD"))
        self.assertEqual(["days"], self.by_bash("add", "--unit", "d"))

    def test_options_of_the_window(self):
        names = {"-" + name for name, _ in toolkit_options()} | {"--help", "--version"}
        for file in ("calvoro.bash", "_calvoro"):
            text = (PACKAGING / "completions" / file).read_text(encoding="utf-8")
            for name in names:
                self.assertRegex(text, re.escape(name) + r"[\s\[}']")


class Contents(unittest.TestCase):
    """What the packages hold, unpacked into a folder."""

    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.place = pathlib.Path(cls.folder.name)
        for name in NAMES:
            run("dpkg-deb", "-x", package(name), cls.place)
        cls.usr = cls.place / "usr"
        cls.home = cls.place / "home"
        cls.home.mkdir()

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def environment(self, **more):
        return {"PATH": os.environ["PATH"], "HOME": str(self.home), "LC_ALL": "C.UTF-8", **more}

    def test_desktop_entry_and_metainfo(self):
        self.assertEqual(said(run("desktop-file-validate", self.usr / "share/applications/calvoro.desktop")), "")
        metainfo = list((self.usr / "share/metainfo").iterdir())
        self.assertEqual(len(metainfo), 1)
        # The first part of the name is a domain that is reserved, which the validator does not know.
        result = run("appstreamcli", "validate", "--no-net", "--no-color", "--override",
                     "cid-maybe-not-rdns=pedantic", metainfo[0])
        self.assertEqual(re.sub(r"\W*Validation was successful.*", "", said(result)), "")

    def test_licence_is_in_every_package(self):
        text = (ROOT / "LICENSE").read_text(encoding="utf-8")
        for name in NAMES:
            copyright_file = (self.usr / "share/doc" / name / "copyright").read_text(encoding="utf-8")
            for line in filter(None, text.splitlines()[2:]):
                self.assertIn(line.removeprefix("Copyright (c) "), copyright_file)

    def test_icons_have_the_size_of_their_folder(self):
        icons = list((self.usr / "share/icons/hicolor").glob("*/apps/calvoro.png"))
        self.assertEqual(len(icons), 8)
        for icon in icons:
            size = int(icon.parts[-3].split("x")[0])
            self.assertEqual(struct.unpack(">II", icon.read_bytes()[16:24]), (size, size))
        self.assertNotIn("<text", (self.usr / "share/icons/hicolor/scalable/apps/calvoro.svg").read_text(encoding="utf-8"))

    def test_manual_and_pages_are_there(self):
        for name in ("share/doc/calvoro/html/en/index.html", "share/doc/calvoro/html/de/index.html",
                     "share/man/man1/calvoro.1.gz", "share/man/de/man1/calvoro-cli.1.gz",
                     "share/bash-completion/completions/calvoro-cli", "include/calvoro/calendar/EuroDate.h"):
            self.assertTrue((self.usr / name).is_file(), name)

    def test_programs_are_hardened(self):
        extension = next((self.usr / "lib/python3/dist-packages/calvoro").glob("_engine*.so"))
        for program in (self.usr / "bin/calvoro-cli", (self.usr / "bin/calvoro").resolve(), extension):
            with self.subTest(program):
                answer = run("hardening-check", "--color", program, status=None).stdout
                wanted = ["Stack protected", "Fortify Source functions", "Read-only relocations", "Immediate binding"]
                if program is not extension:
                    wanted.append("Position Independent Executable")
                for what in wanted:
                    self.assertRegex(answer, rf"{what}: [^\n]*yes", answer)

    def test_command_line_runs_without_an_internet_socket(self):
        log = self.place / "sockets"
        answer = run("strace", "-f", "-e", "trace=%network", "-o", log, self.usr / "bin/calvoro-cli", "convert",
                     "--from", "CE", "--to", "ISO", "2024-03-15", env=self.environment())
        self.assertEqual((answer.stdout, answer.stderr), ("2024-W11-5\n", ""))
        self.assertNotRegex(log.read_text(encoding="utf-8"), r"\bsocket\(")

    def test_window_runs_without_an_internet_socket(self):
        log = self.place / "window-sockets"
        watched = self.place / "watched"
        watched.write_text(f"#!/bin/sh\nexec strace -f -e trace=%network -o {log} {self.usr / 'bin/calvoro'}\n",
                           encoding="utf-8")
        watched.chmod(0o755)
        with Desktop(watched) as desktop:
            window = desktop.start()
            self.assertEqual(desktop.quit(window), 0)
            self.assertEqual(stat.S_IMODE(desktop.settings_file.stat().st_mode), 0o600)
            self.assertEqual(stat.S_IMODE(desktop.settings_file.parent.stat().st_mode), 0o700)
        sockets = log.read_text(encoding="utf-8")
        self.assertIn("AF_UNIX", sockets)  # the display; else nothing was watched
        self.assertNotIn("AF_INET", sockets)

    def test_python_module_is_found(self):
        code = "import calvoro; print(calvoro.__file__)"
        answer = run("/usr/bin/python3", "-B", "-c", code,
                     env=self.environment(PYTHONPATH=str(self.usr / "lib/python3/dist-packages")))
        self.assertTrue(answer.stdout.startswith(str(self.usr)), answer.stdout)

    def test_archive_holds_programs_that_run(self):
        archives = list(FOLDER.glob("calvoro-*.tar.gz"))
        self.assertEqual(len(archives), 1)
        there = self.place / "archive"
        there.mkdir()
        run("tar", "-xzf", archives[0], "-C", there)
        top = next(there.iterdir())
        for name in ("calvoro", "calvoro-cli"):
            answer = run(top / "bin" / name, "--version", env=self.environment())
            self.assertTrue(answer.stdout.startswith(name + " "), answer.stdout)
        self.assertTrue(list(top.rglob("LICENSE")))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=1)
