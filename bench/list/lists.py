#!/usr/bin/env python3
"""Measures lists in the window against their bars; see scripts/bench-list.

    lists.py LIST_BENCH CALVORO_CLI [--lines N] [--rounds N]
"""

import argparse
import json
import os
import pathlib
import random
import statistics
import subprocess
import sys
import tempfile
import time

MOST_LATER = 0.3         # seconds until the first rows, beyond a plain table of the toolkit
MOST_MEMORY = (2.5, 40)  # times the text, and MiB
LEAST_SPEED = 0.5        # of copying, times `calvoro-cli compute --json`


def dates(count):
    pick = random.Random(12)
    return [f"{pick.randrange(1, 2000)}-{pick.randrange(1, 13):02}-{pick.randrange(1, 29):02}" if i % 1000 else "?"
            for i in range(count)]


def figures(program, way, file):
    environment = os.environ | {"QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8"}
    output = subprocess.run([program, way, file], env=environment, check=True, stdout=subprocess.PIPE, text=True,
                            stderr=subprocess.DEVNULL).stdout
    return {name: float(value) for name, value in (line.split() for line in output.splitlines())}


def time_of_command_line(program, requests):
    began = time.monotonic()
    with open(requests, "rb") as lines:
        subprocess.run([program, "compute", "--json"], stdin=lines, stdout=subprocess.DEVNULL, check=True)
    return time.monotonic() - began


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("list_bench")
    parser.add_argument("calvoro_cli")
    parser.add_argument("--lines", type=int, default=1_000_000)
    parser.add_argument("--rounds", type=int, default=5)
    arguments = parser.parse_args()

    with tempfile.TemporaryDirectory(prefix="calvoro-list-") as folder:
        lines = dates(arguments.lines)
        file = pathlib.Path(folder) / "dates.txt"
        file.write_text("".join(line + "\n" for line in lines))
        requests = pathlib.Path(folder) / "requests.jsonl"
        requests.write_text("".join(
            json.dumps({"first": line, "first_calendar": "JC", "verbose": True}) + "\n" for line in lines))
        rows = {"plain": [], "file": [], "pasted": [], "cli": []}
        for _ in range(arguments.rounds):
            for way in ("plain", "file", "pasted"):
                rows[way].append(figures(arguments.list_bench, way, str(file)))
            rows["cli"].append({"copy": time_of_command_line(arguments.calvoro_cli, requests)})
        megabytes = file.stat().st_size / 2**20

    def median(way, name):
        return statistics.median(row[name] for row in rows[way])

    most_memory = MOST_MEMORY[0] * megabytes + MOST_MEMORY[1]
    right = True

    def show(what, seen, bar, good):
        nonlocal right
        right &= good
        print(f"| {what} | {seen} | {bar}{'' if good else ' MISSED'} |")
    print(f"{arguments.lines} lines, {megabytes:.1f} MiB of text, {arguments.rounds} rounds, medians\n")
    print("| what | seen | bar |\n| --- | --- | --- |")
    for way in ("file", "pasted"):
        later = median(way, "first_rows") - median("plain", "first_rows")
        show(f"first rows, {way}, beside {median('plain', 'first_rows'):.3f} s of a plain table",
             f"{median(way, 'first_rows'):.3f} s", f"at most {MOST_LATER} s later", later <= MOST_LATER)
        memory = max(row["memory"] for row in rows[way]) / 1024
        show(f"most memory more, {way}", f"{memory:.1f} MiB", f"at most {most_memory:.1f} MiB",
             memory <= most_memory)
    show("last rows after a scroll to the end", f"{1000 * median('file', 'last_rows'):.1f} ms",
         "at once: at most 100 ms", median("file", "last_rows") <= 0.1)
    show("longest wait of an event meanwhile", f"{1000 * median('file', 'longest_wait'):.0f} ms", "none", True)
    speed = statistics.median(cli["copy"] / row["copy"] for cli, row in zip(rows["cli"], rows["file"]))
    show("copying all, times as fast as `compute --json`", f"{speed:.2f}", f"at least {LEAST_SPEED}",
         speed >= LEAST_SPEED)
    show("all refusals counted", f"{median('file', 'survey'):.2f} s", "none", True)
    sys.exit(0 if right else 1)


if __name__ == "__main__":
    main()
