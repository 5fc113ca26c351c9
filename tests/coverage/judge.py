#!/usr/bin/env python3
"""Says how much of the code a run of the tests reached, and fails when it was too little.

    judge.py EXPORT [ROOT]

EXPORT is what `llvm-cov export -format=text` wrote, ROOT the source tree (this one unless said otherwise). In the
rooms that compute, every branch must have gone both ways or stand in exceptions.txt beside this file with its reason;
an entry there that is no longer needed is a fault, too. In every other room 95 % of the lines must have run.
"""

import pathlib
import sys

from counts import FileCounts, load_counts
from exceptions import BadList, read_exceptions, untaken

EVERY_BRANCH = ("calendar", "csvtext", "datetext", "text", "compute")
MOST_LINES = ("quicktext", "cli", "mainwindow", "windows", "platform", "app")
LEAST_LINES = 95  # %

# What the compiler of another system alone reads.
ELSEWHERE = ("platform/windows/", "platform/qt/windows/", "platform/qt/macos/", "app/NoEndingSignals.cpp")


def sources(root, room):
    """The C++ files of a room, by their path from the root."""
    names = (path.relative_to(root).as_posix() for path in (root / room).rglob("*") if path.suffix in (".cpp", ".h"))
    return sorted(name for name in names if not name.startswith(ELSEWHERE))


def share(part, whole):
    return f"{part:6} of {whole:6} {100 * part / whole if whole else 100:6.2f} %"


class Verdict:
    """The table and the faults of a run."""

    def __init__(self, files, exceptions, root):
        self.files, self.exceptions, self.root = files, exceptions, root
        self.rows, self.faults, self.excused = [], [], set()
        for room in EVERY_BRANCH + MOST_LINES:
            self.judge_room(room)
        for branch in exceptions.keys() - self.excused:
            self.faults.append(f"{branch.file}: no longer needed in the list of exceptions: "
                               f"{branch.condition} is {str(branch.way).lower()}")

    def judge_room(self, room):
        names = sources(self.root, room)
        lines = run = ways = taken = 0
        for name in names:
            counts = self.files.get(name, FileCounts())
            lines += len(counts.lines)
            run += sum(1 for count in counts.lines.values() if count)
            branches = counts.undecided()
            ways += 2 * len(branches)
            taken += sum(1 for both in branches.values() for count in both if count)
            if room in EVERY_BRANCH:
                self.judge_branches(name, counts)
            if name.endswith(".cpp") and name not in self.files:
                self.faults.append(f"{name}: in no program that was run")
        if not lines:
            self.faults.append(f"{room}: nothing was counted")
        elif room in MOST_LINES and 100 * run < LEAST_LINES * lines:
            self.faults.append(f"{room}: {100 * run / lines:.2f} % of the lines were run, less than {LEAST_LINES} %")
        self.rows.append((room, run, lines, taken, ways))

    def judge_branches(self, name, counts):
        for number, branch in untaken(name, counts, (self.root / name).read_text(encoding="utf-8")):
            if branch in self.exceptions:
                self.excused.add(branch)
            else:
                self.faults.append(f"{name}:{number}: never {str(branch.way).lower()}: {branch.condition}\n"
                                   f"    {branch.line}")

    def table(self):
        heads = f"{'room':<12}{'lines':>26}{'ways of branches':>28}"
        return "\n".join([heads] + [f"{room:<12}{share(run, lines)}  {share(taken, ways)}"
                                    for room, run, lines, taken, ways in self.rows])


def main(arguments, exceptions=None):
    """What the command does. exceptions: the text of the list, to be used instead of the one beside this file."""
    here = pathlib.Path(__file__).resolve().parent
    if len(arguments) not in (1, 2):
        print(__doc__, file=sys.stderr)
        return 2
    root = pathlib.Path(arguments[1]).resolve() if len(arguments) == 2 else here.parent.parent
    try:
        if exceptions is None:
            exceptions = (here / "exceptions.txt").read_text(encoding="utf-8")
        listed = read_exceptions(exceptions)
    except BadList as fault:
        print(f"exceptions.txt: {fault}", file=sys.stderr)
        return 1
    verdict = Verdict(load_counts(arguments[0], root), listed, root)
    print(verdict.table())
    print(f"{len(listed)} exceptions")
    for fault in verdict.faults:
        print(fault, file=sys.stderr)
    return 1 if verdict.faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
