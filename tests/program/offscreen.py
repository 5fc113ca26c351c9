"""The real program without a display, started and ended many times over: its home folder and its settings."""

import os
import pathlib
import random
import shutil
import signal
import subprocess
import tempfile
import time

from desktop import PATIENCE, wait_for

SIGTERM_BIT = 1 << (signal.SIGTERM - 1)

# What the toolkit says by itself on a platform without a screen, and of fonts that lack a script.
TOOLKIT_LINES = (b"This plugin does not support propagateSizeHints()", b"OpenType support missing for")


class Offscreen:
    """A home folder, gone after the with block, and the program started in it."""

    def __init__(self, program):
        self.program = str(program)

    def __enter__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="calvoro-offscreen-"))
        self.home = self.folder / "home"
        self.runtime = self.folder / "runtime"
        self.home.mkdir()
        self.runtime.mkdir(mode=0o700)
        self.errors = open(self.folder / "errors", "w+b")
        self.started = []
        return self

    def __exit__(self, *_):
        for process in self.started:
            if process.poll() is None:
                process.kill()
                process.wait()
        self.errors.close()
        shutil.rmtree(self.folder)

    @property
    def settings_file(self):
        return self.home / ".config" / "Calvoro" / "calvoro.usr"

    def put_settings(self, content):
        self.settings_file.parent.mkdir(parents=True, exist_ok=True)
        self.settings_file.write_bytes(content)

    def settings(self):
        return self.settings_file.read_bytes()

    def launch(self, **options):
        environment = {"PATH": "/usr/bin:/bin", "HOME": str(self.home), "LC_ALL": "C.UTF-8",
                       "XDG_RUNTIME_DIR": str(self.runtime), "QT_QPA_PLATFORM": "offscreen"}
        process = subprocess.Popen([self.program], env=environment, stdin=subprocess.DEVNULL,
                                   stderr=self.errors, **options)
        self.started = [process]
        return process

    @staticmethod
    def catches_signals(process):
        """Whether the program has come so far that a signal makes it save."""
        try:
            with open(f"/proc/{process.pid}/status") as status:
                caught = next((line for line in status if line.startswith("SigCgt:")), "SigCgt: 0")
        except (FileNotFoundError, ProcessLookupError):
            return False
        return bool(int(caught.split()[1], 16) & SIGTERM_BIT)

    def start(self, **options):
        process = self.launch(**options)
        wait_for("the program's start", lambda: self.catches_signals(process) or process.poll() is not None)
        return process

    def quit(self, process):
        """Ends the program as the end of a session does, and returns its exit code."""
        process.send_signal(signal.SIGTERM)
        return process.wait(timeout=PATIENCE)

    def own_errors(self):
        """What the program has written on its standard error beside the toolkit's own lines."""
        self.errors.seek(0)
        return [line for line in self.errors.read().splitlines() if not line.strip().startswith(TOOLKIT_LINES)]


def random_texts(source):
    """A maker of texts that are valid UTF-8 and as odd as texts can be."""
    odd = ["\r", "\n", "\u2028", "\u2029", "\ufeff", "\ufffe", "\uffff", "\ufdd0", "\ufdd1", "\U0010ffff", "\0", "\x1b", '"',
           '""', ",", " ", "\t", "\u00a0", "\u00ad", "\u0301", "\u200e", "\u202e", "\ue000", "\U0001f600", "\u00e4",
           "2024-02-29", '"\n0\n', "1"]

    def text(most, with_line_ends):
        length = source.choice([0, 1, 2, 5, 20, most])
        pieces = odd + ["\r\n", '"\r\n1\r\n'] if with_line_ends else odd
        made = "".join(
            chr(source.choice([source.randrange(0x80), source.randrange(0xd800), source.randrange(0xe000, 0x110000)]))
            if source.random() < 0.3 else source.choice(pieces) for _ in range(length))
        while not with_line_ends and "\r\n" in made:
            made = made.replace("\r\n", "\n")
        return made
    return text


def program_from(arguments, default="build/dev/app/calvoro"):
    root = pathlib.Path(__file__).resolve().parent.parent.parent
    return pathlib.Path(arguments.program) if arguments.program else root / default


def seeded(arguments):
    print(f"seed {arguments.seed}")
    return random.Random(arguments.seed)


def timed(action):
    began = time.monotonic()
    result = action()
    return result, time.monotonic() - began


def free_of_root(folder):
    """Keywords that start a program as a user whose permissions count, who owns the folder."""
    if os.geteuid() != 0:
        return {}
    nobody = 65534
    for path in [folder, *folder.rglob("*")]:
        os.chown(path, nobody, nobody)
    return {"user": nobody, "group": nobody, "extra_groups": []}
