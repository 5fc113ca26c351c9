#!/usr/bin/env python3
"""Whether the monkey finds what it is there to find, and plays the same again.

monkey_test.py MONKEY
"""

import math
import re
import subprocess
import sys

LIES = ["messages", "choices", "captions", "today", "readings", "settings", "texts", "focus", "month", "windows", "list",
        "crash"]
LIE_AT = 20


def run(monkey, *arguments):
    return subprocess.run([monkey, *arguments], capture_output=True, text=True, timeout=120, check=False)


def found(monkey, lie):
    """What is wrong with the way in which a lie was found; nothing when it was found at once, and named."""
    result = run(monkey, "--lie", lie, "--lie-at", str(LIE_AT))
    where, _, what = result.stdout.partition("\n")
    if result.returncode == 0:
        return f"{lie}: not found"
    if f"event {LIE_AT}: " not in where:
        return f"{lie}: found elsewhere: {where}"
    if not (what.startswith(lie + ":") or what.rstrip().endswith(": " + lie)):
        return f"{lie}: taken for {what}"
    return None


def growth(result):
    """How many bytes an event the memory in use is said to have grown."""
    told = re.search(r"memory: ([+-][\d.]+) bytes an event", result.stdout)
    return float(told[1]) if told else math.nan


def memory(monkey):
    """So few events swing by some 50,000 bytes an event, so it takes the figure to tell waste from that."""
    looks = ("--memory", "--events", "400", "--sample", "20")
    ordinary = run(monkey, *looks)
    wasted = run(monkey, *looks, "--lie", "memory", "--lie-at", "1")
    if not growth(ordinary) < 100_000:
        return f"memory: waste was found where there is none: {ordinary.stdout[-200:]}"
    if wasted.returncode == 0 or not growth(wasted) > 150_000:
        return f"memory: waste was not found: {wasted.stdout[-200:]}"
    return None


def the_same_again(monkey):
    arguments = ("--seed", "5", "--events", "150", "--trace")
    one, other = run(monkey, *arguments), run(monkey, *arguments)
    if one.returncode != 0:
        return f"the same again: {one.stdout[-300:]}"
    if one.stdout != other.stdout:
        differing = [lines for lines in zip(one.stdout.splitlines(), other.stdout.splitlines())
                     if lines[0] != lines[1]]
        return f"the same again: {differing[:1]}"
    other_seed = run(monkey, "--seed", "6", *arguments[2:])
    return "another seed plays the same" if other_seed.stdout == one.stdout else None


def main():
    monkey = sys.argv[1]
    faults = [found(monkey, lie) for lie in LIES] + [memory(monkey), the_same_again(monkey)]
    faults = [fault for fault in faults if fault]
    print("\n".join(faults) or f"{len(LIES) + 1} lies found")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
