"""A desktop with the accessibility bus and, on request, a screen reader whose words are read from its log."""

import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import time

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "program"))
from desktop import Desktop, settings_text, wait_for  # noqa: E402, F401
from rest import at_rest  # noqa: E402

PYTHON = "/usr/bin/python3"  # the distribution's, which has the modules for the bus
BUS_LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
SILENCE = float(os.environ.get("CALVORO_READER_SILENCE", "1"))  # seconds of rest after which it has finished
LOOK = 0.1  # seconds between two looks at it
RESTLESS = 300  # seconds after which it is given up
DATE = re.compile(r"(Today is|A week from today is|Heute ist|Eine Woche weiter ist) [^\"]*?"
                  r"(CE|ISO|JC|ORD|LPM|LPW|JDN)\b")


def undated(text):
    """A text without the dates that change from day to day."""
    return DATE.sub(r"\1 (date) \2", text)


class ReaderDesktop(Desktop):
    def __init__(self, program, window_keys, speaking=False):
        super().__init__(program, window_keys, size="1600x1200")
        self.speaking = speaking
        self.heard = 0
        self.language = 0
        self.keys_by_language = {}

    def __enter__(self):
        super().__enter__()
        try:
            self.start_bus()
            if self.speaking:
                self.start_reader()
        except BaseException:
            self.__exit__()
            raise
        return self

    def start_bus(self):
        bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address=1"],
                               env=super().environment(), stdout=subprocess.PIPE,
                               stderr=subprocess.DEVNULL, text=True)
        self.started.append(bus)
        self.bus = bus.stdout.readline().strip()
        assert self.bus, "dbus-daemon did not start"
        self.started.append(subprocess.Popen([BUS_LAUNCHER, "--launch-immediately"], env=self.environment(),
                                             stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        wait_for("the accessibility bus", lambda: self.tool(
            "dbus-send", "--session", "--print-reply", "--dest=org.a11y.Bus", "/org/a11y/bus",
            "org.a11y.Bus.GetAddress").returncode == 0)

    def type(self, text):
        # Each key goes to the reader first, which the toolkit gives a tenth of a second before it goes on
        # without it; keys that come faster could overtake each other.
        self.tool("xdotool", "type", "--delay", "150", text)

    def key_of(self, control):
        """The access key of a control, named as "frmMain.cmdEnlarge", in the language that is set."""
        if self.language not in self.keys_by_language:
            listed = self.tool(self.window_keys, str(self.language), "-platform", "offscreen").stdout
            self.keys_by_language[self.language] = dict(line.split() for line in listed.splitlines())
        return self.keys_by_language[self.language][control]

    def environment(self):
        return super().environment() | {
            "DBUS_SESSION_BUS_ADDRESS": getattr(self, "bus", ""), "GSETTINGS_BACKEND": "memory",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}

    def start_reader(self):
        settings = {"enableKeyEcho": False, "enableEchoByCharacter": False, "enableEchoByWord": False,
                    "enableSpeech": True, "enableBraille": False, "enableBrailleMonitor": False,
                    "speakMultiCaseStringsAsWords": False}
        folder = self.home / ".local" / "share" / "orca"
        folder.mkdir(parents=True)
        (folder / "user-settings.conf").write_text(json.dumps(
            {"general": settings, "pronunciations": {}, "keybindings": {}, "profiles": {
                "default": settings | {"profile": ["Default", "default"], "pronunciations": {},
                                       "keybindings": {}}}}))
        # What it would say goes to a file, line by line; no speech is synthesized.
        self.log = self.folder / "spoken.log"
        (folder / "orca-customizations.py").write_text(
            "import logging\n"
            "class OneLine(logging.Formatter):\n"
            "    def format(self, record):\n"
            "        return ' '.join(record.getMessage().split())\n"
            f"handler = logging.FileHandler({str(self.log)!r})\n"
            "handler.setFormatter(OneLine())\n"
            "log = logging.getLogger('speech')\n"
            "log.addHandler(handler)\n"
            "log.setLevel(logging.INFO)\n")
        self.started.append(subprocess.Popen(
            [PYTHON, "-B", str(HERE / "another_orca.py"), shutil.which("orca"), "--disable", "braille"],
            env=self.environment(), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        wait_for("the screen reader", lambda: self.said())
        self.spoken()

    def said(self):
        if not self.log.exists():
            return []
        found = re.findall(r"SPEECH OUTPUT: '(.*)'", self.log.read_text(errors="replace"))
        return [undated(words.strip()) for words in found if words.strip()]

    def spoken(self):
        """What the reader has said since this was last asked, when it has finished.

        Only the time counts in which nothing is said and nobody on this desktop is at work, or waits for a
        processor: on a busy machine the reader may be silent for long before it says the next thing.
        """
        processes = [self.server.pid, *(process.pid for process in self.started if process.poll() is None)]
        end = time.monotonic() + RESTLESS
        length, rest = 0, 0.0
        while rest < SILENCE:
            assert time.monotonic() < end, "the screen reader does not come to rest"
            time.sleep(LOOK)
            now = self.log.stat().st_size
            if now != length:
                length, rest = now, 0.0
            elif at_rest(processes):
                rest += LOOK
        said = self.said()
        new = said[self.heard:]
        self.heard = len(said)
        return new

    def tree(self, title):
        result = self.tool(PYTHON, "-B", str(HERE / "tree.py"), title)
        assert result.returncode == 0, result.stderr
        return undated(result.stdout)
