"""The record of what the screen reader says, task by task and step by step.

"# " begins a task and "> " a step; what is said after it is written below, indented. What must have been said by
then stands below it: the month that is shown, and at the end of a task the new lines of the output.
"""

import re

from reader import settings_text
from tasks import KEY, LOOK, OPENED, PASS, PRESS, TASKS, TYPE

SHOWN = "= shown: "
OUTPUT = "= output: "


def do(desktop, step, titles):
    kind, what = step
    if kind == KEY:
        desktop.keys(what)
    elif kind == TYPE:
        desktop.type(what)
    elif kind in (PRESS, PASS):
        desktop.keys("alt+" + desktop.key_of(what))
    else:
        desktop.focus(desktop.window(titles[what]))


def words_of(step, titles):
    kind, what = step
    if kind == OPENED:
        return f"the window {titles[what]} is open"
    return {KEY: "press ", TYPE: "type ", PRESS: "press the key of ",
            PASS: "press the key of "}[kind] + what


def shown_month(tree):
    """The name of the read-only text in the tree of the month window: the heading of the month in it."""
    return re.search(r'^ *text "(.*)" .*\bread-only\b', tree, re.MULTILINE)[1]


def new_output(desktop, settings):
    """The lines that the program has added to its output, as it saved them."""
    saved = desktop.settings_file.read_bytes().decode().split("\r\n", 13)[13]
    before = settings.get("output", "")
    text = saved[1:saved.rindex('"')]
    assert text.startswith(before), text
    return [" ".join(line.split()) for line in text[len(before):].splitlines() if line.strip()]


class Recorder:
    def __init__(self, desktop, titles):
        self.desktop = desktop
        self.titles = titles
        self.lines = []
        self.said = 0

    def take_step(self, step):
        if step and step[0] == LOOK:
            self.lines.append(SHOWN + shown_month(self.desktop.tree(self.titles[step[1]])))
            return
        if step:
            do(self.desktop, step, self.titles)
        self.lines.append(f"> {words_of(step, self.titles) if step else 'start'}")
        words = self.desktop.spoken()
        if step and step[0] == PASS:
            words = [line for line in words if line.startswith("notification ")]
        self.lines += [f"    {line}" for line in words]
        self.said += len(words)

    def take_task(self, name, settings, steps):
        self.lines.append(f"# {name}")
        self.desktop.put_settings(settings_text(language=self.desktop.language, **settings))
        process = self.desktop.start()
        for step in [None, *steps]:
            self.take_step(step)
        self.desktop.quit(process)
        self.desktop.spoken()
        self.lines += [f"{OUTPUT}{line}" for line in new_output(self.desktop, settings)]
        self.lines.append("")


def spoken(desktop, titles):
    """The record of every task in the language of the desktop, and the number of lines said."""
    recorder = Recorder(desktop, titles)
    for task in TASKS:
        recorder.take_task(*task)
    return "\n".join(recorder.lines), recorder.said
