"""Which mutants are looked at: a share for every file, drawn by a seed."""

import random


def shares(counts, size):
    """How many of the sample belong to each file: as it has mutants, at least one for each that has any.
    counts  mutants by file"""
    counts = {file: count for file, count in counts.items() if count}
    total = sum(counts.values())
    if not total:
        return {}
    exact = {file: size * count / total for file, count in counts.items()}
    given = {file: min(counts[file], max(1, int(share))) for file, share in exact.items()}
    # What rounding down left goes to where most of a mutant was lost, what the least share took comes from
    # those that have most.
    while sum(given.values()) < min(size, total):
        able = [file for file in given if given[file] < counts[file]]
        given[max(able, key=lambda file: (exact[file] - given[file], file))] += 1
    while sum(given.values()) > max(size, len(given)):
        given[max(given, key=lambda file: (given[file] - exact[file], given[file], file))] -= 1
    return given


def order(file, mutants, seed):
    """The mutants of a file in the order in which they are drawn; the same for a seed whatever else is there."""
    drawn = sorted(mutants, key=lambda mutant: mutant.key)
    random.Random(f"{seed} {file}").shuffle(drawn)
    return drawn
