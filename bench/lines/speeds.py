#!/usr/bin/env python3
"""Speeds of `calvoro-cli convert` on every road, relative to Common Era to ISO week dates.

    speeds.py CLI COPY_LINES ROUNDS [BEFORE]

CLI is the command line that is measured, COPY_LINES the program that only copies lines, BEFORE an earlier
command line to be compared on the one road. The working directory holds a file of dates in each notation,
named after it. Runs of all jobs alternate. What counts is processor time, user and system, which other jobs of
the machine disturb least, and of each job the least of all rounds.

Prints the tables, and ends with status 1 when a bar is missed.
"""

import os
import sys

NOTATIONS = ["CE", "ISO", "JC", "ORD", "LPM", "LPW", "JDN"]
REFERENCE = "CE to ISO"
PAIR_BAR = 0.6
COPY_BAR = 0.45

# What is done, the file it is done to, and the least speed beside the reference.
OPTIONS = [
    ("--to all", ["--from", "CE", "--to", "all"], "CE", 0.3),
    ("--weekday", ["--from", "CE", "--to", "ISO", "--weekday"], "CE", 0.6),
    ("--tag", ["--from", "CE", "--to", "ISO", "--tag"], "CE", 0.6),
    ("--tag, of a text with tags", ["--from", "CE", "--to", "ISO", "--tag"], "CE_tagged", 0.6),
    ("--csv", ["--from", "CE", "--to", "ISO", "--csv"], "CE", 0.6),
    ("--no-hyphen", ["--from", "CE", "--to", "ISO", "--no-hyphen"], "CE", 0.6),
    ("--era", ["--from", "ISO", "--to", "CE", "--era"], "ISO", 0.6),
    ("--lenient", ["--from", "CE", "--to", "ISO", "--lenient"], "CE", 0.6),
    ("--date-separator /", ["--from", "CE", "--to", "JC", "--date-separator", "/"], "CE_slashes", 0.6),
    ("--date-separator . --date-format DMY",
     ["--from", "CE", "--to", "JC", "--date-separator", ".", "--date-format", "DMY"], "CE_dots", 0.6),
    ("--thousands-separator ,", ["--from", "JDN", "--to", "JDN", "--thousands-separator", ","], "JDN_commas", 0.6),
    ("CR LF", ["--from", "CE", "--to", "ISO"], "CE_crlf", 0.6),
    ("--field 1", ["--from", "CE", "--to", "ISO", "--field", "1"], "CE_pairs", 0.6),
    ("--field 2, the last one", ["--from", "CE", "--to", "ISO", "--field", "2"], "CE_pairs", 0.6),
    ("--field 1 --append", ["--from", "CE", "--to", "ISO", "--field", "1", "--append"], "CE_pairs", 0.6),
    ("--csv --field 1", ["--from", "CE", "--to", "ISO", "--csv", "--field", "1"], "CE_csv", 0.6),
]

# Other commands than convert, in the same terms.
COMMANDS = [
    ("between", ["between"], "CE_pairs", 0.4),
    ("add", ["add"], "CE_numbers", 0.4),
]


def processor_seconds(command):
    to_nothing = [(os.POSIX_SPAWN_OPEN, 1, os.devnull, os.O_WRONLY, 0)]
    child = os.posix_spawn(command[0], command, os.environ, file_actions=to_nothing)
    _, status, usage = os.wait4(child, 0)
    if status != 0:
        sys.exit("%s: status %d" % (" ".join(command), status))
    return usage.ru_utime + usage.ru_stime


def jobs(cli, copy_lines, before):
    convert = [cli, "convert"]
    found = {"copy": [copy_lines, "CE"]}
    for source in NOTATIONS:
        for target in NOTATIONS:
            found["%s to %s" % (source, target)] = convert + ["--from", source, "--to", target, "--input", source]
    for name, options, source, _ in OPTIONS:
        found[name] = convert + options + ["--input", source]
    for name, words, source, _ in COMMANDS:
        found[name] = [cli] + words + ["--input", source]
    if before:
        found["before"] = [before] + found[REFERENCE][1:]
    return found


def main():
    cli, copy_lines, rounds = sys.argv[1], sys.argv[2], int(sys.argv[3])
    before = sys.argv[4] if len(sys.argv) > 4 else None
    commands = jobs(cli, copy_lines, before)
    seconds = {name: float("inf") for name in commands}
    for _ in range(rounds):
        for name, command in commands.items():
            seconds[name] = min(seconds[name], processor_seconds(command))

    with open("CE", "rb") as dates:
        lines = sum(block.count(b"\n") for block in iter(lambda: dates.read(1 << 20), b""))
    reference = seconds[REFERENCE]
    print("%d lines, %s: %.1f million lines a second" % (lines, REFERENCE, lines / reference / 1e6))
    missed = False

    print("\nSpeed from (rows) to (columns), %s is 1; each at least %.2f\n" % (REFERENCE, PAIR_BAR))
    print("| from | " + " | ".join(NOTATIONS) + " |")
    print("| --- |" + " --- |" * len(NOTATIONS))
    for source in NOTATIONS:
        ratios = [reference / seconds["%s to %s" % (source, target)] for target in NOTATIONS]
        marks = ["%.2f%s" % (ratio, "" if ratio >= PAIR_BAR else " MISSED") for ratio in ratios]
        missed = missed or min(ratios) < PAIR_BAR
        print("| %s | %s |" % (source, " | ".join(marks)))

    print("\n| what | times %s | at least |\n| --- | --- | --- |" % REFERENCE)
    rows = [(name, reference / seconds[name], bar) for name, _, _, bar in OPTIONS + COMMANDS]
    print_rows = rows + [(REFERENCE + ", times the program that only copies lines",
                          seconds["copy"] / reference, COPY_BAR)]
    if before:
        print_rows.append((REFERENCE + ", times the earlier program", seconds["before"] / reference, 1))
    for name, ratio, bar in print_rows:
        missed = missed or ratio < bar
        print("| %s | %.2f | %.2f%s |" % (name, ratio, bar, "" if ratio >= bar else " MISSED"))
    sys.exit(1 if missed else 0)


main()
