"""Keys, clicks and clipboard of one who plays, fast: one xdotool that is told line by line."""

import contextlib
import subprocess

from desktop import wait_for


class Touch:
    def __init__(self, desktop):
        self.desktop = desktop
        self.clipboard = None
        self.begin()

    def begin(self):
        self.tool = subprocess.Popen(["xdotool", "-"], stdin=subprocess.PIPE, env=self.desktop.environment(),
                                     stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, text=True, bufsize=1)
        self.desktop.started.append(self.tool)

    def tell(self, *lines):
        for line in lines:
            if self.tool.poll() is not None:  # it gives up when a window has gone
                self.desktop.started.remove(self.tool)
                self.begin()
            with contextlib.suppress(BrokenPipeError):
                self.tool.stdin.write(line + "\n")

    def wait(self):
        """Returns when all that was told has been done."""
        done = self.desktop.folder / "touched"
        done.unlink(missing_ok=True)
        line = f"exec --sync touch {done}"
        self.tell(line)

        def is_done():
            if self.tool.poll() is not None:
                self.tell(line)
            return done.exists()
        wait_for("the hands", is_done)

    def keys(self, *keys):
        self.tell("key --delay 1 " + " ".join(keys))

    def type(self, text):
        self.tell(f'type --delay 1 "{text}"')

    def click(self, x, y, button=1):
        self.tell(f"mousemove {x} {y}", f"click {button}")

    def focus(self, window):
        # Taken away first, so that the program is told even if it never lost it.
        self.tell("windowfocus 1", f"windowraise {window}", f"windowfocus {window}")

    def size(self, window, width, height):
        self.tell(f"windowsize {window} {width} {height}")

    def hold(self, text):
        """Puts a text on the clipboard; the one before is let go."""
        if self.clipboard is not None:
            self.clipboard.kill()
            self.clipboard.wait()
        self.clipboard = subprocess.Popen(["xclip", "-selection", "clipboard", "-in", "-quiet"],
                                          stdin=subprocess.PIPE, env=self.desktop.environment(),
                                          stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.desktop.started.append(self.clipboard)
        self.clipboard.stdin.write(text.encode())
        self.clipboard.stdin.close()
