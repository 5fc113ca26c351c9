"""Whether some processes, and all that they have started, have nothing to do at the moment (Linux)."""

import pathlib

PROC = pathlib.Path("/proc")
AT_WORK = "RD"  # runs or would run, or waits for a disk


def fields(stat):
    """State and parent, from a line of /proc; the name before them, in brackets, may hold anything."""
    state, parent = stat.read_text().rpartition(")")[2].split()[:2]
    return state, int(parent)


def family(roots):
    """The numbers of these processes and of their descendants."""
    parents = {}
    for stat in PROC.glob("[0-9]*/stat"):
        try:
            parents[int(stat.parent.name)] = fields(stat)[1]
        except OSError:  # it has just ended
            continue
    found = set(roots)
    while True:
        more = {process for process, parent in parents.items() if parent in found} - found
        if not more:
            return found
        found |= more


def at_work(process):
    for stat in PROC.glob(f"{process}/task/[0-9]*/stat"):
        try:
            if fields(stat)[0] in AT_WORK:
                return True
        except OSError:
            continue
    return False


def at_rest(roots):
    """Whether no thread of these processes and their descendants is at work now."""
    return not any(at_work(process) for process in family(roots))
