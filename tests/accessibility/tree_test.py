#!/usr/bin/env python3
"""Compares what assistive tools meet in every window, in both languages, with the trees kept beside this file.

    tree_test.py PROGRAM WINDOW_KEYS [--record]

Role, name, description, states and actions of each control, as they come to the accessibility bus. --record
writes the trees anew.
"""

import difflib
import pathlib
import sys
import time

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
from reader import HERE, ReaderDesktop, settings_text  # noqa: E402

# The titles of the windows in each language.
TITLES = {"en": ("Calvoro 13.0", "Display month", "Calvoro Help", "Output window", "Clear",
                 "Calvoro List"),
          "de": ("Calvoro 13.0", "Monat zeigen", "Calvoro Hilfe", "Ausgabefenster", "Loeschen",
                 "Calvoro Liste")}


def trees(desktop, tongue):
    main, month, help_window, enlarged, clear, dates = TITLES[tongue]
    desktop.language = list(TITLES).index(tongue)
    desktop.put_settings(settings_text("2024-02-29", "7", "2024-03-07", "x" * 200, desktop.language,
                                       month=("Mon", "CE")))
    process = desktop.start()
    time.sleep(1.5)  # until the clock has switched the buttons of the output on
    found = {main: desktop.tree(main)}

    def opened(title, *keys):
        desktop.focus(desktop.main_window())
        desktop.keys(*keys)
        desktop.focus(desktop.window(title))
        found[title] = desktop.tree(title)
    opened(month, "ctrl+m")
    opened(help_window, "F1")
    opened(enlarged, "alt+" + desktop.key_of("frmMain.cmdEnlarge"))
    opened(dates, "ctrl+l")
    opened(clear, "alt+" + desktop.key_of("frmMain.cmdCompute"))
    desktop.keys("Escape")
    desktop.quit(process)
    return "\n".join(f"# {title}\n{tree}" for title, tree in found.items())


def compare(name, actual, record):
    """Whether a text is the one that is kept; prints where it differs."""
    kept = HERE / "expected" / name
    if record:
        kept.parent.mkdir(exist_ok=True)
        kept.write_text(actual)
        return True
    expected = kept.read_text()
    if actual == expected:
        return True
    print("".join(difflib.unified_diff(expected.splitlines(True), actual.splitlines(True), str(kept), "now")))
    return False


def main():
    program, window_keys, *options = sys.argv[1:]
    record = options == ["--record"]
    right = True
    with ReaderDesktop(program, window_keys) as desktop:
        for tongue in TITLES:
            actual = trees(desktop, tongue)
            right &= compare(f"tree-{tongue}.txt", actual, record)
            print(f"{tongue}: {sum(not line.startswith('#') for line in actual.split(chr(10)) if line)} controls")
    sys.exit(0 if right else 1)


if __name__ == "__main__":
    main()
