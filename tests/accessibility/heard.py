"""Whether everything that a person must hear stands in the record of what the screen reader said.

What must be heard is taken from the tree of the controls, as assistive tools meet it, and from the lines of the
record that say what the window held then; how they are written down is told in tree.py and in spoken.py.
"""

import re

from spoken import OUTPUT, SHOWN

SHORTEST = {"options": 27, "check boxes": 5, "results": 4, "months": 8}  # a shorter record proves nothing
CONTROL = re.compile(r'(?P<depth> *)(?P<role>[a-z ]+) "(?P<name>.*?)"(?: described ".*?")?'
                     r'(?P<states>[a-z -]*)(?: \[.*)?$')
STATE_OF_CHECK_BOX = re.compile(r"(?:(.*) check box )?((?:not )?checked)\.?$")
CHANGE_OF_CHECK_BOX = re.compile(r"notification (.*): (on|off|ein|aus)\.?$")


class Control:
    def __init__(self, match, group):
        self.role, self.name, self.states = match["role"], match["name"], match["states"].split()
        self.group = group


def windows(tree):
    """The controls of each window in a file of trees, in its order; an option with the name of its group."""
    found = []
    group, depth = "", 0
    for line in tree.splitlines():
        if line.startswith("# "):
            found.append([])
        elif match := CONTROL.match(line):
            if match["role"] == "panel":
                group, depth = match["name"], len(match["depth"])
            inside = len(match["depth"]) > depth
            found[-1].append(Control(match, group if inside else ""))
    return found


class Task:
    def __init__(self, name):
        self.name = name
        self.said = []
        self.shown = []  # the months that were shown, each with the words said since the one before
        self.output = []  # the results


def tasks(record):
    found, since = [], 0
    for line in record.splitlines():
        if line.startswith("# "):
            found.append(Task(line[2:]))
            since = 0
        elif line.startswith(SHOWN):
            found[-1].shown.append((line.removeprefix(SHOWN), found[-1].said[since:]))
            since = len(found[-1].said)
        elif line.startswith(OUTPUT):
            found[-1].output.append(line.removeprefix(OUTPUT))
        elif line.startswith(" "):
            found[-1].said.append(line.strip())
    return found


def same(said, name):
    """Whether the reader says this name; it ends a name with a full stop of its own."""
    return said.rstrip(".") == name.rstrip(".")


def options_heard(all_tasks):
    """The pairs of group and option that were told to be chosen."""
    heard = set()
    for task in all_tasks:
        panel = ""
        for name, state in zip(task.said, task.said[1:]):
            if name.endswith(" panel."):
                panel = name.removesuffix(" panel.")
            elif state == "selected radio button":
                heard.add((panel, name.rstrip(".")))
    return heard


def unheard_options(controls, all_tasks):
    heard = options_heard(all_tasks)
    # The words of the label that leads to a group may stand before its name.
    return [f"{option.group}: {option.name} is never told to be chosen" for option in controls
            if option.role == "radio button" and not any(
                panel.endswith(option.group) and same(name, option.name) for panel, name in heard)]


def states_heard(task):
    """The pairs of check box and state that were told in a task: with its name, alone, or as a change."""
    heard = set()
    box = None
    for words in task.said:
        if match := STATE_OF_CHECK_BOX.match(words):
            box = match[1] or box
            heard.add((box, match[2]))
        elif match := CHANGE_OF_CHECK_BOX.match(words):
            heard.add((match[1], "checked" if match[2] in ("on", "ein") else "not checked"))
    return heard


def unheard_states(controls, all_tasks):
    heard = set().union(*map(states_heard, all_tasks))
    return [f"{box.name} is never told to be {state}" for box in controls if box.role == "check box"
            for state in ("checked", "not checked") if (box.name, state) not in heard]


def unheard_controls(controls, said):
    """What can have the focus, or holds options, and was never named with its role."""
    faults = []
    groups = {control.group for control in controls if control.role == "radio button"}
    for control in controls:
        if control.role in ("radio button", "check box") or not (
                control.name in groups if control.role == "panel"
                else {"focusable", "sensitive"} <= set(control.states)):
            continue
        role = "read only text" if control.role == "text" and "read-only" in control.states else control.role
        if role == "combo box":  # is named by its label; its name on the bus is the entry that is chosen
            found = any(words.endswith(" combo box.") and control.name in then
                        for words, then in zip(said, said[1:]))
        elif role == "table":
            found = any(same(words, control.name) and then.startswith("table with ")
                        for words, then in zip(said, said[1:]))
        elif role == "panel":  # the words of the label that leads to it may stand before its name
            found = any(words.endswith(f"{control.name} panel.") for words in said)
        else:
            found = any(same(words, f"{control.name} {role}") for words in said)
        if not found:
            faults.append(f"{role} {control.name} is never named")
    return faults


def unheard_changes(all_tasks):
    """The results and months that were not announced, or more than once."""
    faults = []
    for task in all_tasks:
        for text, said in [*task.shown, *((line, task.said) for line in task.output)]:
            times = sum(words.startswith("notification ") and text.rstrip(".") in words for words in said)
            if times != 1:
                faults.append(f"{task.name}: announced {times} times: {text}")
    return faults


def counted(tree, record):
    """How much there was to be heard."""
    main = windows(tree)[0]
    all_tasks = tasks(record)
    return {"options": sum(control.role == "radio button" for control in main),
            "check boxes": sum(control.role == "check box" for control in main),
            "results": sum(len(task.output) for task in all_tasks),
            "months": sum(len(task.shown) for task in all_tasks)}


def unheard(tree, record):
    """What should have been heard and was not, a line each; nothing when all of it was."""
    every_window = windows(tree)
    main = every_window[0]
    all_tasks = tasks(record)
    said = [words for task in all_tasks for words in task.said]
    counts = counted(tree, record)
    return ([f"only {counts[what]} {what}" for what, least in SHORTEST.items() if counts[what] < least]
            + unheard_options(main, all_tasks) + unheard_states(main, all_tasks)
            + unheard_controls(sum(every_window, []), said) + unheard_changes(all_tasks))
