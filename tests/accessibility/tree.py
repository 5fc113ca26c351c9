"""Prints what assistive tools meet on the accessibility bus: a line for each control of the program's windows.

Role, name, description, states and actions, indented by depth. Run with the environment of a desktop that has
such a bus, by the distribution's Python, whose modules for it come as packages.
"""

import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

TOLD = [(Atspi.StateType.CHECKED, "checked"), (Atspi.StateType.EDITABLE, "editable"),
        (Atspi.StateType.FOCUSABLE, "focusable"), (Atspi.StateType.MODAL, "modal"),
        (Atspi.StateType.READ_ONLY, "read-only"), (Atspi.StateType.SENSITIVE, "sensitive")]
SKIPPED = {"scroll bar"}  # the toolkit's own, and empty layers around them


def line(accessible):
    states = accessible.get_state_set()
    parts = [accessible.get_role_name(), f'"{accessible.get_name()}"']
    if accessible.get_description():
        parts.append(f'described "{accessible.get_description()}"')
    parts += [word for state, word in TOLD if states.contains(state)]
    action = accessible.get_action_iface()
    if action:
        parts.append("[" + ", ".join(action.get_action_name(i) for i in range(action.get_n_actions())) + "]")
    return " ".join(parts)


def walk(accessible, depth):
    if accessible.get_role_name() in SKIPPED:
        return
    named = accessible.get_role_name() != "filler" or accessible.get_name()
    if named:
        print("    " * depth + line(accessible))
    for i in range(accessible.get_child_count()):
        child = accessible.get_child_at_index(i)
        if child is not None and child.get_state_set().contains(Atspi.StateType.VISIBLE):
            walk(child, depth + bool(named))


def program():
    end = time.monotonic() + 60
    while time.monotonic() < end:
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(i)
            if child is not None and child.get_child_count() > 0 and "calvoro" in child.get_name().lower():
                return child
        time.sleep(0.2)
    sys.exit("the program does not come to the accessibility bus")


def main():
    title = sys.argv[1]
    application = program()
    for i in range(application.get_child_count()):
        window = application.get_child_at_index(i)
        if window is not None and window.get_name() == title:
            walk(window, 0)
            return
    sys.exit(f"no window {title}")


if __name__ == "__main__":
    main()
