"""The list of changes that change nothing, each with its reason.

An entry is a block: the file, the text of the line and the change, indented each by its name, then the reason.

    datetext/Blanks.cpp
      line    while (begin < end) ++begin;
      change  < to !=
      The beginning never lies behind the end.
"""

from dataclasses import dataclass


class BadList(Exception):
    pass


@dataclass
class Entry:
    file: str
    line: str
    change: str
    reason: str

    @property
    def key(self):
        return f"{self.file}\t{self.line}\t{self.change}"


def read_entries(text):
    """The entries of a list; lines that begin with "#" are passed over.
    throws  BadList"""
    entries = []
    kept = "\n".join(line for line in text.split("\n") if not line.startswith("#"))
    for block in kept.split("\n\n"):
        if not block.strip():
            continue
        lines = block.strip("\n").split("\n")
        if len(lines) < 4 or not lines[1].startswith("  line ") or not lines[2].startswith("  change "):
            raise BadList(f"not an entry: {lines[0]}")
        reason = " ".join(line.strip() for line in lines[3:]).strip()
        if not reason:
            raise BadList(f"no reason is given: {lines[0]}")
        entries.append(Entry(lines[0].strip(), lines[1][7:].strip(), lines[2][9:].strip(), reason))
    keys = [entry.key for entry in entries]
    if len(set(keys)) < len(keys):
        raise BadList("one is listed twice: " + next(key for key in keys if keys.count(key) > 1))
    return entries


def check_entries(entries, mutants):
    """throws  BadList when an entry fits no mutant, as the code has changed since"""
    known = {mutant.key for mutant in mutants}
    stale = [entry for entry in entries if entry.key not in known]
    if stale:
        raise BadList("\n".join(f"fits nothing any more: {entry.file}: {entry.line}: {entry.change}" for entry in stale))
