"""The branches that need not be taken both ways, each with its reason.

The list is a text of entries with empty lines between them; lines that begin with "#" are passed over:

    file:  calendar/Weekday.cpp
    line:  return weekday >= 1 && weekday <= 5;
    never: weekday >= 1 is false
    why:   A sentence, which may go on
           in further lines.

A branch is told by the text of its line and of its condition, so that an entry survives a move; in a `switch` that
names every value, the condition with the value "true" stands for a value that it does not name.
"""

import dataclasses
import re

FIELDS = ("file", "line", "never", "why")


@dataclasses.dataclass(frozen=True)
class Branch:
    """One way that a branch did not go, by what it says."""

    file: str
    line: str  # without the blanks around it
    condition: str  # on one line, single blanks
    way: bool


class BadList(Exception):
    """An entry that cannot be read."""


def read_exceptions(text):
    """The reasons by branch."""
    entries = {}
    for block in re.split(r"\n\s*\n", "\n".join(line for line in text.splitlines() if not line.startswith("#"))):
        if not block.strip():
            continue
        fields, name = {}, None
        for line in block.strip("\n").splitlines():
            match = re.match(r"(\w+):\s+(.*)", line)
            if match and match[1] in FIELDS and match[1] not in fields:
                name = match[1]
                fields[name] = match[2].strip()
            elif line.startswith(" ") and name == "why":
                fields[name] += " " + line.strip()
            else:
                raise BadList(f"not understood: {line}")
        condition = re.fullmatch(r"(.+) is (true|false)", fields.get("never", ""))
        if tuple(fields) != FIELDS or not condition or not fields["why"]:
            raise BadList(f"an entry needs {', '.join(FIELDS)}, in this order: {block}")
        branch = Branch(fields["file"], fields["line"], condition[1], condition[2] == "true")
        if branch in entries:
            raise BadList(f"listed twice: {branch}")
        entries[branch] = fields["why"]
    return entries


def source_between(lines, place):
    """The source text between two places, on one line.
    lines  of the file
    place  (line, column, last line, last column), counted from 1; the last column is not part of it
    """
    line, column, last_line, last_column = place
    text = lines[line - 1:last_line]
    text[-1] = text[-1][:last_column - 1]
    text[0] = text[0][column - 1:]
    return " ".join(" ".join(text).split())


def untaken(file, counts, source):
    """The ways that the branches of a file did not go: [(line number, Branch)], in the order of the file.
    source  its text
    """
    lines = source.splitlines()
    found = []
    for place, taken in sorted(counts.undecided().items()):
        for way, count in ((True, taken[0]), (False, taken[1])):
            if not count:
                text = lines[place[0] - 1].strip()
                found.append((place[0], Branch(file, text, source_between(lines, place), way)))
    return found
