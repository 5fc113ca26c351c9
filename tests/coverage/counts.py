"""What a run counted, by file: how often each line ran and which way each branch went.

The counts come from `llvm-cov export -format=text`. It tells every instance of a template and every copy of an
inline function apart, and names a header by each path that led to it; here they are one file, whose lines and
branches were run when any of them was.
"""

import json
import pathlib

CODE = 0  # the kind of a region that is neither a macro, nor skipped, nor a gap, nor a branch


class FileCounts:
    """Counts of one source file."""

    def __init__(self):
        self.lines = {}  # number: how often it ran; lines without code are left out
        self.branches = {}  # (line, column, last line, last column): [times true, times false]
        self.constant = set()  # branches that the compiler decided, so that there is nothing to take

    def undecided(self):
        """The branches that a run can take either way."""
        return {place: taken for place, taken in self.branches.items() if any(taken) or place not in self.constant}


def line_counts(segments):
    """How often each line ran, of a file's segments. A segment holds from its place to that of the next one:
    [line, column, count, has a count, begins a region, is a gap]."""
    counts = {}
    around = None
    last = segments[-1][0] if segments else 0
    by_line = {}
    for segment in segments:
        by_line.setdefault(segment[0], []).append(segment)
    for line in range(segments[0][0] if segments else 1, last + 1):
        here = by_line.get(line, [])
        begun = [count for _, _, count, counted, begins, gap in here if counted and begins and not gap]
        skipped = bool(here) and not here[0][3] and here[0][4]
        if not skipped and (begun or around and around[3]):
            counts[line] = max(begun + ([around[2]] if around and around[3] else []))
        if here:
            around = here[-1]
    return counts


def is_constant(branch, regions):
    """Whether the compiler decided a branch that went no way: the code around it ran all the same. The code
    around it is the smallest region that holds its beginning."""
    begin, file = tuple(branch[:2]), branch[6]
    around = [
        region for region in regions
        if region[5] == file and region[7] == CODE and tuple(region[:2]) <= begin < tuple(region[2:4])
    ]
    return bool(around) and max(around, key=lambda region: (region[:2], [-region[2], -region[3]]))[4] > 0


def is_written_by_compiler(function):
    """Whether a function is a comparison of all fields (`= default`): all of it stands in one character, and nothing
    in it is counted but the calls."""
    places = {tuple(region[:4]) for region in function["regions"]}
    line, column, last_line, last_column = next(iter(places), (0, 0, 0, 0))
    return len(places) == 1 and (last_line, last_column) == (line, column + 1)


def read_counts(export, root):
    """The counts of every file below a folder, by its path from there.
    export  the parsed text of llvm-cov
    """
    real = {}
    files = {}

    def counts_of(name):
        if name not in real:
            path = pathlib.Path(name).resolve()
            real[name] = path.relative_to(root).as_posix() if path.is_relative_to(root) else None
        return files.setdefault(real[name], FileCounts()) if real[name] else None

    for program in export["data"]:
        for file in program["files"]:
            counts = counts_of(file["filename"])
            if counts:
                for line, count in line_counts(file["segments"]).items():
                    counts.lines[line] = counts.lines.get(line, 0) + count
        for function in program["functions"]:
            if is_written_by_compiler(function):
                continue
            for branch in function["branches"]:
                counts = counts_of(function["filenames"][branch[6]])
                if not counts:
                    continue
                taken = counts.branches.setdefault(tuple(branch[:4]), [0, 0])
                taken[0] += branch[4]
                taken[1] += branch[5]
                if not any(branch[4:6]) and is_constant(branch, function["regions"]):
                    counts.constant.add(tuple(branch[:4]))
    return files


def load_counts(path, root):
    """As read_counts, of a file of JSON."""
    with open(path, encoding="utf-8") as file:
        return read_counts(json.load(file), root)
