"""A display of its own for one test, and the keys and eyes of the person sitting before it."""

import ctypes
import os
import pathlib
import re
import shutil
import signal
import subprocess
import tempfile
import time

PATIENCE = 60  # seconds until something that should happen is given up; a loaded machine is slow


def wait_for(what, condition):
    """Returns the first true value of condition(); fails when there is none in time."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.02)
    raise AssertionError("waited in vain for " + what)


class Desktop:
    """An X server without window manager, and a home folder; both are gone after the with block."""

    def __init__(self, program, window_keys=None, size="1280x1000"):
        """window_keys is the program that tells which keys press the buttons."""
        self.program = str(program)
        self.window_keys = window_keys and str(window_keys)
        self.screen = size + "x24"
        self.started = []
        self.language = 0  # of the program, whose keys press the buttons
        self.button_keys = {}

    def __enter__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="calvoro-desktop-"))
        self.home = self.folder / "home"
        self.home.mkdir()
        (self.folder / "runtime").mkdir(mode=0o700)
        read_end, write_end = os.pipe()
        self.server = subprocess.Popen(
            # Without -noreset the server starts anew when its last client leaves, and refuses the next
            # one that comes in that moment.
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", self.screen, "-nolisten", "tcp",
             "-noreset"],
            pass_fds=[write_end], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            number = pipe.readline().strip()  # ends when the server is ready, or empty when it failed
        assert number, "Xvfb did not start"
        self.display = ":" + number
        return self

    def __exit__(self, *_):
        for process in self.started:
            if process.poll() is None:
                process.kill()
                process.wait()
        self.stop_server()
        shutil.rmtree(self.folder)

    def stop_server(self):
        self.server.kill()
        self.server.wait()

    def environment(self):
        # Nothing of the desktop from which the tests are run.
        kept = {name: value for name, value in os.environ.items()
                if not name.startswith(("QT_", "XDG_", "LC_", "LANG", "WAYLAND_", "DBUS_", "GTK_", "KDE_",
                                        "SESSION_MANAGER"))}
        # Libraries of the display copy parts of texts that have no end of their own, which the strictest
        # check of a sanitized build takes for a fault.
        sanitizer = os.environ.get("ASAN_OPTIONS", "") + ":strict_string_checks=0"
        return kept | {"ASAN_OPTIONS": sanitizer,
                       "DISPLAY": self.display, "HOME": str(self.home), "LC_ALL": "C.UTF-8",
                       "XDG_RUNTIME_DIR": str(self.folder / "runtime")}

    # ---- the program

    @property
    def settings_file(self):
        return self.home / ".config" / "Calvoro" / "calvoro.usr"

    def put_settings(self, content):
        self.settings_file.parent.mkdir(parents=True, exist_ok=True)
        self.settings_file.write_bytes(content)

    def launch(self, *, quiet=False, ignoring=None, **environment):
        """Starts the program and returns at once.

        quiet      drops what it says when its display goes away or it is ended while starting
        ignoring   a signal that it starts with as ignored
        """
        process = subprocess.Popen(
            [self.program], env=self.environment() | environment, stdin=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL if quiet else None,
            preexec_fn=ignoring and (lambda: signal.signal(ignoring, signal.SIG_IGN)))
        self.started.append(process)
        return process

    def start(self, **options):
        """Starts the program and returns when its main window takes keys."""
        process = self.launch(**options)
        self.focus(self.main_window())
        return process

    def main_window(self):
        return self.window(r"Calvoro 13\.0")

    def end(self, process):
        """Waits for the end of the program and returns its exit code."""
        return process.wait(timeout=PATIENCE)

    def quit(self, process, window=None):
        """Presses Ctrl+Q in the main window, or in this one of several, again while something modal is in its way."""
        def ended():
            for number, name in self.windows().items():
                if number == window or (window is None and name == "Calvoro 13.0"):
                    self.focus(number)
                    self.keys("ctrl+q")
            try:
                process.wait(timeout=1)
            except subprocess.TimeoutExpired:
                return False
            return True
        wait_for("the program's end", ended)
        return process.returncode

    # ---- eyes and keys

    def tool(self, *command):
        return subprocess.run(command, env=self.environment(), capture_output=True, text=True, check=False)

    def search(self, *where):
        return self.tool("xdotool", "search", "--onlyvisible", *where, "--name", ".*").stdout.split()

    def windows(self):
        """The visible windows but the one behind all: number to title."""
        found = set(self.search()) - set(self.search("--maxdepth", "0"))
        return {number: self.tool("xdotool", "getwindowname", number).stdout.rstrip("\n")
                for number in found}

    def window(self, title):
        """Waits for the window whose whole title matches and returns its number."""
        return wait_for(f"a window titled {title}", lambda: next(
            (number for number, name in self.windows().items() if re.fullmatch(title, name)), None))

    def focus(self, window):
        """Gives a window the focus; a window that is just closing has none to take."""
        # Taken away first: without a window manager the program is not told again, when its modal window
        # has closed, that the window below has had the focus all the time. 1 is the server's "no window".
        self.tool("xdotool", "windowfocus", "1")

        def focused():
            self.tool("xdotool", "windowfocus", window)
            return (self.tool("xdotool", "getwindowfocus").stdout.strip() == window
                    or window not in self.windows())
        wait_for("the focus", focused)
        time.sleep(0.1)  # the focus is the server's; the program hears of it a moment later

    def size(self, window):
        """Width and height of a window."""
        geometry = self.tool("xdotool", "getwindowgeometry", "--shell", window).stdout
        values = dict(line.split("=") for line in geometry.split())
        return int(values["WIDTH"]), int(values["HEIGHT"])

    def dismiss(self, window):
        """Presses Return in a message until it is gone; a box that has just come up may miss the first."""
        def gone():
            self.focus(window)
            self.keys("Return")
            time.sleep(0.2)
            return window not in self.windows()
        wait_for("the end of a message", gone)

    def keys(self, *keys):
        self.tool("xdotool", "key", "--delay", "20", *keys)

    def type(self, text):
        self.tool("xdotool", "type", "--delay", "10", text)

    def press(self, button):
        """Presses a button, named as "frmMain.cmdEnlarge", by its key; its window has the focus."""
        if not self.button_keys:
            listed = self.tool(self.window_keys, str(self.language), "-platform", "offscreen").stdout
            self.button_keys = dict(line.split() for line in listed.splitlines())
        self.keys("alt+" + self.button_keys[button])

    def clipboard(self):
        return self.tool("xclip", "-o", "-selection", "clipboard").stdout

    def put_on_clipboard(self, text):
        holder = subprocess.Popen(["xclip", "-selection", "clipboard", "-in", "-quiet"],
                                  stdin=subprocess.PIPE, env=self.environment(), stderr=subprocess.DEVNULL)
        self.started.append(holder)
        holder.stdin.write(text.encode())
        holder.stdin.close()
        wait_for("the clipboard", lambda: self.clipboard()[:100] == text[:100])

    def close_from_frame(self, window):
        """What a window manager does when the button in a window's frame is pressed."""
        x11 = ctypes.CDLL("libX11.so.6")
        x11.XOpenDisplay.restype = ctypes.c_void_p
        x11.XInternAtom.restype = ctypes.c_ulong
        display = ctypes.c_void_p(x11.XOpenDisplay(self.display.encode()))
        assert display, "the display cannot be opened"

        class ClientMessage(ctypes.Structure):
            _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                        ("display", ctypes.c_void_p), ("window", ctypes.c_ulong),
                        ("message_type", ctypes.c_ulong), ("format", ctypes.c_int),
                        ("data", ctypes.c_long * 5), ("padding", ctypes.c_long * 24)]

        message = ClientMessage(type=33, display=display, window=int(window), format=32)
        message.message_type = x11.XInternAtom(display, b"WM_PROTOCOLS", 0)
        message.data[0] = x11.XInternAtom(display, b"WM_DELETE_WINDOW", 0)
        x11.XSendEvent(display, ctypes.c_ulong(int(window)), 0, ctypes.c_long(0), ctypes.byref(message))
        x11.XCloseDisplay(display)


def settings_text(first="", difference="", second="", output="", language=0, formats="2,45,44",
                  calendars="0,0,0", checks=(0, 1, 1, 1, 1), month=("Sun", "CE"), unit=0):
    """The settings file with these values, as bytes."""
    lines = [str(language), formats, calendars, *map(str, checks),
             *(f'"{text}"' for text in (*month, first, difference, second, output)), str(unit)]
    return "".join(line + "\r\n" for line in lines).encode()
