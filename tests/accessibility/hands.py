"""Works the main window through the accessibility bus alone, as assistive tools do, and prints what comes of it.

Run with the environment of a desktop that has such a bus, by the distribution's Python, while the program runs
with empty boxes in English.
"""

import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402
from tree import program  # noqa: E402

PATIENCE = 60  # seconds
heard = []


def listen():
    """Counts what a screen reader would be told from now on."""
    listener = Atspi.EventListener.new(lambda event: heard.append((event.type, event.source.get_name())))
    for kind in ("object:property-change:accessible-description", "object:text-changed",
                 "object:property-change:accessible-name"):
        listener.register(kind)
    return listener


def pump(seconds=0.3):
    """Takes what the bus brings."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        while GLib.MainContext.default().iteration(False):
            pass
        time.sleep(0.01)


def everything(accessible):
    accessible.clear_cache()
    yield accessible
    for i in range(accessible.get_child_count()):
        child = accessible.get_child_at_index(i)
        if child is not None:
            yield from everything(child)


class Hands:
    def __init__(self):
        self.program = program()

    def control(self, role, name, group=None):
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            for accessible in everything(self.program):
                if accessible.get_role_name() == role and accessible.get_name() == name:
                    if group is None or accessible.get_parent().get_name() == group:
                        return accessible
            pump()
        sys.exit(f"no {role} named {name}")

    def act(self, action, *control):
        accessible = self.control(*control)
        actions = accessible.get_action_iface()
        names = [actions.get_action_name(i) for i in range(actions.get_n_actions())]
        actions.do_action(names.index(action))
        pump()

    def write(self, box, text):
        Atspi.EditableText.set_text_contents(self.control("text", box), text)
        pump()

    def read(self, box):
        accessible = self.control("text", box)
        return Atspi.Text.get_text(accessible, 0, Atspi.Text.get_character_count(accessible))

    def has(self, state, *control):
        return self.control(*control).get_state_set().contains(state)


def told(what, value):
    print(f"{what}: {value}")


def main():
    hands = Hands()
    listener = listen()
    pump()

    hands.write("First date", "2021-03-04")
    told("written", hands.read("First date"))
    told("its description", hands.control("text", "First date").get_description())
    told("text changes heard", any(kind.startswith("object:text-changed") for kind, _ in heard))
    told("descriptions announced", sum("accessible-description" in kind for kind, _ in heard))

    hands.act("Toggle", "radio button", "Julian Calendar date", "First date: Calendar")
    told("converted", hands.read("First date"))
    told("focus stays on the option", hands.has(
        Atspi.StateType.FOCUSED, "radio button", "Julian Calendar date", "First date: Calendar"))
    hands.act("SetFocus", "text", "Date difference")
    told("focus", hands.has(Atspi.StateType.FOCUSED, "text", "Date difference"))
    hands.write("Date difference", "10")
    hands.act("Toggle", "check box", "Verbose")
    told("verbose", hands.has(Atspi.StateType.CHECKED, "check box", "Verbose"))
    heard.clear()
    hands.act("Press", "push button", "Compute")
    told("output", hands.read("Output window").strip())

    hands.act("Toggle", "radio button", "Months", "Date difference")
    told("weekends can be chosen", hands.has(
        Atspi.StateType.SENSITIVE, "check box", "Count weekend days in days-between-dates"))
    told("the difference's description", hands.control("text", "Date difference").get_description())
    hands.act("Press", "push button", "First date: Clear")
    told("emptied", repr(hands.read("First date")))
    hands.act("Toggle", "radio button", "Deutsch")
    hands.write("Erstes Datum", "-43-03-15")
    told("in German", hands.control("text", "Erstes Datum").get_description())
    hands.act("Toggle", "radio button", "English")
    told("back", hands.control("push button", "Compute").get_name())
    listener.deregister("object:text-changed")


if __name__ == "__main__":
    main()
