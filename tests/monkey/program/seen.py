"""What assistive tools see of the real program, and what must hold of it whatever was done.

Needs the distribution's Python, and the environment of a desktop with the accessibility bus.
"""

import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

BOXES = (("First date", "Erstes Datum"), ("Date difference", "Datumsdifferenz"), ("Second date", "Zweites Datum"))
COMPUTE = {"English": "Compute", "Deutsch": "Berechnen"}
PATIENCE = 30  # seconds


class Broken(Exception):
    pass


def walk(accessible, depth=0):
    """An accessible and all below it; what goes away meanwhile is left out."""
    try:
        accessible.clear_cache()
        yield accessible
        if accessible.get_role_name() in ("table", "menu bar"):
            return
        for i in range(accessible.get_child_count()):
            child = accessible.get_child_at_index(i)
            if child is not None and depth < 20:
                yield from walk(child, depth + 1)
    except GLib.Error:
        return


class Seen:
    """The program on the bus."""

    def __init__(self, process):
        """process is the number of the program's process: one that is just ending may still be on the bus."""
        end = time.monotonic() + PATIENCE
        while True:
            self.application = self.find(process)
            if self.application is not None:
                return
            if time.monotonic() > end:
                raise Broken("the program does not come to the accessibility bus")
            time.sleep(0.1)

    @staticmethod
    def find(process):
        desktop = Atspi.get_desktop(0)
        desktop.clear_cache()
        for i in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(i)
            try:
                if child is not None and child.get_process_id() == process and child.get_child_count() > 0:
                    return child
            except GLib.Error:
                continue
        return None

    def windows(self):
        """The windows that are shown; one that goes meanwhile is left out."""
        self.application.clear_cache()
        for i in range(self.application.get_child_count()):
            try:
                window = self.application.get_child_at_index(i)
                if window is not None and has(window, Atspi.StateType.VISIBLE):
                    yield window
            except GLib.Error:
                continue

    def window(self, name="Calvoro 13.0"):
        return next((window for window in self.windows() if window.get_name() == name), None)

    def answers(self):
        """Returns when the program has answered a question, behind all that was before it."""
        end = time.monotonic() + PATIENCE
        while True:
            try:
                self.application.clear_cache()
                return self.application.get_child_count()
            except GLib.Error as error:
                if time.monotonic() > end:
                    raise Broken(f"the program does not answer: {error}") from error

    def main_controls(self):
        window = self.window()
        if window is None:
            raise Broken("the main window is not there")
        return list(walk(window))


def has(accessible, state):
    return accessible.get_state_set().contains(state)


def text_of(accessible):
    return Atspi.Text.get_text(accessible, 0, Atspi.Text.get_character_count(accessible))


def check(seen):
    """Looks at the main window.

    returns  what is chosen and written in it: the language, the texts of the boxes, the checked check boxes
    """
    groups, boxes, checked, buttons = {}, {}, {}, set()
    for control in seen.main_controls():
        role, name = control.get_role_name(), control.get_name()
        if role == "radio button":
            parent = control.get_parent()
            group = "" if parent is None else parent.get_name()
            groups.setdefault(group, {})[name] = has(control, Atspi.StateType.CHECKED)
        elif role == "check box":
            checked[name] = has(control, Atspi.StateType.CHECKED)
        elif role == "push button":
            buttons.add(name)
        elif role == "text":
            boxes[name] = text_of(control)
    for group, options in groups.items():
        if sum(options.values()) != 1:
            raise Broken(f"of the group '{group}' {sum(options.values())} options are chosen")
    if len(groups) != 7 or len(checked) != 5:
        raise Broken(f"{len(groups)} groups and {len(checked)} check boxes instead of 7 and 5")
    language = next(name for options in groups.values() if "Deutsch" in options
                    for name, chosen in options.items() if chosen)
    if COMPUTE[language] not in buttons:
        raise Broken(f"the language is {language}, and no button says {COMPUTE[language]}")
    number = list(COMPUTE).index(language)
    missing = [names[number] for names in BOXES if names[number] not in boxes]
    if missing:
        raise Broken(f"no box is named {missing}")
    return {"language": number, "boxes": [boxes[names[number]] for names in BOXES],
            "checks": list(checked.values())}
