#!/usr/bin/env python3
"""Leaves out events for as long as the monkey still finds the same, and prints those that it takes.

shrink.py MONKEY SEED EVENT    EVENT is the number of the event that was told
"""

import subprocess
import sys


def told(monkey, seed, last, ranges):
    """The invariant that is broken when only these events are played; nothing when none is."""
    only = ",".join(f"{first}-{end}" for first, end in ranges)
    result = subprocess.run([monkey, "--seed", seed, "--to", str(last), "--only", only], capture_output=True,
                            text=True, check=False)
    if result.returncode == 0:
        return None, ""
    broken = result.stdout.splitlines()[1] if "\n" in result.stdout else "crash"
    return ("crash" if broken.endswith("crash") else broken.split(":")[0]), result.stdout


def main():
    monkey, seed, last = sys.argv[1], sys.argv[2], int(sys.argv[3])
    kept = [(1, last)]
    wanted, words = told(monkey, seed, last, kept)
    if wanted is None:
        sys.exit("nothing is found")
    size = max(1, last // 2)
    while True:
        for begin in range(1, last, size):
            end = min(begin + size - 1, last - 1)
            # Without those from begin to end.
            fewer = []
            for first, final in kept:
                if first < begin:
                    fewer.append((first, min(final, begin - 1)))
                if final > end:
                    fewer.append((max(first, end + 1), final))
            if fewer == kept:
                continue
            found, what = told(monkey, seed, last, fewer)
            if found == wanted:
                kept, words = fewer, what
        if size == 1:
            break
        size = max(1, size // 2)
    only = ",".join(f"{first}-{end}" for first, end in kept)
    print(f"{words}{sum(end - first + 1 for first, end in kept)} of {last} events:")
    print(f"{monkey} --seed {seed} --to {last} --only {only} --trace")


if __name__ == "__main__":
    main()
